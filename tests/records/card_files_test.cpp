// The card files: where a record lands, what stays untouched beside it, and that no stop at any
// moment loses one.
#include "records/card_files.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::ErrorsIgnored;
using platform::Outcome;
using support::TestStation;

constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";

CardRecord cardRecord(const std::string &receipt, const std::string &status = "Not Adjusted")
{
    CardRecord record;
    record.set(CCReceipt, receipt);
    record.set(CCAdjStatus, status);
    return record;
}

std::string slotOf(const CardRecord &record)
{
    return std::string(record.view()) + std::string(10, '\0');
}

/// The receipts of a card file's slots, in their order: "1 2 3 ".
std::string receipts(const std::string &bytes)
{
    std::string list;
    for (std::size_t at = CCReceipt.offset; at < bytes.size(); at += kCardSlotLength)
        list += Trim(std::string_view(bytes).substr(at, CCReceipt.length)) + " ";
    return list;
}

class CardFiles : public testing::Test {
protected:
    CardFiles()
    {
        station.folder("F:\\Lumbrio\\Data");
        app.values.Remotedir = "F:\\Lumbrio\\";
    }

    TestStation station;
    App app{station.services};
};

TEST_F(CardFiles, LieWhereEveryStationLooksForThem)
{
    const platform::DateTime when{2024, 9, 30, 23, 59, 59, 0};
    EXPECT_EQ(pendingFile(app.values), "F:\\Lumbrio\\CCPending.dat");
    EXPECT_EQ(monthFile(app.values, when), "F:\\Lumbrio\\\\data\\CCFinal0924.dat");
    EXPECT_EQ(deletedFile(app.values, when), "F:\\Lumbrio\\\\data\\0924CCdeleted.dat");
    // The doubled separator and the other case lead into the folder that is there.
    ASSERT_TRUE(addRecord(app, monthFile(app.values, when), cardRecord("1")).stored());
    EXPECT_EQ(station.get("F:\\Lumbrio\\Data\\CCFinal0924.dat"), slotOf(cardRecord("1")));
}

TEST_F(CardFiles, CountToTheNearestSlotAndAnExactHalfToTheEvenOne)
{
    EXPECT_EQ(countRecords(app, kPending), 0);
    for (const auto &[bytes, count] : {std::pair(0, 0),
                                       {249, 0},
                                       {250, 0},
                                       {251, 1},
                                       {740, 1},
                                       {750, 2},
                                       {1000, 2},
                                       {1250, 2},
                                       {1251, 3}}) {
        station.put(kPending, std::string(static_cast<std::size_t>(bytes), 'x'));
        EXPECT_EQ(countRecords(app, kPending), count) << bytes << " bytes";
    }
}

TEST_F(CardFiles, GetANewRecordAtTheirEndAlsoBehindATornOne)
{
    const std::string old = slotOf(cardRecord("old"));
    const std::string fresh = slotOf(cardRecord("new"));
    struct Case {
        const char *what;
        std::string before;
        long slot;
        std::string after;
    };
    const Case cases[] = {
        {"empty", "", 1, fresh},
        {"whole", old + old, 3, old + old + fresh},
        {"240 bytes torn off: the slot is taken over",
         support::testFile("broken/records/card_file_cut_mid_slot.dat"), 2,
         support::testFile("golden/records/approval.slot") + fresh},
        {"260 bytes torn off: they stay a slot of their own", old + std::string(260, 'x'), 3,
         old + std::string(260, 'x') + std::string(240, '\0') + fresh},
        {"cut within the last ten bytes", old.substr(0, 495), 2, old + fresh},
    };
    for (const Case &c : cases) {
        station.put(kPending, c.before);
        const StoredRecord stored = addRecord(app, kPending, cardRecord("new"));
        EXPECT_TRUE(stored.stored()) << c.what;
        EXPECT_EQ(stored.slot, c.slot) << c.what;
        EXPECT_EQ(station.get(kPending), c.after) << c.what;
    }
}

TEST_F(CardFiles, AreRewrittenInTheSlotAloneAndItsTailStays)
{
    std::string file = slotOf(cardRecord("1")) + slotOf(cardRecord("2")) + slotOf(cardRecord("3"));
    file.replace(990, 10, "0123456789");
    station.put(kPending, file);
    ASSERT_TRUE(done(rewriteRecord(app, kPending, 2, cardRecord("two", "Completed"))));
    file.replace(500, 490, cardRecord("two", "Completed").view());
    EXPECT_EQ(station.get(kPending), file);
}

TEST_F(CardFiles, GiveAnEmptyRecordForASlotThatIsNotThere)
{
    station.put(kPending, slotOf(cardRecord("1")) + slotOf(cardRecord("2")).substr(0, 315));
    for (const long slot : {-1L, 0L, 3L, 1000000L}) {
        CardRecord record = cardRecord("left over");
        EXPECT_TRUE(done(readRecord(app, kPending, slot, record))) << slot;
        EXPECT_EQ(record, CardRecord()) << slot;
    }
    CardRecord torn = cardRecord("left over", "left over");
    ASSERT_TRUE(done(readRecord(app, kPending, 2, torn)));
    EXPECT_EQ(torn.raw(CCReceipt), "2    " + std::string(15, '\0'));
    EXPECT_TRUE(torn.isEmpty(CCAdjStatus));

    // A read that fails is another matter: the copy in hand stays.
    station.disk.failOn("read", "CCPending.dat", Outcome::Broken);
    const ErrorsIgnored ignored(station.run);
    CardRecord record = cardRecord("in hand");
    EXPECT_EQ(readRecord(app, kPending, 1, record), Outcome::Broken);
    EXPECT_EQ(record, cardRecord("in hand"));
}

TEST_F(CardFiles, AreWrittenDespiteARefusedLockWhereErrorsAreIgnored)
{
    station.put(kPending, slotOf(cardRecord("1")));
    TestStation other(&station);
    platform::SlotFile held(other.files, kPending, kCardSlotLength);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Append)) && done(held.lock()));
    {
        const ErrorsIgnored ignored(station.run);
        EXPECT_EQ(addRecord(app, kPending, cardRecord("2")).slot, 2);
        EXPECT_TRUE(done(rewriteRecord(app, kPending, 1, cardRecord("one"))));
    }
    EXPECT_EQ(station.get(kPending), slotOf(cardRecord("one")) + slotOf(cardRecord("2")));

    station.dialogs.expect("", "Locking failed: locked by another\nF:\\Lumbrio\\CCPending.dat",
                           platform::Buttons::Ok, platform::Answer::Ok);
    EXPECT_FALSE(addRecord(app, kPending, cardRecord("3")).stored());
    EXPECT_TRUE(station.run.ending());
    EXPECT_EQ(receipts(station.get(kPending)), "one 2 ");
}

TEST_F(CardFiles, ReportARecordThatFoundNoRoomOrIsNotOnTheDisk)
{
    const std::string before = slotOf(cardRecord("1"));
    for (const char *operation : {"append", "flush"}) {
        station.put(kPending, before);
        station.disk.failOn(operation, "CCPending.dat", Outcome::NoRoom);
        const ErrorsIgnored ignored(station.run);
        const StoredRecord stored = addRecord(app, kPending, cardRecord("2"));
        EXPECT_EQ(stored.outcome, Outcome::NoRoom) << operation;
        const bool appended = std::string(operation) == "flush";
        EXPECT_EQ(stored.slot, appended ? 2 : 0) << operation;
        EXPECT_EQ(receipts(station.get(kPending)), appended ? "1 2 " : "1 ") << operation;
        station.disk.failOn(operation, "CCPending.dat", Outcome::Done);
    }
    EXPECT_FALSE(station.run.ending());
}

TEST_F(CardFiles, KeepTheirRecordsInOrderWhenTheSettledOnesMove)
{
    std::string pending;
    for (const auto &[receipt, status] : {std::pair("1", "Completed"),
                                          {"2", "Not Adjusted"},
                                          {"3", "completed"},
                                          {"4", "  Com"},
                                          {"5", "Adjusted - Pending"},
                                          {"6", "Co"}})
        pending += slotOf(cardRecord(receipt, status));
    pending += slotOf(CardRecord()); // never filled: it is a slot all the same
    station.put(kPending, pending);
    station.put(kMonth, slotOf(cardRecord("0", "Completed")));
    moveSettledRecords(app);
    EXPECT_EQ(receipts(station.get(kPending)), "2 3 5 6  ");
    EXPECT_EQ(receipts(station.get(kMonth)), "0 1 4 ");

    moveSettledRecords(app);
    EXPECT_EQ(receipts(station.get(kPending)), "2 3 5 6  ");
    EXPECT_EQ(receipts(station.get(kMonth)), "0 1 4 ") << "nothing moves twice";
}

TEST_F(CardFiles, AreNotReplacedWhenTheMoveIsNotSureOfThem)
{
    const std::string pending = slotOf(cardRecord("1", "Completed")) + slotOf(cardRecord("2"));
    const ErrorsIgnored ignored(station.run);
    for (const auto &[operation, file] : {std::pair("lock", "CCPending.dat"),
                                          {"size", "CCPending.dat"},
                                          {"flush", "CCFinal0125.dat"}}) {
        station.put(kPending, pending);
        station.disk.failOn(operation, file, Outcome::Broken);
        moveSettledRecords(app);
        EXPECT_EQ(station.get(kPending), pending) << operation << " of " << file;
        station.disk.failOn(operation, file, Outcome::Done);
    }
}

/// What a move may leave when it did not come to its end: the pending file as it was or as it
/// should be, the settled records there or in the month file.
void expectNothingLost(const TestStation &station, const std::string &before,
                       const std::string &after, const std::string &when)
{
    const std::string pending = station.get(kPending);
    const std::string month = station.has(kMonth) ? station.get(kMonth) : std::string();
    EXPECT_TRUE(pending == before || pending == after) << when << ": " << receipts(pending);
    if (pending == after) {
        EXPECT_EQ(receipts(month), "1 3 ") << when;
    }
}

class StoppedMove : public CardFiles {
protected:
    /// Moves with the Nth operation (0: none) failed or stopped; false when there are not so many.
    bool move(std::size_t n, bool stop, bool ignoring)
    {
        TestStation one;
        App oneApp(one.services);
        oneApp.values.Remotedir = "F:\\Lumbrio\\";
        one.folder("F:\\Lumbrio\\Data");
        one.put(kPending, before);
        one.run.reportFailure = [](const std::string &) {};
        if (stop)
            one.disk.stopAt(
                n, [&] { one.run.end(); }, true);
        else
            one.disk.failAt(n, Outcome::NoRoom);
        if (ignoring) {
            const ErrorsIgnored ignored(one.run);
            moveSettledRecords(oneApp);
        } else {
            moveSettledRecords(oneApp);
        }
        expectNothingLost(one, before, after,
                          (stop ? "stopped at " : "failed at ") + std::to_string(n) + "\n" +
                              one.disk.logText());
        return one.disk.operations() >= n;
    }

    std::string before = slotOf(cardRecord("1", "Completed")) + slotOf(cardRecord("2")) +
                         slotOf(cardRecord("3", "Completed"));
    std::string after = slotOf(cardRecord("2"));
};

TEST_F(StoppedMove, LosesNoRecordWhereverItStops)
{
    std::size_t n = 1;
    while (move(n, true, false))
        ++n;
    EXPECT_GT(n, 15U) << "the move was not walked through";
}

TEST_F(StoppedMove, LosesNoRecordWhateverFails)
{
    for (std::size_t n = 1; move(n, false, false); ++n)
        move(n, false, true);
}

} // namespace
