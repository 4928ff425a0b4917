// The manager's first screen, told in a golden story: a copy of the data before every choice, the
// log of it, and what is cleaned up before the list opens.
#include "manager/manager_start.h"
#include "records/card_files.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <chrono>
#include <filesystem>
#include <regex>
#include <set>

namespace {

using namespace manager;

constexpr platform::DateTime kSeptember{2025, 9, 30, 23, 0, 0, 0};

struct Night : ManagerStartView, platform::WindowlessView {
    /// With `share`, another process on its drives.
    explicit Night(const support::TestStation *share = nullptr)
        : station(support::VirtualTime::kDefaultStart, share)
    {
        station.dialogs.noted = &happened;
        records::LumbrioConfig config;
        config.set(records::kMaindir, "C:\\Lumbrio\\");
        config.set(records::kRemotedir, "F:\\Lumbrio\\");
        station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
        station.put("C:\\Lumbrio\\CCard.dat", "\"x\"\r\n\"C:\\Pay\"\r\n");
        station.put("F:\\Lumbrio\\CCPending.dat", "the night's records");
    }

    /// A marker of a station, or whatever has to be there; on request written to at noon of a day.
    void put(const std::string &path, int date) // YYYYMMDD
    {
        station.put(path, "\"01:00 PM\",\"7\",\"Ann\",\"BAR\",\" \"\r\n");
        const std::chrono::sys_days day =
            std::chrono::year(date / 10000) / (date / 100 % 100) / (date % 100);
        if (date > 0)
            last_write_time(std::filesystem::path(station.drives.resolve(path)),
                            std::chrono::file_clock::from_sys(day + std::chrono::seconds(43200)));
    }
    std::string press(const std::string &command)
    {
        std::istringstream words(command);
        std::string verb;
        std::string word;
        int date = 0;
        words >> verb >> word >> date;
        const std::map<std::string, std::function<void()>> verbs = {
            {"Form_Load", [&] { start.Form_Load(); }},
            {"NEXT", [&] { start.startAfterHours(); }},
            {"QUIT", [&] { start.quit(); }},
            {"wait", [&] { station.advance(static_cast<std::uint64_t>(std::stoi(word))); }},
            {"September", [&] { station.time.setNow(kSeptember); }},
            {"fail", [&] { station.disk.failOn("rename", word, platform::Outcome::NoRoom); }},
            {"type", [&] { station.dialogs.typed = word; }},
            {"erase", [&] { station.erase(word); }},
            {"file", [&] { put(word, date); }},
        };
        verbs.at(verb)();
        return lookAround();
    }
    /// Everything on the drives but the log, which is told by its new lines.
    std::string lookAround()
    {
        std::set<std::string> files;
        const std::filesystem::path root = station.drives.root();
        for (const auto &file : std::filesystem::recursive_directory_iterator(root))
            files.insert(file.path().lexically_relative(root).generic_string());
        for (const std::string &file : files)
            happened += seen.contains(file) ? "" : "new " + file + "\n";
        for (const std::string &file : seen)
            happened += files.contains(file) ? "" : "gone " + file + "\n";
        seen = files;
        const std::string log =
            station.getIfThere("C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt");
        for (const std::string &line : platform::splitLines(log.substr(std::min(told, log.size()))))
            happened += "log: " + (line == records::kProgramVersion ? "(version)" : line) + "\n";
        told = log.size();
        happened += station.run.ending() ? "ended\n" : "";
        // The paragraphs of a box stand closer together.
        return std::regex_replace(std::exchange(happened, ""), std::regex("\n+"), "\n");
    }
    void refresh(const ManagerStartFields &fields) override
    {
        const std::string now = fields.status + (fields.choicesEnabled ? ": 3 4" : ":");
        happened += now == shown ? "" : now + "\n";
        shown = now;
    }

    std::string happened;
    support::TestStation station;
    records::App app{station.services};
    std::string shown = ":";
    std::set<std::string> seen;
    std::size_t told = 0;
    ManagerStart start{
        app, *this, {[this] { happened += app.values.X1009 ? "list, X1009\n" : "list\n"; }}};
};

TEST(ManagerStart, GoesAsItsGoldenStoryTells)
{
    std::unique_ptr<Night> night;
    support::expectStory("manager/start.txt", [&](const std::string &command) {
        if (command != "new")
            return night->press(command);
        night = std::make_unique<Night>();
        night->lookAround();
        return std::string();
    });
}

/// Its "Done" would take the marker away while the first still works.
TEST(SecondManager, LooksOnlyAndWritesNothingUnlessItsPersonInsists)
{
    const support::TestStation share;
    auto first = std::make_unique<Night>(&share);
    first->put("F:\\Lumbrio\\StationTips.dat", 0);
    first->put("F:\\Lumbrio\\data\\CCmgrLOGS\\old.txt", 20200101);
    first->press("Form_Load");
    const auto tellOf = [](Night &night, const std::vector<std::string> &commands) {
        night.lookAround();
        std::string told;
        for (const std::string &command : commands)
            told += night.press(command);
        return told;
    };
    const std::string kInUse = "In use by FRONT-BAR since 13:05";
    Night looking(&share);
    const std::string looked = tellOf(looking, {"Form_Load", "NEXT", "wait 1000", "QUIT"});
    EXPECT_NE(looked.find("[In Use] " + kInUse + "\n"), looked.npos) << looked;
    EXPECT_NE(looked.find(kInUse + " - looking only: 3 4\nlist\n"), looked.npos) << looked;
    EXPECT_NE(looked.find("log: " + kInUse + " - LOOKING ONLY\n"), looked.npos) << looked;
    EXPECT_EQ(looked.find("new "), looked.npos) << looked;
    EXPECT_EQ(looked.find("gone "), looked.npos) << looked;

    Night insisting(&share);
    const std::string insisted = tellOf(insisting, {"type override", "Form_Load", "NEXT"});
    EXPECT_NE(insisted.find("log: " + kInUse + " - USER CHOSE OVERRIDE\n"), insisted.npos);
    EXPECT_NE(insisted.find("new f/Lumbrio/data/ccData/0115"), insisted.npos) << insisted;

    first.reset();
    insisting.press("wait 30000");
    Night third(&share);
    EXPECT_NE(tellOf(third, {"Form_Load"}).find(kInUse), std::string::npos)
        << "whoever went on has it, once the first has ended";
}

TEST(SecondManager, IsNotAskedAboutOneThatEndedAndWorksWhereTheFileCannotBeMade)
{
    const support::TestStation share;
    std::make_unique<Night>(&share)->press("Form_Load");
    EXPECT_EQ(std::make_unique<Night>(&share)->press("Form_Load").find("In use"),
              std::string::npos);

    Night patient(&share); // its person answers when the other one has gone home
    auto other = std::make_unique<Night>(&share);
    other->press("Form_Load");
    patient.station.disk.before = [&](std::size_t) {
        if (patient.station.disk.operationLog().back().find("read f/Lumbrio/data/ManagerInUse") !=
            std::string::npos)
            other.reset();
    };
    patient.press("Form_Load");
    EXPECT_TRUE(other == nullptr && !patient.app.values.lookOnly);

    Night unmarked;
    unmarked.station.disk.failOn("open", "ManagerInUse.lock", platform::Outcome::Denied);
    const std::string told = unmarked.press("Form_Load");
    EXPECT_NE(told.find(": 3 4\n"), told.npos) << told;
    EXPECT_NE(told.find("log:   NOT MARKED AS IN USE - "), told.npos) << told;
    EXPECT_FALSE(unmarked.app.values.lookOnly);
}

TEST(KeptRecord, IsToldAtEachStartUntilTheCardFileTakesIt)
{
    records::CardRecord record;
    record.set(records::CCReceipt, "1043");
    record.set(records::CCTabAmt, "48.50");
    Night night;
    night.station.put("F:\\Lumbrio\\CCPending.dat", "");
    night.station.put("C:\\Lumbrio\\Data\\KeptRecord-20250115-130500.dat",
                      "F:\\Lumbrio\\CCPending.dat\r\n" + records::wholeSlot(record));
    night.station.disk.failOn("append", "CCPending.dat", platform::Outcome::NoRoom);
    night.start.Form_Load();
    EXPECT_NE(night.happened.find("Receipt 1043: $48.50"), std::string::npos) << night.happened;
    night.station.disk.failOn("append", "CCPending.dat", platform::Outcome::Done);
    night.happened.clear();
    night.start.Form_Load();
    EXPECT_EQ(night.happened.find("NOT IN THE CARD FILE"), std::string::npos) << night.happened;
    EXPECT_EQ(night.station.get("F:\\Lumbrio\\CCPending.dat"), records::wholeSlot(record));
}

} // namespace
