a new station
card CCReceipt=1

# One press is enough; the list opens 100 ms later.
story start
start the program
  log: started: Wednesday 01/15/2025 01:05 PM
press NEXT
  status:  (busy) > status: Checking Credit Card Batch Logs (busy) > status: 0 CC LOG Files (busy) > status: 0 CC OLD ANSWER Files (busy) > status: 0 CC OLD HISTORY Files (busy)
  log: - | USER CHOSE AFTER Business Hours   | A backup of the data file was made at1  01:05 PM | File Name - 01152025130500 | - | XchargePend is loading now
in vain: press NEXT, though disabled
pass 99 ms
pass 1 ms
  status: 0 CC OLD HISTORY Files
  the list opens
pass 900 ms
press QUIT
  status: 0 CC OLD HISTORY Files (busy)
  log: - | USER CHOSE QUIT   | A backup of the data file was made at1  01:05 PM | File Name - 01152025130501 | - | Program ended normally | - | =======================================
  the program ends
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 500
  f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500
  c/pay/
  c/program files/x-charge/
  f/lumbrio/data/ccdatatmp/
  f/lumbrio/data/ccdatatmp2/
  f/lumbrio/data/ccmgrlogs/

# A station that crashed leaves its marker; only a person can know that.
story start while a station enters tips, like start
put F:\Lumbrio\StationTips.dat | "01:00 PM","7","Ann","BAR"," "\r\n
put C:\Lumbrio\X1009Version.dat |
start the program
press NEXT
answer with wait
pass 100 ms
  [In Use] Data File is in Use / A Server is entering their tips to their credit card transactions at this time. Try again later. / Start Time: 01:00 PM / Server Number: 7 / Server Name: Ann / POS Station: BAR / If you are absolutely positive that no other user is using this file you may override this message and continue to the batch out screen: type OVERRIDE. ()
  status: 0 CC OLD HISTORY Files
press NEXT
  status: 0 CC OLD HISTORY Files (busy) > status: Checking Credit Card Batch Logs (busy) > status: 0 CC LOG Files (busy) > status: 0 CC OLD ANSWER Files (busy) > status: 0 CC OLD HISTORY Files (busy)
  log: - | USER CHOSE AFTER Business Hours   | A backup of the data file was made at1  01:05 PM | File Name - 01152025130500 | - | XchargePend is loading now
answer with override
pass 100 ms
  [In Use] Data File is in Use / A Server is entering their tips to their credit card transactions at this time. Try again later. / Start Time: 01:00 PM / Server Number: 7 / Server Name: Ann / POS Station: BAR / If you are absolutely positive that no other user is using this file you may override this message and continue to the batch out screen: type OVERRIDE. ()
  status: 0 CC OLD HISTORY Files
  the list opens, by command line
  log: - | USER CHOSE OVERRIDE   | -
== left
+ c/lumbrio/X1009Version.dat 0
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500

# Logs of more than seven months, answers of more than two days.
story start deletes what is old, like start
dated 20240615 C:\Lumbrio\data\CCmgrLOGS\1.txt, 20240614 C:\Lumbrio\data\CCmgrLOGS\2.txt
dated 20200131 F:\Lumbrio\data\CCmgrLOGS\3.txt, 20200131 F:\Lumbrio\data\0120.dat, 20250112 C:\Pay\LocalTrans\1.xca
dated 20250112 C:\Pay\LocalTrans\2.XCA, 20250113 C:\Pay\LocalTrans\3.xca, 20200101 C:\Pay\LocalTrans\4.req
dated 20250101 C:\Pay\History\1.bak, 20250101 C:\Pay\History\2.xca
start the program
press NEXT
* status:  (busy) > status: Checking Credit Card Batch Logs (busy) > status: 2 CC LOG Files (busy) > status: 2 CC OLD ANSWER Files (busy) > status: 1 CC OLD HISTORY Files (busy)
== left
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500
- c/pay/
+ c/lumbrio/data/ccmgrlogs/1.txt 0
+ c/pay/history/2.xca 0
+ c/pay/localtrans/3.xca 0
+ c/pay/localtrans/4.req 0
  c/program files/x-charge/
+ f/lumbrio/data/0120.dat 0

# Seven months before a 30th there may be no 30th.
story start at the end of a month, like start
clock 2025-09-30 23:00:00
dated 20250228 C:\Lumbrio\data\CCmgrLOGS\1.txt, 20250227 C:\Lumbrio\data\CCmgrLOGS\2.txt
start the program
* log: started: Tuesday 09/30/2025 11:00 PM
press NEXT
* status:  (busy) > status: Checking Credit Card Batch Logs (busy) > status: 1 CC LOG Files (busy) > status: 0 CC OLD ANSWER Files (busy) > status: 0 CC OLD HISTORY Files (busy)
* log: - | USER CHOSE AFTER Business Hours   | A backup of the data file was made at1  11:00 PM | File Name - 09302025230000 | - | XchargePend is loading now
== left
* f and c/lumbrio/data/ccdata/09302025230000CCpending.dat 500
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500
+ c/lumbrio/data/ccmgrlogs/1.txt 0

# The log tells of a copy that was not made, and claims none of data that is not there.
story start without a copy, like start
start the program
fail rename 01152025130500CCpending.dat, no room on the disk
press NEXT
* log: - | USER CHOSE AFTER Business Hours   |   BACKUP NOT MADE - no room on the disk - F:\Lumbrio\data\CCdata\01152025130500CCpending.dat |   BACKUP NOT MADE - no room on the disk - C:\Lumbrio\data\CCdata\01152025130500CCpending.dat | - | XchargePend is loading now
pass 100 ms
  status: 0 CC OLD HISTORY Files
  the list opens
  log:   BACKUP NOT MADE - no room on the disk - F:\Lumbrio\data\CCdata\01152025130500CCpending.dat |   BACKUP NOT MADE - no room on the disk - C:\Lumbrio\data\CCdata\01152025130500CCpending.dat
erase F:\Lumbrio\CCPending.dat
press QUIT
* log: - | USER CHOSE QUIT   | - | Program ended normally | - | =======================================
== left
* f and c/lumbrio/data/ccdata/
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500
  f/lumbrio/data/ccmgrlogs/
+ F:\Lumbrio\CCPending.dat:

# Its "Done" would take the marker away while the first still works.
story second manager looks only, like start
another manager works
  and may change all
  log: started: Wednesday 01/15/2025 01:05 PM
put F:\Lumbrio\StationTips.dat | of a station
dated 20200101 F:\Lumbrio\data\CCmgrLOGS\old.txt
answer Cancel
start the program
+ [In Use] In use by FRONT-BAR since 13:05 / Another manager's program is working on these card files. Press OK to look only: every command that changes something stays grey, and nothing is finished when you leave. / If you are absolutely positive that nobody is working there you may go on all the same: type OVERRIDE. ()
+ status: In use by FRONT-BAR since 13:05 - looking only (busy) > status: In use by FRONT-BAR since 13:05 - looking only
* log: started: Wednesday 01/15/2025 01:05 PM | - | In use by FRONT-BAR since 13:05 - LOOKING ONLY | -
press NEXT
* status: In use by FRONT-BAR since 13:05 - looking only (busy)
* log: - | USER CHOSE AFTER Business Hours   | - | XchargePend is loading now
pass 100 ms
  status: In use by FRONT-BAR since 13:05 - looking only
  the list opens
press QUIT
* status: In use by FRONT-BAR since 13:05 - looking only (busy)
* log: - | USER CHOSE QUIT   | - | Program ended normally | - | =======================================
== left
* f and c/lumbrio/data/ccdata/
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500
  c/program files/x-charge/
+ f/lumbrio/StationTips.dat 12
- f/lumbrio/data/ccmgrlogs/
+ f/lumbrio/data/ccmgrlogs/old.txt 0

# Whoever goes on beside the first has the file once that one has ended.
story second manager insists, like start
another manager works
  and may change all
  log: started: Wednesday 01/15/2025 01:05 PM
answer with override
start the program
+ [In Use] In use by FRONT-BAR since 13:05 / Another manager's program is working on these card files. Press OK to look only: every command that changes something stays grey, and nothing is finished when you leave. / If you are absolutely positive that nobody is working there you may go on all the same: type OVERRIDE. ()
* log: started: Wednesday 01/15/2025 01:05 PM | - | In use by FRONT-BAR since 13:05 - USER CHOSE OVERRIDE | -
press NEXT
the other manager ends
pass 30 s
  status: 0 CC OLD HISTORY Files
  the list opens
another manager works
  and may only look
  log: started: Wednesday 01/15/2025 01:05 PM | - | In use by FRONT-BAR since 13:05 - LOOKING ONLY | -
== left
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500

story second manager whose person answers when the first has ended, like start
another manager works
  and may change all
  log: started: Wednesday 01/15/2025 01:05 PM
when a box is open: the other manager ends
answer Cancel
start the program
+ [In Use] In use by FRONT-BAR since 13:05 / Another manager's program is working on these card files. Press OK to look only: every command that changes something stays grey, and nothing is finished when you leave. / If you are absolutely positive that nobody is working there you may go on all the same: type OVERRIDE. ()
== left
* f and c/lumbrio/data/ccdata/
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500

story manager who cannot be marked, like start
fail open ManagerInUse.lock
start the program
* log: started: Wednesday 01/15/2025 01:05 PM | - |   NOT MARKED AS IN USE - access denied - F:\Lumbrio\Data\ManagerInUse.lock | -
== left
* f and c/lumbrio/data/ccdata/
- f and c/lumbrio/data/ccdata/01152025130501CCpending.dat 500

# It is told at each start until the card file takes it.
story kept record, like start
kept record CCReceipt=1043;CCTabAmt=48.50
fail append CCPending.dat, no room on the disk
answer Ok
start the program
+ [NOT IN THE CARD FILE] Charged cards of this station could not be stored in the card file yet. They are kept at the station and are not in the list. Make sure that the file server can be reached, then start this program again. / Receipt 1043: $48.50  004711 / C:\Lumbrio\Data\ (Ok)
* log: started: Wednesday 01/15/2025 01:05 PM | KEPT RECORDS WAITING  1
mend append CCPending.dat
start the program
  log: started: Wednesday 01/15/2025 01:05 PM | KEPT RECORDS STORED  1
== left
- f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 500
+ c/lumbrio/CCLastProcess.dat 233
+ c/lumbrio/TRACELOG.TXT 229
* f and c/lumbrio/data/ccdata/
  f/lumbrio/data/ccmgrlogs/
+ F:\Lumbrio\CCPending.dat: 1 (1043 CCNumb=4111111111111111 CCServer=7 CCTabAmt=48.50 CCApprovedAmt=0 CApprovalCode=004711 CCstatus=Approved CCTip=0 CCReceipt=1043 CCDate=01/15/25 CCTime=01:05 PM CCStation=FRONT-BAR CCAdjStatus=Not Adjusted CCEncoded=0)
