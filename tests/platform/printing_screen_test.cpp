// What comes out of a printer: paper of the right length, and a new number for every job, whichever
// process prints it.
#include "platform/qt/print_painter.h"
#include "platform/qt/qt_printers.h"

#include "support/second_process.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <deque>
#include <set>

namespace {

using namespace platform;

const Maker kMaker = {"FRONT-BAR", "TndrCC"};
using Kind = PrintOperation::Kind;

PrintOperation line(const std::string &text)
{
    return {Kind::Line, text, {}};
}

PrintJob lines(std::size_t count)
{
    return {{}, false, std::vector(count, line("Amount      $48.50"))};
}

/// Heights in points of the pages of a PDF, from "/MediaBox [0 0 width height]".
std::vector<double> pages(const PrintJob &job, double widthMm, double heightMm)
{
    platform::Banners banners;
    const std::string pdf = paintPdf(job, banners, widthMm, heightMm).toStdString();
    std::vector<double> heights;
    for (std::size_t at = 0; (at = pdf.find("/MediaBox [", at)) != pdf.npos; ++at)
        heights.push_back(std::stod(pdf.substr(pdf.rfind(' ', pdf.find(']', at)))));
    return heights;
}

TEST(Papers, are_as_long_as_the_job_or_as_many_as_it_needs)
{
    PrintJob job = lines(30);
    EXPECT_GT(pages(job, 80, 0).back(), pages(lines(20), 80, 0).back() + 50);
    job.operations[15].kind = Kind::NewPage;
    EXPECT_EQ(pages(job, 80, 0).size(), 1U);
    EXPECT_EQ(pages(job, 216, 279).size(), 2U);
    EXPECT_GE(pages(lines(200), 216, 279).size(), 3U);
}

TEST(PartsBetweenCuts, keep_fonts_and_lose_nothing)
{
    const PrintOperation font{Kind::Font, {}, {"Serif", 14, true, false}};
    const PrintOperation cut{Kind::Cut, {}, {}};
    const auto parts =
        platform::splitAtCuts({"Void", false, {font, line("1"), cut, line("2"), cut}});
    std::string told;
    for (const auto &[part, isCut] : parts)
        told += part.title + ": " + plainText(part) + (isCut ? "cut " : "end");
    EXPECT_EQ(told, "Void: 1\r\ncut Void: 2\r\ncut : end");
    EXPECT_EQ(parts[1].job.operations.front().font, font.font);
}

/// The names and contents of the files in a spool folder.
std::map<std::string, std::string> filesIn(const std::string &folder)
{
    std::map<std::string, std::string> found;
    for (const std::string &path : support::filesBelow(folder))
        found[path.substr(path.rfind('/') + 1)] = support::contentOf(path);
    return found;
}

TEST(SpoolPrinters, come_first_and_store_each_job_under_the_next_number)
{
    support::TestStation station;
    // The older slips were taken away; a killed process left an unfinished one.
    const std::string ours = workName("0043.pdf", kMaker, ".part");
    for (const std::string name : {"0041.txt", "0042.pdf.part", "notes.txt", ours.c_str()})
        station.put("c:\\spool\\receipt\\" + name, "");
    station.installation.spoolPrinters = {{"Receipt", 80, 0, false, "c\\spool\\receipt"},
                                          {"Office", 216, 0, true, "c/spool/office"},
                                          {"None", 80, 0, false, "c/spool/receipt/notes.txt"}};
    platform::QtPrinters printers(station.disk, station.installation, station.drives.root(),
                                  kMaker);
    EXPECT_EQ(printers.removeUnfinished(), std::vector{ours});
    EXPECT_EQ(printers.names()[0] + printers.names()[1], "ReceiptOffice");
    EXPECT_EQ(printers.defaultName(), "Office");
    EXPECT_EQ(printers.submit("Receipt", {{}, false, {line("first")}}), Outcome::Done);
    EXPECT_EQ(printers.submit("Receipt", lines(1)), Outcome::Done);
    EXPECT_EQ(printers.submit("Recei", lines(1)), Outcome::NotThere);
    EXPECT_EQ(printers.submit("None", lines(1)), Outcome::Denied);
    std::string names;
    for (const auto &[name, content] : filesIn(station.drives.resolve("c:\\spool\\receipt")))
        names += name + ' ' + content.substr(0, name.ends_with("pdf") ? 5 : 7);
    EXPECT_EQ(names, "0041.txt 0042.pdf.part 0043.pdf %PDF-0043.txt first\r\n"
                     "0044.pdf %PDF-0044.txt Amount notes.txt ");
}

/// So the slip is known to be lost, and half of one is never taken for a whole one.
TEST(SpoolPrinters, report_a_failure_at_any_step_and_leave_no_half_job)
{
    support::TestStation station;
    station.installation.spoolPrinters = {{"Receipt", 80, 0, true, "c/spool"}};
    platform::QtPrinters printers(station.disk, station.installation, station.drives.root(),
                                  kMaker);
    ASSERT_EQ(printers.submit("Receipt", lines(1)), Outcome::Done);
    const std::size_t steps = station.disk.operations();
    for (const Outcome outcome : {Outcome::NoRoom, Outcome::Broken})
        for (std::size_t n = 1; n <= steps; ++n) {
            station.disk.failAt(station.disk.operations() + n, outcome, true);
            EXPECT_EQ(printers.submit("Receipt", lines(1)), outcome) << n;
            EXPECT_EQ(filesIn(station.drives.resolve("c:\\spool")).size(), 2U) << n;
        }
    EXPECT_EQ(steps, 6U);
    station.disk.failAt(0, Outcome::Done);
    EXPECT_EQ(printers.submit("Receipt", lines(1)), Outcome::Done);
}

TEST(SpoolPrinters, never_share_a_number_between_processes)
{
    const support::TemporaryFolder folder;
    std::deque<support::SecondProcess> stations;
    for (const char name : {'a', 'b', 'c', 'd'})
        stations.emplace_back([&, name] {
            const std::unique_ptr<platform::Disk> disk = platform::systemDisk();
            platform::SpoolFolder spool(*disk, folder.path(), {"BAR", std::string(1, name)});
            for (int job = 0; job < 50; ++job) {
                const std::string content = name + std::to_string(job);
                if (!done(spool.put(content, content)))
                    support::SecondProcess::say("refused " + content);
            }
            support::SecondProcess::say("done");
        });
    for (support::SecondProcess &station : stations)
        EXPECT_EQ(station.hear(), "done");
    const auto files = filesIn(folder.path());
    std::set<std::string> jobs;
    for (const auto &[name, content] : files)
        jobs.insert(name.substr(0, 4) + content);
    EXPECT_EQ(files.size(), 400U) << "none overwritten, none unfinished";
    EXPECT_EQ(jobs.size(), 200U) << "both files of a number are of one job";
}

} // namespace
