// What comes out of a printer: paper of the right length, nothing cut off at its edge, and a
// number of its own for every job, whichever process prints it.
#include "platform/qt/print_painter.h"
#include "platform/qt/qt_printers.h"

#include "support/second_process.h"
#include "support/test_station.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <set>

namespace {

using namespace platform;
using Kind = PrintOperation::Kind;

PrintOperation line(const std::string &text)
{
    return {Kind::Line, text, {}};
}

PrintJob lines(std::size_t count)
{
    return {{}, false, std::vector(count, line("Amount      $48.50"))};
}

/// Paper at 203 dots an inch with a wide margin to the right, to see what runs over the edge.
class Paper {
public:
    static constexpr int kWidth = 575;

    explicit Paper(const PrintJob &job)
    {
        dots.setDotsPerMeterX(7992);
        dots.setDotsPerMeterY(7992);
        dots.fill(Qt::white);
        QPainter onto(&dots);
        platform::PrintPainter painter(dots, banners, kWidth, 0, platform::CutStyle::Mark);
        height = painter.measure(job);
        painter.paint(job, onto, [] { ADD_FAILURE() << "a roll has no pages"; });
    }
    /// Between two dots of the width.
    bool hasInk(int from, int to) const
    {
        for (int x = from; x < to; ++x)
            for (int y = 0; y < dots.height(); ++y)
                if (dots.pixelColor(x, y).lightness() < 128)
                    return true;
        return false;
    }
    double height = 0;

private:
    platform::Banners banners;
    QImage dots{kWidth + 200, 300, QImage::Format_Grayscale8};
};

/// Heights in points of the pages of a PDF.
std::vector<double> pages(const PrintJob &job, double widthMm, double heightMm)
{
    static const std::regex box("/MediaBox \\[0 0 [0-9.]+ ([0-9.]+)\\]");
    platform::Banners banners;
    const std::string pdf = paintPdf(job, banners, widthMm, heightMm).toStdString();
    std::vector<double> heights;
    for (std::sregex_iterator at(pdf.begin(), pdf.end(), box), end; at != end; ++at)
        heights.push_back(std::stod(at->str(1)));
    return heights;
}

TEST(Papers, are_as_long_as_the_job_or_as_many_as_it_needs)
{
    const double ten = pages(lines(10), 80, 0).back();
    const double twenty = pages(lines(20), 80, 0).back();
    EXPECT_GT(twenty, ten + 50);
    PrintJob job = lines(30);
    job.landscape = true; // a roll has no landscape
    EXPECT_NEAR(pages(job, 80, 0).back(), 2 * twenty - ten, 2);
    job.operations[15].kind = Kind::NewPage;
    EXPECT_EQ(pages(job, 80, 0).size(), 1U);
    EXPECT_EQ(pages(job, 216, 279).size(), 2U);
    EXPECT_GE(pages(lines(200), 216, 279).size(), 3U);
}

TEST(PaintedLines, are_condensed_to_the_edge_and_go_to_their_tab_stops)
{
    const double height = Paper(lines(1)).height;
    for (const std::string &text :
         {std::string(120, '_'), std::string(90, 'W'), "Name\t" + std::string(90, 'W')}) {
        const Paper paper({{}, false, {line(text)}});
        EXPECT_FALSE(paper.hasInk(Paper::kWidth + 1, Paper::kWidth + 150)) << text;
        EXPECT_TRUE(paper.hasInk(Paper::kWidth - 25, Paper::kWidth)) << text;
        EXPECT_EQ(paper.height, height) << "never wrapped: " << text;
    }
    const Paper stops({{}, false, {{Kind::Tabs, "20,40", {}}, line("A\tB\tC")}});
    EXPECT_TRUE(stops.hasInk(0, 30) && stops.hasInk(160, 190) && stops.hasInk(320, 350));
    EXPECT_FALSE(stops.hasInk(30, 160) || stops.hasInk(190, 320) || stops.hasInk(350, 700));
}

TEST(PaintedPictures, are_centred_and_never_written_over)
{
    const PrintOperation banner{Kind::Picture, "Picture2", {}};
    const double lineHeight = Paper(lines(1)).height;
    const Paper paper({{}, false, {banner, line("Total")}});
    EXPECT_GT(paper.height, 9 / 25.4 * 203 + lineHeight - 2);
    EXPECT_FALSE(paper.hasInk(Paper::kWidth - 30, Paper::kWidth));
    EXPECT_TRUE(paper.hasInk(Paper::kWidth - 70, Paper::kWidth - 40));
    // Blank lines pass the banner, they do not add to it.
    const Paper spaced({{}, false, {banner, line(""), line("  "), line("Total")}});
    EXPECT_NEAR(spaced.height, paper.height, lineHeight);
    EXPECT_TRUE(Paper({{}, false, {{Kind::Picture, "Picture99", {}}}}).hasInk(0, 300));
    const Paper cut({{}, false, {{Kind::Cut, {}, {}}}});
    EXPECT_TRUE(cut.hasInk(0, 12) && cut.hasInk(Paper::kWidth - 12, Paper::kWidth));
}

TEST(PartsBetweenCuts, keep_fonts_and_lose_nothing)
{
    const PrintOperation font{Kind::Font, {}, {"Serif", 14, true, false}};
    const PrintOperation cut{Kind::Cut, {}, {}};
    const auto parts =
        platform::splitAtCuts({"Void", false, {font, line("1"), cut, line("2"), cut}});
    std::string told;
    for (const auto &[part, cutBehind] : parts)
        told += part.title + ": " + plainText(part) + (cutBehind ? "cut " : "end");
    EXPECT_EQ(told, "Void: 1\r\ncut Void: 2\r\ncut : end");
    EXPECT_EQ(parts[1].job.operations.front().font, font.font);
}

/// What lies in a spool folder: names, and the content of the text files.
std::map<std::string, std::string> filesIn(const std::string &folder)
{
    std::map<std::string, std::string> found;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        found[entry.path().filename().string()] = {std::istreambuf_iterator<char>(file), {}};
    }
    return found;
}

TEST(SpoolPrinters, stand_first_and_store_each_job_behind_the_highest_number)
{
    support::TestStation station;
    // Somebody took the older slips away; a killed process left an unfinished one.
    for (const char *name : {"0041.txt", "0042.pdf.part", "notes.txt"})
        station.put(std::string("c:\\spool\\receipt\\") + name, "");
    station.installation.spoolPrinters = {{"Receipt", 80, 0, false, "c\\spool\\receipt"},
                                          {"Office", 216, 0, true, "c/spool/office"},
                                          {"None", 80, 0, false, "c/spool/receipt/notes.txt"}};
    platform::QtPrinters printers(station.installation, station.drives.root());
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

TEST(SpoolPrinters, never_share_a_number_between_processes)
{
    const support::TemporaryFolder folder;
    std::vector<std::unique_ptr<support::SecondProcess>> stations;
    for (const char name : {'a', 'b', 'c', 'd'})
        stations.push_back(std::make_unique<support::SecondProcess>([&, name](support::Talk &test) {
            platform::SpoolFolder spool(QString::fromStdString(folder.path()));
            std::string refused;
            for (int job = 0; job < 50; ++job) {
                const QByteArray content = name + QByteArray::number(job);
                if (!done(spool.put(content, content)))
                    refused += content.toStdString() + ' ';
            }
            test.say(refused + "done");
        }));
    for (const auto &station : stations)
        EXPECT_EQ(station->hear(), "done");
    const auto files = filesIn(folder.path());
    std::map<std::string, std::set<std::string>> numbersOf;
    for (const auto &[name, content] : files)
        numbersOf[content].insert(name.substr(0, 4));
    EXPECT_EQ(files.size(), 400U) << "none overwritten, nothing unfinished is left";
    EXPECT_EQ(numbersOf.size(), 200U);
    for (const auto &[content, numbers] : numbersOf)
        EXPECT_EQ(numbers.size(), 1U) << "both files of a number are of one job: " << content;
}

} // namespace
