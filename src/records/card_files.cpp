#include "records/card_files.h"

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

bool isSettled(const CardRecord &record)
{
    return startsWith(record.text(CCAdjStatus), "Com");
}

/// Opens and locks. Inside ErrorsIgnored a refused lock is passed over; outside it the program is
/// ending already.
Outcome openLocked(App &app, SlotFile &file, SlotUse use)
{
    const Outcome opened = file.open(use);
    if (!done(opened))
        return opened;
    const Outcome locked = file.lock();
    return done(locked) || app.run.errorsIgnored() ? Outcome::Done : locked;
}

} // namespace

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

StoredRecord addRecord(App &app, const std::string &file, const CardRecord &record)
{
    StoredRecord stored;
    SlotFile slots(app.files, file, kCardSlotLength);
    stored.outcome = openLocked(app, slots, SlotUse::Append);
    if (!done(stored.outcome))
        return stored;
    stored.outcome = slots.append(wholeSlot(record), stored.slot);
    slots.unlock();
    const Outcome closed = slots.close();
    if (done(stored.outcome))
        stored.outcome = closed;
    else
        stored.slot = 0;
    return stored;
}

Outcome readRecord(App &app, const std::string &file, long slot, CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    const Outcome opened = slots.open(SlotUse::Read);
    return done(opened) ? slots.read(slot, record.data()) : opened;
}

Outcome rewriteRecord(App &app, const std::string &file, long slot, const CardRecord &record)
{
    SlotFile slots(app.files, file, kCardSlotLength);
    const Outcome opened = openLocked(app, slots, SlotUse::Rewrite);
    if (!done(opened))
        return opened;
    const Outcome written = slots.write(slot, record.view());
    slots.unlock();
    const Outcome closed = slots.close();
    return done(written) ? closed : written;
}

long countRecords(App &app, const std::string &file)
{
    if (!app.files.exists(file))
        return 0;
    SlotFile slots(app.files, file, kCardSlotLength);
    return done(slots.open(SlotUse::Read)) ? slots.count() : 0;
}

void moveSettledRecords(App &app)
{
    const std::string pendingPath = pendingFile(app.values);
    SlotFile pending(app.files, pendingPath, kCardSlotLength);
    if (!done(pending.open(SlotUse::Append)) || !done(pending.lock()))
        return;
    SlotFile month(app.files, monthFile(app.values, app.clock.now()), kCardSlotLength);
    if (!done(openLocked(app, month, SlotUse::Append)))
        return;
    std::string remaining;
    long slot = 1;
    for (; slot <= pending.count() && !app.ending(); ++slot) {
        CardRecord record;
        long landed = 0;
        if (!done(pending.read(slot, record.data())))
            return;
        if (!isSettled(record))
            remaining += wholeSlot(record);
        else if (!done(month.append(wholeSlot(record), landed)))
            return;
    }
    month.unlock();
    // A length that cannot be read counts 0 too: never replace what was not walked through.
    if (app.ending() || !done(month.close()) || slot == 1 || pending.count() != slot - 1)
        return;
    app.files.replaceWhole(pendingPath, remaining);
}

} // namespace records
