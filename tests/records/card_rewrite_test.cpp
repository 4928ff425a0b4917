// A rewrite of the pending file while stations go on taking tenders: whatever one appends, at
// whatever moment, is in the file afterwards.
#include "platform/work_file.h"
#include "records/card_files.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using support::TestStation;

constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";

std::string slotOf(const std::string &receipt, const std::string &status)
{
    CardRecord record;
    record.set(CCReceipt, receipt);
    record.set(CCAdjStatus, status);
    return std::string(record.view()) + receipt + std::string(10 - receipt.size(), '.');
}

std::string receipts(const std::string &bytes)
{
    std::string list;
    for (std::size_t at = 0; at < bytes.size(); at += kCardSlotLength)
        list += Trim(std::string_view(bytes).substr(at + CCReceipt.offset, CCReceipt.length)) + " ";
    return list;
}

struct Share {
    Share()
    {
        station.folder("F:\\Lumbrio\\data");
        station.put(kPending, slotOf("1", "Completed") + slotOf("2", "") + slotOf("3", "Com"));
        app.values.Remotedir = "F:\\Lumbrio\\";
    }
    TestStation station;
    App app{station.services};
};

/// A tender of another station comes at operation N, and finds the lock taken or not. False behind
/// the last operation.
bool tenderIsKept(std::size_t n)
{
    Share share;
    TestStation other(&share.station);
    App tender(other.services);
    bool came = false;
    share.station.disk.before = [&](std::size_t now) {
        if (now != n)
            return;
        const platform::ErrorsIgnored ignored(other.run);
        CardRecord record;
        record.set(CCReceipt, "new");
        came = addRecord(tender, kPending, record).stored();
    };
    moveSettledRecords(share.app);
    EXPECT_EQ(receipts(share.station.get(kPending)), came ? "2 new " : "2 ")
        << "at " << n << "\n"
        << share.station.disk.logText();
    EXPECT_EQ(receipts(share.station.get("F:\\Lumbrio\\data\\CCFinal0125.dat")), "1 3 ");
    EXPECT_FALSE(share.station.has("F:\\Lumbrio\\CCPending.Tmp"));
    return came;
}

TEST(Rewrites, KeepWhatATenderAppendsAtAnyMoment)
{
    std::size_t n = 1;
    while (tenderIsKept(n))
        ++n;
    EXPECT_GT(n, 20U) << "the rewrite was not walked through";
}

TEST(Rewrites, KeepTheSlotsThatStayByteForByteAndTurnALeftOverWorkFileIntoTheNext)
{
    Share share;
    share.station.put("F:\\Lumbrio\\ccpending.tmp", std::string(3000, 'x'));
    moveSettledRecords(share.app);
    EXPECT_EQ(share.station.get(kPending), slotOf("2", ""));
    EXPECT_FALSE(share.station.has("F:\\Lumbrio\\CCPending.Tmp"));
}

TEST(Rewrites, StopBeforeAWorkFileThatSomebodyElseHasInHand)
{
    Share share;
    TestStation other(&share.station);
    platform::WorkFile theirs(other.files, "F:\\Lumbrio\\CCPending.Tmp", kCardSlotLength);
    ASSERT_TRUE(done(theirs.create()));
    theirs.add(slotOf("9", ""));
    const std::string before = share.station.get(kPending);
    const platform::ErrorsIgnored ignored(share.station.run);
    moveSettledRecords(share.app);
    EXPECT_EQ(share.station.get(kPending), before);
    platform::SlotFile live(other.files, kPending, kCardSlotLength);
    ASSERT_TRUE(done(live.open(platform::SlotUse::Read)));
    EXPECT_TRUE(done(theirs.replace(live, 3))) << "theirs is untouched";
    EXPECT_EQ(receipts(share.station.get(kPending)), "9 ");
}

} // namespace
