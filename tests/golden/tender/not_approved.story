story declined, like approved without a card
bank declines
- == slips
== tender
* card or result Declined
  status Waiting for Xcharge Interface
  status 
* status Declined
* status Please Click Cancel
- status Please Click Finish Tender
== records
* CResponse DECLINED
- CApprovalCode 012345
* CCstatus Declined
* blank CCNumb CCExpDate CCName CCApprovedAmt CApprovalCode CCGiftFlag CCReserved2
== Xsend.ans
* 1 "Declined"
* 2 "Declined"
* 3 "48.50     "
* 4 "          "
* 5 "1043                "
* 6 "XXXX XXXX XXXX                "
* 7 "7         "
* 8 "12        "
* 9 "          "
* 10 "                              "
+ 11 "DECLINED            "
== CCLastProcess.dat
-  CCmerchant.VRD is not in C:\Lumbrio\
-  CCmerchant.VRD is not in F:\Lumbrio\
-   Printing Merchant 3

story declined at once, like declined
put F:\Lumbrio\Data\CCnoPREauth.dat |
bank declines
== tender
* kind Purchase
== payment
* starts c:\Program Files\X-charge\Xcharge.exe /TRANSACTIONTYPE:Purchase /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 /LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva /STAYONTOP /SMARTAUTOPROCESS /HIDEMAINMENU /GETXCACCOUNTID /TOOLBAREXITBUTTON /LARGEWINDOW /TITLE:Lumbrio-Credit_Card_Processing 
== records
* in data\CCFinal0125.dat
+ in data\0125CCdeleted.dat
- in data\CCFinal0125.dat

# The approval of the guest before must never stand for this one.
story declined with an answer that cannot be made anew, like declined
in vain: put C:\Lumbrio\Xsend.ans | "Approved"\r\n
in vain: fail open .new
bank declines

story declined with an answer that cannot be written, like declined
answer Ok
in vain: put C:\Lumbrio\Xsend.ans | "Approved"\r\n
fail rename Xsend.ans
fail open Xsend.ans
bank declines
- == Xsend.ans
== tender
- ended
+ failed
  status Please Click Cancel
+ box [NO ANSWER FOR THE POINT OF SALE] The point of sale gets no answer (access denied). This tender ended without an approval. Tell the manager before the card is run again.
+ box Receipt: 1043
+ box Amount: $48.50
+ box C:\Lumbrio\Xsend.ans (Ok)
== CCLastProcess.dat
  ******************************************************
  ------------------------------------------------------
+   ANSWER NOT WRITTEN - access denied - old one removed - C:\Lumbrio\Xsend.ans

story declined with approvals of earlier runs about, like declined
put C:\Lumbrio\XAudit.DAT | 50.00
bank declines
answer Ok
when an old program is ended: bank approves now
when a box is open: bank approves now
== tender
  card or result Declined
+ audit $50.00
  status Please Click Cancel
+ box [AUDIT FAILED] The amount you are attempting to process does not match the amount the system has calculated.The system has a purchase amount of $48.50  if this amount is in fact Correct then press OK otherwise press CANCEL - This station may need a Re-Boot (Ok, Cancel)
== CCLastProcess.dat
  **********************************************************
                 
+   A RESULT THAT NO TENDER HAS DEALT WITH - C:/lumbrio/xResultFile.txt - is now C:/lumbrio/xResultFile-20250115-130500.txt [TRACELOG]
    Setting a 20 second timer to wait for response
+   A RESULT THAT NO TENDER HAS DEALT WITH - C:/lumbrio/xResultFile.txt - is now C:/lumbrio/xResultFile-20250115-130500-2.txt [TRACELOG]

story timed out and cancelled, like declined
payment answers: RESULT=TIMEOUT\r\n
at 20 s: look
  "Declined", 1 records, 0 slips
at 20 s: press Cancel
== tender
  status Please Click Cancel
+ status 
== records
* CResponse TIMEOUT
== Xsend.ans
* 2 "48.50     "
* 3 "          "
* 4 "1043                "
* 5 "XXXX XXXX XXXX                "
* 6 "7         "
* 7 "12        "
* 8 "          "
* 9 "                              "
* 10 "TIMEOUT             "
- 11 "DECLINED            "
== CCLastProcess.dat
  ******************************************************
  ------------------------------------------------------
+ Cancel was pressed
+ Unable to Connect - Internet may be down 
+ Actual Seconds waited for Response  16

story cancelled in the wait, like approved
put C:\Lumbrio\XAudit.DAT | 48.50
payment keeps silent
at 7 s: press Cancel, though disabled
at 11.6 s: in vain: put F:\Lumbrio\ServerISBatching.dat |
at 11.6 s: press Cancel
at 11.6 s: look
  "Declined", 0 records, 0 slips
- == slips
- == TRACELOG.TXT
== tender
- card or result Approved
+ audit $48.50
- status Approved
- status Approved Printing Receipt
- status Please Click Finish Tender
== records
  in data\CCFinal0125.dat
== Xsend.ans
* 1 "Declined"
* 3 "          "
* 5 "XXXX XXXX XXXX                "
* 9 "                              "
* 10 "                    "
== CCLastProcess.dat
-   Got the answer file
- ...
-   Printing Merchant 3
+ Cancel was pressed
+ Unable to Connect - Internet may be down 
+ Actual Seconds waited for Response  11

story cancelled before a swipe, like local card before the request
erase C:\Lumbrio\X1009Version.dat
at 5 s: press Cancel
- == XAudit.DAT
== tender
- stays
+ ended
== Xsend.ans
  1 "Declined"
  2 "          "
  3 "          "
  4 "                    "
  5 "                              "
  6 "          "
  7 "          "
  8 "          "
  9 "                              "
  10 "                    "
== CCLastProcess.dat
  **********************************************************
                 
+ Cancel was pressed
+ Unable to Connect - Internet may be down 
+ Actual Seconds waited for Response  0

story payment application missing, like old result that cannot be deleted
erase c:\Program Files\X-charge\Xcharge.exe
answer Ok
- == Xsend.ans
== tender
* box [Data File Not Found] The Xcharge Program was not found on this computer. Xcharge must first be installed on this computer before you can process a credit card. Pless contact Tech Support at 555-010-0199. (Ok)
== CCLastProcess.dat
-   A RESULT THAT NO TENDER HAS DEALT WITH - C:/lumbrio/xResultFile.txt - stays: access denied [TRACELOG]
- ...
-   OLD RESULT CANNOT BE DELETED - C:/lumbrio/xResultFile.txt

story amount missing, like payment application missing
put C:\Lumbrio\Xsend.req | 12,1043,7,$48.50\r\n
put C:\Lumbrio\XAudit.DAT | 48.50
answer Ok
- == records
== tender
* with gratuity $0.00
* box [ZERO AMOUNT] The system was not able to obtain the amount of this TAB. Please Press Cancel and try again. (Ok)
== XAudit.DAT
  48.50 (no end of line)
== CCLastProcess.dat
* Sale Amount - $48.50

story old result that cannot be deleted, like cancelled in the wait
put C:\lumbrio\xResultFile.txt |
fail rename xResultFile.txt
answer Ok
- == payment
== tender
- audit $48.50
  status Waiting for Xcharge Interface
- status 
+ box [Result File] The result of an earlier card cannot be removed from this computer, so this card was not charged. Please try again, or restart this station. (Ok)
== CCLastProcess.dat
  **********************************************************
                 
+   A RESULT THAT NO TENDER HAS DEALT WITH - C:/lumbrio/xResultFile.txt - stays: access denied [TRACELOG]
- Cancel was pressed
- Unable to Connect - Internet may be down 
- Actual Seconds waited for Response  11
+   A RESULT THAT NO TENDER HAS DEALT WITH - C:/lumbrio/xResultFile.txt - stays: access denied [TRACELOG]
+   OLD RESULT CANNOT BE DELETED - C:/lumbrio/xResultFile.txt

story request missing, like server busy
erase C:\Lumbrio\Xsend.req
answer Ok
when a box is open: look
  "File Not Found", 0 records, 0 slips
== tender
  status Waiting for Xcharge Interface
+ box [Data File Not Found] The Lumbrio Transaction File for this transaction was Not Found. Pless OK to continue and  Go back to the Tender screen and try again. (Ok)
== Xsend.ans
  1 "File Not Found"
  2 "          "
  3 "          "
  4 "                    "
  5 "                              "
  6 "          "
  7 "          "
  8 "          "
  9 "                              "
  10 "                    "

story server busy, like approved
put F:\Lumbrio\ServerISBatching.dat |
in vain: put C:\Lumbrio\Xsend.ans | old\r\n
when the server is busy: press Picture
when the server is busy: look
  no answer, 0 records, 0 slips, hidden
when the server is busy: end
- == payment
- == records
- == slips
- == Xsend.ans
- == TRACELOG.TXT
== tender
- card or result Approved
- ...
- name of server Rosalind Test
  status Waiting for Xcharge Interface
- status 
- ...
- status Please Click Finish Tender
== CCLastProcess.dat
- ==========================================================
- ...
-   Printing Merchant 3
