// The manager's first screen, told in a golden story: a copy of the data before every choice, the
// log of it, and what is cleaned up before the list opens.
#include "manager/manager_start.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <set>

namespace {

using namespace manager;

constexpr platform::DateTime kSeptember{2025, 9, 30, 23, 0, 0, 0};

struct Night : ManagerStartView {
    Night()
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
            {"NEXT", [&] { start.SSCommand3_Click(); }},
            {"QUIT", [&] { start.SSCommand4_Click(); }},
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
        std::string now = fields.status + ":";
        for (std::size_t n = 1; n < fields.SSCommandEnabled.size(); ++n)
            now += fields.SSCommandEnabled[n] ? " " + std::to_string(n) : "";
        happened += now == shown ? "" : now + "\n";
        shown = now;
    }
    void paintNow() override {}

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

} // namespace
