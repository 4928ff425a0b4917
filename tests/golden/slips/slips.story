configure 1 = The Copper Kettle
configure 2 = 14 Harbour Street
configure 3 = Portsmouth NH 03801
configure 22 = Receipt Sans
configure 23 = 9
record CCNumb 4111111111111111
record HiddenNumb XXXX XXXX XXXX 8765
record CCName JOHN Q PUBLIC
record CCDate 01/15/25
record CCTime 01:05 PM
record CCReceipt 1043
record CCServer 7
record CCTable 12
record CCSaleAmt 1248.50
record CCTabAmt 1248.50
record CCApprovedAmt 1200.00
record CCaditionalFUNDS 48.50
record CApprovalCode A12345
record CCStation BAR1
family Left by another job
bold
italic

# Every slip, word for word.
story slips
Print_Merch
-- Print_Merch
  on Receipt TM-88
  job "Lumbrio card slip"
  picture Picture2
  line ""  <"Left by another job" 12 bold italic>
  2 x line ""
  line "The Copper Kettle"  <"Receipt Sans" 9 bold>
  line "14 Harbour Street"  <"Receipt Sans" 9>
  line "Portsmouth NH 03801"
  line "__________________________________________________"  <"Receipt Sans" 7>
  line "01/15/25  01:05 PM  1043 - 7 Maria - 12 - 4"
  line "Name: JOHN Q PUBLIC"
  line "Card: #### #### #### 8765  TransRecord 17"
  line "AUTH - A12345  Terminal BAR1"  <"Receipt Sans" 7 bold>
  line ""
  line "Amount      $1,248.50"  <"Receipt Sans" 14>
  line ""  <"Receipt Sans" 7>
  line "Gratuity      ___________________________"  <"Receipt Sans" 14>
  line ""  <"Receipt Sans" 7>
  line "Total          ___________________________"  <"Receipt Sans" 14>
  line ""
  line "x_______________________________"
  line "       Signature"  <"Receipt Sans" 7>
  line "        JOHN Q PUBLIC                 "  <"Receipt Sans" 9 bold>
  line ""  <"Receipt Sans" 9>
  picture Picture2
  line ""  <"Receipt Sans" 12>
  line ""
Print_Cust
-- Print_Cust
* picture Picture1
* line ""  <"Receipt Sans" 12>
  line "__________________________________________________"  <"Receipt Sans" 7>
* line "01/15/25  01:05 PM  1043 - 7 Maria - 12"
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 8765"
* line "Terminal / Station  BAR1"  <"Receipt Sans" 7 bold>
  line "       Signature"  <"Receipt Sans" 7>
* line "       JOHN Q PUBLIC                 "  <"Receipt Sans" 9 bold>
* picture Picture1
PrintPartial_Merch
-- PrintPartial_Merch
* picture Picture4
* line ""  <"Receipt Sans" 24>
  line "__________________________________________________"  <"Receipt Sans" 7>
* line "01/15/25  01:05 PM  1043 - 7 Maria - 12"
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 8765"
  line ""
+ picture Picture5
* line ""  <"Receipt Sans" 12 bold>
* line ""
* line "    Amount      "  <"Receipt Sans" 14>
* line "        $1,200.00"  <"Receipt Sans" 28 bold>
* line ""  <"Receipt Sans" 7 bold>
* line "    Gratuity NOT Allowed"  <"Receipt Sans" 16>
* line ""  <"Receipt Sans" 8>
* line "  We are unable to put any more funds thru on this card"
* line "  The original amount due was     $1,248.50"  <"Receipt Sans" 10>
* line "  There is still a Balance Due of $48.50"  <"Receipt Sans" 10 bold>
+ line "  (Please tip your server on the original amount due)"  <"Receipt Sans" 8>
+ 3 x line ""
+ line "x_______________________________________________"
+ line "                              Signature"  <"Receipt Sans" 7>
+ line ""
* picture Picture4
* line ""  <"Receipt Sans" 24>
PrintPartial_Cust
-- PrintPartial_Cust
* picture Picture3
- 3 x line ""
+ 4 x line ""
* picture Picture3
Att_Server
-- Att_Server
  on Receipt TM-88
  job "Lumbrio card slip"
  line "Visa, Mastercard, Amx and Discover now require"  <"Receipt Sans" 9>
  line "us to accept a partial payment on a Tab"
  line "The card you used for this transaction has been"
  line "approved for a partial payment. You will need to"
  line "get the partial payment receipt signed and ask the"
  line "customer how they would like to pay the balance."
  line "Once you know come back to the tender screen and click "
  line "Split Tender, Put in the parial amount and the "
  line "balance in the approiate box."
  line "$1,248.50  "
  line "$1,200.00  "
  line "$48.50  "
Reprint_Merch
-- Reprint_Merch
* line ""  <"Receipt Sans" 12>
  line "__________________________________________________"  <"Receipt Sans" 7>
* line "01/15/25  01:05 PM  1043 - 7 Maria - 12"
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 1111  TransRecord 17"
  line ""  <"Receipt Sans" 12>
- line ""
+ 2 x line ""
Reprint_Cust
-- Reprint_Cust
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 1111"
  line ""  <"Receipt Sans" 12>
- line ""
+ 2 x line ""
Print_Cust2
-- Print_Cust2
  line "Name: JOHN Q PUBLIC"
* line "Card: XXXX XXXX XXXX 8765"
* line "AUTH - A12345  Terminal BAR1"  <"Receipt Sans" 7 bold>
  line ""  <"Receipt Sans" 7>
* line "   TRANSACTION"  <"Receipt Sans" 20>
* line "     ----VOIDED----"
- line "Total          ___________________________"  <"Receipt Sans" 14>
  line "x_______________________________"
* line "       Signature for The Copper Kettle"
* line ""
- line ""  <"Receipt Sans" 9>
  line ""  <"Receipt Sans" 12>
- 2 x line ""
+ line ""
-- Print_Cust2, merchant's
  line "Name: JOHN Q PUBLIC"
* line "Card: XXXX XXXX XXXX 8765  TransRecord 17"
  line ""  <"Receipt Sans" 7>
* line "   TRANSACTION"  <"Receipt Sans" 20>
* line "     ----VOIDED----"
- line "Total          ___________________________"  <"Receipt Sans" 14>
  line "x_______________________________"
* line "       Signature for The Copper Kettle"
* line ""
- line ""  <"Receipt Sans" 9>
  line ""  <"Receipt Sans" 12>
- 2 x line ""
+ line ""

story no tip line, like slips
no tip line
Print_Merch
-- Print_Merch
  line ""  <"Receipt Sans" 7>
* line ""  <"Receipt Sans" 14>
- line ""  <"Receipt Sans" 7>
- line "Total          ___________________________"  <"Receipt Sans" 14>
- line ""

story tip chosen before, like slips
tip before 224.73 1473.23
Print_Merch
-- Print_Merch
  line ""  <"Receipt Sans" 7>
* line "Gratuity      $224.73"  <"Receipt Sans" 14>
  line ""  <"Receipt Sans" 7>
* line "Total          $1,473.23"  <"Receipt Sans" 14>
Print_Cust
-- Print_Cust
  line ""  <"Receipt Sans" 7>
* line "Gratuity      $224.73"  <"Receipt Sans" 14>
  line ""  <"Receipt Sans" 7>
* line "Total          $1,473.23"  <"Receipt Sans" 14>

story offline approval in command line mode, like slips
command line
record CCTroutID OFFLINE
Print_Merch
-- Print_Merch
  line "Name: JOHN Q PUBLIC"
* line "Card: XXXX XXXX XXXX 8765  TransRecord 17"
* line "TROUT - OFFLINE  Terminal BAR1"  <"Receipt Sans" 7 bold>
Print_Cust
-- Print_Cust
  line "Name: JOHN Q PUBLIC"
* line "Card: XXXX XXXX XXXX 8765"

story gift balance, like slips
record GCbalance 25.5
gift
Print_Merch
-- Print_Merch
  line ""  <"Receipt Sans" 12>
+ 3 x line "  "
* line "$25.50"  <"Receipt Sans" 16 bold>
+ picture Picture8
+ line ""  <"Receipt Sans" 12 bold>
+ line ""  <"Receipt Sans" 12>
+ 12 x line "  "
Print_Cust
-- Print_Cust
  line ""  <"Receipt Sans" 9>
  picture Picture1
  line ""  <"Receipt Sans" 12>
+ 3 x line "  "
+ line "$25.50"  <"Receipt Sans" 16 bold>
+ picture Picture8
+ line ""  <"Receipt Sans" 12 bold>
+ line "  "  <"Receipt Sans" 12>
+ 11 x line "  "
Reprint_Cust
-- Reprint_Cust
  line ""  <"Receipt Sans" 9>
  picture Picture1
  line ""  <"Receipt Sans" 12>
- 2 x line ""
+ line "$25.50"  <"Receipt Sans" 16 bold>
+ picture Picture8
+ line ""  <"Receipt Sans" 12 bold>
+ line ""  <"Receipt Sans" 12>
+ 14 x line ""
+ line ""  <"Receipt Sans" 7>
+ line ""
balance page
-- balance page
  on Receipt TM-88
  job "Lumbrio card slip"
  picture Picture1
  line ""  <"Receipt Sans" 24>
  line ""
  line "$25.50"  <"Receipt Sans" 16 bold>
  picture Picture8
  line ""  <"Receipt Sans" 12 bold>
  line ""  <"Receipt Sans" 12>
  14 x line ""
  picture Picture1
  line ""  <"Receipt Sans" 24>
  2 x line ""

story negative balance, like slips
in vain: record GCbalance -3
Print_Merch
-- Print_Merch
Print_Cust
-- Print_Cust
Reprint_Cust
-- Reprint_Cust

story partial without a balance, like slips
record CCaditionalFUNDS 0.00
PrintPartial_Merch
-- PrintPartial_Merch
* line ""  <"Left by another job" 24 bold italic>
  line "  The original amount due was     $1,248.50"  <"Receipt Sans" 10>
* line "  There is still a Balance Due of $5.00"  <"Receipt Sans" 10 bold>

story reprints of a tip chosen before, like slips
reprint
in vain: tip before 0 0
Reprint_Merch
-- Reprint_Merch
* line ""  <"Left by another job" 12 bold italic>
  line ""  <"Receipt Sans" 9>
+ line "  REPRINT    REPRINT"  <"Receipt Sans" 18 bold>
Reprint_Cust
-- Reprint_Cust
  line ""  <"Receipt Sans" 9>
+ line "  REPRINT    REPRINT"  <"Receipt Sans" 18 bold>

story void of a plain number and a sale amount, like slips
record HiddenNumb
record CCTabAmt 0.00
record CCApprovedAmt
record CCSaleAmt $7.25
Print_Cust2
-- Print_Cust2
* line ""  <"Left by another job" 12 bold italic>
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 1111"
  line ""
* line "Amount      $7.25"  <"Receipt Sans" 14>
-- Print_Cust2, merchant's
  line "Name: JOHN Q PUBLIC"
* line "Card: #### #### #### 1111  TransRecord 17"
  line ""
* line "Amount      $7.25"  <"Receipt Sans" 14>

# The pen goes on as it is; what was left open is closed by whoever writes elsewhere.
story two printers
choose Office
line notice
choose Receipt
line slip
in vain: choose Receipt TM-88
close
== paper
  on Office Laser
  job "Lumbrio card slip"
  line "notice"  <"Left by another job" 10 bold italic>
  on Receipt TM-88
  job "Lumbrio card slip"
  line "slip"  <"Left by another job" 10 bold italic>
