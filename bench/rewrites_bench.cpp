// The manager's long commands: "Force ALL NO TIP" with a list of 3,000 entries, and "Finish" with a
// file of 10,000 records, and for how long another station's append could miss the new file.
#include "bench/headless.h"
#include "bench/measure.h"
#include "bench/no_view.h"
#include "pending/completing.h"
#include "records/card_files.h"
#include "simulator/records_generator.h"
#include "simulator/sandbox.h"
#include "support/faulty_disk.h"

#include <filesystem>

namespace {

using namespace bench;

constexpr long kEntries = 3'000;
constexpr long kRecords = 10'000;

/// Answers Ok to every question.
class Agreeing : public NoDialogs {
public:
    using NoDialogs::NoDialogs;

protected:
    platform::Answer ask(const std::string &, const std::string &, platform::Buttons) override
    {
        return platform::Answer::Ok;
    }
};

/// The manager's program without a window, on a disk that reports every operation.
struct Manager {
    explicit Manager(const std::string &folder) : station(folder)
    {
        app.values.Maindir = simulator::kSandboxMaindir;
        app.values.Remotedir = simulator::kSandboxRemotedir;
        for (const std::string &directory : {app.values.Maindir, app.values.Remotedir})
            for (const char *path : {"data\\CCdata", "Data\\CCmgrLOGS"})
                create_directories(std::filesystem::path(files.realPath(directory + path)));
        pendingFile = records::pendingFile(app.values);
    }
    bool begin(long records)
    {
        return done(simulator::writeCardFile(
            files, pendingFile, simulator::Evening(static_cast<std::size_t>(records))));
    }

    Headless station;
    support::FaultyDisk disk{*station.disk};
    platform::Files files{disk, station.drives, station.run};
    Agreeing dialogs{station.run};
    records::App app{{station.run, files, station.clock, dialogs, *station.system, station.printers,
                      station.installation}};
    printing::Printer printer{station.printers};
    NoView view;
    std::string pendingFile;
};

/// In turns with only rewriting and flushing the same records.
void benchBulk(Manager &manager, Report &report)
{
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_BULK", 5);
    Series all, rewrites, besides;
    for (int round = 0; round < rounds; ++round) {
        pending::Pending list(manager.app, manager.printer, manager.view);
        if (!manager.begin(kEntries))
            return report.fail("no card file");
        list.refresh();
        Instant start = now();
        list.forceAllNoTip();
        all.add(millisecondsSince(start) / 1000);
        long forced = 0;
        for (const reports::ListRow &row : list.rows())
            forced += reports::columnOf(row.text, 6).starts_with("Adjusted - Pending") ? 1 : 0;
        if (forced != kEntries)
            report.fail("an entry was passed over");
        start = now();
        for (long slot = 1; slot <= kEntries; ++slot) {
            records::CardRecord record;
            records::readRecord(manager.app, manager.pendingFile, slot, record);
            records::replaceRecord(manager.app, manager.pendingFile, slot, record, {});
        }
        rewrites.add(millisecondsSince(start) / 1000);
        besides.add(all[all.size() - 1] - rewrites[rewrites.size() - 1]);
    }
    report.line("3,000 entries forced to no tip", all, "s");
    report.line("3,000 records read, rewritten and flushed", rewrites, "s");
    report.atMost("what the command takes besides", besides.median(), 3, "s");
}

/// The instants at which a rename, and the operations before and after it, began.
struct Replacement {
    Instant lastLook;
    Instant renamed;
    Instant lookedAfter;
    bool seen = false;
};

Replacement finish(Manager &manager)
{
    std::vector<Instant> begun;
    std::size_t rename = 0;
    manager.disk.before = [&](std::size_t) {
        if (manager.disk.operationLog().back().find(" rename ") != std::string::npos)
            rename = begun.size();
        begun.push_back(now());
    };
    const platform::ErrorsIgnored ignored(manager.station.run);
    const platform::Outcome outcome = pending::finishPending(manager.app, {});
    manager.disk.before = {};
    if (!done(outcome) || rename == 0 || rename + 3 >= begun.size())
        return {};
    return {begun[rename - 1], begun[rename + 1], begun[rename + 3], true};
}

void benchFinish(Manager &manager, Report &report)
{
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_FINISHES", 40);
    Series all, renaming, after;
    for (int round = 0; round < rounds; ++round) {
        if (!manager.begin(kRecords) ||
            !done(records::setEveryStatus(manager.app, manager.pendingFile, "Completed")))
            return report.fail("no card file");
        const Instant start = now();
        const Replacement replacement = finish(manager);
        all.add(millisecondsSince(start));
        if (!replacement.seen)
            return report.fail("not finished");
        renaming.add(millisecondsBetween(replacement.lastLook, replacement.renamed));
        after.add(millisecondsBetween(replacement.lastLook, replacement.lookedAfter));
    }
    report.line("10,000 records moved to the month file", all, "ms");
    report.line("last look at the old file until renamed", renaming, "ms");
    report.line("the same until looked at once more after it", after, "ms");
}

} // namespace

int main()
{
    const WorkFolder work;
    Report report("Long commands of the manager");
    if (!work.isOnDisk())
        report.fail("the files are kept in memory");
    Manager manager(work.path());
    benchBulk(manager, report);
    benchFinish(manager, report);
    return report.result();
}
