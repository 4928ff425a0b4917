// The manager's list with 10,000 records: loading and showing them on a display, in turns with
// reading the file and building the rows without one, and with a plain read of the same bytes; and
// the time until another order of the rows is visible.
#include "bench/headless.h"
#include "bench/measure.h"
#include "bench/no_view.h"
#include "pending/XchargePend.h"
#include "platform/qt/mlist.h"
#include "platform/qt/screen.h"
#include "records/card_files.h"
#include "records/configuration.h"
#include "roles/application.h"
#include "simulator/process.h"
#include "simulator/records_generator.h"
#include "simulator/sandbox.h"

#include <QApplication>
#include <QRadioButton>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace bench;

constexpr std::size_t kRecords = 10'000;
constexpr std::size_t kSlot = records::kCardSlotLength;
constexpr std::size_t kBlock = 65'536;
const std::string kFile = "F:\\Lumbrio\\CCPending.dat";

/// Reads the bytes slot by slot, or in larger pieces of `piece` bytes, without using them. Gives
/// their number.
std::size_t readPlainly(const std::string &path, std::size_t piece)
{
    std::vector<char> bytes(piece);
    std::size_t got = 0;
    std::FILE *file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return 0;
    for (std::size_t one = 0; (one = std::fread(bytes.data(), 1, piece, file)) > 0;)
        got += one;
    std::fclose(file);
    return got;
}

/// The work of the list, without a window and without waits.
class Blind {
public:
    explicit Blind(Headless &station)
        : app(station.app), printer(station.printers), list(app, printer, view)
    {
        app.values.Maindir = simulator::kSandboxMaindir;
        app.values.Remotedir = simulator::kSandboxRemotedir;
    }
    void load() { list.refresh(); }
    std::size_t rows() const { return list.rows().size(); }

private:
    records::App &app;
    printing::Printer printer;
    NoView view;
    pending::Pending list;
};

/// Counts what is painted of a widget.
class Paints : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

/// The manager's program on a display, with its list open.
class Manager {
public:
    Manager() : app(program.services()), printer(app.printers), list(app, printer, {})
    {
        records::Get_INI(app);
        records::fillEmptyDirectories(app);
        list.resize(1024, 768);
        list.show();
        list.fillList();
        for (int turn = 0; turn < 100; ++turn)
            app.yield();
        rowsShown().viewport()->installEventFilter(&paints);
    }

    std::size_t rows() const { return rowsShown().rows().rows().size(); }
    /// False when the rows were not painted.
    bool load()
    {
        list.fillList();
        return paint();
    }
    bool sort(int option)
    {
        const QString name = QStringLiteral("SSOption1_%1").arg(option);
        list.findChild<QRadioButton *>(name)->click();
        return paint();
    }

private:
    platform::MList &rowsShown() const { return *list.findChild<platform::MList *>(); }
    bool paint()
    {
        const int before = paints.count;
        list.paintNow();
        return paints.count > before;
    }

    roles::Program program;
    records::App app;
    printing::Printer printer;
    pending::XchargePend list;
    Paints paints;
};

void benchLoad(Headless &station, Manager &manager, Report &report)
{
    Blind blind(station);
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_LOADS", 40);
    const std::string path = station.files.realPath(kFile);
    Series plain, blocks, built, shown;
    bool whole = true;
    const auto timed = [](Series &series, const auto &act) {
        const Instant start = now();
        act();
        series.add(millisecondsSince(start));
    };
    std::minstd_rand random;
    std::array<int, 4> order = {0, 1, 2, 3};
    for (int round = 0; round < rounds; ++round) {
        std::shuffle(order.begin(), order.end(), random);
        for (const int one : order) {
            if (one == 0)
                timed(plain, [&] { whole &= readPlainly(path, kSlot) == kRecords * kSlot; });
            else if (one == 1)
                timed(blocks, [&] { whole &= readPlainly(path, kBlock) == kRecords * kSlot; });
            else if (one == 2)
                timed(built, [&] { blind.load(); });
            else
                timed(shown, [&] { whole &= manager.load(); });
        }
        whole &= blind.rows() == kRecords && manager.rows() == kRecords;
    }
    if (!whole)
        report.fail("not every record was read or shown");
    report.line("plain read, slot by slot", plain, "ms");
    report.line("plain read, 64 KB at a time", blocks, "ms");
    report.line("read and built, no screen", built, "ms");
    report.line("loaded and shown", shown, "ms");
    report.atMost("read and built / plain read", ratios(built, plain).median(), 10, "median ratio");
    report.atMost("loaded and shown / read and built", ratios(shown, built).median(), 3,
                  "median ratio");
}

void benchSort(Manager &manager, Report &report)
{
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_SORTS", 10);
    Series sorted;
    bool painted = true;
    for (int round = 0; round < rounds; ++round) {
        for (const int option : {1, 3, 4, 5, 6, 0}) {
            const Instant start = now();
            painted &= manager.sort(option);
            sorted.add(millisecondsSince(start));
        }
    }
    if (!painted)
        report.fail("another order was not painted");
    report.line("sorted, coloured and shown", sorted, "ms");
    report.atMost("sorted, coloured and shown, 95 %", sorted.percentile(95), 100, "ms");
}

} // namespace

int main(int argc, char **argv)
{
    const WorkFolder work;
    Report report("The manager's list of 10,000 records");
    Headless station(work.path());
    if (!simulator::makeSandbox(station.files, work.path(),
                                simulator::ownFolder() + "/sim_xcharge") ||
        !done(simulator::writeCardFile(station.files, kFile, simulator::Evening(kRecords)))) {
        report.fail("no sandbox");
        return report.result();
    }
    ::setenv("LUMBRIO_DRIVES", work.path().c_str(), 1);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    platform::applyTheme(application);
    Manager manager;
    benchLoad(station, manager, report);
    benchSort(manager, report);
    return report.result();
}
