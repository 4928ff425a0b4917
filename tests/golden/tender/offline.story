the offline panel is switched on

# The manager says yes while the bank has not: the guest goes, the charge follows later.
story offline approved, like approved without a card
bank approves after 40 s
at 23 s: look
  no answer, 0 records, 0 slips, offline panel
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve Margaret Manager
shows
== screen
- card or result Approved
== status
- Approved
- Approved Printing Receipt
- Please Click Finish Tender
== asked
  Approve this card OFFLINE $48.50
== records
* CCApprovedAmt 48.50
* CResponse YOFFLINE
* CApprovalCode OFFLINE
  CCEncoded 1
+ CCTroutID OFFLINE
- GCbalance 0
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 23
- AUTH - 012345  Terminal FRONT-BAR
+ TROUT - OFFLINE  Terminal FRONT-BAR
== Xsend.ans
- "012345    "
+ "OFFLINE   "
- "          "
+ "OFFLINE   "
- "SUCCESS             "
+ "YOFFLINE            "
== CCLastProcess.dat
-   Got the answer file
- ...
-   Printing Merchant 8
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
   

# The bank's word counts that came while the manager thought.
story offline answered meanwhile, like approved
bank approves after 26 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve Margaret Manager
shows
== asked
  Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 23
== CCLastProcess.dat
*   SECONDS = 23
*   Printing Merchant 23

story offline refused, like approved
bank approves after 40 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve NO
shows
== asked
  Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 41
== CCLastProcess.dat
*   SECONDS = 41
*   Printing Merchant 41

story local offline approved, like local approved
cards are taken here
at 500 ms: swipe
bank approves after 40 s
at 23 s: look
  no answer, 0 records, 0 slips, offline panel
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve Margaret Manager
shows
== screen
- audit $48.50
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
+ TROUT - OFFLINE  Terminal FRONT-BAR
== Xsend.ans
- "A12345    "
+ "OFFLINE   "
- "          "
+ "OFFLINE   "
- "YA12345             "
+ "YOFFLINE            "
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
cards are taken here
at 500 ms: swipe
bank approves after 26 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve Margaret Manager
shows
== screen
- audit $48.50
== asked
  Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 21
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  21
*   Printing Merchant 21

story local offline refused, like local approved
cards are taken here
at 500 ms: swipe
bank approves after 40 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve NO
shows
== screen
- audit $48.50
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
cards are taken here
payment keeps silent
type card 4111111111111111 0928 123
at 500 ms: press Enter Manually
when the manager is asked: approve Margaret Manager
at 22 s: press NO
at 23 s: press YES, though disabled
at 60 s: press YES
shows
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
-         ROSALIND A TEST               
* 01/15/25  01:06 PM  1043 - 7 Rosalind - 12
* Name: 
-        ROSALIND A TEST               
== Xsend.ans
- "ROSALIND A TEST               "
+ "                              "
== CCLastProcess.dat
  **********************************************************
                 
+ Card number was manually type in
+ Xcharge2 calling approval engine 
+ **********************************************************
* First Name - 
* Last Name - 
* New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130500.req

story local offline untaken without expiry, like local wait stopped
cards are taken here
payment keeps silent
type card 4111111111111111
at 500 ms: press Enter Manually
at 60 s: press YES
shows
- == Xsend.ans
- == TRACELOG.TXT
== end
  waits
== screen
* card or result 4111111111111111
- expires 2809
- first name ROSALIND A
- last name TEST
== status
  Waiting for You to Swipe the Card
  Connection Problems Press Cancel
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
- Unable to Connect - Internet may be down 
- Actual Seconds waited for Response  7
