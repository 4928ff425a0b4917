the offline panel is switched on

# The manager says yes while the bank has not: the guest goes, the charge follows later.
story offline approved, like approved without a card
bank approves after 40 s
at 23 s: look
  no answer, 0 records, 0 slips, offline panel
at 23 s: press YES
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve Margaret Manager
- == TRACELOG.TXT
== tender
- card or result Approved
  status 
- status Approved
- status Approved Printing Receipt
- status Please Click Finish Tender
+ asked Approve this card OFFLINE $48.50
== records
  CCTabAmt 48.50
+ CCApprovedAmt 48.50
* CResponse YOFFLINE
* CApprovalCode OFFLINE
  CCEncoded 1
+ CCTroutID OFFLINE
- GCbalance 0
* blank CCNumb CCExpDate CCName CCGiftFlag CCReserved2
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 23
- AUTH - 012345  Terminal FRONT-BAR
== Xsend.ans
* 3 "OFFLINE   "
* 8 "OFFLINE   "
* 10 "YOFFLINE            "
== CCLastProcess.dat
-   Got the answer file
- ...
-   Printing Merchant 3
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

# The bank's word counts that came while the manager thought.
story offline answered meanwhile, like approved
bank approves after 26 s
at 23 s: press YES
when the manager is asked: pass 10 s
when the manager is asked: approve Margaret Manager
== tender
  status Please Click Finish Tender
+ asked Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 23
== CCLastProcess.dat
*   SECONDS = 23
*   Printing Merchant 23

story offline refused, like approved
bank approves after 40 s
at 23 s: press YES
when the manager is asked: look
  no answer, 0 records, 0 slips, a manager's card is awaited
when the manager is asked: approve NO
== tender
  status Please Click Finish Tender
+ asked Approve this card OFFLINE $48.50
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 41
== CCLastProcess.dat
*   SECONDS = 41
*   Printing Merchant 41

# The answer lies there while the manager says yes, and nobody can look at it: never taken for none,
# or the guest would be charged by the bank and once more offline.
story offline approved beside an answer that cannot be looked at, like offline answered meanwhile
bank approves after 60 s
when the manager is asked: fail look xResultFile.txt, device or network error
when the manager is asked: approve Margaret Manager
at 50 s: press YES
at 70 s: mend look xResultFile.txt
== tender
  kind PreAuth
+ offline panel
  status Waiting for Xcharge Interface
  status 
+ status Connection Problems Press Cancel
+ status 
== payment
+ starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:PreAuth /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 72
== CCLastProcess.dat
*   SECONDS = 72
*   Printing Merchant 72

# The card is not charged yet, and without a record nobody would charge it later.
story offline approval that cannot be stored, like offline approved
bank approves after 40 s
at 23 s: press YES
when the manager is asked: approve Margaret Manager
when the manager is asked: fail append CCPending.dat, no room on the disk
when the manager is asked: fail rename KeptRecord-20250115-130523.dat, no room on the disk
answer Ok
- == slips
== tender
  status Waiting for Xcharge Interface
  status 
+ box [CCPending.dat] The record of this card cannot be stored, so it was not approved. (Ok)
== records
  in CCPending.dat
  in data\CCFinal0125.dat
== Xsend.ans
* 1 "Declined"
== CCLastProcess.dat
- 
- ...
- ================================= [TRACELOG]
-  
+   RECORD NOT STORED - no room on the disk - F:\Lumbrio\CCPending.dat [TRACELOG]
+   KEPT RECORD NOT WRITTEN - no room on the disk - receipt 1043, amount 48.50, code OFFLINE - C:\Lumbrio\Data\KeptRecord-20250115-130523.dat [TRACELOG]
