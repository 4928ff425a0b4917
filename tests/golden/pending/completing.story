card CCReceipt=1;CCAdjStatus=Completed, CCReceipt=2;CCAdjStatus=  Com;CCEncoded=1;CCDate=01/14/25
card CCReceipt=3;CCNumb=4333;CCEncoded=~, empty, CCReceipt=4;CCstatus=Declined;CCAdjStatus=Adjusted - Pending
card CCReceipt=5;CCstatus=Declined;CCAdjStatus=Completed;CCDate=12/31/24
card CCReceipt=6;CCstatus= Decl;CCAdjStatus=completed, CCReceipt=7;CCstatus=Decx;CCAdjStatus=Co
card CCReceipt=8;CCstatus=;CCAdjStatus=Completed, CCReceipt=9;CCstatus=;CCDate=01/14/2025

# Settled records leave, empty slots vanish, and numbers are scrambled.
story finish
press Finish
  notice: Updating Data File - Just a momnet Please > notice: Operation is completed
  log: loaded: $80.00 + $0.00 = $80.00, count 3 | 5 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 2000
  F:\Lumbrio\CCPending.dat: (3 CCNumb=8567 CCEncoded=1) (4 CCNumb=D3456789:;<=>?@A CCEncoded=1) (6 CCNumb=D3456789:;<=>?@A CCEncoded=1) (7 CCNumb=D3456789:;<=>?@A CCEncoded=1)
  F:\Lumbrio\data\CCFinal0125.dat: (1 CCNumb=D3456789:;<=>?@A CCEncoded=1) (2 CCAdjStatus=Com) (5 CCNumb=D3456789:;<=>?@A CCEncoded=1) (8 CCNumb=D3456789:;<=>?@A CCEncoded=1)

# Kept: "Decx" is red and stops the batch, but stays.
story declines deleted, like finish
press DELETE RED'S
  notice: Backing up Data File - Just a moment Please > notice: all declines have been deleted
  log: loaded: $80.00 + $0.00 = $80.00, count 3 | 2 x C:\Lumbrio\whoosh.wav
== left
* f and c/lumbrio/data/ccdata/01152025130500CCpendingBatch.dat 5000
* F:\Lumbrio\CCPending.dat: 1 2 3 - 7 8 9
* F:\Lumbrio\data\0125CCdeleted.dat: 4 5 6

story settled records moved, like finish
Move_Completed
== left
  F:\Lumbrio\CCPending.dat: 3 - 4 6 7 9
  F:\Lumbrio\data\CCFinal0125.dat: 1 2 5 8

story day completed, like finish
answer with 01/14/25
press Mark Completed
  [ enter date ] Enter the date of transactions to move (01/15/2025)
  notice: Updating Data File - Just a momnet Please > notice: Operation is completed
  log: loaded: $120.00 + $0.00 = $120.00, count 5 | 5 x C:\Lumbrio\whoosh.wav
== left
  F:\Lumbrio\CCPending.dat: 1 3 - 4 5 6 7 8
  F:\Lumbrio\data\CCFinal0125.dat: (2 CCAdjStatus=Completed) (9 CCAdjStatus=Completed)

# It takes the marker away, and ends the program.
story done, like finish
load the list
look at files
-- files
  f/lumbrio/ServerISBatching.dat 4
press Refresh
  log: loaded: $140.00 + $0.00 = $140.00, count 6 | 2 x C:\Lumbrio\whoosh.wav
press Done
  notice: Updating Data - Just a Moment Please > notice: Updating Data File - Just a momnet Please > notice: Operation is completed > notice: Backing up Data = Please Wait
  log:      ***  USER CLICKED DONE  *** | 4 x C:\Lumbrio\whoosh.wav
  1800 ms
  the program ends
