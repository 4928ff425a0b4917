card CCReceipt=1, CCReceipt=2;CCAdjStatus=Com

# Kept: "Finish" goes on without the lock.
story finish without the lock
in vain: lock CCPending.dat
press Finish
  notice: Updating Data File - Just a momnet Please > notice: Operation is completed
  log: loaded: $20.00 + $0.00 = $20.00, count 0 | 5 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 500
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCEncoded=1)
  F:\Lumbrio\data\CCFinal0125.dat: (2 CCNumb=D3456789:;<=>?@A CCEncoded=1)

# It does not stop a "Finish", but the log tells it.
story finish without a backup, like finish without the lock
fail rename 01152025130500CCpending.dat
press Finish
* log:   BACKUP NOT MADE - access denied - F:\Lumbrio\data\CCdata\01152025130500CCpending.dat |   BACKUP NOT MADE - access denied - C:\Lumbrio\data\CCdata\01152025130500CCpending.dat | loaded: $20.00 + $0.00 = $20.00, count 0 | 5 x C:\Lumbrio\whoosh.wav
== left
- f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 500

# "Done" leaves a minute to read what went wrong, then it ends and takes the marker away. A length
# that cannot be read is not taken for an empty file.
story done fails, like done
fail size CCPending.dat
press Done
* notice: Updating Data - Just a Moment Please > notice: Updating Data File - Just a momnet Please > notice: The data file could not be updated (access denied). No entry is lost. Please start the program again, it ends in a minute. > notice: Backing up Data = Please Wait
* log:      ***  USER CLICKED DONE  *** |   FINISH NOT DONE - access denied - F:\Lumbrio\CCPending.dat | 2 x C:\Lumbrio\whoosh.wav
- 1800 ms
+ 61800 ms
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000

story finish cannot open, like finish without the lock
fail open CCPending.dat to rewrite
press Finish
* notice: Updating Data File - Just a momnet Please > notice: The data file could not be updated (access denied). No entry is lost. Please try again.
* log:   FINISH NOT DONE - access denied - F:\Lumbrio\CCPending.dat | loaded: $40.00 + $0.00 = $40.00, count 1 | 3 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000

story finish cannot append, like finish cannot open
fail append CCFinal0125.dat 500 bytes
press Finish

story finish cannot flush, like finish cannot open
fail flush CCFinal0125.dat
press Finish
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000
+ F:\Lumbrio\data\CCFinal0125.dat: (2 CCNumb=D3456789:;<=>?@A CCEncoded=1)

story finish cannot rename, like finish cannot open
fail rename CCPending.dat
press Finish
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 1000
+ F:\Lumbrio\data\CCFinal0125.dat: (2 CCNumb=D3456789:;<=>?@A CCEncoded=1)
