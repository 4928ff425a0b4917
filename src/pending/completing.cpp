#include "pending/completing.h"

#include "details/entry_record.h"
#include "pending/pending_list.h"
#include "records/card_files.h"
#include "records/card_rewrite.h"

namespace pending {

using namespace records;
using platform::Outcome;

namespace {

Fate fateAtFinish(const CardRecord &record)
{
    if (isSettled(record))
        return Fate::Moves;
    return isListed(record) ? Fate::Stays : Fate::Vanishes;
}

void tidyAndScramble(CardRecord &copy, Fate)
{
    copy.set(CCAdjStatus, copy.text(CCAdjStatus));
    copy.set(CCNumb, copy.text(CCNumb));
    details::encodePlainNumber(copy);
}

Fate fateOfDay(App &app, const std::string &date, const CardRecord &record)
{
    const int wanted = dayOf(date);
    const int day = dayOf(record.raw(CCDate));
    // Kept: a text that is no date ends the program, a Cancel too, and the batch marker stays.
    if (wanted == 0)
        app.run.fail("This is not a date: \"" + date + "\"");
    const bool emptySlot = !isListed(record) && record.isEmpty(CCDate);
    if (day == 0 && !emptySlot)
        app.run.fail("The date of a record is not a date: \"" + record.text(CCDate) + "\"");
    return day != 0 && day == wanted ? Fate::Moves : Fate::Stays;
}

void completeTheMoving(CardRecord &copy, Fate fate)
{
    if (fate == Fate::Moves)
        copy.set(CCAdjStatus, "Completed");
}

Fate fateOfDecline(const CardRecord &record)
{
    return startsWith(record.text(CCstatus), "Decl") ? Fate::Moves : Fate::Stays;
}

std::string workFile(const App &app)
{
    return app.values.Remotedir + "CCPending.Tmp";
}

} // namespace

Outcome finishPending(App &app, const Progress &progress)
{
    return rewriteCardFile(app, {.file = pendingFile(app.values),
                                 .target = monthFile(app.values, app.clock.now()),
                                 .workFile = workFile(app),
                                 .fateOf = fateAtFinish,
                                 .change = tidyAndScramble,
                                 .worksUnlocked = true,
                                 .progress = progress});
}

Outcome markCompleted(App &app, const std::string &date, const Progress &progress)
{
    return rewriteCardFile(
        app, {.file = pendingFile(app.values),
              .target = monthFile(app.values, app.clock.now()),
              .workFile = workFile(app),
              .fateOf = [&](const CardRecord &record) { return fateOfDay(app, date, record); },
              .change = completeTheMoving,
              .progress = progress});
}

Outcome moveDeclines(App &app, const Progress &progress)
{
    const platform::DateTime now = app.clock.now();
    return rewriteCardFile(
        app, {.file = pendingFile(app.values),
              .target = deletedFile(app.values, now),
              .workFile = app.values.Remotedir + "CCPending.TMP" + Format(now, "MMYY") + ".dat",
              .fateOf = fateOfDecline,
              .progress = progress});
}

Backup backUpPending(App &app, const std::string &name)
{
    const ProcessValues &values = app.values;
    const platform::DateTime now = app.clock.now();
    Backup backup{now, Format(now, "MMDDYYYYHHMMSS"), 0, {}};
    const std::string source = values.Remotedir + "CCpending.dat";
    if (values.lookOnly || !app.files.exists(source))
        return backup;
    std::vector<std::string> directories = {values.Remotedir};
    if (values.Maindir != values.Remotedir)
        directories.push_back(values.Maindir);
    for (const std::string &directory : directories) {
        std::string copy = directory + "data\\CCdata\\";
        copy.append(backup.stamp).append(name);
        const Outcome outcome = app.files.copy(source, copy);
        if (done(outcome))
            ++backup.copies;
        else
            backup.failures.push_back("  BACKUP NOT MADE - " + std::string(textOf(outcome)) +
                                      " - " + copy);
    }
    return backup;
}

} // namespace pending
