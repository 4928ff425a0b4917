// What comes out of a printer: paper of the right length, nothing cut off at its edge, and a
// number of its own for every job, whichever process prints it.
#include "platform/qt/print_painter.h"
#include "platform/qt/qt_printers.h"

#include "support/test_station.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using platform::PrintJob;
using platform::PrintOperation;
using Kind = PrintOperation::Kind;

PrintOperation line(const std::string &text)
{
    return {Kind::Line, text, {}};
}

PrintJob lines(int count, const std::string &text = "Amount      $48.50")
{
    PrintJob job;
    job.operations.assign(static_cast<std::size_t>(count), line(text));
    return job;
}

QByteArray contentOf(const std::string &path)
{
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll();
}

bool touch(const std::string &path)
{
    return QFile(QString::fromStdString(path)).open(QIODevice::WriteOnly);
}

/// Paper at 203 dots an inch with a wide margin to the right, to see what runs over the edge.
class Paper {
public:
    static constexpr int kWidth = 575;

    explicit Paper(const PrintJob &job, double pageHeight = 0)
    {
        dots.setDotsPerMeterX(7992);
        dots.setDotsPerMeterY(7992);
        dots.fill(Qt::white);
        QPainter onto(&dots);
        platform::PrintPainter painter(dots, banners, kWidth, pageHeight, platform::CutStyle::Mark);
        height = painter.measure(job);
        painter.paint(job, onto, [this] { ++turned; });
    }
    bool inkIn(const QRect &place) const
    {
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (dots.pixelColor(x, y).lightness() < 128)
                    return true;
            }
        }
        return false;
    }
    QImage dots{kWidth + 200, 1200, QImage::Format_Grayscale8};
    double height = 0;
    int turned = 0;

private:
    platform::Banners banners;
};

/// Height in points of the only page.
double pageHeight(const QByteArray &pdf)
{
    static const QRegularExpression box(QStringLiteral("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]"));
    EXPECT_EQ(QString::fromLatin1(pdf).count(QStringLiteral("/MediaBox")), 1);
    const QRegularExpressionMatch found = box.match(QString::fromLatin1(pdf));
    EXPECT_TRUE(found.hasMatch());
    return found.captured(2).toDouble();
}

TEST(RollPaper, IsAsLongAsTheJob)
{
    platform::Banners banners;
    const double ten = pageHeight(paintPdf(lines(10), banners, 80, 0));
    const double twenty = pageHeight(paintPdf(lines(20), banners, 80, 0));
    const double thirty = pageHeight(paintPdf(lines(30), banners, 80, 0));
    EXPECT_GT(twenty, ten + 50);
    EXPECT_NEAR(thirty - twenty, twenty - ten, 2);

    PrintJob wide = lines(3);
    wide.landscape = true; // a roll has no landscape
    EXPECT_LT(pageHeight(paintPdf(wide, banners, 80, 0)), ten);
}

TEST(PagePaper, TakesAsManyPagesAsItNeeds)
{
    platform::Banners banners;
    const QByteArray pdf = paintPdf(lines(200), banners, 216, 279);
    EXPECT_GE(QString::fromLatin1(pdf).count(QStringLiteral("/MediaBox")), 3);
    EXPECT_EQ(Paper(lines(10), 300).turned, 1);
    PrintJob broken = lines(2);
    broken.operations.insert(broken.operations.begin() + 1, {Kind::NewPage, {}, {}});
    EXPECT_EQ(Paper(broken, 300).turned, 1);
    EXPECT_EQ(Paper(broken, 0).turned, 0);
}

TEST(PaintedLine, IsCondensedToTheEdgeAndNeverPastIt)
{
    const QRect past(Paper::kWidth + 1, 0, 150, 60);
    const QRect edge(Paper::kWidth - 25, 0, 25, 60);
    for (const std::string &text :
         {std::string(120, '_'), std::string(90, 'W'), "Name\t" + std::string(90, 'W')}) {
        const Paper paper(lines(1, text));
        EXPECT_FALSE(paper.inkIn(past)) << text;
        EXPECT_TRUE(paper.inkIn(edge)) << text;
        EXPECT_EQ(paper.height, Paper(lines(1, "x")).height) << "never wrapped: " << text;
    }
    const Paper narrow(lines(1, "Total"));
    EXPECT_TRUE(narrow.inkIn({0, 0, 100, 60})) << "a short line keeps its width and its left edge";
    EXPECT_FALSE(narrow.inkIn({150, 0, 400, 60}));
}

TEST(PaintedLine, GoesToItsTabStops)
{
    PrintJob job = lines(1, "A\tB\tC");
    job.operations.insert(job.operations.begin(), {Kind::Tabs, "20,40", {}});
    const Paper paper(job);
    EXPECT_TRUE(paper.inkIn({160, 0, 30, 60})); // 20 mm
    EXPECT_TRUE(paper.inkIn({320, 0, 30, 60})); // 40 mm
    EXPECT_FALSE(paper.inkIn({200, 0, 110, 60}));
}

TEST(PaintedBanner, IsCentredAndNeverWrittenOver)
{
    PrintJob job;
    job.operations = {{Kind::Picture, "Picture2", {}}, line("Total")};
    const Paper paper(job);
    const double bannerHeight = 9 / 25.4 * 203;
    EXPECT_GT(paper.height, bannerHeight + Paper(lines(1)).height - 2);
    EXPECT_FALSE(paper.inkIn({0, 0, 30, 60}));
    EXPECT_FALSE(paper.inkIn({Paper::kWidth - 30, 0, 30, 60}));
    EXPECT_TRUE(paper.inkIn({40, 0, 30, 60}));

    // Blank lines pass the banner, they do not add to it.
    PrintJob spaced;
    spaced.operations = {{Kind::Picture, "Picture2", {}}, line(""), line("  "), line("Total")};
    EXPECT_NEAR(Paper(spaced).height, paper.height, Paper(lines(1)).height);

    PrintJob unknown;
    unknown.operations = {{Kind::Picture, "Picture99", {}}};
    EXPECT_TRUE(Paper(unknown).inkIn({0, 0, 300, 60})) << "its name at least";
}

TEST(CutMark, CrossesTheWholePaper)
{
    PrintJob job;
    job.operations = {{Kind::Cut, {}, {}}};
    const Paper paper(job);
    EXPECT_TRUE(paper.inkIn({0, 0, 12, 48}));
    EXPECT_TRUE(paper.inkIn({Paper::kWidth - 12, 0, 12, 48}));
    EXPECT_TRUE(paper.inkIn({Paper::kWidth / 2 - 20, 0, 40, 48})) << "the word";
}

TEST(PartsBetweenCuts, KeepFontsAndLoseNothing)
{
    PrintJob job;
    job.title = "Void";
    const PrintOperation font{Kind::Font, {}, {"Serif", 14, true, false}};
    job.operations = {font, line("one"), {Kind::Cut, {}, {}}, line("two"), {Kind::Cut, {}, {}}};
    const std::vector<platform::PartOfJob> parts = platform::splitAtCuts(job);
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_TRUE(parts[0].cutBehind);
    EXPECT_TRUE(parts[1].cutBehind);
    EXPECT_FALSE(parts[2].cutBehind);
    EXPECT_EQ(plainText(parts[0].job), "one\r\n");
    EXPECT_EQ(plainText(parts[1].job), "two\r\n");
    EXPECT_EQ(plainText(parts[2].job), "");
    EXPECT_EQ(parts[1].job.operations.front().font, font.font);
    EXPECT_EQ(parts[1].job.title, "Void");
}

class SpoolPrinters : public testing::Test {
protected:
    SpoolPrinters()
    {
        installation.spoolPrinters = {{"Receipt", 80, 0, false, "spool\\receipt"},
                                      {"Office", 216, 0, true, "spool/office"}};
    }
    QStringList jobs() const
    {
        return QDir(QString::fromStdString(path()))
            .entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    std::string path() const { return root.path() + "/spool/receipt"; }

    support::TemporaryFolder root;
    platform::Installation installation;
};

TEST_F(SpoolPrinters, StandFirstAndStoreEachJobAsPdfAndText)
{
    platform::QtPrinters printers(installation, root.path());
    const std::vector<std::string> names = printers.names();
    ASSERT_GE(names.size(), 2U);
    EXPECT_EQ(names[0], "Receipt");
    EXPECT_EQ(names[1], "Office");
    EXPECT_EQ(printers.defaultName(), "Office");

    EXPECT_EQ(printers.submit("Receipt", lines(1, "first")), platform::Outcome::Done);
    EXPECT_EQ(printers.submit("Receipt", lines(1, "second")), platform::Outcome::Done);
    EXPECT_EQ(printers.submit("Recei", lines(1)), platform::Outcome::NotThere);
    EXPECT_EQ(jobs().join(u' '), u"0001.pdf 0001.txt 0002.pdf 0002.txt");
    EXPECT_EQ(contentOf(path() + "/0002.txt"), "second\r\n");
    EXPECT_TRUE(contentOf(path() + "/0001.pdf").startsWith("%PDF-"));
}

TEST_F(SpoolPrinters, GoOnFromTheHighestNumberThatIsThere)
{
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(path())));
    // Somebody took the older slips away; a killed process left an unfinished one.
    for (const char *name : {"0041.txt", "0041.pdf", "0042.pdf.part", "notes.txt"})
        EXPECT_TRUE(touch(path() + '/' + name));
    platform::QtPrinters printers(installation, root.path());
    EXPECT_EQ(printers.submit("Receipt", lines(1)), platform::Outcome::Done);
    EXPECT_TRUE(jobs().contains(u"0043.pdf"));
    EXPECT_TRUE(jobs().contains(u"0043.txt"));
}

TEST_F(SpoolPrinters, ReportAFolderThatCannotBe)
{
    ASSERT_TRUE(touch(root.path() + "/spool"));
    platform::QtPrinters printers(installation, root.path());
    EXPECT_EQ(printers.submit("Receipt", lines(1)), platform::Outcome::Denied);
}

TEST_F(SpoolPrinters, NeverShareANumberBetweenProcesses)
{
    constexpr int kProcesses = 4;
    constexpr int kJobs = 50;
    std::vector<pid_t> stations;
    for (int station = 0; station < kProcesses; ++station) {
        const pid_t process = fork();
        if (process == 0) {
            platform::SpoolFolder folder(QString::fromStdString(path()));
            bool stored = true;
            for (int job = 0; job < kJobs; ++job) {
                const QByteArray content = QByteArray::number(station * 1000 + job);
                stored = done(folder.put(content, content)) && stored;
            }
            _exit(stored ? 0 : 1);
        }
        stations.push_back(process);
    }
    for (const pid_t process : stations) {
        int status = -1;
        waitpid(process, &status, 0);
        EXPECT_EQ(status, 0);
    }
    QSet<QByteArray> contents;
    for (int number = 1; number <= kProcesses * kJobs; ++number) {
        std::string stem = std::to_string(number);
        stem = path() + "/" + std::string(4 - stem.size(), '0') + stem;
        const QByteArray pdf = contentOf(stem + ".pdf");
        EXPECT_EQ(pdf, contentOf(stem + ".txt")) << "both files of a number are of one job";
        contents.insert(pdf);
    }
    EXPECT_EQ(contents.size(), kProcesses * kJobs) << "no job was overwritten";
    EXPECT_EQ(jobs().size(), 2 * kProcesses * kJobs) << "nothing unfinished is left";
}

} // namespace
