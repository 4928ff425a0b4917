#include "records/card_rewrite.h"

#include "platform/work_file.h"

#include <algorithm>
#include <vector>

namespace records {

namespace {

using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;

std::string wholeSlot(const CardRecord &record)
{
    std::string slot(record.view());
    slot.resize(kCardSlotLength, '\0');
    return slot;
}

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
            outcome = live.open(rewrite.writesBack ? SlotUse::Rewrite : SlotUse::Read);
        if (!done(outcome))
            return outcome;
        outcome = live.lock();
        const bool passedOver = rewrite.worksUnlocked && app.run.errorsIgnored();
        return passedOver ? Outcome::Done : outcome;
    }

    Outcome moveRecords()
    {
        SlotFile target(app.files, rewrite.target, kCardSlotLength);
        Outcome outcome = rewrite.target.empty() ? Outcome::Done : target.open(SlotUse::Append);
        if (target.isOpen() && !done(target.lock()) && !app.run.errorsIgnored())
            return Outcome::Locked;
        const long count = live.count();
        for (long slot = 1; slot <= count && done(outcome); ++slot)
            outcome = decide(slot, target);
        const Outcome closed = target.close(); // unlocks, then flushes
        return done(outcome) ? closed : outcome;
    }

    Outcome decide(long slot, SlotFile &target)
    {
        CardRecord record;
        Outcome outcome = live.read(slot, record.data());
        if (!done(outcome))
            return outcome;
        CardRecord copy = record;
        fates.push_back(rewrite.fateOf(copy));
        if (app.ending())
            return Outcome::Denied;
        if (rewrite.writesBack && !(copy == record))
            outcome = live.write(slot, copy.view());
        long landed = 0;
        if (done(outcome) && fates.back() == Fate::Moves)
            outcome = target.append(wholeSlot(copy), landed);
        return outcome;
    }

    Outcome replaceLive()
    {
        const auto count = static_cast<long>(fates.size());
        const auto staying = std::count(fates.begin(), fates.end(), Fate::Stays);
        // Nobody leaves. That holds too where a length that cannot be read has counted as none.
        if (staying == count)
            return Outcome::Done;
        platform::WorkFile work(app.files, rewrite.workFile, kCardSlotLength);
        Outcome outcome = work.create();
        std::string bytes(kCardSlotLength, '\0');
        for (long slot = 1; slot <= count && done(outcome); ++slot) {
            if (rewrite.progress)
                rewrite.progress(slot);
            outcome = live.read(slot, bytes);
            if (fates[static_cast<std::size_t>(slot - 1)] == Fate::Stays)
                work.add(bytes);
        }
        return done(outcome) ? work.replace(live, count) : outcome;
    }

    App &app;
    const CardRewrite &rewrite;
    SlotFile live;
    std::vector<Fate> fates; // of the slots from 1 on
};

} // namespace

Outcome rewriteCardFile(App &app, const CardRewrite &rewrite)
{
    return Rewriting(app, rewrite).run();
}

} // namespace records
