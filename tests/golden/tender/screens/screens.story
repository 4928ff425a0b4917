# The wait for the payment application: what can be read, pressed and reached by the Tab key.
story waiting
payment keeps silent
at 3 s: look
-- Xcharge Credit Card Interface
  Text4 [$48.50] 32 points on #000000
  Label3_5 12
  Label3_6 1043
  Label3_4 7
  Label3_12 Rosalind Test
  stateCard  focus
  stateEdge waiting
  stateWord Waiting
  Text3 [Waiting for Xcharge Interface] 16 points on #000000
  stateHint The payment window takes the card.
  Label7 2
  Label3_10 %18
  Label3_9 $57.23
  SSCommand7 (Print Credit Card Slip with Gratuity) NO #1c2733
  SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
  Label3_13 True
  Label3_15 PreAuth
  Label3_14 YES
  Label12 YES
  Label14 NO
at 3 s: in vain: key Return
at 12 s: look
-- Xcharge Credit Card Interface
+ SSPanel2_text Still waiting for the payment window. You can go on waiting, or press Cancel.
- Text3 [Waiting for Xcharge Interface] 16 points on #000000
* Label7 11
  SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
+ SSCommand1 (Cancel) Cancel #b3261e
+ SSCommand5 (CONFIG) CONFIG #1c2733
at 12 s: in vain: key Return
at 12 s: tabs 8
  SSCommand1
  SSCommand7
  SSCheck1
  SSCommand5
  stateCard
  SSCommand1
  SSCommand7
  SSCheck1
at 50 s: look
-- Xcharge Credit Card Interface
  SSPanel2_text Still waiting for the payment window. You can go on waiting, or press Cancel.
+ SSPanel4 (INTERNET or Phone Line may be DOWN) INTERNET or Phone Line may be DOWN #b3261e
- stateCard  focus
* stateEdge attention
* stateWord No answer yet
+ Text3 [Connection Problems Press Cancel] 16 points on #000000
* stateHint The payment application has not answered.
* Label7 51
* SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733 focus
at 55 s: end
== end
  at 55000 ms
  state No answer yet
  stateEdge attention
  manager 
  clerk 7
  code 
  records 0
  starts 2
== boxes

story cancelled by escape, like waiting
payment keeps silent
at 6 s: in vain: key Escape
at 12 s: key Escape
== end
* at 12000 ms
* state Waiting
* stateEdge waiting
* starts 1
+ answer "Declined"

story cancelled by cross, like cancelled by escape
payment keeps silent
at 6 s: in vain: close
at 12 s: close

story timed out until return, like cancelled by escape
payment answers: RESULT=TIMEOUT\r\n
at 8 s: look
-- Xcharge Credit Card Interface
- stateCard  focus
* stateEdge declined
* stateWord Declined
* Text3 [Please Click Cancel] 16 points on #000000
- stateHint The payment window takes the card.
* Label7 6
+ Text1 [Declined] 11 points on #000000
  SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
+ SSCommand1 (Cancel) Cancel #b3261e focus
+ SSCommand5 (CONFIG) CONFIG #1c2733
at 8 s: key Return
== end
* at 8000 ms
* state Declined
* stateEdge declined
* records 1

story approved without being painted, like cancelled by escape
in vain: the screen is not painted
== end
* at 3700 ms
* state Approved
* stateEdge approved
* code 012345
* records 1
* answer "Approved"
+ slip [[Receipt TM-88]]
+ slip [MERCHANT COPY]
+ slip [MERCHANT COPY]
+ slip [[Receipt TM-88]]
+ slip [CUSTOMER COPY]
+ slip [CUSTOMER COPY]

# Kept: what the manager chose for the station stays until somebody chooses otherwise.
story options, like approved without being painted
bank approves after 8 s
put C:\Lumbrio\CCnoPrint.dat | as the manager left it
at 3 s: look
-- Xcharge Credit Card Interface
* SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733 checked
at 3 s: press Do not print a RECEIPT for Customer
at 3 s: press Print Credit Card Slip with Gratuity
at 3 s: look
-- Xcharge Credit Card Interface
* SSCommand7 (Print Credit Card Slip with Gratuity) YES #1c2733
* SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
== end
* at 8700 ms

# The longest of everything, in both modes and with each panel, fits on both sizes of a screen.
story longest, like waiting
payment keeps silent
put C:\Lumbrio\Xsend.req | "DelPrePay table on the terrace","1043","7","123456.50"\r\n
put C:\Lumbrio\XAudit.DAT | 123456.50
at 50 ms: fits
at 3 s: fits
at 10 s: look
-- Xcharge Credit Card Interface
+ dots: DelPrePay table on the terrace\nRosalind Test
+ SSPanel2_text Still waiting for the payment window. You can go on waiting, or press Cancel.
* Text4 [$123,456.50] 32 points on #000000
* Label3_5 DelPrePay table on the terrace
* Label7 9
+ Label9 $123,456.50
* Label3_9 $145,678.67
  SSCheck1 (Do not print a RECEIPT for Customer) Do not print a RECEIPT for Customer #1c2733
+ SSCommand1 (Cancel) Cancel #b3261e
+ SSCommand5 (CONFIG) CONFIG #1c2733
at 52 s: fits
at 52.5 s: hide stateCard
at 52.5 s: hide detailsCard
at 52.5 s: show SSPanel5
at 52.5 s: read YES, approve offline
  SSCommand8 (YES, approve offline) YES #1c2733
at 52.5 s: fits
at 53 s: end
== end
* at 53000 ms

# The guest must not leave without the rest being asked for.
story partial, like cancelled by escape
bank approves, APPROVEDAMOUNT=12345.67, ADDITIONALFUNDSREQUIRED=9999.99
printers none
answer Ok
when a box is open: read Approved: $12,345.67
  partApproved $12,345.67
when a box is open: read Still owed: $9,999.99
  stillOwed $9,999.99
when a box is open: fits
== end
* at 3800 ms
* state Partial approval
* stateEdge attention
* code 012345
* records 1
* answer "DECLINE but PARTAIL APPROVAL"
== boxes
+ [NOT PRINTED] The merchant's slip, the customer's slip and the server's notice were not printed: no printer is installed. The card is approved: do not run it again. Reprint from the manager's list.
+ Receipt: 1043
+ Amount: $48.50
+ Approved: $12,345.67
+ Approval code: 012345 (Ok)
