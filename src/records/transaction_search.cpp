#include "records/transaction_search.h"

#include "records/card_files.h"

#include <algorithm>
#include <vector>

namespace records {

namespace {

using platform::Outcome;

/// What moves records appends to the next file before it takes them out of the one before, so that
/// a search in this order meets them.
std::vector<std::string> filesToSearch(App &app, const CardRecord &record,
                                       const std::string &target)
{
    const platform::DateTime today = app.clock.now();
    const int day = dayOf(record.text(CCDate));
    const platform::DateTime taken =
        day == 0 ? today : platform::DateTime{day / 10000, day / 100 % 100, day % 100, 0, 0, 0, 0};
    std::vector<std::string> files;
    for (const std::string &file : {target, pendingFile(app.values), monthFile(app.values, taken),
                                    monthFile(app.values, today), deletedFile(app.values, taken),
                                    deletedFile(app.values, today)})
        if (std::find(files.begin(), files.end(), file) == files.end())
            files.push_back(file);
    return files;
}

Sighting findIn(App &app, const std::string &file, const CardRecord &record)
{
    platform::SlotFile slots(app.files, file, kCardSlotLength);
    long count = 0;
    Sighting sighting{slots.open(platform::SlotUse::Read), file, 0};
    if (done(sighting.outcome))
        sighting.outcome = slots.count(count);
    for (long slot = 1; slot <= count && done(sighting.outcome); ++slot) {
        CardRecord there;
        sighting.outcome = slots.read(slot, there.data());
        if (done(sighting.outcome) && sameTransaction(there, record)) {
            sighting.slot = slot;
            break;
        }
    }
    return sighting;
}

} // namespace

bool sameTransaction(const CardRecord &one, const CardRecord &other)
{
    constexpr std::array kIdentity = {CCReceipt, CCXcTranID, CApprovalCode, CCDate,
                                      CCTime,    CCStation,  CCSaleAmt};
    return std::all_of(kIdentity.begin(), kIdentity.end(),
                       [&](const CardField &field) { return one.raw(field) == other.raw(field); });
}

Sighting findTransaction(App &app, const CardRecord &record, const std::string &target)
{
    const platform::ErrorsIgnored ignored(app.run);
    for (const std::string &file : filesToSearch(app, record, target)) {
        const Sighting sighting = findIn(app, file, record);
        if (sighting.found() || (!done(sighting.outcome) && sighting.outcome != Outcome::NotThere))
            return sighting;
    }
    return {};
}

} // namespace records
