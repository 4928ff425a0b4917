#include "records/card_files.h"
#include "records/status_words.h"

#include "records/card_rewrite.h"
#include "records/trace.h"

namespace records {

namespace {

using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;

/// Opens and locks. Inside ErrorsIgnored a refused lock is ignored; outside it has already ended
/// the program.
Outcome openLocked(App &app, SlotFile &file, SlotUse use)
{
    const Outcome opened = file.open(use);
    if (!done(opened))
        return opened;
    const Outcome locked = file.lock();
    return done(locked) || app.run.errorsIgnored() ? Outcome::Done : locked;
}

/// A failed write may leave a part of the record in the slot; then the old content is restored.
Outcome rewrite(App &app, SlotFile &slots, long slot, const CardRecord &before,
                const CardRecord &next)
{
    Outcome outcome = Outcome::Done;
    {
        const platform::ErrorsIgnored ignored(app.run); // else the files would be shut
        outcome = slots.write(slot, next.view());
        if (!done(outcome))
            slots.write(slot, before.view());
    }
    return app.files.checked("Writing", slots.path(), outcome);
}

bool holds(SlotFile &slots, long slot, const CardRecord &record)
{
    CardRecord there;
    return slot >= 1 && slot <= slots.count() && done(slots.read(slot, there.data())) &&
           there == record;
}

} // namespace

std::string wholeSlot(const CardRecord &record)
{
    std::string slot(record.view());
    slot.resize(kCardSlotLength, '\0');
    return slot;
}

std::string pendingFile(const ProcessValues &values)
{
    return values.Remotedir + "CCPending.dat";
}

std::string monthFile(const ProcessValues &values, const platform::DateTime &when)
{
    return values.Remotedir + "\\data\\CCFinal" + Format(when, "MMYY") + ".dat";
}

std::string deletedFile(const ProcessValues &values, const platform::DateTime &when)
{
    return values.Remotedir + "\\data\\" + Format(when, "MMYY") + "CCdeleted.dat";
}

bool makeIfMissing(App &app, const std::string &file)
{
    return app.values.lookOnly ? app.files.exists(file) : done(app.files.createIfMissing(file));
}

bool isSettled(const CardRecord &record)
{
    return beginsCompleted(record.text(CCAdjStatus));
}

StoredRecord appendAndClose(SlotFile &slots, const CardRecord &record)
{
    StoredRecord stored;
    stored.outcome = slots.append(wholeSlot(record), stored.slot);
    slots.unlock();
    const Outcome closed = slots.close();
    if (done(stored.outcome))
        stored.outcome = closed;
    else
        stored.slot = 0;
    return stored;
}

StoredRecord addRecord(App &app, const std::string &file, const CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    const Outcome opened = openLocked(app, slots, SlotUse::Append);
    return done(opened) ? appendAndClose(slots, record) : StoredRecord{opened, 0};
}

StoredRecord addUnlocked(App &app, const std::string &file, const CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    const Outcome opened = slots.open(SlotUse::Append);
    return done(opened) ? appendAndClose(slots, record) : StoredRecord{opened, 0};
}

Outcome readRecord(App &app, const std::string &file, long slot, CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    const Outcome opened = slots.open(SlotUse::Read);
    return done(opened) ? slots.read(slot, record.data()) : opened;
}

bool holdsRecord(App &app, const std::string &file, long slot, const CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    return done(openLocked(app, slots, SlotUse::Read)) && holds(slots, slot, record);
}

bool replaceRecord(App &app, const std::string &file, long slot, const CardRecord &before,
                   const CardRecord &next)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    if (slot < 1 || !done(openLocked(app, slots, SlotUse::Rewrite)) || !holds(slots, slot, before))
        return false;
    const Outcome written = rewrite(app, slots, slot, before, next);
    slots.unlock();
    const Outcome closed = slots.close();
    return done(written) && done(closed);
}

Outcome setEveryStatus(App &app, const std::string &file, std::string_view status)
{
    app.files.createIfMissing(file);
    SlotFile slots(app.files, file, kCardSlotLength);
    Outcome outcome = openLocked(app, slots, SlotUse::Rewrite);
    const long count = slots.count();
    for (long slot = 1; slot <= count && done(outcome); ++slot) {
        CardRecord record;
        outcome = slots.read(slot, record.data());
        if (!done(outcome))
            break;
        CardRecord next = record;
        next.set(CCAdjStatus, status);
        outcome = rewrite(app, slots, slot, record, next);
    }
    slots.unlock();
    const Outcome closed = slots.close();
    return done(outcome) ? closed : outcome;
}

bool removeRecord(App &app, const std::string &file, long slot, const CardRecord &record)
{
    long at = 0;
    bool same = true;
    const auto fateOf = [&](const CardRecord &there) {
        if (++at != slot)
            return Fate::Stays;
        same = there == record;
        return same ? Fate::Vanishes : Fate::Stays;
    };
    const Outcome outcome =
        rewriteCardFile(app, {.file = file,
                              .target = {},
                              .workFile = app.values.Remotedir + "CCPending.TMP",
                              .fateOf = fateOf});
    return same && done(outcome);
}

long countRecords(App &app, const std::string &file)
{
    if (!app.files.exists(file))
        return 0;
    SlotFile slots(app.files, file, kCardSlotLength);
    return done(slots.open(SlotUse::Read)) ? slots.count() : 0;
}

void traceTail(App &app, const std::string &file, std::size_t bytes)
{
    if (const std::size_t tail = bytes % kCardSlotLength; tail > 0)
        traceProcess(app,
                     {"  LAST RECORD NOT WHOLE - " + std::to_string(tail) + " bytes - " + file});
}

void traceTail(App &app, SlotFile &slots)
{
    traceTail(app, slots.path(), slots.tail());
}

void moveSettledRecords(App &app)
{
    const auto fateOf = [](const CardRecord &record) {
        return isSettled(record) ? Fate::Moves : Fate::Stays;
    };
    rewriteCardFile(app, {.file = pendingFile(app.values),
                          .target = monthFile(app.values, app.clock.now()),
                          .workFile = app.values.Remotedir + "CCPending.Tmp",
                          .fateOf = fateOf});
}

} // namespace records
