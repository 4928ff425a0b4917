# The payment application takes the card. Everything that an approval shows and leaves behind.
story approved
== tender
  ended
  files in C:\Lumbrio\ and F:\Lumbrio\
  card or result Approved
  server 7
  table 12
  receipt 1043
  with gratuity $57.23
  gratuity %18
  name of server Rosalind Test
  command line True
  partial support YES
  kind PreAuth
  status 
  status PLEASE WAIT
  status Waiting for Xcharge Interface
  status 
  status Approved
  status Approved Printing Receipt
  status Please Click Finish Tender
== payment
  starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:PreAuth /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== records
  in CCPending.dat
  CCNumb D63579;=?ACE=
  CCExpDate 0928
  CCName ROSALIND/TEST
  CCXcTranID 00002154
  CCSaleAmt 48.50
  CCServer 7
  CCTable 12
  CCTabAmt 48.50
  CCApprovedAmt 48.50
  CResponse SUCCESS
  CApprovalCode 012345
  CCstatus Approved
  CCTip 0
  CCReceipt 1043
  CCDate 01/15/25
  CCTime 01:05 PM
  CCVerify 000
  CCSwiped True
  CCStation FRONT-BAR
  CCAdjStatus Not Adjusted
  CCEncoded 1
  HiddenNumb XXXXXXXXXXXX1234
  CCtype VISA
  CCaditionalFUNDS 0
  GCbalance 0
  blank CCGiftFlag CCReserved2
  in data\CCFinal0125.dat
== slips
  [[Receipt TM-88]]
  [MERCHANT COPY]
  1 Quay Street
  01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 3
  Name: ROSALIND/TEST
  Card: XXXXXXXXXXXX1234  TransRecord 1
  AUTH - 012345  Terminal FRONT-BAR
  Amount      $48.50
  [MERCHANT COPY]
  - - - cut - - -
  [[Receipt TM-88]]
  [CUSTOMER COPY]
  1 Quay Street
  01/15/25  01:05 PM  1043 - 7 Rosalind - 12
  Name: ROSALIND/TEST
  Card: XXXXXXXXXXXX1234
  Amount      $48.50
  [CUSTOMER COPY]
  - - - cut - - -
== Xsend.ans
  1 "Approved"
  2 "48.50     "
  3 "012345    "
  4 "1043                "
  5 "XXXXXXXXXXXX1234              "
  6 "7         "
  7 "12        "
  8 "          "
  9 "ROSALIND/TEST                 "
  10 "SUCCESS             "
== CCLastProcess.dat
  ===========================================================
  Process Started
  On Wednesday 01/15/2025 at 01:05 PM
  ==========================================================
  Station Name FRONT-BAR
  EXE name ********* TndrCC
  Employee Name 
  Employee Number # 7
  __________________________________
                 
  Software Version - 5.68.0
  USING 10/2009 VERSION  
  Request File - C:\Lumbrio\Xsend.req
  Table Number - 12
  Receipt Number - 1043
  Server (Employee) Number - 7
  Sale Amount - 48.50
                 
  **********************************************************
  ***       Waiting For card Swipe      ***
  **********************************************************
                 
  ******************************************************
  ******************************************************
  ***********  X CHARGE REQUEST INFO  ******************
  Calling Set Data
                 
    Setting a 20 second timer to wait for response
    Got the answer file
   Total seconds it took for Rosalind Test swipe and Xcharge response
    SECONDS = 3
    Calling Xcharge Reader
  ------------------------------------------------------
  ***********  X CHARGE RESPONSE INFO  ******************
  Response File Name c:\Lumbrio\xResultFile.Txt
  End File Data c:\Lumbrio\xResultFile.Txt
  ******************************************************
  ------------------------------------------------------
   CCmerchant.VRD is not in C:\Lumbrio\
   CCmerchant.VRD is not in F:\Lumbrio\
    Printing Merchant 3
== TRACELOG.TXT
  ******  Make Respone File For Lumbrio ******
  ******  END Respone File For Lumbrio ******

# What the guest owes is stored before anything can go wrong with the paper.
story approved and stored before it prints, like approved
when it prints: look
  no answer, 1 records, 0 slips

# Nobody presses these at the right moment only.
story approved beside commands that come too early or fail, like approved
at 50 ms: press Cancel, though disabled
fail open CCnoPrint.dat
at 2 s: press No receipt
== slips
  - - - cut - - -
- [[Receipt TM-88]]
- ...
- - - - cut - - -
== CreditApproval.dat
  "#### #### #### ACE="
  "AUTH - 012345  Terminal FRONT-BAR"

story approved with gratuity and no customer receipt, like approved beside commands that come too early or fail
at 1 s: press Gratuity
at 1 s: press No receipt
== slips
  Amount      $48.50
+ Gratuity      $8.73
+ Total          $57.23
== CCnoPrint.dat
  empty

story approved deleted prepayment, like approved
put C:\Lumbrio\Xsend.req | "DelPrePay 12","1043","7","48.50"\r\n
- == slips
== tender
* table DelPrePay 12
== records
* CCTable DelPrePay
== Xsend.ans
* 7 "DelPrePay "
== CreditApproval.dat
  "#### #### #### ACE="
  "AUTH - 012345  Terminal FRONT-BAR"
== CCLastProcess.dat
* Table Number - DelPrePay 12

# Only the file on the share makes it a purchase.
story approved gift card, like approved
in vain: put C:\Lumbrio\Data\CCnoPREauth.dat |
bank approves, BALANCE=12.00, ADDITIONALFUNDSREQUIRED=0.00, NAME=ROSA "ROSE" TEST
== records
* CCName ROSA "ROSE" TEST
  CCAdjStatus Not Adjusted
+ CCGiftFlag GS
* CCaditionalFUNDS 0.00
* GCbalance 12.00
* blank CCReserved2
== slips
* Name: ROSA "ROSE" TEST
  [MERCHANT COPY]
+ $12.00
+ [REMAINING BALANCE ON THIS GIFT CARD]
* Name: ROSA "ROSE" TEST
  [CUSTOMER COPY]
+ $12.00
+ [REMAINING BALANCE ON THIS GIFT CARD]
== Xsend.ans
* 9 "ROSA "ROSE" TEST              "

# A purchase is a sale of its own: it is never batched, and stands in the month's file.
story approved at once with a slip left open, like approved
put F:\Lumbrio\Data\CCnoPREauth.dat |
no cut
== tender
* kind Purchase
== payment
* starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:Purchase /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== records
* in data\CCFinal0125.dat
* CCAdjStatus Completed
- in data\CCFinal0125.dat
== slips
  [CUSTOMER COPY]
- - - - cut - - -

# The file of the month in which the tender began, whatever the clock says when it is stored.
story approved over midnight of a month, like approved at once with a slip left open
put F:\Lumbrio\Data\CCnoPREauth.dat |
clock 2025-01-31 23:59:58
== records
* CCDate 01/31/25
* CCTime 11:59 PM
== slips
- 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 3
+ 01/31/25  11:59 PM  1043 - 7 Rosalind - 12 - 3
- 01/15/25  01:05 PM  1043 - 7 Rosalind - 12
+ 01/31/25  11:59 PM  1043 - 7 Rosalind - 12
  [CUSTOMER COPY]
+ - - - cut - - -
== CCLastProcess.dat
* On Friday 01/31/2025 at 11:59 PM

story approved with other directories, like approved
configure 6 = D:\Station\
configure 49 =
put D:\Station\X1009Version.dat |
put D:\Station\Xsend.req | 12,1043,7,48.50\r\n
- == CCLastProcess.dat
- == TRACELOG.TXT
== tender
* files in D:\Station\ and C:\Lumbrio\

story approved without partial support, like approved
put C:\Lumbrio\CCard.dat | x\n\n0\n0\n0\n0\n0\n-1\n-1\n0\n
== tender
* partial support NO
== payment
* starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:PreAuth /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 

# The first result counts, also one that tells of no card.
story approved without a card, like approved
payment answers: RESULT=SUCCESS\r\nAPPROVALCODE=012345\r\n
== records
- CCNumb D63579;=?ACE=
- ...
- CCXcTranID 00002154
  CCTabAmt 48.50
- CCApprovedAmt 48.50
* HiddenNumb XXXX XXXX XXXX
- CCtype VISA
* blank CCNumb CCExpDate CCName CCApprovedAmt CCGiftFlag CCReserved2
== slips
* Name: 
* Card: XXXX XXXX XXXX  TransRecord 1
* Name: 
* Card: XXXX XXXX XXXX
== Xsend.ans
* 5 "XXXX XXXX XXXX                "
* 9 "                              "

story approved into a locked file, like approved
lock CCPending.dat
== CCLastProcess.dat
    Printing Merchant 3
+   KEPT RECORD written - receipt 1043, amount 48.50, code 012345 - C:\Lumbrio\Data\KeptRecord-20250115-130506.dat [TRACELOG]

story approved into a file locked for a moment, like approved
in vain: lock CCPending.dat from 1 s to 4 s

story approved without a printer, like approved
printers none
answer Ok
- == slips
== tender
  status Please Click Finish Tender
+ box [NOT PRINTED] The merchant's slip and the customer's slip were not printed: no printer is installed. The card is approved: do not run it again. Reprint from the manager's list.
+ box Receipt: 1043
+ box Amount: $48.50
+ box Approval code: 012345 (Ok)
== CCLastProcess.dat
    Printing Merchant 3
+   NOT PRINTED - merchant's slip - no printer is installed [TRACELOG]
+   NOT PRINTED - customer's slip - no printer is installed [TRACELOG]

# Told once record and answer stand, until somebody presses OK; no other command hurries it away.
story merchants slip not printed, like approved without a printer
printer fails no room on the disk
answer Ok
when a box is open: look
  "Approved", 1 records, 1 slips
when a box is open: in vain: press Cancel
when a box is open: in vain: press Finish Tender
== tender
* box [NOT PRINTED] The merchant's slip was not printed on Receipt TM-88: no room on the disk. The card is approved: do not run it again. Reprint from the manager's list.
== slips
  [[Receipt TM-88]]
  [CUSTOMER COPY]
  1 Quay Street
  01/15/25  01:05 PM  1043 - 7 Rosalind - 12
  Name: ROSALIND/TEST
  Card: XXXXXXXXXXXX1234
  Amount      $48.50
  [CUSTOMER COPY]
  - - - cut - - -
== CCLastProcess.dat
*   NOT PRINTED - merchant's slip - no room on the disk - Receipt TM-88 [TRACELOG]
-   NOT PRINTED - customer's slip - no printer is installed [TRACELOG]

# The guest pays the rest with another card, so both slips must say what is left.
story partial, like approved
bank approves, APPROVEDAMOUNT=30, ADDITIONALFUNDSREQUIRED=18.50
== records
* CCApprovedAmt 30
* CCAdjStatus Adjusted - Pending
+ CCAdjAmt 30
+ CCGiftFlag GS
* CCaditionalFUNDS 18.50
* blank CCReserved2
== slips
- [MERCHANT COPY]
+ [PARTIAL PAYMENT MERCHANT COPY]
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12
* Card: XXXXXXXXXXXX1234
- Amount      $48.50
- [MERCHANT COPY]
+ [PARTIAL PAYMENT - A BALANCE IS STILL DUE]
+         $30.00
+   The original amount due was     $48.50
+   There is still a Balance Due of $18.50
+ [PARTIAL PAYMENT MERCHANT COPY]
- [[Receipt TM-88]]
- [CUSTOMER COPY]
+ [PARTIAL PAYMENT CUSTOMER COPY]
- Amount      $48.50
- [CUSTOMER COPY]
+ AUTH - 012345  Terminal FRONT-BAR
+ [PARTIAL PAYMENT - A BALANCE IS STILL DUE]
+         $30.00
+   The original amount due was     $48.50
+   There is still a Balance Due of $18.50
+ [PARTIAL PAYMENT CUSTOMER COPY]
  - - - cut - - -
+ $48.50  
+ $30.00  
+ $18.50  
== Xsend.ans
* 1 "DECLINE but PARTAIL APPROVAL"
  10 "SUCCESS             "
+ 11 "PARTAIL APPROVAL"
+ 12 " APPROVAL AMOUNT - $30.00"
+ 13 " BALANCE STILL OWING - $18.50"
== CCLastProcess.dat
-  CCmerchant.VRD is not in C:\Lumbrio\
-  CCmerchant.VRD is not in F:\Lumbrio\
-   Printing Merchant 3
+  this is a partial approval 
+  not able to VRD 

story partial at once, like partial
put F:\Lumbrio\Data\CCnoPREauth.dat |
bank approves, APPROVEDAMOUNT=30, ADDITIONALFUNDSREQUIRED=18.50
== tender
* kind Purchase
== payment
* starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:Purchase /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== records
* in data\CCFinal0125.dat
* CCAdjStatus Completed
- in data\CCFinal0125.dat

# What an operator sees who waits, with the moments in ms.
story approved after the second start, like approved
payment keeps silent
at 51.1 s: bank approves now
== tender
  status Waiting for Xcharge Interface
  status 
+ status Connection Problems Press Cancel
+ status 
== payment
+ starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:PreAuth /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 52
== CCLastProcess.dat
*   SECONDS = 52
*   Printing Merchant 52

story cancelled too late, like approved
payment keeps silent
at 20 s: bank approves now
at 20 s: in vain: press Cancel
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 20
== CCLastProcess.dat
*   SECONDS = 20
*   Printing Merchant 20

# A charged card would be answered as declined.
story approved by a result that is read a moment later, like approved
fail open xResultFile.txt, device or network error
at 3.8 s: mend open xResultFile.txt
