story busy cleared by the picture
put F:\Lumbrio\ServerISBatching.dat |
at 2 s: look
-- File Server Busy
  dots: 
  title File Server Busy
  messageCardEdge attention
  Picture1 (Picture of the busy file server)  #1c2733
  message The Back Office Computer is Currently Batching out all credit card transactions. Please try again later
  SSCommand4 (OK) OK #ffffff focus
at 2 s: press Picture of the busy file server
at 2.5 s: look
-- File Server Busy
at 2.5 s: press OK
== end
  at 2500 ms
  state Just a moment
  stateEdge waiting
  manager 
  clerk 
  code 
  records 0
  starts 0
== boxes

story busy left by escape, like busy cleared by the picture
put F:\Lumbrio\ServerISBatching.dat |
at 2 s: key Escape
== end
* at 2000 ms
  starts 0
+ marker

story busy left by return, like busy left by escape
put F:\Lumbrio\ServerISBatching.dat |
at 2 s: key Return

# The hidden tool that reads a result file.
story result reader, like cancelled by escape
put C:\lumbrio\xResultFile.txt | RESULT=SUCCESS\r\n\r\nCLERK=77\r\n
at 50 ms: show the reader
at 60 ms: look
-- XC - Result File Reader
  dots: 
  title XC - Result File Reader
  fileCaption Result file
  Text1 [c:\Lumbrio\xResultFile.Txt] 11 points on #ffffff focus
  listCaption Lines
  xmlCaption Text in the tagged form
  Command1 (Read the file) Read the file #ffffff
  Command2 (unload me) unload me #1c2733
  Command3 (Read XML file) Read XML file #1c2733
at 60 ms: press Read the file
at 60 ms: focus Text in the tagged form
at 60 ms: type <RESULT_APPROVALCODE>777777</RESULT_APPROVALCODE>
at 60 ms: press Read XML file
at 60 ms: look
-- XC - Result File Reader
* Text1 [c:\Lumbrio\xResultFile.Txt] 11 points on #ffffff
  xmlCaption Text in the tagged form
+ Text3 <RESULT_APPROVALCODE>777777</RESULT_APPROVALCODE> focus
+ qt_scrollarea_viewport  focus
at 60 ms: end
== end
* at 60 ms
* state Just a moment
* clerk 77
* starts 0
- answer "Declined"
