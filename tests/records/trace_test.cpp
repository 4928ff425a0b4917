// The traces: exact lines, and that none of them ever stops anything.
#include "records/trace.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Outcome;
using support::TestStation;

constexpr const char *kManagerLog = "C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt";
constexpr const char *kManagerTrace = "F:\\Lumbrio\\data\\AsstTrace0125.dat";

class Traces : public testing::Test {
protected:
    Traces()
    {
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.Remotedir = "F:\\Lumbrio\\";
        app.values.StationName = "FRONT-BAR";
        app.values.ManagerTable[3] = {"4711", "Paula Manager", "01/01/2030"};
    }

    void fillBuffer()
    {
        app.values.ManagerLogBuffer[0] = "first";
        app.values.ManagerLogBuffer[2] = "  ";
        app.values.ManagerLogBuffer[9] = "last";
    }

    TestStation station;
    App app{station.services};
};

TEST_F(Traces, OfTheLastProcessStartAnewAndGrow)
{
    station.put("c:\\lumbrio\\cclastprocess.dat", "the story of the process before");
    startProcessTrace(app);
    traceProcess(app, {std::string("a\0b", 3), "", "c"});
    traceProcess(app, {"d"});
    EXPECT_EQ(station.get(kLastProcessFile),
              std::string(59, '=') +
                  "\r\nProcess Started\r\nOn Wednesday 01/15/2025 at 01:05 PM\r\n"
                  "a b\r\n\r\nc\r\nd\r\n");
    traceLog(app, {"e"});
    EXPECT_EQ(station.get(kTraceLogFile), "e\r\n");
}

TEST_F(Traces, OfTheManagerHaveTheLinesThatAreNotEmptyOneFileAMonth)
{
    station.folder("C:\\Lumbrio\\Data\\CCmgrLOGS");
    fillBuffer();
    Write_Log(app);
    EXPECT_EQ(station.get(kManagerLog), "first\r\n  \r\nlast\r\n");
    Write_Log(app);
    EXPECT_EQ(station.get(kManagerLog), "first\r\n  \r\nlast\r\n") << "the buffer was not cleared";

    station.time.setNow({2025, 2, 1, 0, 0, 0, 0});
    fillBuffer();
    Write_Log(app);
    EXPECT_EQ(station.get("C:\\Lumbrio\\Data\\CCmgrLOGS\\022025MGRlog.txt"),
              "first\r\n  \r\nlast\r\n");
}

TEST_F(Traces, LoseTheirLinesAndNothingElseWithoutTheirFolder)
{
    fillBuffer();
    Write_Log(app);
    EXPECT_FALSE(station.has(kManagerLog));
    EXPECT_EQ(app.values.ManagerLogBuffer[0], "");
    Write_AsstMgr(app, "Main Screen");
    station.erase("C:\\Lumbrio");
    startProcessTrace(app);
    traceProcess(app, {"a"});
    EXPECT_FALSE(station.has(kLastProcessFile));
    EXPECT_FALSE(station.run.ending());
}

TEST_F(Traces, OfTheAssistantPanelHaveTwelveQuotedValues)
{
    station.folder("F:\\Lumbrio\\Data");
    app.values.managerCode = "4711";
    Write_AsstMgr(app, "View All Tables Screen");
    app.values.managerCode = "4712";
    Write_AsstMgr(app, "Main");
    const std::string tail = "\"FRONT-BAR\",\"  \",\"  \",\"     \",\"  \",\"     \",\"     \"\r\n";
    EXPECT_EQ(station.get(kManagerTrace),
              "\"01/15/2025\",\"01:05 PM\",\"4711\",\"Paula Manager\",\"View All Tables Screen\"," +
                  tail + "\"01/15/2025\",\"01:05 PM\",\"4712\",\"Not Found\",\"Main\"," + tail);

    TestStation other(&station);
    platform::SlotFile held(other.files, kManagerTrace, 500);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    const std::size_t before = station.get(kManagerTrace).size();
    Write_AsstMgr(app, "Main");
    EXPECT_GT(station.get(kManagerTrace).size(), before) << "a refused lock loses no line";
    EXPECT_FALSE(station.run.ending());
}

} // namespace
