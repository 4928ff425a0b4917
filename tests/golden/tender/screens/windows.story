story busy cleared by the picture
put F:\Lumbrio\ServerISBatching.dat |
at 2 s: look
-- File Server Busy
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
