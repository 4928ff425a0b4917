#include "records/card_rewrite.h"

#include "platform/work_file.h"
#include "records/card_files.h"

#include <algorithm>
#include <vector>

namespace records {

namespace {

using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;

class Rewriting {
public:
    Rewriting(App &theApp, const CardRewrite &theRewrite)
        : app(theApp), rewrite(theRewrite), live(app.files, rewrite.file, kCardSlotLength)
    {
    }

    Outcome run()
    {
        Outcome outcome = openLive();
        if (done(outcome))
            outcome = moveRecords();
        return done(outcome) ? replaceLive() : outcome;
    }

private:
    Outcome openLive()
    {
        Outcome outcome = app.files.createIfMissing(rewrite.file);
        if (done(outcome))
            outcome = live.open(SlotUse::Rewrite); // a write-protected file must stay as it is
        if (!done(outcome))
            return outcome;
        outcome = live.lock();
        const bool lockIgnored = rewrite.worksUnlocked && app.run.errorsIgnored();
        return lockIgnored ? Outcome::Done : outcome;
    }

    Outcome moveRecords()
    {
        SlotFile target(app.files, rewrite.target, kCardSlotLength);
        Outcome outcome = rewrite.target.empty() ? Outcome::Done : target.open(SlotUse::Append);
        if (target.isOpen() && !done(target.lock()) && !app.run.errorsIgnored())
            return Outcome::Locked;
        long count = 0;
        if (done(outcome))
            outcome = live.count(count);
        traceTail(app, live);
        for (long slot = 1; slot <= count && done(outcome); ++slot)
            outcome = decide(slot, target);
        const Outcome closed = target.close(); // unlocks, then flushes
        return done(outcome) ? closed : outcome;
    }

    Outcome decide(long slot, SlotFile &target)
    {
        CardRecord record;
        if (const Outcome outcome = live.read(slot, record.data()); !done(outcome))
            return outcome;
        const Fate fate = rewrite.fateOf(record);
        fates.push_back(fate);
        if (app.ending())
            return Outcome::Denied;
        const CardRecord copy = changed(record, fate);
        anyLeavesOrChanges = anyLeavesOrChanges || fate != Fate::Stays || !(copy == record);
        long landed = 0;
        return fate == Fate::Moves ? target.append(wholeSlot(copy), landed) : Outcome::Done;
    }

    CardRecord changed(CardRecord copy, Fate fate) const
    {
        if (rewrite.change)
            rewrite.change(copy, fate);
        return copy;
    }

    Outcome replaceLive()
    {
        if (!anyLeavesOrChanges)
            return Outcome::Done;
        const auto count = static_cast<long>(fates.size());
        platform::WorkFile work(app.files, rewrite.workFile, kCardSlotLength);
        Outcome outcome = work.create();
        for (long slot = 1; slot <= count && done(outcome); ++slot) {
            if (rewrite.progress)
                rewrite.progress(slot);
            if (fates[static_cast<std::size_t>(slot - 1)] == Fate::Stays)
                outcome = keep(slot, work);
        }
        return done(outcome) ? work.replace(live, count) : outcome;
    }

    /// The bytes after the record stay as they are.
    Outcome keep(long slot, platform::WorkFile &work)
    {
        std::string bytes(kCardSlotLength, '\0');
        const Outcome outcome = live.read(slot, bytes);
        CardRecord record;
        std::copy_n(bytes.begin(), record.data().size(), record.data().begin());
        const CardRecord copy = changed(record, Fate::Stays);
        work.add(bytes.replace(0, copy.view().size(), copy.view()));
        return outcome;
    }

    App &app;
    const CardRewrite &rewrite;
    SlotFile live;
    std::vector<Fate> fates; // of the slots from 1 on
    bool anyLeavesOrChanges = false;
};

} // namespace

Outcome rewriteCardFile(App &app, const CardRewrite &rewrite)
{
    return Rewriting(app, rewrite).run();
}

} // namespace records
