// The card files: where a record lands, what stays untouched beside it, and that nothing moves in
// doubt. Slots are tested in tests/platform, interrupted moves in tests/pending.
#include "platform/work_file.h"
#include "records/card_files.h"
#include "records/careful_append.h"
#include "records/kept_records.h"
#include "records/trace.h"
#include "support/card_text.h"
#include "support/test_station.h"

namespace {

using namespace records;
using platform::ErrorsIgnored;
using platform::Outcome;
using support::recordOf;
using support::TestStation;

constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";

std::string slotOf(const CardRecord &record, const std::string &tail = std::string(10, '\0'))
{
    return std::string(record.view()) + tail;
}

/// The receipts of a card file's slots, in their order: "1 2 3 ".
std::string receipts(const std::string &bytes)
{
    std::string list;
    for (const CardRecord &record : support::recordsIn(bytes))
        list += record.text(CCReceipt) + " ";
    return list;
}

struct CardFiles : testing::Test {
    CardFiles()
    {
        station.folder("F:\\Lumbrio\\Data");
        app.values.Remotedir = "F:\\Lumbrio\\";
    }

    TestStation station;
    App app{station.services};
};

TEST_F(CardFiles, AreRewrittenOnlyInTheSlotAndItsTailStays)
{
    const std::string file =
        slotOf(recordOf("CCReceipt=1")) + slotOf(recordOf("CCReceipt=2"), "0123456789");
    station.put(kPending, file);
    const CardRecord two = recordOf("CCReceipt=two;CCAdjStatus=Completed");
    EXPECT_FALSE(replaceRecord(app, kPending, 2, recordOf("CCReceipt=1"), two))
        << "it is another's";
    EXPECT_FALSE(removeRecord(app, kPending, 2, recordOf("CCReceipt=1")));
    EXPECT_EQ(station.get(kPending), file);
    ASSERT_TRUE(replaceRecord(app, kPending, 2, recordOf("CCReceipt=2"), two));
    EXPECT_EQ(station.get(kPending), slotOf(recordOf("CCReceipt=1")) + slotOf(two, "0123456789"));
    CardRecord record;
    EXPECT_TRUE(done(readRecord(app, kPending, 2, record)) && record == two);
    EXPECT_TRUE(done(readRecord(app, kPending, 3, record)) && record == CardRecord());
}

TEST_F(CardFiles, ReportARecordThatFoundNoRoomOrWasNotFlushed)
{
    const ErrorsIgnored ignored(station.run);
    for (const auto &[operation, slot] : {std::pair("append", 0), {"flush", 2}}) {
        station.put(kPending, slotOf(recordOf("CCReceipt=1")));
        station.disk.failOn(operation, "CCPending.dat", Outcome::NoRoom);
        const StoredRecord stored = addRecord(app, kPending, recordOf("CCReceipt=2"));
        EXPECT_TRUE(stored.outcome == Outcome::NoRoom && stored.slot == slot) << operation;
        EXPECT_EQ(receipts(station.get(kPending)), slot == 2 ? "1 2 " : "1 ") << operation;
        station.disk.failOn(operation, "CCPending.dat", Outcome::Done);
    }
}

TEST_F(CardFiles, ReportOnceInTheTraceThatTheLastRecordIsNotWhole)
{
    for (const std::size_t bytes : {500U, 990U}) {
        station.put(kPending, std::string(bytes, 'x'));
        platform::SlotFile slots(app.files, kPending, kCardSlotLength);
        slots.open(platform::SlotUse::Read);
        traceTail(app, slots);
        slots.close();
        moveSettledRecords(app);
    }
    const std::string line = std::string("  LAST RECORD NOT WHOLE - 490 bytes - ") + kPending;
    EXPECT_EQ(station.get(kLastProcessFile), line + "\r\n" + line + "\r\n") << "once each";
}

TEST_F(CardFiles, KeepTheirOrderWhenSettledRecordsMoveAndMoveNothingInDoubt)
{
    std::string pending;
    for (const std::string text :
         {"1;CCAdjStatus=Completed", "2", "3;CCAdjStatus=completed", "4;CCAdjStatus=  Com",
          "5;CCAdjStatus=Adjusted - Pending", "6;CCAdjStatus=Co"})
        pending += slotOf(recordOf("CCReceipt=" + text), text[0] + std::string(9, '.'));
    pending += slotOf(CardRecord()); // never filled: it is a slot all the same
    station.put(kPending, pending);
    {
        const ErrorsIgnored ignored(station.run);
        for (const auto &[operation, file] : {std::pair("lock", "CCPending.dat"),
                                              {"size", "CCPending.dat"},
                                              {"flush", "CCFinal0125.dat"}}) {
            station.disk.failOn(operation, file, Outcome::Broken);
            moveSettledRecords(app);
            EXPECT_EQ(station.get(kPending), pending) << "not sure after " << operation;
            station.disk.failOn(operation, file, Outcome::Done);
        }
    }
    station.put(kMonth, slotOf(recordOf("CCReceipt=0;CCAdjStatus=Completed")));
    station.put("F:\\Lumbrio\\ccpending.tmp", std::string(3000, 'x')); // left over
    for (int moves = 0; moves < 2; ++moves) {
        moveSettledRecords(app);
        EXPECT_EQ(receipts(station.get(kPending)), "2 3 5 6  ");
        EXPECT_EQ(station.get(kPending).substr(0, 1000), pending.substr(500, 1000));
        EXPECT_EQ(receipts(station.get(kMonth)), "0 1 4 ");
    }
}

TEST_F(CardFiles, AreNotRewrittenThroughAWorkFileThatAnotherProgramUses)
{
    const std::string before = slotOf(recordOf("CCReceipt=1;CCAdjStatus=Completed"));
    station.put(kPending, before);
    TestStation other(&station);
    platform::WorkFile theirs(other.files, "F:\\Lumbrio\\CCPending.Tmp", kCardSlotLength);
    ASSERT_TRUE(done(theirs.create()));
    theirs.add(slotOf(recordOf("CCReceipt=9")));
    const ErrorsIgnored ignored(station.run);
    moveSettledRecords(app);
    EXPECT_EQ(station.get(kPending), before);
    platform::SlotFile live(other.files, kPending, kCardSlotLength);
    ASSERT_TRUE(done(live.open(platform::SlotUse::Read)));
    EXPECT_TRUE(done(theirs.replace(live, 1))) << "theirs is untouched";
    EXPECT_EQ(station.get(kPending), slotOf(recordOf("CCReceipt=9")));
}

TEST_F(CardFiles, GiveTheSlotToWhichTheHolderOfTheLockMovedTheRecord)
{
    const CardRecord record = recordOf("CCReceipt=1");
    station.put(kPending, slotOf(recordOf("CCReceipt=2")) + slotOf(record));
    EXPECT_EQ(confirmStored(app, kPending, record, {{Outcome::Done, 1}, true}).slot, 2);
    EXPECT_EQ(flushRecord(app, kPending, 1, record), Outcome::NotThere) << "another's is no record";
    EXPECT_EQ(receipts(station.get(kPending)), "2 1 ");
}

TEST_F(CardFiles, GetKeptRecordsOnceWhateverIsNotFlushedOrRemoved)
{
    app.values.Maindir = "C:\\Lumbrio\\";
    station.put(kPending, "");
    Outcome outcome = Outcome::Broken;
    station.disk.failOn("flushDirectory", "Data", Outcome::NoRoom);
    for (const char *record : {"CCReceipt=1", "CCReceipt=2"})
        EXPECT_NE(keepRecord(app, kPending, recordOf(record), outcome), "") << "it is there";
    station.disk.failOn("flushDirectory", "Data", Outcome::Done);
    TestStation other(&station);
    platform::SlotFile held(other.files, kPending, kCardSlotLength);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    EXPECT_EQ(storeKeptRecords(app).waiting.size(), 2U);
    EXPECT_LT(station.time.milliseconds(), 6000U) << "one file is waited for once";
    held.close();
    station.disk.failOn("remove", ".claimed", Outcome::Denied);
    EXPECT_EQ(storeKeptRecords(app).stored, 2);
    EXPECT_EQ(receipts(station.get(kPending)), "2 1 ");
    station.put(kPending, ""); // moved on, and later deleted
    EXPECT_EQ(storeKeptRecords(app).stored, 0);
    EXPECT_EQ(station.get(kPending), "");
}

} // namespace
