// Benches and screens stand on these records: they must be the same every time, and be what the
// tender writes.
#include "simulator/records_generator.h"

#include "platform/slot_file.h"
#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

using namespace simulator;

TEST(Evening, IsTheSameForTheSameSeedAndAnotherForAnother)
{
    const Evening first(500);
    EveningOptions other;
    other.seed = 2;
    const Evening second(500, other);
    int equal = 0;
    for (std::size_t n = 0; n < 500; ++n) {
        EXPECT_EQ(first.record(n), Evening(500).record(n));
        equal += first.record(n) == second.record(n) ? 1 : 0;
    }
    EXPECT_EQ(equal, 0);
}

TEST(Evening, HoldsEveryKindOfTenderInTheOrderOfTheClock)
{
    const Evening evening(2000);
    std::map<std::string, int> statuses;
    std::map<std::string, int> stations;
    int declined = 0, partial = 0, gift = 0;
    for (std::size_t n = 0; n < evening.size(); ++n) {
        const records::CardRecord record = evening.record(n);
        ++statuses[record.text(records::CCAdjStatus)];
        ++stations[record.text(records::CCStation)];
        declined += record.text(records::CCstatus) == "Declined" ? 1 : 0;
        partial += record.value(records::CCaditionalFUNDS).isZero() ? 0 : 1;
        gift += record.value(records::GCbalance).isZero() ? 0 : 1;
        EXPECT_EQ(record.text(records::CCEncoded), "1");
        EXPECT_EQ(records::StrDecode(record.text(records::CCNumb)).substr(0, 3), "XAW");
        EXPECT_GE(record.value(records::CCTabAmt), records::Money::fromWhole(8));
    }
    EXPECT_EQ(statuses.size(), 2U) << "not adjusted, and adjusted";
    EXPECT_EQ(stations.size(), 5U);
    for (const int count : {declined, partial, gift})
        EXPECT_GT(count, 5);
    EXPECT_EQ(evening.record(0).text(records::CCTime), "05:00 PM");
    EXPECT_EQ(evening.record(1999).text(records::CCTime), "11:29 PM");
}

TEST(Evening, IsWrittenAsACardFileThatItsReadersUnderstand)
{
    support::TestStation station;
    station.folder("F:\\Lumbrio");
    const Evening evening(2500); // more than one piece
    ASSERT_EQ(writeCardFile(station.files, "F:\\Lumbrio\\CCPending.dat", evening),
              platform::Outcome::Done);
    EXPECT_EQ(station.get("F:\\Lumbrio\\CCPending.dat").size(), 2500U * 500U);
    const std::vector<records::CardRecord> read =
        readCardFile(station.files, "F:\\Lumbrio\\CCPending.dat");
    ASSERT_EQ(read.size(), 2500U);
    for (std::size_t n = 0; n < read.size(); ++n)
        EXPECT_EQ(read[n], evening.record(n)) << n;
    const std::string shown = readableRecords(read);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 2501);
    EXPECT_EQ(shown.find(read[0].text(records::CCNumb)), std::string::npos)
        << "no card reference on a screen";
}
