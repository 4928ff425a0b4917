cards are taken here
put C:\Lumbrio\XAudit.DAT | "48.5"\r\n

story local approved after a second track by itself, like local approved after an expired card
answer Ok
at 500 ms: first track ;4111111111111111=28091010000?
at 500 ms: second track +5?
at 10 s: swipe
== tender
  status Waiting for You to Swipe the Card
+ status Validating Card Number 
* box [INVALID] You have entered an INVALID CARD NUMBER
+ box        Please Try Another Card (Ok)
== BadSwipe.dat
  ;4111111111111111=28091010000?+5?

story local approved after an expired card, like local approved
answer Ok
at 500 ms: first track %B4111111111111111^TEST/R^2412101?
at 10 s: swipe
== tender
  status Waiting for You to Swipe the Card
+ status Just a Moment Please 
+ status Waiting for Card Number 
  status Please Click Finish Tender
+ box [Expired] You have entered an EXPIRED CARD NUMBER. Please Try Another Card (Ok)
== CCLastProcess.dat
* New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130511.req

# The card that a guest took back before it was whole is not charged.
story local approved beside what others left, like local approved
put c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130000.tmp | "C1","7","1042","4111111111111111","%B4111111111111111^X","31.","99999"\r\n
put c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525125800.ans | "YA1"\r\n
put c:\Program Files\X-Charge\LocalTran\FRONT-BAR01152512590.tmp | other's
put c:\Program Files\X-Charge\LocalTran\BACK-BAR011525125900.tmp | other's
put c:\Program Files\X-Charge\LocalTran\front-bar011525130000.req.7.new | card
put c:\Program Files\X-Charge\LocalTran\FRONT-BAR2011525130000.tmp | other's
at 500 ms: first track %B5500000000000004^OTHER/GUEST^2809
at 900 ms: press Enter Manually
at 1.5 s: first track %B5500000000000004^OTHER/GUEST^2809%B4111111111111111^TEST/ROSALIND A^28091010000000000000?
at 1.5 s: second track ;4111111111111111=28091010000000000?
== tender
  status Waiting for You to Swipe the Card
+ status Waiting for Card Number 
== payment
  takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"
+ left BACK-BAR011525125900.tmp
+ left FRONT-BAR011525125800-20250115-130500.ans
+ left FRONT-BAR01152512590.tmp
+ left FRONT-BAR2011525130000.tmp
+ left front-bar011525130000.req.7.new
== CCLastProcess.dat
  On Wednesday 01/15/2025 at 01:05 PM
+   A RESULT THAT NO TENDER HAS DEALT WITH - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525125800.ans - is now c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525125800-20250115-130500.ans [TRACELOG]
+   REQUEST OF A TENDER THAT WAS ENDED - receipt 1042, amount 31., card XXXX XXXX XXXX 1111 - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130000.tmp [TRACELOG]
+   IT IS REMOVED [TRACELOG]
* New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130503.req

# Where the payment application takes the card, the screen takes none.
story local approved by command line beside a swipe, like approved
put C:\Lumbrio\X1009Version.dat |
at 900 ms: in vain: swipe
== tender
  card or result Approved
+ audit $48.50

story local approved swiped without a second track, like local approved
at 500 ms: first track %B4111111111111111^TEST/ROSALIND A^28091010000000000000?
at 900 ms: second track +9?
== payment
* takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?+9?","48.5","99999"

story local approved typed, like local approved
type card 4111111111111111 0928 123
at 500 ms: press Enter Manually
== tender
* card or result 4111111111111111
- first name ROSALIND A
- last name TEST
  status Waiting for You to Swipe the Card
- status Validating Card Number 
- status Just a Moment Please 
- status Dialing for Card Approval
== payment
* takes "C1","7","1043","4111111111111111","2809","48.5","99999","123"
== records
- CCName ROSALIND A TEST
* CCVerify 123
* CCSwiped False
* blank CCName CCApprovedAmt CCGiftFlag CCReserved2
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 1
* Name: 
* Name: 
== Xsend.ans
* 9 "                              "
== CCLastProcess.dat
  **********************************************************
                 
+ Card number was manually type in
+ Xcharge2 calling approval engine 
+ **********************************************************
* First Name - 
* Last Name - 
* New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130500.req
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  1
*   Printing Merchant 1

story local approved typed at once, like local approved typed
put C:\Lumbrio\CCard.dat | x\n\n-1\n-1\n-1\n-1\n-1\n-1\n0\n-1\n
put F:\Lumbrio\Data\CCnoPREauth.dat |
type card 4111111111111111 0928
at 500 ms: press Enter Manually
== tender
* kind Purchase
== payment
* takes "C6","7","1043","4111111111111111","2809","58.2","99999"
== records
* CCSaleAmt 58.2
  CCTabAmt 48.50
+ CCApprovedAmt 58.2
- CCVerify 123
* blank CCName CCVerify CCGiftFlag CCReserved2
== CCLastProcess.dat
* Amount Sent - 58.2

story local card before the request, like payment application missing
in vain: first track %B4111111111111111^TEST/ROSALIND A^28091010000000000000?
in vain: second track ;4111111111111111=28091010000000000?
- == records
== tender
- ended
+ stays
* command line False
  status 
* status Waiting for You to Swipe the Card
- status Waiting for Xcharge Interface
- box [Data File Not Found] The Xcharge Program was not found on this computer. Xcharge must first be installed on this computer before you can process a credit card. Pless contact Tech Support at 555-010-0199. (Ok)
== XAudit.DAT
  "48.5"
== CCLastProcess.dat
- USING 10/2009 VERSION  
