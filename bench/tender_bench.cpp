// A whole tender as the point of sale meets it: the real TndrCC, started in a sandbox on Qt's
// offscreen platform, with a payment application that answers at once, late or never. Everything is
// measured from outside. A bare Qt window runs in turns with it, for comparison.
#include "bench/headless.h"
#include "bench/measure.h"
#include "bench/watch.h"
#include "simulator/outcome_table.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace {

using namespace bench;
using std::chrono::milliseconds;

constexpr double kMandatedWaits = 100 + 500; // ms; before the request and after the kill
const std::string kApproved = "48.50";
const std::string kNoAnswer = "48.07";
const char *const kResultName = "xResultFile.txt";
const char *const kAnswerName = "Xsend.ans";
const char *const kTraceName = "CCLastProcess.dat"; // begun anew when the screen loads

class Sandbox {
public:
    explicit Sandbox(const std::string &theFolder)
        : folder(theFolder), station(theFolder), place(simulator::placeOf(station.files)),
          mainFolder(theFolder + "/c/Lumbrio"), spoolFolder(theFolder + "/spool/receipt")
    {
    }
    bool make()
    {
        return simulator::makeSandbox(station.files, folder,
                                      simulator::ownFolder() + "/sim_xcharge");
    }
    simulator::ChildProcess start(const std::string &amount)
    {
        std::error_code error;
        std::filesystem::remove(mainFolder + "/" + kResultName, error);
        simulator::leaveRequest(place, {"12", "1043", "7", amount, {}});
        return simulator::startTender(simulator::ownFolder() + "/TndrCC", folder, false, true);
    }
    bool answeredApproved()
    {
        const std::vector<std::string> answer = simulator::readAnswer(place);
        return !answer.empty() && answer.front().starts_with("Approved");
    }
    /// Writes the payment application's result as it does: under another name, then renamed.
    void leaveResult(const std::string &amount)
    {
        simulator::PaymentRequest request;
        request.transactionType = "PreAuth";
        request.amount = amount;
        const std::string path = mainFolder + "/" + kResultName;
        std::ofstream(path + ".part") << simulator::approvedResult(request);
        std::filesystem::rename(path + ".part", path);
    }

    const std::string folder;
    Headless station;
    simulator::Place place;
    const std::string mainFolder;
    const std::string spoolFolder;
};

bool isNamed(const FileEvent &event, std::string_view name)
{
    return event.name == name;
}

/// The figures of one tender's end, from the events of its files.
struct Moments {
    bool complete = false;
    double seen = 0;   // ms from the result file being there to its being opened
    double answer = 0; // ms from its being opened to the answer being flushed, folder included
    int slips = 0;     // on the spool printer's disk before the answer
    Instant loaded;    // the first file of the station touched: the window is shown
    Instant answered;  // the answer flushed
};

Moments momentsOf(Watch &watch)
{
    Moments moments;
    const auto arrival = [](std::string_view name) {
        return [name](const FileEvent &event) { return isArrival(event) && isNamed(event, name); };
    };
    const auto opening = [](std::string_view name) {
        return [name](const FileEvent &event) { return isOpening(event) && isNamed(event, name); };
    };
    const FileEvent *loaded = watch.first({}, opening(kTraceName));
    const FileEvent *there = watch.first({}, arrival(kResultName));
    if (loaded == nullptr || there == nullptr)
        return moments;
    const FileEvent *opened = watch.first(there->when, opening(kResultName));
    const FileEvent *answer = watch.first(there->when, arrival(kAnswerName));
    if (opened == nullptr || answer == nullptr)
        return moments;
    const FileEvent *flushed = watch.first(answer->when, isFolderClosed);
    if (flushed == nullptr)
        return moments;
    for (const FileEvent &event : watch.events())
        moments.slips +=
            event.when <= answer->when && isArrival(event) && event.name.ends_with(".pdf");
    moments.seen = millisecondsBetween(there->when, opened->when);
    moments.answer = millisecondsBetween(opened->when, flushed->when);
    moments.loaded = loaded->when;
    moments.answered = flushed->when;
    moments.complete = true;
    return moments;
}

Ending runBareWindow(Series &wall, Series &memory)
{
    const Instant start = now();
    const simulator::ChildProcess window(simulator::ownFolder() + "/bare_window", {},
                                         {"QT_QPA_PLATFORM=offscreen"}, false);
    Watch nothing({});
    const Ending ending = nothing.follow(window.id(), start + milliseconds(10'000));
    wall.add(millisecondsBetween(start, ending.when));
    memory.add(ending.peakMegabytes);
    return ending;
}

void benchWhole(Sandbox &sandbox, Report &report)
{
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_TENDERS", 60);
    Series wall, memory, processor, load, seen, answer, end, bareWall, bareMemory;
    for (int round = 0; round < rounds; ++round) {
        if (!runBareWindow(bareWall, bareMemory).ended)
            return report.fail("the bare window did not end");
        Watch watch({sandbox.mainFolder, sandbox.spoolFolder});
        const Instant start = now();
        simulator::ChildProcess tender = sandbox.start(kApproved);
        const Ending ending = watch.follow(tender.id(), start + milliseconds(20'000));
        const Moments moments = momentsOf(watch);
        tender.kill();
        if (ending.exitCode != 0 || !sandbox.answeredApproved() || !moments.complete ||
            moments.slips != 2)
            return report.fail("a tender did not end with two slips and its approval");
        wall.add(millisecondsBetween(start, ending.when) - kMandatedWaits);
        memory.add(ending.peakMegabytes);
        processor.add(ending.processorMilliseconds);
        load.add(millisecondsBetween(start, moments.loaded));
        end.add(millisecondsBetween(moments.answered, ending.when));
        seen.add(moments.seen);
        answer.add(moments.answer);
    }
    report.line("bare window, start to end", bareWall, "ms");
    report.line("tender, start to end but the waits", wall, "ms");
    report.atMost("tender, start to end but the waits", wall.median(), 100, "ms");
    report.line("start to the screen's load", load, "ms");
    report.line("answer flushed to end", end, "ms");
    report.line("processor time of a tender", processor, "ms");
    report.line("bare window, peak memory", bareMemory, "MB");
    report.line("tender, peak memory", memory, "MB");
    report.atMost("tender, peak memory", memory.percentile(100), 60, "MB");
    report.line("result there to result opened", seen, "ms");
    report.line("result opened to answer flushed", answer, "ms");
    report.atMost("result opened to answer flushed, 95 %", answer.percentile(95), 60, "ms");
}

/// The result comes at random moments, independent of the program's polls.
void benchReaction(Sandbox &sandbox, Report &report)
{
    const int rounds = countFromEnvironment("LUMBRIO_BENCH_LATE", 25);
    std::minstd_rand random;
    std::uniform_int_distribution<int> moment(1000, 1500); // ms, well inside the wait
    Series seen;
    for (int round = 0; round < rounds; ++round) {
        Watch watch({sandbox.mainFolder, sandbox.spoolFolder});
        const Instant start = now();
        simulator::ChildProcess tender = sandbox.start(kNoAnswer);
        watch.follow(tender.id(), start + milliseconds(moment(random)));
        sandbox.leaveResult(kApproved);
        const Ending ending = watch.follow(tender.id(), start + milliseconds(20'000));
        const Moments moments = momentsOf(watch);
        tender.kill();
        if (!ending.ended || !moments.complete)
            return report.fail("a tender did not see its late result");
        seen.add(moments.seen);
    }
    report.line("late result there to result opened", seen, "ms");
    report.atMost("late result there to result opened, worst", seen.percentile(100), 50, "ms");
}

void benchWaiting(Sandbox &sandbox, Report &report)
{
    constexpr milliseconds kSettled(2000);
    constexpr milliseconds kWait(10'000);
    Watch nothing({});
    const Instant start = now();
    simulator::ChildProcess tender = sandbox.start(kNoAnswer);
    nothing.follow(tender.id(), start + kSettled);
    const Instant from = now();
    const double before = processorMilliseconds(tender.id());
    const bool ended = nothing.follow(tender.id(), from + kWait).ended;
    const double used = processorMilliseconds(tender.id()) - before;
    const double percent = used / millisecondsSince(from) * 100;
    tender.kill();
    if (ended || before <= 0)
        return report.fail("the tender did not wait");
    report.atMost("processor time while it waits", percent, 5, "% of a core");
}

} // namespace

int main()
{
    const WorkFolder work;
    Sandbox sandbox(work.path());
    Report report("A tender from start to end");
    if (!work.isOnDisk() || !sandbox.make()) {
        report.fail("no sandbox on a disk; LUMBRIO_BENCH_FOLDER can name another place");
        return report.result();
    }
    benchWhole(sandbox, report);
    benchReaction(sandbox, report);
    benchWaiting(sandbox, report);
    return report.result();
}
