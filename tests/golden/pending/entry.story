# The window of an entry closes before the list rewrites its file, in which slots move.
story entry open while the list rewrites
card CCReceipt=1;CCAdjStatus=Completed, CCReceipt=2;CCstatus=Declined, CCReceipt=3;CCDate=01/14/25, CCReceipt=4
card CCReceipt=5
the list is open
tap row 3
  entry F:\Lumbrio\CCPending.dat 3
press Finish
  entry closed > notice: Updating Data File - Just a momnet Please > row 3 selected > notice: Operation is completed
  log: loaded: $80.00 + $0.00 = $80.00, count 3 | 5 x C:\Lumbrio\whoosh.wav
in vain: press Save of the entry, though disabled
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
answer with 01/14/2025
press Mark Completed
  entry closed
  [ enter date ] Enter the date of transactions to move (01/15/2025)
  notice: Updating Data File - Just a momnet Please > row 2 selected > notice: Operation is completed
  log: loaded: $60.00 + $0.00 = $60.00, count 2 | 5 x C:\Lumbrio\whoosh.wav
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
answer Ok
press Force ALL NO TIP
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  entry closed > row 2 selected > notice: You have 1 Declined entries. You must delete the declined entries before you can process the approved items
  log:      ***  USER CLICKED FORCE ALL NO TIPS  *** | loaded: $60.00 + $0.00 = $60.00, count 2 (3 times) | 1 x C:\Lumbrio\whoosh.wav
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
answer Cancel
press Mark all completed
  [FORCE ALL COMPLETED] Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be batched out. Only do this if you are sure these transactions have been batched out already. (Ok, Cancel)
  log:      ***  USER CLICKED FORCE ALL COMPLETED *** |      ***  USER CLICKED CANCEL  ***
look at entry
  4, tip 0, Adjusted - Pending
answer Ok
press picture
  [FORCE ALL COMPLETED] Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be batched out. (Ok, Cancel)
  entry closed > row 2 selected
  log:      ***  USER CLICKED FORCE ALL COMPLETED *** |      ***  USER CLICKED OK DO IT  *** | loaded: $60.00 + $0.00 = $60.00, count 2 (3 times) | 1 x C:\Lumbrio\whoosh.wav
# What was typed into it is not lost unasked.
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
tip 5
answer Cancel
press Finish
  [ENTRY NOT SAVED] The entry that is open has changes that are not saved. They are lost when you go on. (Ok, Cancel)
answer Cancel
press Done
  [ENTRY NOT SAVED] The entry that is open has changes that are not saved. They are lost when you go on. (Ok, Cancel)
look at entry
  4, tip 5, Adjusted - Pending
press Save of the entry
  row 2 selected
  log: loaded: $60.00 + $5.00 = $65.00, count 2 | 2 x C:\Lumbrio\whoosh.wav
press DELETE RED'S
  entry closed > notice: Backing up Data File - Just a moment Please > row 2 selected > notice: all declines have been deleted
  log: loaded: $40.00 + $5.00 = $45.00, count 1 | 2 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 2000
  f and c/lumbrio/data/ccdata/01152025130500CCpendingBatch.dat 1500
  F:\Lumbrio\CCPending.dat: (4 CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCTip=5 CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCAdjAmt=25.00 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (5 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)
  F:\Lumbrio\data\CCFinal0125.dat: (1 CCNumb=D3456789:;<=>?@A CCEncoded=1) (3 CCNumb=D3456789:;<=>?@A CCAdjStatus=Completed CCEncoded=1)
  F:\Lumbrio\data\0125CCdeleted.dat: (2 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)

# It does nothing while the list loads, but takes a tip.
story entry open while the list loads
cards 150: CCTip=1
card CCReceipt=2;GCbalance=3
the list is open
tap row 151
  entry F:\Lumbrio\CCPending.dat 151
after 20 ms: tip 5
after 30 ms: in vain: press Done of the entry
after 40 ms: in vain: press Save of the entry
after 50 ms: in vain: press Delete of the entry
after 60 ms: in vain: press Force ALL NO TIP of the entry
after 70 ms: in vain: press next of the entry
after 80 ms: in vain: press Cancel of the entry
press Refresh
  row 151 selected
  log: loaded: $3,020.00 + $150.00 = $3,170.00, count 150 | 2 x C:\Lumbrio\whoosh.wav
look at entry
  2, tip 5, Adjusted - Pending
# Nor does the list while the entry asks.
when a box is open: in vain: press Finish
answer Ok
press Done of the entry
  [YOU HAVE EXCEEDED THE CRD VALUE] Tip Exceeeds the balance of the card. This is either a gift card or debit card and the maximum funds you can add to the card is $3.00 Please revise the TIP and try again. (Ok)

# "Force ALL NO TIP" in it saves it first.
story entry that forces no tip on all
card CCReceipt=1;CCTip=1, CCReceipt=2
the list is open
tap row 2
  entry F:\Lumbrio\CCPending.dat 2
tip 5
answer Ok
press Force ALL NO TIP of the entry
  row 2 selected > entry closed
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  row 2 selected
  log: loaded: $40.00 + $1.00 = $41.00, count 1 |      ***  USER CLICKED FORCE ALL NO TIPS  *** | loaded: $40.00 + $0.00 = $40.00, count 1 (2 times) | 3 x C:\Lumbrio\whoosh.wav
== left
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCTip=0 CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCAdjAmt=20.00 CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (2 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCAdjAmt=20.00 CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)
