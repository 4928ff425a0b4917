cards are taken here
put C:\Lumbrio\XAudit.DAT | "48.5"\r\n
at 500 ms: swipe

# The screen takes the card, the payment server asks the bank.
story local approved
== tender
  ended
  files in C:\Lumbrio\ and F:\Lumbrio\
  card or result %B4111111111111111^
  audit $48.50
  server 7
  table 12
  receipt 1043
  with gratuity $57.23
  gratuity %18
  name of server Rosalind Test
  command line False
  partial support YES
  kind PreAuth
  card 4111111111111111
  expires 2809
  first name ROSALIND A
  last name TEST
  status 
  status Waiting for You to Swipe the Card
  status Validating Card Number 
  status Just a Moment Please 
  status Dialing for Card Approval
  status Approved\r\nA12345
  status Approved - A12345
  status Approved Printing Receipt
  status Please Click Finish Tender
== payment
  takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"
== records
  in CCPending.dat
  CCNumb D3456789:;<=>?@A
  CCExpDate 0928
  CCName ROSALIND A TEST
  CCSaleAmt 48.50
  CCServer 7
  CCTable 12
  CCTabAmt 48.50
  CResponse YA12345
  CApprovalCode A12345
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
  HiddenNumb XXXX XXXX XXXX 1111
  CCaditionalFUNDS 0
  blank CCApprovedAmt CCGiftFlag CCReserved2
== slips
  [[Receipt TM-88]]
  [MERCHANT COPY]
  1 Quay Street
  01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 2
  Name: ROSALIND A TEST
  Card: #### #### #### 1111  TransRecord 1
  AUTH - A12345  Terminal FRONT-BAR
  Amount      $48.50
  [MERCHANT COPY]
  - - - cut - - -
  [[Receipt TM-88]]
  [CUSTOMER COPY]
  1 Quay Street
  01/15/25  01:05 PM  1043 - 7 Rosalind - 12
  Name: ROSALIND A TEST
  Card: #### #### #### 1111
  Amount      $48.50
  [CUSTOMER COPY]
  - - - cut - - -
== Xsend.ans
  1 "Approved"
  2 "48.50     "
  3 "A12345    "
  4 "1043                "
  5 "XXXX XXXX XXXX 1111           "
  6 "7         "
  7 "12        "
  8 "          "
  9 "ROSALIND A TEST               "
  10 "YA12345             "
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
  Request File - C:\Lumbrio\Xsend.req
  Table Number - 12
  Receipt Number - 1043
  Server (Employee) Number - 7
  Sale Amount - 48.50
                 
  **********************************************************
  ***       Waiting For card Swipe      ***
  **********************************************************
                 
  First Name - ROSALIND A
  Last Name - TEST
  Card Number Ready - XXXX XXXX XXXX 1111
  Card Expires on - 2809
  Amount Sent - 48.5
  New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.req
  Actual Response From Xcharge YA12345
  Actual Seconds for Response  2
  Approved or Declined Approved
  SetPrinter Receipt TM-88
   CCmerchant.VRD is not in C:\Lumbrio\
   CCmerchant.VRD is not in F:\Lumbrio\
    Printing Merchant 2
== TRACELOG.TXT
  ******  Make Respone File For Lumbrio ******
  ******  END Respone File For Lumbrio ******

story local cancelled too late, like local approved
payment keeps silent
at 20 s: bank approves now
at 20 s: in vain: press Cancel
- == payment
== slips
* 01/15/25  01:05 PM  1043 - 7 Rosalind - 12 - 18
== CCLastProcess.dat
  Actual Response From Xcharge YA12345
* Actual Seconds for Response  18
*   Printing Merchant 18

# The bank's word is all that is left of the charge.
story local approved with no room for its record, like local approved
fail append CCPending.dat
fail rename KeptRecord-20250115-130504.dat
answer Ok
== tender
  status Please Click Finish Tender
+ box [RECORD NOT STORED] The bank approved this card, but its record could not be stored (access denied). Do not charge the card again. It could not be kept at this station either: write these figures down and give them to the manager now.
+ box Receipt: 1043
+ box Amount: $48.50
+ box Approval code: A12345
+ box F:\Lumbrio\CCPending.dat (Ok)
== payment
  takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"
+ left FRONT-BAR011525130502.ans
== records
  in CCPending.dat
== slips
* Card: #### #### #### 1111  TransRecord 0
== CCLastProcess.dat
  Actual Seconds for Response  2
+   RECORD NOT STORED - access denied - F:\Lumbrio\CCPending.dat [TRACELOG]
+   KEPT RECORD NOT WRITTEN - access denied - receipt 1043, amount 48.50, code A12345 - C:\Lumbrio\Data\KeptRecord-20250115-130504.dat [TRACELOG]

# The digits of a card that the bank's answer repeats stand in no file.
story local declined, like local approved
payment answers: "N4111111111111111 IS NOT 4111-1111 1111 1111/2809 OR 123456789012"
- == slips
== tender
  status Dialing for Card Approval
* status Declined\r\nXXXX XXXX
* status Declined - XXXX XXXX
- status Approved Printing Receipt
== records
* CResponse NXXXX XXXX XXXX 1111
* CApprovalCode XXXX XXXX
* CCstatus Declined
== Xsend.ans
* 1 "Declined"
* 3 "XXXX XXXX "
* 10 "NXXXX XXXX XXXX 1111"
== CCLastProcess.dat
* Actual Response From Xcharge NXXXX XXXX XXXX 1111 IS NOT XXXX XXXX XXXX 1111/2809 OR 123456789012
* Approved or Declined Declined
- SetPrinter Receipt TM-88
- ...
-   Printing Merchant 2

story local declined by a small y, like local declined
payment answers: "yA12345"
== tender
  status Dialing for Card Approval
* status Declined\r\nA12345
* status Declined - A12345
== payment
  takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"
+ left FRONT-BAR011525130502-20250115-130505.ans
== records
* CResponse yA12345
* CApprovalCode A12345
== Xsend.ans
* 3 "A12345    "
* 10 "yA12345             "
== CCLastProcess.dat
* Actual Response From Xcharge yA12345
  Actual Seconds for Response  2
+   A RESULT THAT NO TENDER HAS DEALT WITH - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.ans - is now c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502-20250115-130505.ans [TRACELOG]

story local cancelled in the wait, like local wait stopped
payment keeps silent
put c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525125900.req | "C1","7","1041","","","31."\r\n
put c:\Program Files\X-Charge\LocalTran\BACK-BAR011525125900.req | other's\r\n
at 30 s: press Cancel
- == TRACELOG.TXT
== payment
  left BACK-BAR011525125900.req
== CCLastProcess.dat
  On Wednesday 01/15/2025 at 01:05 PM
+   REQUEST OF A TENDER THAT WAS ENDED - receipt 1041, amount 31., card XXXX XXXX XXXX  - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525125900.req [TRACELOG]
+   IT IS REMOVED [TRACELOG]
  New Request File name c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.req
+ Cancel was pressed
* Actual Seconds waited for Response  29

story local wait stopped, like local approved
payment keeps silent
at 9 s: stop waiting
- == payment
- == records
- == slips
== tender
- status Approved\r\nA12345
- ...
- status Please Click Finish Tender
== Xsend.ans
* 1 "Declined"
* 3 "          "
* 10 "                    "
== CCLastProcess.dat
- Actual Response From Xcharge YA12345
+ Unable to Connect - Internet may be down 
* Actual Seconds waited for Response  7
- Approved or Declined Approved
- ...
-   Printing Merchant 2

story local answer not read, like local wait stopped
answer Ok
fail open .ans
== tender
  status Dialing for Card Approval
+ status The payment answered, but its answer cannot be read
+ box [OUTCOME UNKNOWN] The payment answered, but its answer cannot be read (access denied). The card may be charged. Do not run it again before the manager has looked into the payment application. The point of sale was told "Declined".
+ box Receipt: 1043
+ box Amount: $48.50
+ box C:\Lumbrio\Data\Unknown-20250115-130505 (Ok)
== payment
  takes "C1","7","1043","4111111111111111","%B4111111111111111^TEST/ROSALIND A^28091010000000000000?;4111111111111111=28091010000000000?","48.5","99999"
  left FRONT-BAR011525130502.ans
== CCLastProcess.dat
- Unable to Connect - Internet may be down 
- Actual Seconds waited for Response  7
+   ANSWER NOT READ - access denied - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.ans
+   OUTCOME UNKNOWN - access denied - C:\Lumbrio\Data\Unknown-20250115-130505 [TRACELOG]

story local folder missing, like local wait stopped
erase c:\Program Files\X-Charge\LocalTran
answer Ok
== tender
  status Dialing for Card Approval
+ box [Request File] The request for this card cannot be written to the Xcharge folder, so this card was not charged. Please try again, or check the connection to the Xcharge computer. (Ok)
== CCLastProcess.dat
- First Name - ROSALIND A
- ...
- Actual Seconds waited for Response  7
+   REQUEST NOT WRITTEN - not there - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.req

story local request not written, like local folder missing
fail rename .req
answer Ok
== CCLastProcess.dat
*   REQUEST NOT WRITTEN - access denied - c:\Program Files\X-Charge\LocalTran\FRONT-BAR011525130502.req

story local audit refused, like local approved
put C:\Lumbrio\XAudit.DAT | "40.00"\r\n
answer Cancel
- == payment
- == slips
== tender
* card or result Wrong Amount
* audit $40.00
  status Dialing for Card Approval
* status Please Click Cancel
- status Approved - A12345
- status Approved Printing Receipt
- status Please Click Finish Tender
+ box [AUDIT FAILED] The amount you are attempting to process does not match the amount the system has calculated.The system has a purchase amount of $48.50  if this amount is in fact Correct then press OK otherwise press CANCEL (Ok, Cancel)
== records
- CResponse YA12345
- CApprovalCode A12345
- CCstatus Approved
* blank CCApprovedAmt CResponse CApprovalCode CCstatus CCGiftFlag CCReserved2
== Xsend.ans
* 1 ""
* 2 ""
* 3 "48.50     "
* 4 "          "
* 5 "1043                "
* 6 "XXXX XXXX XXXX 1111           "
* 7 "7         "
* 8 "12        "
* 9 "          "
* 10 "ROSALIND A TEST               "
+ 11 "                    "
== CCLastProcess.dat
- First Name - ROSALIND A
- ...
-   Printing Merchant 2

# Who only checks a manager's card charges nobody.
story local managers card read, like local card before the request
at 400 ms: a manager's card is read
== tender
  files in C:\Lumbrio\ and F:\Lumbrio\
+ card or result %B4111111111111111^
  kind PreAuth
+ card 4111111111111111
+ expires 2809
+ first name ROSALIND A
+ last name TEST
  status Waiting for You to Swipe the Card
+ status Validating Card Number 
+ status Just a Moment Please 
+ status Dialing for Card Approval
