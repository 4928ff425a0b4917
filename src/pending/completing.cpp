#include "pending/completing.h"

#include "details/entry_record.h"
#include "pending/pending_list.h"
#include "records/card_files.h"
#include "records/card_rewrite.h"
#include "records/status_words.h"

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
    // Kept: a text that is not a date ends the program, so does Cancel, and the batch marker stays.
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
        copy.set(CCAdjStatus, kCompleted);
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

} // namespace pending
