#include "pending/completing.h"

#include "details/entry_record.h"
#include "pending/pending_list.h"
#include "records/card_files.h"
#include "records/card_rewrite.h"

namespace pending {

using namespace records;
using platform::Outcome;

namespace {

Fate fateAtFinish(CardRecord &copy)
{
    copy.set(CCAdjStatus, copy.text(CCAdjStatus));
    copy.set(CCNumb, copy.text(CCNumb));
    details::encodePlainNumber(copy);
    if (isSettled(copy))
        return Fate::Moves;
    return isListed(copy) ? Fate::Stays : Fate::Vanishes;
}

Fate fateOfDay(App &app, const std::string &date, CardRecord &copy)
{
    const int wanted = dayOf(date);
    const int day = dayOf(copy.raw(CCDate));
    // Kept: a text that is no date ends the program, a Cancel too, and the batch marker stays.
    if (wanted == 0)
        app.run.fail("This is not a date: \"" + date + "\"");
    const bool emptySlot = !isListed(copy) && copy.isEmpty(CCDate);
    if (day == 0 && !emptySlot)
        app.run.fail("The date of a record is not a date: \"" + copy.text(CCDate) + "\"");
    if (day == 0 || day != wanted)
        return Fate::Stays;
    copy.set(CCAdjStatus, "Completed");
    return Fate::Moves;
}

Fate fateOfDecline(const CardRecord &copy)
{
    return startsWith(copy.text(CCstatus), "Decl") ? Fate::Moves : Fate::Stays;
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
                                 .writesBack = true,
                                 .worksUnlocked = true,
                                 .progress = progress});
}

Outcome markCompleted(App &app, const std::string &date, const Progress &progress)
{
    return rewriteCardFile(app,
                           {.file = pendingFile(app.values),
                            .target = monthFile(app.values, app.clock.now()),
                            .workFile = workFile(app),
                            .fateOf = [&](CardRecord &copy) { return fateOfDay(app, date, copy); },
                            .progress = progress});
}

Outcome deleteDeclines(App &app, const Progress &progress)
{
    const platform::DateTime now = app.clock.now();
    return rewriteCardFile(
        app, {.file = pendingFile(app.values),
              .target = deletedFile(app.values, now),
              .workFile = app.values.Remotedir + "CCPending.TMP" + Format(now, "MMYY") + ".dat",
              .fateOf = fateOfDecline,
              .progress = progress});
}

Outcome backUpPending(App &app, const std::string &name)
{
    const ProcessValues &values = app.values;
    const std::string source = values.Remotedir + "CCpending.dat";
    if (!app.files.exists(source))
        return Outcome::NotThere;
    const std::string copy = "data\\CCdata\\" + Format(app.clock.now(), "MMDDYYYYHHMMSS") + name;
    Outcome outcome = app.files.copy(source, values.Remotedir + copy);
    if (values.Maindir != values.Remotedir) {
        const Outcome second = app.files.copy(source, values.Maindir + copy);
        outcome = done(outcome) ? second : outcome;
    }
    return outcome;
}

} // namespace pending
