// The traces: exact lines, and that none of them ever stops anything.
#include "records/trace.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;

constexpr const char *kManagerTrace = "F:\\Lumbrio\\data\\AsstTrace0125.dat";

TEST(Traces, OfAManagerHaveTheirExactLinesAndLoseThemAloneWithoutTheirFolder)
{
    support::TestStation station;
    App app(station.services);
    app.values.Maindir = "C:\\Lumbrio\\";
    app.values.Remotedir = "F:\\Lumbrio\\";
    app.values.StationName = "FRONT-BAR";
    app.values.ManagerTable[3] = {"4711", "Paula Manager", "01/01/2030"};
    for (const char *folder : {"C:\\Lumbrio", "C:\\Lumbrio\\Data\\CCmgrLOGS"}) {
        station.folder(folder);
        app.values.ManagerLogBuffer = {"first", "", "  ", "", "", "", "", "", "", "last"};
        Write_Log(app);
        Write_Log(app); // the buffer is clear by now
    }
    EXPECT_EQ(station.get("C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt"),
              "first\r\n  \r\nlast\r\n");

    Write_AsstMgr(app, "Main");
    EXPECT_FALSE(station.has(kManagerTrace) || station.run.ending());
    station.folder("F:\\Lumbrio\\Data");
    app.values.managerCode = "4711";
    Write_AsstMgr(app, "View All Tables Screen");
    support::TestStation other(&station);
    platform::SlotFile held(other.files, kManagerTrace, 500);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    app.values.managerCode = "4712";
    Write_AsstMgr(app, "Main"); // a refused lock loses no line
    const std::string tail = "\"FRONT-BAR\",\"  \",\"  \",\"     \",\"  \",\"     \",\"     \"\r\n";
    EXPECT_EQ(station.get(kManagerTrace),
              "\"01/15/2025\",\"01:05 PM\",\"4711\",\"Paula Manager\",\"View All Tables Screen\"," +
                  tail + "\"01/15/2025\",\"01:05 PM\",\"4712\",\"Not Found\",\"Main\"," + tail);
}

} // namespace
