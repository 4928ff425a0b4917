#include "records/careful_append.h"

#include "platform/patience.h"
#include "records/transaction_search.h"

#include <algorithm>

namespace records {

namespace {

using platform::Outcome;

constexpr int kAppends = 3; // another is needed only if somebody overwrites the one before

CarefulRecord appendOnce(App &app, const std::string &file, const CardRecord &record)
{
    CarefulRecord stored;
    platform::SlotFile slots(app.files, file, kCardSlotLength);
    stored.outcome = slots.open(platform::SlotUse::Append);
    if (!done(stored.outcome))
        return stored;
    stored.unlocked = !done(platform::patiently(app.run, platform::Wait::CardFileLock,
                                                [&slots] { return slots.lock(); }));
    static_cast<StoredRecord &>(stored) = appendAndClose(slots, record);
    return stored;
}

/// NotThere when another record stands in the slot, or none.
Outcome lookAt(App &app, const std::string &file, long slot, const CardRecord &record)
{
    CardRecord there;
    const Outcome outcome = readRecord(app, file, slot, there);
    return done(outcome) && !sameTransaction(there, record) ? Outcome::NotThere : outcome;
}

} // namespace

CarefulRecord addCarefully(App &app, const std::string &file, const CardRecord &record)
{
    const platform::ErrorsIgnored ignored(app.run);
    return confirmStored(app, file, record, appendOnce(app, file, record));
}

Outcome flushRecord(App &app, const std::string &file, long slot, const CardRecord &record)
{
    const platform::ErrorsIgnored ignored(app.run);
    platform::SlotFile slots(app.files, file, kCardSlotLength);
    std::string bytes(kCardSlotLength, '\0');
    Outcome outcome = slots.open(platform::SlotUse::Rewrite);
    if (done(outcome))
        outcome = platform::patiently(app.run, platform::Wait::CardFileLock,
                                      [&slots] { return slots.lock(); });
    if (done(outcome))
        outcome = slots.read(slot, bytes);
    CardRecord there;
    std::copy_n(bytes.begin(), CardRecord::kSize, there.data().begin());
    if (done(outcome) && !sameTransaction(there, record))
        outcome = Outcome::NotThere;
    if (done(outcome))
        outcome = slots.write(slot, bytes);
    const Outcome closed = slots.close();
    return done(outcome) ? closed : outcome;
}

CarefulRecord confirmStored(App &app, const std::string &file, const CardRecord &record,
                            const CarefulRecord &stored)
{
    const platform::ErrorsIgnored ignored(app.run);
    CarefulRecord now = stored;
    for (int append = 1; now.stored() && now.unlocked; ++append) {
        const Outcome looked = lookAt(app, file, now.slot, record);
        if (done(looked))
            return now;
        const Sighting sighting = findTransaction(app, record, file);
        if (sighting.found()) {
            now.slot = sighting.slot;
            return now;
        }
        if (!done(sighting.outcome) || append == kAppends)
            return {{done(sighting.outcome) ? Outcome::Locked : sighting.outcome, 0}, true};
        now = appendOnce(app, file, record);
    }
    return now;
}

} // namespace records
