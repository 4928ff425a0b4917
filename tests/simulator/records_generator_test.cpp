// Benchmarks and screens use these records: they must be the same every time, and such as a tender
// writes.
#include "simulator/records_generator.h"

#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "support/test_station.h"

#include <set>

using namespace simulator;

TEST(Evening, IsTheSameCardFileEveryTimeWithEveryKindOfTender)
{
    const std::string path = "F:\\Lumbrio\\CCPending.dat";
    support::TestStation station;
    station.folder("F:\\Lumbrio");
    const Evening evening(2500); // more than one piece
    ASSERT_EQ(writeCardFile(station.files, path, evening), platform::Outcome::Done);
    const std::vector<records::CardRecord> read = readCardFile(station.files, path);
    ASSERT_EQ(read.size(), 2500U);
    std::set<std::string> kinds;
    for (std::size_t n = 0; n < read.size(); ++n) {
        ASSERT_EQ(read[n], Evening(2500).record(n)) << n;
        EXPECT_EQ(records::StrDecode(read[n].text(records::CCNumb)).substr(0, 3), "XAW");
        kinds.insert(read[n].text(records::CCAdjStatus) + " " + read[n].text(records::CCstatus) +
                     (read[n].value(records::GCbalance).isZero() ? "" : " gift") +
                     (read[n].value(records::CCaditionalFUNDS).isZero() ? "" : " partial"));
    }
    EXPECT_EQ(kinds,
              (std::set<std::string>{"Adjusted - Pending Approved",
                                     "Adjusted - Pending Approved partial", "Not Adjusted Approved",
                                     "Not Adjusted Approved gift", "Not Adjusted Declined"}));
    EXPECT_EQ(readableRecords(read).find(read[0].text(records::CCNumb)), std::string::npos)
        << "no card reference on a screen";
}
