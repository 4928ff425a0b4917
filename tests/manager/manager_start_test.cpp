// The manager's first screen, told in a golden story: a copy of the data before every choice, the
// log of it, and what is cleaned up before the list opens.
#include "manager/manager_start.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <chrono>
#include <regex>
#include <set>

namespace {

using namespace manager;

struct Night : ManagerStartView, platform::Dialogs {
    Night() : Dialogs(station.run)
    {
        records::LumbrioConfig config;
        config.set(records::kMaindir, "C:\\Lumbrio\\");
        config.set(records::kRemotedir, "F:\\Lumbrio\\");
        station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
        station.put("C:\\Lumbrio\\CCard.dat", "\"x\"\r\n\"C:\\Pay\"\r\n");
        station.put("F:\\Lumbrio\\CCPending.dat", "the night's records");
    }

    void press(const std::string &command)
    {
        std::istringstream words(command);
        std::string verb;
        std::string path;
        int date = 0; // YYYYMMDD
        words >> verb >> path >> date;
        if (verb == "Form_Load")
            start.Form_Load();
        if (verb == "NEXT")
            start.SSCommand3_Click();
        if (verb == "QUIT")
            start.SSCommand4_Click();
        if (verb == "wait")
            station.advance(static_cast<std::uint64_t>(records::wholeNumber(path)));
        if (verb == "February")
            station.time.setNow({2025, 9, 30, 23, 0, 0, 0});
        if (verb == "fail")
            station.disk.failOn("rename", path, platform::Outcome::NoRoom);
        if (verb == "type")
            typed = path;
        if (verb == "erase")
            station.erase(path);
        if (verb == "file")
            station.put(path, "\"01:00 PM\",\"7\",\"Ann\",\"BAR\",\" \"\r\n");
        if (verb == "file" && date > 0) { // written to at noon of that day
            const std::chrono::sys_days day =
                std::chrono::year(date / 10000) / (date / 100 % 100) / (date % 100);
            last_write_time(std::filesystem::path(station.drives.resolve(path)),
                            std::chrono::file_clock::from_sys(day + std::chrono::seconds(43200)));
        }
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
        const std::string path = "C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt";
        const std::string log = station.has(path) ? station.get(path) : "";
        for (const std::string &line : platform::splitLines(log.substr(std::min(told, log.size()))))
            happened += "log: " + (line == records::kProgramVersion ? "(version)" : line) + "\n";
        told = log.size();
        happened += station.run.ending() ? "ended\n" : "";
        return std::exchange(happened, "");
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
    platform::Answer ask(const std::string &, const std::string &, platform::Buttons) override
    {
        return platform::Answer::Cancel;
    }
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &, bool) override
    {
        happened += "[" + title + "] " + std::regex_replace(text, std::regex("\n+"), " / ") + "\n";
        return typed;
    }

    support::TestStation station;
    records::App app{{station.run, station.files, station.time, *this, station.system,
                      station.printers, station.installation}};
    std::optional<std::string> typed;
    std::string happened;
    std::string shown = ":";
    std::set<std::string> seen;
    std::size_t told = 0;
    ManagerStart start{
        app, *this, {[this] { happened += app.values.X1009 ? "list, X1009\n" : "list\n"; }}};
};

TEST(ManagerStart, GoesAsItsGoldenStoryTells)
{
    const std::string golden = support::testFile("golden/manager/start.txt");
    std::unique_ptr<Night> night;
    std::string told;
    for (const std::string &line : platform::splitLines(golden)) {
        if (line.empty() || line[0] == '#' || line[0] == '>')
            told += line + "\n";
        if (line == "> new") {
            night = std::make_unique<Night>();
            night->lookAround();
        } else if (line.starts_with("> ")) {
            night->press(line.substr(2));
            told += night->lookAround();
        }
    }
    EXPECT_EQ(told, golden);
}

} // namespace
