# The records as they stand in the file now, in the order of the list; the totals of the screen.
story printed list
card CCReceipt=2;CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=5, CCReceipt=1, CCReceipt=3
printer Office
the list is open
sort by option 0
no cards
card CCReceipt=2;CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=6, CCReceipt=1;CCStation=BAR
in vain: press Print
  log:      ***  USER CLICKED PRINT  ***
== printed on Office Laser
  job "Lumbrio card slip" landscape
  font "" 28, line "The Harbour Table"
  font "" 12, line "Credit Card Transactions as of January 15 2025"
  tabs 14,30,48,66,84,102,148,170,192,214,236
  font "" 8 bold, line "Recp #\tServer\tTabAmt\tAuthAmt\tTipAmt\tnTotal\tAdjusted  Status ###\tAuth  #.....\tStatus .....\tDate .........\tTime .........\tTerminal"
  font "" 7, line "001\t7\t20.00\t0\t0\t20.00\tNot Adjusted\t004711\tApproved\t01/15/25\t01:05 PM\tBAR"
  line "002\t7\t40.00\t30.00\t6\t46.00\tNot Adjusted\t004711\tApproved\t01/15/25\t01:05 PM\tFRONT-BAR"
  line ""
  line "Tab Total $70.00   Tip Total $5.00    Grand Total $75.00"
  line "                                                                                               Last Page 1"

# Not on a receipt roll, unless the manager wants it so; without the file only the headings.
story printed where the manager wants it, like printed list
card CCReceipt=1
press Refresh
  log: loaded: $20.00 + $0.00 = $20.00, count 0 | 2 x C:\Lumbrio\whoosh.wav
erase F:\Lumbrio\CCPending.dat
answer Cancel
press Print
  [print on] one of 2 (Office Laser)
  log:      ***  USER CLICKED PRINT  ***
printer fails no room on the disk
answer with Office Laser
answer Ok
press Print
  [print on] one of 2 (Office Laser)
  [NOT PRINTED] The list was not printed on Office Laser: no room on the disk. Please see to the printer, or choose another one, and print it again. (Ok)
  log:      ***  USER CLICKED PRINT  ***
- == printed on Office Laser
== left
  F:\Lumbrio\CCPending.dat:

# The fiftieth row turns the page, even the last one.
story printed page by page, like printed list
cards 50: CCTip=1
printer Office
the list is open
press Print
  log:      ***  USER CLICKED PRINT  ***
== printed on Office Laser
  font "" 8 bold, line "Recp #\tServer\tTabAmt\tAuthAmt\tTipAmt\tnTotal\tAdjusted  Status ###\tAuth  #.....\tStatus .....\tDate .........\tTime .........\tTerminal"
* font "" 7, line "001\t7\t20.00\t0\t1\t21.00\tNot Adjusted\t004711\tApproved\t01/15/25\t01:05 PM\tFRONT-BAR"
* line "001\t7\t20.00\t0\t1\t21.00\tNot Adjusted\t004711\tApproved\t01/15/25\t01:05 PM\tFRONT-BAR" (49 times)
  line ""
* line "                                                                                                   Page 1"
+ new page
+ font "" 28, line "The Harbour Table"
+ font "" 12, line "Credit Card Transactions as of January 15 2025"
+ tabs 14,30,48,66,84,102,148,170,192,214,236
+ font "" 8 bold, line "Recp #\tServer\tTabAmt\tAuthAmt\tTipAmt\tnTotal\tAdjusted  Status ###\tAuth  #.....\tStatus .....\tDate .........\tTime .........\tTerminal"
+ font "" 7, line ""
* line "Tab Total $1,000.00   Tip Total $50.00    Grand Total $1,050.00"
+ line "                                                                                               Last Page 2"
