// Who may approve: whatever a reader types for a manager's card, and nobody whose row has ended or
// was never given to anyone.
#include "records/lookups.h"
#include "support/golden_table.h"
#include "support/test_station.h"
#include "tender/manager_check.h"

namespace {

TEST(ManagerCheck, ApprovesByTheRowsOfTheDayAsTheGoldenTableSays)
{
    support::TestStation station;
    records::App app(station.services);
    app.values.Remotedir = "F:\\Lumbrio\\";
    station.put("F:\\Lumbrio\\ini\\3\\ButtonAM.dat",
                support::testFile("golden/tender/ButtonAM.dat"));
    records::Get_AsstMgr(app);
    support::expectTable("tender/managers.txt", [&](const std::string &text) {
        std::vector<std::string> names;
        for (const int day : {15, 16})
            names.push_back(tender::approvingManager(app.values, text, {2025, 1, day, 23, 59, 0, 0})
                                .value_or("nobody"));
        return names;
    });
}

} // namespace
