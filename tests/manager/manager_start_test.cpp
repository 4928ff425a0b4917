// The manager's first screen: a copy of the data before every choice, the log of it, and what is
// cleaned up before the list opens.
#include "manager/manager_start.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <chrono>

namespace {

using namespace manager;

class FakeView : public ManagerStartView {
public:
    void refresh(const ManagerStartFields &fields) override
    {
        if (told.empty() || told.back() != fields.status)
            told.push_back(fields.status);
    }
    void paintNow() override {}
    std::vector<std::string> told = {""};
};

struct Night {
    Night()
    {
        records::LumbrioConfig config;
        config.set(records::kMaindir, "C:\\Lumbrio\\");
        config.set(records::kRemotedir, "F:\\Lumbrio\\");
        station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
        station.put("C:\\Lumbrio\\CCard.dat", "\"x\"\r\n\"C:\\Pay\"\r\n");
        station.put("C:\\Lumbrio\\X1009Version.dat", "");
        station.put("F:\\Lumbrio\\CCPending.dat", "the night's records");
    }
    /// A file that was last written to at noon of that day.
    void put(const std::string &path, int year, unsigned month, unsigned day)
    {
        station.put(path, "old");
        const std::chrono::sys_days date =
            std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
        std::filesystem::last_write_time(
            station.drives.resolve(path),
            std::chrono::file_clock::from_sys(date + std::chrono::seconds(12 * 60 * 60)));
    }
    std::string log() const
    {
        const std::string text = station.get("C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt");
        return std::regex_replace(text, std::regex(records::kProgramVersion), "(version)");
    }

    support::TestStation station;
    records::App app{station.services};
    FakeView view;
    std::string opened;
    ManagerStart start{app, view, {[this] { opened += "list "; }, [this] { opened += "busy "; }}};
};

TEST(ManagerStart, CopiesAndLogsEveryChoiceAndOpensTheListWhenNoStationIsActive)
{
    Night night;
    night.start.Form_Load();
    EXPECT_TRUE(night.start.state().SSCommandEnabled[3] &&
                !night.start.state().SSCommandEnabled[2]);
    night.start.SSCommand3_Click();
    night.start.SSCommand3_Click(); // once is enough
    night.station.advance(99);
    EXPECT_EQ(night.opened, "");
    night.station.advance(1000);
    EXPECT_EQ(night.opened, "list ");
    EXPECT_TRUE(night.app.values.X1009);
    night.station.put("F:\\Lumbrio\\StationTips.dat", "");
    night.start.SSCommand3_Click();
    night.station.advance(1000);
    EXPECT_EQ(night.opened, "list busy ");
    night.start.SSCommand4_Click();
    EXPECT_TRUE(night.station.run.ending() && !night.station.run.failed());
    EXPECT_EQ(night.log(), support::testFile("golden/manager/log.txt"));
    for (const std::string directory : {"F:\\Lumbrio\\", "C:\\Lumbrio\\"}) {
        for (const char *moment : {"01152025130500", "01152025130501", "01152025130502"})
            EXPECT_EQ(night.station.get(directory + "data\\CCdata\\" + moment + "CCpending.dat"),
                      "the night's records");
    }
}

TEST(ManagerStart, DeletesOldLogsAndAnswersAndNothingElse)
{
    Night night;
    const struct {
        const char *path;
        int year;
        unsigned month, day;
        bool stays;
    } files[] = {
        {"C:\\Lumbrio\\data\\CCmgrLOGS\\062024MGRlog.txt", 2024, 6, 15, true},
        {"C:\\Lumbrio\\data\\CCmgrLOGS\\052024MGRlog.txt", 2024, 6, 14, false},
        {"F:\\Lumbrio\\data\\CCmgrLOGS\\012020MGRlog.txt", 2020, 1, 31, false},
        {"F:\\Lumbrio\\data\\CCFinal0120.dat", 2020, 1, 31, true},
        {"C:\\Pay\\LocalTrans\\1.xca", 2025, 1, 12, false},
        {"C:\\Pay\\LocalTrans\\2.XCA", 2025, 1, 12, false},
        {"C:\\Pay\\LocalTrans\\3.xca", 2025, 1, 13, true},
        {"C:\\Pay\\LocalTrans\\4.req", 2020, 1, 1, true},
        {"C:\\Pay\\History\\1.bak", 2025, 1, 1, false},
        {"C:\\Pay\\History\\2.xca", 2025, 1, 1, true},
    };
    for (const auto &file : files)
        night.put(file.path, file.year, file.month, file.day);
    night.start.Form_Load();
    night.start.SSCommand3_Click();
    for (const auto &file : files)
        EXPECT_EQ(night.station.has(file.path), file.stays) << file.path;
    EXPECT_EQ(night.view.told,
              (std::vector<std::string>{"", "Checking Credit Card Batch Logs", "2 CC LOG Files",
                                        "2 CC OLD ANSWER Files", "1 CC OLD HISTORY Files"}));
}

TEST(ManagerStart, SaysInTheLogThatACopyCouldNotBeMadeAndClaimsNoneOfWhatIsNotThere)
{
    Night night;
    night.start.Form_Load();
    const std::string banner = night.log();
    night.station.disk.failOn("rename", "CCpending.dat", platform::Outcome::NoRoom);
    night.start.SSCommand3_Click();
    EXPECT_EQ(night.log(), banner + "-\r\nUSER CHOSE AFTER Business Hours  \r\n"
                                    "  BACKUP NOT MADE - no room on the disk\r\n-\r\n"
                                    "XchargePend is loading now\r\n");
    night.station.erase("F:\\Lumbrio\\CCPending.dat");
    night.station.erase("C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt");
    night.station.advance(200);
    night.start.SSCommand4_Click();
    EXPECT_EQ(night.log().substr(0, 25), "-\r\nUSER CHOSE QUIT  \r\n-\r\n");
}

TEST(ManagerStart, CutsADateInTheMiddleOfAShortMonth)
{
    Night night;
    night.station.time.setNow({2025, 9, 30, 23, 0, 0, 0}); // no 30th of February
    night.put("C:\\Lumbrio\\data\\CCmgrLOGS\\a", 2025, 2, 28);
    night.put("C:\\Lumbrio\\data\\CCmgrLOGS\\b", 2025, 2, 27);
    night.start.Form_Load();
    night.start.SSCommand3_Click();
    EXPECT_TRUE(night.station.has("C:\\Lumbrio\\data\\CCmgrLOGS\\a"));
    EXPECT_FALSE(night.station.has("C:\\Lumbrio\\data\\CCmgrLOGS\\b"));
}

} // namespace
