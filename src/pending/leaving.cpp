// Leaving the list: "Finish", "Done", and the commands that move a day or the declines out of it.
#include "pending/completing.h"
#include "pending/pending.h"
#include "pending/pending_working.h"
#include "records/backups.h"
#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/flag_files.h"

#include <chrono>

namespace pending {

using namespace records;
using namespace std::chrono_literals;
using platform::Outcome;

namespace {

constexpr std::uint32_t kLongestExit = 60'000; // ms
constexpr const char *kUpdating = "Updating Data File - Just a momnet Please";
constexpr const char *kRewriteDone = "Operation is completed";

} // namespace

/// For a walk under the lock, in which no event may run.
std::function<void(long)> Pending::slotsShown()
{
    return [this](long slot) {
        if (progress.due())
            showProgress(slot);
    };
}

void Pending::finish()
{
    if (const Working here(*this, Work::Changes); here && view.closeEntry())
        runFinish();
}

void Pending::runFinish()
{
    const platform::ErrorsIgnored ignored(app.run);
    enable(Command::Done, false);
    Disable_Buttons();
    panel(kUpdating);
    const Outcome outcome = finishPending(app, slotsShown());
    for (const std::string &failure : backUpPending(app, kBackup).failures)
        trace(failure);
    if (!done(outcome))
        trace("  FINISH NOT DONE - " + std::string(textOf(outcome)) + " - " +
              pendingFile(app.values));
    if (leaving != "EXIT")
        loadList();
    if (!done(outcome))
        return tellNotFinished(textOf(outcome));
    endOfRewrite();
    leaving = kRewriteDone;
}

/// "Done" goes on waiting after it, so the manager has a minute to read it; then the program ends.
void Pending::tellNotFinished(const std::string &reason)
{
    panel("The data file could not be updated (" + reason + "). No entry is lost. Please " +
          (leaving == "EXIT" ? "start the program again, it ends in a minute." : "try again."));
}

void Pending::endOfRewrite()
{
    Enable_Buttons();
    fields.commands[Command::Finish].visible = false;
    fields.commands[Command::Process].visible = true;
    fields.batchQuestionVisible = false;
    panel(kRewriteDone);
    Make_Sound();
}

void Pending::leave()
{
    const Working here(*this);
    if (!here || !view.closeEntry())
        return;
    for (const Command command : {Command::Done, Command::Process, Command::Refresh, Command::Print,
                                  Command::Finish, Command::Archive})
        enable(command, false);
    trace("     ***  USER CLICKED DONE  ***");
    if (app.values.lookOnly)
        return app.end();
    view.setBusyPointer(true);
    Disable_Buttons();
    panel("Updating Data - Just a Moment Please");
    Pause(app, 250ms);
    leaving = "EXIT";
    runFinish();
    exitTimer.setInterval(kLongestExit);
    while (leaving == "EXIT" && !app.ending()) {
        enable(Command::Done, false);
        app.yield();
    }
    panel("Backing up Data = Please Wait");
    Pause(app, 1500ms);
    if (app.values.Remotedir.empty())
        app.values.Remotedir = "C:\\Lumbrio\\";
    app.files.removeIfThere(batchMarker(app.values));
    app.end();
}

void Pending::exitExpired()
{
    exitTimer.setInterval(0);
    leaving = "Expired";
}

void Pending::markDayCompleted()
{
    const Working here(*this, Work::Changes);
    if (!here || !view.closeEntry())
        return;
    const std::string typed = app.dialogs
                                  .input(" enter date ", "Enter the date of transactions to move",
                                         Format(app.clock.now(), "MM/DD/YYYY"))
                                  .value_or("");
    fields.commands[Command::Finish].visible = false;
    fields.commands[Command::Process].visible = false;
    Disable_Buttons();
    panel(kUpdating);
    markCompleted(app, typed, slotsShown());
    if (app.ending())
        return;
    loadList();
    endOfRewrite();
}

void Pending::deleteDeclines()
{
    const Working here(*this, Work::Changes);
    if (!here || !view.closeEntry())
        return;
    panel("Backing up Data File - Just a moment Please");
    backUpPending(app, kBatchBackup);
    moveDeclines(app, slotsShown());
    if (app.ending())
        return;
    loadList();
    // After the load, whose colour passes would hide it.
    panel("all declines have been deleted");
}

} // namespace pending
