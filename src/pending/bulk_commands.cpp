// Bulk commands: each takes one entry after the other through the details, without their screen.
// So a save does here what it does there.
#include "pending/pending.h"
#include "pending/pending_working.h"
#include "records/status_words.h"
#include "records/trace.h"

#include <utility>

namespace pending {

using namespace records;

namespace {

/// For the details without a window.
class NoScreen : public details::EntryView, public platform::WindowlessView {
public:
    void refresh(const details::EntryFields &) override {}
    void focusTip() override {}
    std::optional<std::string> choosePrinter(const std::vector<std::string> &,
                                             const std::string &) override
    {
        return std::nullopt;
    }
};

/// False for a slot past the end of a file that is shorter by now than when it was listed, and for
/// one that is empty by now: a save would make an entry there.
bool isThere(const details::EntryDetails &entry)
{
    return !entry.state().boxes[details::Box::Status].empty();
}

constexpr const char *kForceCompleted =
    "Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be "
    "batched out.";
constexpr const char *kOnlyIfBatched =
    " Only do this if you are sure these transactions have been batched out already.";

} // namespace

void Pending::forceAllNoTip()
{
    const Working here(*this, Work::Changes);
    if (!here)
        return;
    // The mouse leaves the command for the question without an event of its own.
    if (fields.notice == kNoTipHint)
        fields.noticeVisible = false;
    show();
    const platform::Answer answer = app.dialogs.message(
        "FORCE ALL NO TIP",
        "Are you sure, All entries will be marked no tip and be ready to finiliaze",
        platform::Buttons::OkCancel);
    if (answer == platform::Answer::Ok && view.closeEntry()) {
        trace("     ***  USER CLICKED FORCE ALL NO TIPS  ***");
        driveEntries([](details::EntryDetails &entry) { entry.forceNoTip(); });
    }
    app.values.editMode = "DO NOT KEEP";
}

void Pending::markAllCompleted()
{
    forceAllCompleted(std::string(kForceCompleted) + kOnlyIfBatched);
}

void Pending::markAllCompletedByPicture()
{
    forceAllCompleted(kForceCompleted);
}

// Kept: declined rows are marked too, and "Finish" then archives them; the edit mode stays "KEEP".
void Pending::forceAllCompleted(const std::string &question)
{
    const Working here(*this, Work::Changes);
    if (!here)
        return;
    enable(Command::Process, true);
    fields.commands[Command::Finish].visible = true;
    fields.commands[Command::Process].visible = false;
    show();
    trace("     ***  USER CLICKED FORCE ALL COMPLETED ***");
    const platform::Answer answer =
        app.dialogs.message("FORCE ALL COMPLETED", question, platform::Buttons::OkCancel);
    if (answer != platform::Answer::Ok || !view.closeEntry())
        return trace("     ***  USER CLICKED CANCEL  ***");
    trace("     ***  USER CLICKED OK DO IT  ***");
    driveEntries([](details::EntryDetails &entry) {
        entry.setStatus(kCompleted);
        entry.saveAndClose();
    });
}

/// The slots are noted before the first save: its reload puts the rows back into the order of the
/// file, and a walk by index would then take one entry twice and miss another.
void Pending::driveEntries(const std::function<void(details::EntryDetails &)> &step)
{
    std::vector<long> slots;
    for (const reports::ListRow &row : shownRows)
        slots.push_back(row.slot);
    app.values.editMode = "KEEP";
    NoScreen nobody;
    details::EntryCallbacks callbacks;
    callbacks.reloadPending = [this] { reloadQuietly(); };
    details::EntryDetails entry(app, printer, nobody, callbacks);
    for (const long slot : slots) {
        if (app.ending())
            break;
        entry.open(fields.file, slot, "PEND");
        if (isThere(entry))
            step(entry);
        else
            loadAgain = true; // the manager must see which entries are left
        if (progress.due())
            showProgress(slot);
        app.glance();
    }
    showQuietlyLoaded();
}

/// The file is read and logged after each save; the screen shows only the last reading, at the end.
void Pending::reloadQuietly()
{
    if (!saved)
        saved.emplace();
    saved->take(readRecords());
    if (app.ending())
        return;
    takeTotals(saved->totals());
    traceList(saved->totals().listed);
}

void Pending::showQuietlyLoaded()
{
    const std::optional<RunningTotals> last = std::exchange(saved, std::nullopt);
    if (!last || app.ending())
        return;
    ListBuilder fresh(app.clock.now());
    long slot = 0;
    for (const CardRecord &record : last->file())
        fresh.add(++slot, record);
    fields.recordRead = std::to_string(last->file().size());
    clearList();
    takeRows(fresh);
    Enable_Buttons();
    show();
}

} // namespace pending
