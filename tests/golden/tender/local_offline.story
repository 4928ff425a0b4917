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
- == TRACELOG.TXT
== tender
- status Approved\r\nA12345
- ...
- status Please Click Finish Tender
+ asked Approve this card OFFLINE $48.50
== records
  CCTabAmt 48.50
+ CCApprovedAmt 48.50
* CResponse YOFFLINE
* CApprovalCode OFFLINE
  CCEncoded 1
+ CCTroutID OFFLINE
* blank CCGiftFlag CCReserved2
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
+  !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!1 [TRACELOG]
+ 
+    CREDIT CARD APPROVED OFFLINE [TRACELOG]
+ 
+ ================================= [TRACELOG]
+  OFFLINE   OFFLINE   OFFLINE [TRACELOG]
+  
+ MANAGER APPROVED OFFLINE - INTERNET [TRACELOG]
+ MAY BE DOWN OR XCHARGE HAS ENCOUNTERED AN ERROR [TRACELOG]
+ MANAGER CARD WAS SWIPED FOR APPROVAL [TRACELOG]
+  
+  OFFLINE   OFFLINE   OFFLINE [TRACELOG]
+ ================================= [TRACELOG]
+  

story local offline answered meanwhile, like local approved
at 500 ms: swipe
bank approves after 26 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve Margaret Manager
== tender
  status Please Click Finish Tender
+ asked Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 21
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  21
*   Printing Merchant 21

# A request that nobody took is taken back, so that the server does not charge it later.
story local offline untaken, like local offline approved
payment keeps silent
at 500 ms: swipe
when the manager is asked: approve Margaret Manager
at 22 s: press NO
at 23 s: press YES, though disabled
at 60 s: press YES
- == payment
== tender
  status Dialing for Card Approval
+ status Connection Problems Press Cancel
== records
* CCTime 01:06 PM
== slips
* 01/15/25  01:06 PM  1043 - 7 Rosalind - 12 - 60
* 01/15/25  01:06 PM  1043 - 7 Rosalind - 12

# The answer lies there while the manager says yes, and nobody can look at it: never taken for none,
# or the guest would be charged by the bank and once more offline.
story local offline approved beside an answer that cannot be looked at, like local offline answered meanwhile
at 500 ms: swipe
bank approves after 60 s
when the manager is asked: fail look .ans, device or network error
when the manager is asked: approve Margaret Manager
at 50 s: press YES
at 70 s: mend look .ans
== tender
  last name TEST
+ offline panel
  status Dialing for Card Approval
+ status Connection Problems Press Cancel
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 70
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  70
*   Printing Merchant 70
