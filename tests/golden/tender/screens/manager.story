cards are taken here
put F:\Lumbrio\ini\3\ButtonAM.dat | "1111","Margaret Manager","01/01/2030"\r\n"4111111111111111","Rosalind Oak","01/15/2030"\r\n

# Nobody who was approved before stands for the one who is asked now.
story manager who refuses, like typed
at 300 ms: in vain: approve Somebody Before
at 400 ms: press CONFIG
at 900 ms: digits 1
at 900 ms: key Return
at 900 ms: digits 12
at 900 ms: key Return
at 900 ms: look
-- Manager Approval
  questionEdge attention
  what Open the card setup
  amount $48.50
  codeBox [] 22 points on #fff59d focus
  hint Swipe or scan a card, or type the code and press OK.
  answer Not a manager's card or code. 1 try left.
  cancelCommand (Cancel) Cancel #1c2733
  clearKey (Clear code) Clear #1c2733
  backspaceKey (Backspace)  #1c2733
at 900 ms: digits 123
at 900 ms: key Return
at 1.5 s: look
-- Xcharge Credit Card Interface
at 1.5 s: press CONFIG
at 1.9 s: in vain: approve Somebody Before
at 2 s: press Cancel
at 2.5 s: look
-- Xcharge Credit Card Interface
at 2.5 s: press CONFIG
at 3 s: key Escape
at 3.5 s: look
-- Xcharge Credit Card Interface
at 3.5 s: in vain: press CONFIG
at 4 s: end
== end
* state Ready for the card
* manager NO
* clerk 
- left "C1","7","1043","4111111111111111","2809","48.5","99999","7193"\r\n

# A reader types blanks and ends with Return, wherever the keyboard is.
story managers card with the keyboard on cancel, like manager who refuses
answer Ok
at 400 ms: press CONFIG
at 900 ms: in vain: focus Cancel
at 900 ms: type %B5111111111111111^OAK/ROSALIND MRS     ^28091010000?;5111111111111111=28091010?
at 900 ms: read Manager's card or code
  codeBox [********************************************************************************] 22 points on #fff59d focus
at 900 ms: in vain: key Return
at 900 ms: in vain: key Space
at 900 ms: key Return
at 900 ms: look
-- Manager Approval
* answer Not a manager's card or code. 2 tries left.
at 900 ms: type %B4111111111111111^OAK/ROSALIND MRS     ^28091010000?;4111111111111111=28091010?
at 900 ms: key Return
at 2 s: end
== end
* at 2000 ms
* manager Rosalind Oak
== boxes
+ [CONFIG] The card setup is not part of this version yet. (Ok)
