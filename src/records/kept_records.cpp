#include "records/kept_records.h"

#include "platform/patience.h"
#include "records/card_files.h"
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

void tell(App &app, const std::string &what)
{
    traceProcess(app, {"  KEPT RECORD " + what});
    traceLog(app, {"KEPT RECORD " + what});
}

std::string describe(const CardRecord &record)
{
    return "receipt " + record.text(CCReceipt) + ", amount " + record.text(CCTabAmt) + ", code " +
           record.text(CApprovalCode);
}

/// Appended under the lock, which is waited for: nothing presses here.
Outcome storeUnderLock(App &app, const Kept &kept)
{
    platform::SlotFile slots(app.files, kept.target, kCardSlotLength);
    Outcome outcome = slots.open(platform::SlotUse::Append);
    if (done(outcome))
        outcome = platform::patiently(app.run, platform::Wait::CardFileLock,
                                      [&slots] { return slots.lock(); });
    return done(outcome) ? appendAndClose(slots, kept.record).outcome : outcome;
}

/// Not Done: it waits on.
Outcome storeOnce(App &app, const Kept &kept)
{
    const Sighting sighting = findTransaction(app, kept.record, kept.target);
    if (!done(sighting.outcome))
        return sighting.outcome;
    if (sighting.found()) {
        tell(app, "stands in its file already - " + describe(kept.record) + " - " + sighting.file);
        return Outcome::Done;
    }
    const Outcome outcome = storeUnderLock(app, kept);
    if (done(outcome))
        tell(app, "stored - " + describe(kept.record) + " - " + kept.target);
    return outcome;
}

/// One file in the hands of whoever claims it: locked, then renamed. Another's is left alone.
class Claim {
public:
    Claim(App &theApp, const std::string &thePath) : app(theApp), path(thePath) {}

    bool take()
    {
        if (!done(app.files.open(path, platform::OpenMode::ReadWrite, file)) ||
            !done(app.files.lock(path, platform::OpenMode::ReadWrite, file)))
            return false;
        if (path.ends_with(kClaimed)) // whoever claimed it before is dead: the lock was free
            return true;
        const std::string claimed = path + std::string(kClaimed);
        if (!done(app.files.rename(path, claimed)))
            return false;
        path = claimed;
        return true;
    }
    void store(KeptRecords &result)
    {
        std::string content;
        Kept kept;
        if (!done(app.files.read(path, content, kMostKept)) || !parseKept(content, kept)) {
            ++result.unreadable;
            tell(app, "cannot be read - " + path);
            return;
        }
        const Outcome outcome = storeOnce(app, kept);
        if (done(outcome)) {
            ++result.stored;
            app.files.removeIfThere(path);
            return;
        }
        result.waiting.push_back(kept.record);
        tell(app, "waits - " + std::string(platform::textOf(outcome)) + " - " +
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
    const std::string path = app.files.freeName(
        stationDataFolder(app) + "KeptRecord-" + stampOf(app.clock.now()), ".dat");
    outcome = app.files.replaceWhole(path, keptText(target, record));
    if (!done(outcome) && app.files.exists(path))
        outcome = Outcome::Done; // not flushed, yet whole
    tell(app, done(outcome) ? "written - " + describe(record) + " - " + path
                            : "NOT WRITTEN - " + std::string(platform::textOf(outcome)) + " - " +
                                  describe(record) + " - " + path);
    return done(outcome) ? path : std::string();
}

KeptRecords storeKeptRecords(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    KeptRecords result;
    const std::string folder = app.values.Maindir + "Data\\";
    for (const std::string &name : app.files.list(folder)) {
        Claim claim(app, folder + name);
        if (isKept(name) && claim.take())
            claim.store(result);
    }
    return result;
}

} // namespace records
