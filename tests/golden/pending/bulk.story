# What a bulk command leaves of each record is what a save of it leaves. An empty slot stays as it
# is.
story bulk
card CCReceipt=3;CCTip=3;CCAdjAmt=23.00, CCReceipt=1;CCEncoded=1;CCAdjAmt=~
card CCReceipt=2;CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=5;CCAdjStatus=Adjusted - Pending;CCtype=VISA
card CCReceipt=4;CCstatus=Declined, CCReceipt=5;CCstatus=;CCTip=9, CCReceipt=6;CCTip=7;CCAdjStatus=Completed
the list is open
# A sorted list: each is met once, and the list is loaded after each save.
sort by option 0
when a box is open: in vain: press Finish
answer Ok
press Force ALL NO TIP
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  notice: You have 1 Declined entries. You must delete the declined entries before you can process the approved items
  log:      ***  USER CLICKED FORCE ALL NO TIPS  *** | loaded: $110.00 + $15.00 = $125.00, count 4 (2 times) | loaded: $110.00 + $12.00 = $122.00, count 4 (2 times) | loaded: $110.00 + $5.00 = $115.00, count 4 | 1 x C:\Lumbrio\whoosh.wav
look at order
  option -1: 1 2 3 4 6
look at commands
  Process grey, Finish hidden
look at edit mode
  DO NOT KEEP
# Kept: declined ones are marked too, and "Finish" archives them; the edit mode stays.
answer Ok
press Mark all completed
  [FORCE ALL COMPLETED] Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be batched out. Only do this if you are sure these transactions have been batched out already. (Ok, Cancel)
  log:      ***  USER CLICKED FORCE ALL COMPLETED *** |      ***  USER CLICKED OK DO IT  *** | loaded: $110.00 + $5.00 = $115.00, count 4 (5 times) | 1 x C:\Lumbrio\whoosh.wav
look at edit mode
  KEEP
press Finish
  notice: Updating Data File - Just a momnet Please > notice: Operation is completed
  log: loaded: $0.00 + $0.00 = $0.00, count -1 | 5 x C:\Lumbrio\whoosh.wav
== left
  f and c/lumbrio/data/ccdata/01152025130500CCpending.dat 0
  F:\Lumbrio\CCPending.dat:
  F:\Lumbrio\data\CCFinal0125.dat: (3 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCTip=0 CCVerify= CCSwiped= CCAdjStatus=Completed CCAdjAmt=20.00 CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (1 CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (2 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CCTabAmt=30 CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCaditionalFUNDS=0 GCbalance=) (4 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (6 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCTip=0 CCVerify= CCSwiped= CCAdjAmt=20.00 CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)

# A tip above the balance of a card brings a message, and that entry stays as it is.
story bulk passes over a tip above the balance
card CCReceipt=1;CCTip=3, CCReceipt=2;GCbalance=5;CCTip=6, CCReceipt=3
the list is open
answer Ok
answer Ok
press picture
  [FORCE ALL COMPLETED] Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be batched out. (Ok, Cancel)
  [YOU HAVE EXCEEDED THE CRD VALUE] Tip Exceeeds the balance of the card. This is either a gift card or debit card and the maximum funds you can add to the card is $5.00 Please revise the TIP and try again. (Ok)
  log:      ***  USER CLICKED FORCE ALL COMPLETED *** |      ***  USER CLICKED OK DO IT  *** | loaded: $60.00 + $9.00 = $69.00, count 2 (2 times) | 1 x C:\Lumbrio\whoosh.wav
== left
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) 2 (3 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Completed CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)

story bulk cancelled
card CCReceipt=1
the list is open
mouse on Force ALL NO TIP
  notice: All entries with no tip will be forced no tip and marked adjusted
answer Cancel
when a box is open: in vain: sort by option 1
when a box is open: in vain: tap row 1
press Force ALL NO TIP
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
look at order
  option -1: 1
look at edit mode
  DO NOT KEEP

# A file that is shorter by now than when it was listed: no entry is made where there is none, and
# the list is loaded again. A tender in the midst of it counts from the next save on.
story bulk in a file that became shorter
cards 5: CCTip=0
the list is open
when a box is open: no cards
when a box is open: card CCReceipt=9
when a box is open: card CCReceipt=8;CCstatus=
when a box is open: card CCReceipt=7
after 101 ms: another station stores CCReceipt=6;CCTabAmt=5.00;CCAdjStatus=Adjusted - Pending
  stored
answer Ok
press Force ALL NO TIP
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  log:      ***  USER CLICKED FORCE ALL NO TIPS  *** | loaded: $40.00 + $0.00 = $40.00, count 1 | loaded: $45.00 + $0.00 = $45.00, count 2 (3 times) | 3 x C:\Lumbrio\whoosh.wav
== left
  F:\Lumbrio\CCPending.dat: (9 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) 8 (7 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) (6 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCServer=7 CCTable= CCTabAmt=5.00 CCApprovedAmt=0 CResponse= CApprovalCode=004711 CCstatus=Approved CCTip=0 CCReceipt=6 CCDate=01/15/25 CCTime=01:05 PM CCVerify= CCSwiped= CCStation=FRONT-BAR CCAdjStatus=Adjusted - Pending CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=)

# An empty list asks all the same.
story bulk in an empty list
the list is open
answer Ok
press Force ALL NO TIP, though disabled
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  log:      ***  USER CLICKED FORCE ALL NO TIPS  ***

story bulk that fails
card CCReceipt=1, CCReceipt=2
press Refresh
  log: loaded: $40.00 + $0.00 = $40.00, count 1 | 2 x C:\Lumbrio\whoosh.wav
fail write CCPending.dat 490 bytes at 500
answer Ok
answer Ok
press Force ALL NO TIP
  [FORCE ALL NO TIP] Are you sure, All entries will be marked no tip and be ready to finiliaze (Ok, Cancel)
  [] Writing failed: access denied / F:\Lumbrio\CCPending.dat (Ok)
  log:      ***  USER CLICKED FORCE ALL NO TIPS  *** | loaded: $40.00 + $0.00 = $40.00, count 1
  the program fails
== left
  F:\Lumbrio\CCPending.dat: (1 CCNumb=D3456789:;<=>?@A CCExpDate= CCName= CCDescription= CCXcTranID= CCSaleAmt= CCTable= CResponse= CCVerify= CCSwiped= CCAdjStatus=Adjusted - Pending CCEncoded=1 CCtype=Visa CCaditionalFUNDS=0 GCbalance=) 2
