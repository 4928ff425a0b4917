cards are taken here
payment keeps silent

story typed, like waiting
at 400 ms: look
-- Xcharge Credit Card Interface
- stateCard  focus
* stateWord Ready for the card
* Text3 [Waiting for You to Swipe the Card] 16 points on #000000
- stateHint The payment window takes the card.
- Label7 2
+ Text2 [] 11 points on #ffffff focus
+ Text5 [] 11 points on #ffffff
  SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
+ SSCommand1 (Cancel) Cancel #b3261e
+ SSCommand3 (Enter Manually) Enter Manually #1c2733
+ SSCommand4 (Clear) Clear #1c2733
+ SSCommand5 (CONFIG) CONFIG #1c2733
+ Command3 (Start Xcharge) Start Xcharge #1c2733
* Label3_13 False
at 500 ms: press Enter Manually
at 1 s: type 4111111111111111
at 1 s: key Tab
at 1 s: type 0928
at 1 s: key Tab
at 1 s: type 7193
at 1 s: look
-- Enter Card Manually
  Text1 [4111111111111111] 48 points on #ffffff
  Text2 [0928] 48 points on #ffffff
  Text3 [7193] 48 points on #fff59d focus
  SSCommand7 (Small Font) Small Font #1c2733
  cancelCommand (Cancel) Cancel #1c2733
  SSCommand4 (Process) Process #ffffff
  clearKey (Clear verification digits) Clear #1c2733
  backspaceKey (Backspace)  #1c2733
at 1 s: key Return
at 4 s: end
== end
* at 4000 ms
* state Waiting
* stateEdge waiting
* starts 0
+ left "C1","7","1043","4111111111111111","2809","48.5","99999","7193"\r\n

# Each box takes digits only and no more than it has room for, whoever types them.
story typed on the keypad, like typed
at 500 ms: press Enter Manually
at 1 s: digits 41112
at 1 s: type a-3 4
at 1 s: press Backspace
at 1 s: look
-- Enter Card Manually
* Text1 [411123] 48 points on #fff59d focus
* Text2 [] 48 points on #ffffff
* Text3 [] 48 points on #ffffff
- SSCommand4 (Process) Process #ffffff
* clearKey (Clear card number) Clear #1c2733
at 1 s: press Clear card number
at 1 s: digits 123456789
at 1 s: focus Expires, Enter MMYY
at 1 s: digits 09289
at 1 s: in vain: key Return
at 1 s: look
-- Enter Card Manually
* Text1 [123456789] 48 points on #ffffff
* Text2 [0928] 48 points on #fff59d focus
* clearKey (Clear expiry) Clear #1c2733
at 1 s: key Tab
at 1 s: in vain: focus Cancel
at 1 s: digits 12345
at 1 s: focus Credit Card Number
at 1 s: digits 01234567890
at 1 s: look
-- Enter Card Manually
* Text1 [1234567890123456789] 48 points on #fff59d focus
* Text2 [0928] 48 points on #ffffff
* Text3 [1234] 48 points on #ffffff
  cancelCommand (Cancel) Cancel #1c2733
+ SSCommand4 (Process) Process #ffffff
* clearKey (Clear card number) Clear #1c2733
at 1 s: focus Expires, Enter MMYY
at 1 s: press Backspace
at 1 s: press Process, though disabled
at 1 s: type 7
at 1 s: key Return
at 3.5 s: end
== end
* at 3500 ms
* left "C1","7","1043","1234567890123456789","2709","48.5","99999","1234"\r\n

story swiped, like typed
at 500 ms: type %B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?+9?
at 500 ms: in vain: key Return
at 3.5 s: look
-- Xcharge Credit Card Interface
  Label3_12 Rosalind Test
+ stateCard  focus
* stateWord Waiting
* Text3 [Dialing for Card Approval] 16 points on #000000
- Text2 [] 11 points on #ffffff focus
- Text5 [] 11 points on #ffffff
+ stateHint The bank is being asked.
+ Label7 1
+ Text1 [%B4111111111111111^] 11 points on #000000
+ Label3_0 ************1111
+ Label3_1 2809
+ Label3_2 ROSALIND A
+ Label3_3 TEST
- SSCommand1 (Cancel) Cancel #b3261e
- ...
- SSCommand5 (CONFIG) CONFIG #1c2733
at 4 s: end
== end
* left "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"\r\n

story commands of a card, like typed
put C:\Lumbrio\XCHide.txt |
put c:\Program Files\X-Charge\Xchrgsrv.exe | program
put F:\Lumbrio\ini\3\ButtonAM.dat | "1111","Margaret Manager","01/01/2030"\r\n
answer Ok
at 400 ms: type %B41
at 400 ms: look
-- Xcharge Credit Card Interface
* Text2 [****] 11 points on #ffffff focus
  Text5 [] 11 points on #ffffff
+ Text1 [****] 11 points on #000000
  SSCommand4 (Clear) Clear #1c2733
+ SSCommand6 (View) View #1c2733
at 400 ms: press View
at 400 ms: look
-- Xcharge Credit Card Interface
* Text1 [%B41] 11 points on #000000
- SSCommand6 (View) View #1c2733
at 400 ms: press Clear
at 400 ms: look
-- Xcharge Credit Card Interface
* Text3 [Waiting for Card Number ] 16 points on #000000
* Text2 [] 11 points on #ffffff focus
- Text1 [%B41] 11 points on #000000
at 400 ms: press Start Xcharge
at 400 ms: press CONFIG
at 900 ms: type 1111
at 900 ms: key Return
at 1.5 s: type %B5
at 1.5 s: look
-- Xcharge Credit Card Interface
* Text2 [***] 11 points on #ffffff focus
  Text5 [] 11 points on #ffffff
+ Text1 [%B5] 11 points on #000000
at 3 s: end
== end
* at 3000 ms
* state Ready for the card
* manager Margaret Manager
* clerk 
* starts 1
- left "C1","7","1043","4111111111111111","2809","48.5","99999","7193"\r\n
== boxes
+ [CONFIG] The card setup is not part of this version yet. (Ok)
