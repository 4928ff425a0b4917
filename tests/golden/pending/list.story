# The tabs stay on the disk, and the bank gets those, until somebody saves the entry.
story list of an evening
card CCReceipt=12;CCTabAmt=40.00;CCApprovedAmt=30.00;CCAdjStatus=Adjusted - Pending, empty
card CCReceipt=3;CCstatus=;CCTabAmt=1000, CCReceipt=44;CCTip=4.50;CCDate=01/14/25;CCNumb=378282246310005;CCEncoded=1
card CCReceipt=5;CCstatus=Declined;CCAdjStatus=Completed
# A tip of 20 % was approved beforehand.
card CCReceipt=6;CCTabAmt=10.00;CCApprovedAmt=12.00;CCAdjStatus=Completed
load the list
press Refresh
  log: loaded: $82.00 + $4.50 = $86.50, count 3 | 2 x C:\Lumbrio\whoosh.wav
look at totals
  $82.00 + $4.50 = $86.50, 4 Swipes, from 01/14/25 to 01/15/25, record 6 of F:\Lumbrio\CCPending.dat, 2 to adjust, Internet connection detected!!
# The place stays selected, not the record.
sort by option 0
look at order
  option 0: 5 6 1 4
tap row 4
  entry F:\Lumbrio\CCPending.dat 4
in vain: tap row 5
saved
  row 4 selected
  log: loaded: $82.00 + $4.50 = $86.50, count 3 | 2 x C:\Lumbrio\whoosh.wav
look at order
  option -1: 1 4 5 6
== left
  f/lumbrio/ServerISBatching.dat 4

story list of a new station
no Remotedir
load the list
press Refresh
  log: loaded: $0.00 + $0.00 = $0.00, count -1 | 2 x C:\Lumbrio\whoosh.wav
== left
  c/lumbrio/CCPending.dat 0
  c/lumbrio/ServerISBatching.dat 4

# The card role has no list.
story list in the card role
role TNDRcc
in vain: load the list

# Forty slips at midnight do not wait for a line that is down, and its state is not guessed.
story connection tested beside the screen
card CCReceipt=1
connection unknown
saved 40
  log: loaded: $20.00 + $0.00 = $20.00, count 0 (40 times) | 80 x C:\Lumbrio\whoosh.wav
look at totals
  $20.00 + $0.00 = $20.00, 1 Swipes, from 01/15/25 to 01/15/25, record 1 of F:\Lumbrio\CCPending.dat, 2 to adjust, 
look at commands
  Process grey, Finish hidden, Continue grey
connection down
pass 100 ms
look at totals
  $20.00 + $0.00 = $20.00, 1 Swipes, from 01/15/25 to 01/15/25, record 1 of F:\Lumbrio\CCPending.dat, 2 to adjust, No internet connection detected...
# The answer is not old yet, then it is.
connection unknown
pass 29 s
saved
  log: loaded: $20.00 + $0.00 = $20.00, count 0 | 2 x C:\Lumbrio\whoosh.wav
pass 1 s
saved
  log: loaded: $20.00 + $0.00 = $20.00, count 0 | 2 x C:\Lumbrio\whoosh.wav
connection up
pass 100 ms
look at totals
  $20.00 + $0.00 = $20.00, 1 Swipes, from 01/15/25 to 01/15/25, record 1 of F:\Lumbrio\CCPending.dat, 2 to adjust, Internet connection detected!!

# Stations take tenders while the list loads; commands are ignored, a save is not forgotten.
story busy while the list loads
cards 150: CCstatus=Declined
after 20 ms: another station stores CCReceipt=new
  stored
after 25 ms: in vain: tap row 1
after 30 ms: in vain: press DELETE RED'S
after 60 ms: in vain: press Done, though disabled
after 70 ms: in vain: mouse on Force ALL NO TIP
after 80 ms: saved
press Refresh
  log: loaded: $3,000.00 + $0.00 = $3,000.00, count 149 | loaded: $3,020.00 + $0.00 = $3,020.00, count 150 | 4 x C:\Lumbrio\whoosh.wav
# Progress is painted every 50 ms, not at each record.
look at paints
  6
== left
  F:\Lumbrio\CCPending.dat: 1 (150 times) (new CCNumb=4111111111111111 CCServer=7 CCTabAmt=20.00 CCApprovedAmt=0 CApprovalCode=004711 CCstatus=Approved CCTip=0 CCReceipt=new CCDate=01/15/25 CCTime=01:05 PM CCStation=FRONT-BAR CCAdjStatus=Not Adjusted CCEncoded=0)

# No digit is lost, and nothing is opened before the rows are all there.
story receipt typed while "Done" waits, like done
card CCReceipt=10
after 100 ms: receipt 10
  notice: Updating Data - Just a Moment Please
  Receipt 10. Enter opens it, Escape clears the number.
press Done
* notice: Updating Data File - Just a momnet Please > notice: Operation is completed > notice: Backing up Data = Please Wait
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 500
  F:\Lumbrio\CCPending.dat: (10 CCNumb=D3456789:;<=>?@A CCEncoded=1)

story lock of another ends the list
lock CCPending.dat
answer Ok
press Refresh
  [] Locking failed: locked by another / F:\Lumbrio\CCPending.dat (Ok)
  log: 1 x C:\Lumbrio\whoosh.wav
  the program fails

# A record that cannot be read is listed as the one before it.
story unreadable record
cards 131: CCTip=1
card CCTip=2, CCTip=4
fail read CCPending.dat 65500 bytes at 65500
press Refresh
  log: loaded: $2,660.00 + $136.00 = $2,796.00, count 132 | 2 x C:\Lumbrio\whoosh.wav

# Which commands there are, from moment to moment.
story commands
look at commands
  Finish hidden, Continue grey
load the list
look at commands
  Process grey, Finish hidden, Continue grey
card empty
after 0 ms: look at commands
  Done grey, Refresh grey, Print grey, Finish hidden, Archive grey, Totals by Servers grey, Force ALL NO TIP grey
press Refresh
  log: loaded: $0.00 + $0.00 = $0.00, count -1 | 2 x C:\Lumbrio\whoosh.wav
look at commands
  Process grey, Finish hidden, Totals by Servers grey, Totals by Terminal grey, Force ALL NO TIP grey, Totals by CC Type grey
# two adjusted
no cards
card CCAdjStatus=Adjusted - Pending, CCAdjStatus=Adjusted - Pending
press Refresh
  log: loaded: $40.00 + $0.00 = $40.00, count 1 | 2 x C:\Lumbrio\whoosh.wav
look at commands
  Finish hidden
answer Ok
press Process
  [Process] This version cannot batch out yet. Nothing has been changed. (Ok)
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
look at commands
  Finish hidden, Totals by CC Type grey
# "Finish" is there before the question, and stays.
answer Cancel
when a box is open (2): look at commands
  Process hidden, Totals by CC Type grey
press picture
  [FORCE ALL COMPLETED] Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be batched out. (Ok, Cancel)
  log:      ***  USER CLICKED FORCE ALL COMPLETED *** |      ***  USER CLICKED CANCEL  ***
press Finish
  entry closed > notice: Updating Data File - Just a momnet Please > row 2 selected > notice: Operation is completed
  log: loaded: $40.00 + $0.00 = $40.00, count 1 | 5 x C:\Lumbrio\whoosh.wav
look at commands
  Finish hidden
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000
  f/lumbrio/ServerISBatching.dat 4
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCEncoded=1) (2 times)

# Beside another manager: whatever is pressed and typed, nothing on the drives changes.
story looking only
looking only
put F:\Lumbrio\ServerISBatching.dat | of the other
card CCReceipt=1;CCServer=8;CCAdjStatus=Completed, CCReceipt=2;CCServer=12;CCStation=BAR;CCstatus=Declined
card CCReceipt=3;CCServer=8;CCStation=BAR
load the list
press Refresh
  log: loaded: $60.00 + $0.00 = $60.00, count 2 | 2 x C:\Lumbrio\whoosh.wav
look at commands
  Process grey, Finish grey hidden, Continue grey, Force ALL NO TIP grey, Mark Completed grey, DELETE RED'S grey, Mark all completed grey, picture grey
answer Cancel
press everything of the list
  [print on] one of 2 (Office Laser)
  to archive 1 2 3 > to totals by server 2 1 3 > to totals by terminal 2 3 1 > to totals by type 2 3 1
  log: loaded: $60.00 + $0.00 = $60.00, count 2 |      ***  USER CLICKED PRINT  *** |      ***  USER CLICKED Archive  *** |      ***  USER CLICKED TOTALS BY SERVER  *** |      ***  USER CLICKED TOTALS BY STATION  *** |      ***  USER CLICKED TOTALS BY TYPE  *** | 2 x C:\Lumbrio\whoosh.wav
tap row 3
  entry F:\Lumbrio\CCPending.dat 1
in vain: tip 9
in vain: quick tip 3
in vain: box 2 = JANE
look at entry
  1, tip 0, Completed
answer Cancel
answer Cancel
answer Cancel
answer Cancel
press everything of the entry
  entry closed > entry closed
  [print on] one of 2 (Receipt TM-88)
  [print on] one of 2 (Receipt TM-88)
  [PASSWORD REQUIRED - CALL TECH SUPPORT] The Track Read Line has been hidden for your protection. To view the Track Read you must call Tech Support at 555-010-0199. You will be given a password to enter below. If you enter a wrong password the ALL Track Reads will be Permanently DELETED (PASSWORD)
  [PASSWORD REQUIRED - CALL TECH SUPPORT] The Card Number has been hidden for your protection. To view the Card Number you must call Tech Support at 555-010-0199. You will be given a password to enter below. (PASSWORD)
  log: 2 x C:\Lumbrio\whoosh.wav
press Done
  entry closed
  log:      ***  USER CLICKED DONE  ***
  the program ends
== left
  f/lumbrio/ServerISBatching.dat 12
