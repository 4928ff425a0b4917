card CCReceipt=1, CCReceipt=2;CCDate=01/14/25

# Kept: a text that is no date ends the program, so does Cancel, and every tender waits for the
# marker.
story no date typed
load the list
answer Cancel
answer Ok
press Mark Completed
  [ enter date ] Enter the date of transactions to move (01/15/2025)
  notice: Updating Data File - Just a momnet Please
  [] This is not a date: "" (Ok)
  log: 1 x C:\Lumbrio\whoosh.wav
  the program fails
== left
  f/lumbrio/ServerISBatching.dat 4

# The records before it are in the month file already.
story record with a wrong date, like no date typed
card CCReceipt=3;CCDate=yesterday
answer with 01/15/25
answer Ok
press Mark Completed
* [] The date of a record is not a date: "yesterday" (Ok)
== left
  F:\Lumbrio\data\CCFinal0125.dat: (1 CCAdjStatus=Completed)

story empty slot with a wrong date, like record with a wrong date
card CCReceipt=3;CCstatus=;CCDate=yesterday
answer with 01/15/25
answer Ok
press Mark Completed

# Where no record leaves, numbers are scrambled all the same.
story finish without a settled record
press Finish
  notice: Updating Data File - Just a momnet Please > notice: Operation is completed
  log: loaded: $40.00 + $0.00 = $40.00, count 1 | 5 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCEncoded=1) (2 CCNumb=D3456789:;<=>?@A CCEncoded=1)
