#include "records/kept_records.h"

#include "platform/patience.h"
#include "records/careful_append.h"
#include "records/trace.h"
#include "records/transaction_search.h"

#include <algorithm>

namespace records {

namespace {

using platform::Outcome;

constexpr std::string_view kBeginning = "keptrecord-";
constexpr std::string_view kFresh = ".dat";
constexpr std::string_view kClaimed = ".claimed";
constexpr std::size_t kMostKept = 4096; // bytes: a path and a slot

struct Kept {
    std::string target;
    CardRecord record;
};

/// One line with the target's path, then the slot.
std::string keptText(const std::string &target, const CardRecord &record)
{
    return platform::textLine(target) + wholeSlot(record);
}

bool parseKept(std::string_view content, Kept &kept)
{
    const std::size_t end = content.find("\r\n");
    if (end == std::string_view::npos || end == 0 || content.size() != end + 2 + kCardSlotLength)
        return false;
    kept.target = content.substr(0, end);
    std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(end) + 2, CardRecord::kSize,
                kept.record.data().begin());
    return true;
}

/// Whether the path is one of the card files in `Remotedir`: the kept file could name any other.
bool isCardFile(const ProcessValues &values, const std::string &target)
{
    constexpr std::string_view kMonth = "MMYY";
    for (const std::string_view ahead : {"\\data\\CCFinal", "\\data\\"}) {
        const std::size_t at = values.Remotedir.size() + ahead.size();
        const std::string digits = at < target.size() ? target.substr(at, kMonth.size()) : "";
        platform::DateTime month;
        month.month = wholeNumber(Left(digits, 2));
        month.year = 2000 + wholeNumber(Right(digits, 2));
        if (month.month >= 1 && month.month <= 12 &&
            (target == monthFile(values, month) || target == deletedFile(values, month)))
            return true;
    }
    return target == pendingFile(values);
}

void trace(App &app, const std::string &what)
{
    traceProcess(app, {"  KEPT RECORD " + what});
    traceLog(app, {"KEPT RECORD " + what});
}

std::string describe(const CardRecord &record)
{
    return "receipt " + record.text(CCReceipt) + ", amount " + record.text(CCTabAmt) + ", code " +
           record.text(CApprovalCode);
}

/// Whether the file is there, or at least the folder of the other card files. When the share is
/// gone, an empty folder may be in its place, and a new file there would be hidden when the share
/// comes back.
Outcome placeOf(App &app, const std::string &target)
{
    bool there = false;
    const Outcome outcome = app.files.exists(target, there);
    if (!done(outcome))
        return outcome;
    return there || app.files.folderExists(app.values.Remotedir + "data") ? Outcome::Done
                                                                          : Outcome::NotThere;
}

/// Appends only under the lock and waits for it, because there is no hurry here.
Outcome storeUnderLock(App &app, const Kept &kept)
{
    Outcome outcome = placeOf(app, kept.target);
    if (!done(outcome))
        return outcome;
    platform::SlotFile slots(app.files, kept.target, kCardSlotLength);
    outcome = slots.open(platform::SlotUse::Append);
    if (done(outcome))
        outcome = platform::patiently(app.run, platform::Wait::CardFileLock,
                                      [&slots] { return slots.lock(); });
    return done(outcome) ? appendAndClose(slots, kept.record).outcome : outcome;
}

/// If not Done, the record stays kept.
Outcome storeOnce(App &app, const Kept &kept)
{
    const Sighting sighting = findTransaction(app, kept.record, kept.target);
    if (!done(sighting.outcome))
        return sighting.outcome;
    const std::string &file = sighting.found() ? sighting.file : kept.target;
    const Outcome outcome = sighting.found() ? flushRecord(app, file, sighting.slot, kept.record)
                                             : storeUnderLock(app, kept);
    if (done(outcome))
        trace(app, (sighting.found() ? "stands in its file already - " : "stored - ") +
                       describe(kept.record) + " - " + file);
    return outcome;
}

/// A kept file while one program works on it: locked, then renamed. A file that another program has
/// claimed is not touched.
class Claim {
public:
    Claim(App &theApp, const std::string &thePath) : app(theApp), path(thePath) {}

    /// Locked or NotThere: another program is working on it, or has finished it.
    Outcome take()
    {
        Outcome outcome = app.files.open(path, platform::OpenMode::ReadWrite, file);
        if (done(outcome))
            outcome = app.files.lock(path, platform::OpenMode::ReadWrite, file);
        // If it was claimed before, the program that did is dead, because the lock was free.
        if (!done(outcome) || path.ends_with(kClaimed))
            return outcome;
        const std::string claimed = path + std::string(kClaimed);
        outcome = app.files.rename(path, claimed);
        if (done(outcome))
            path = claimed;
        return outcome;
    }
    void store(KeptRecords &result, Outcome &lastOutcome)
    {
        std::string content;
        Kept kept;
        const Outcome read = app.files.read(path, content, kMostKept);
        if (done(read) && content.empty()) { // stored, but not removed
            app.files.removeIfThere(path);
            return;
        }
        if (!done(read) || !parseKept(content, kept) || !isCardFile(app.values, kept.target)) {
            ++result.unreadable;
            trace(app, "cannot be read - " + path);
            return;
        }
        // A card file that failed for one record will fail for the next.
        const Outcome outcome = done(lastOutcome) ? storeOnce(app, kept) : lastOutcome;
        lastOutcome = outcome;
        if (done(outcome)) {
            ++result.stored;
            if (!done(app.files.removeIfThere(path)))
                app.files.write(path, {}); // else it would be stored again after a move
            return;
        }
        result.waiting.push_back(kept.record);
        trace(app, "waits - " + std::string(platform::textOf(outcome)) + " - " +
                       describe(kept.record) + " - " + path);
    }

private:
    App &app;
    std::string path;
    std::unique_ptr<platform::DiskFile> file;
};

bool isKept(const std::string &name)
{
    const std::string small = toLower(name);
    return small.starts_with(kBeginning) && (small.ends_with(kFresh) || small.ends_with(kClaimed));
}

} // namespace

std::string stationDataFolder(App &app)
{
    std::string folder = app.values.Maindir + "Data\\";
    app.files.makeFolder(folder);
    return folder;
}

std::string keepRecord(App &app, const std::string &target, const CardRecord &record,
                       Outcome &outcome)
{
    const platform::ErrorsIgnored ignored(app.run);
    std::string path;
    outcome = app.files.writeNew(stationDataFolder(app) + "KeptRecord-" + stampOf(app.clock.now()),
                                 ".dat", keptText(target, record), path);
    if (!done(outcome) && app.files.exists(path))
        outcome = Outcome::Done; // not flushed, but whole
    trace(app, done(outcome) ? "written - " + describe(record) + " - " + path
                             : "NOT WRITTEN - " + std::string(platform::textOf(outcome)) + " - " +
                                   describe(record) + " - " + path);
    return done(outcome) ? path : std::string();
}

KeptRecords storeKeptRecords(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    KeptRecords result;
    const std::string folder = app.values.Maindir + "Data\\";
    std::vector<std::string> names;
    const Outcome listed = app.files.list(folder, names);
    if (!done(listed) && listed != Outcome::NotThere) {
        ++result.unreadable;
        trace(app, "may wait - " + std::string(platform::textOf(listed)) + " - " + folder);
    }
    Outcome lastOutcome = Outcome::Done;
    for (const std::string &name : names) {
        if (!isKept(name))
            continue;
        Claim claim(app, folder + name);
        const Outcome taken = claim.take();
        if (done(taken))
            claim.store(result, lastOutcome);
        else if (taken != Outcome::Locked && taken != Outcome::NotThere)
            ++result.unreadable;
    }
    return result;
}

} // namespace records
