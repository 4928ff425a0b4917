cards are taken here
put C:\Lumbrio\XAudit.DAT | "48.5"\r\n
the offline panel is switched on

story local offline approved, like local approved
at 500 ms: swipe
bank approves after 40 s
at 23 s: look
  no answer, 0 records, 0 slips, offline panel
at 23 s: press YES
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve Margaret Manager
== status
- Approved\r\nA12345
- ...
- Please Click Finish Tender
== asked
  Approve this card OFFLINE $48.50
== records
* CCApprovedAmt 48.50
* CResponse YOFFLINE
* CApprovalCode OFFLINE
  CCEncoded 1
+ CCTroutID OFFLINE
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 21
- AUTH - A12345  Terminal FRONT-BAR
== Xsend.ans
* 3 "OFFLINE   "
* 8 "OFFLINE   "
* 10 "YOFFLINE            "
== CCLastProcess.dat
- Actual Response From Xcharge YA12345
- ...
-   Printing Merchant 2
+ 
+  !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!1
+ 
+    CREDIT CARD APPROVED OFFLINE
+ 
+ =================================
+  OFFLINE   OFFLINE   OFFLINE
+  
+ MANAGER APPROVED OFFLINE - INTERNET
+ MAY BE DOWN OR XCHARGE HAS ENCOUNTERED AN ERROR
+ MANAGER CARD WAS SWIPED FOR APPROVAL
+  
+  OFFLINE   OFFLINE   OFFLINE
+ =================================
+  
== TRACELOG.TXT
  
   !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!1
  
     CREDIT CARD APPROVED OFFLINE
  
  =================================
   OFFLINE   OFFLINE   OFFLINE
   
  MANAGER APPROVED OFFLINE - INTERNET
  MAY BE DOWN OR XCHARGE HAS ENCOUNTERED AN ERROR
  MANAGER CARD WAS SWIPED FOR APPROVAL
   
   OFFLINE   OFFLINE   OFFLINE
  =================================
   

story local offline answered meanwhile, like local approved
at 500 ms: swipe
bank approves after 26 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve Margaret Manager
== asked
  Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 21
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  21
*   Printing Merchant 21

story local offline refused, like local approved
at 500 ms: swipe
bank approves after 40 s
at 23 s: press YES
when the manager is asked: approve NO
== asked
  Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 41
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  41
*   Printing Merchant 41

# A request that nobody took is taken back, so that the server does not charge it later.
story local offline untaken, like local offline approved
payment keeps silent
type card 4111111111111111 0928 123
at 500 ms: press Enter Manually
when the manager is asked: approve Margaret Manager
at 22 s: press NO
at 23 s: press YES, though disabled
at 60 s: press YES
- == payment
== screen
* card or result 4111111111111111
- first name ROSALIND A
- last name TEST
== status
  Waiting for You to Swipe the Card
  Connection Problems Press Cancel
== records
* CCName 
* CCTime 01:06 PM
* CCVerify 123
* CCSwiped False
== slips
* 01/15/25  01:06 PM  1043 - 7 Rosalind - 12 - 61
* Name: 
* 01/15/25  01:06 PM  1043 - 7 Rosalind - 12
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

story local offline untaken without expiry, like local setup and removal
payment keeps silent
type card 4111111111111111
at 500 ms: press Enter Manually
at 60 s: press YES
- == boxes
== screen
* card or result 4111111111111111
- expires 2809
- first name ROSALIND A
- last name TEST
== status
- Just a Moment Please 
- Dialing for Card Approval
== payment
  left FRONT-BAR011525130500.req
== asked
  Approve this card OFFLINE $48.50
== CCLastProcess.dat
  **********************************************************
                 
+ Card number was manually type in
+ Xcharge2 calling approval engine 
+ **********************************************************
* First Name - 
* Last Name - 
  Card Number Ready - XXXX XXXX XXXX 1111
* Card Expires on - 
* New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130500.req
