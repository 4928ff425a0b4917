#include "records/transaction_search.h"

#include "records/card_files.h"

#include <algorithm>
#include <vector>

namespace records {

namespace {

using platform::Outcome;

constexpr int kMostMonths = 24;

/// Code that moves a record appends it to the next file before it removes it from the one before,
/// so a search in this order finds it. It may have been finished in any month since.
std::vector<std::string> filesToSearch(App &app, const CardRecord &record,
                                       const std::string &target)
{
    const platform::DateTime today = app.clock.now();
    const int day = dayOf(record.text(CCDate));
    platform::DateTime month =
        day == 0 ? today : platform::DateTime{day / 10000, day / 100 % 100, 1, 0, 0, 0, 0};
    const int since = (today.year - month.year) * 12 + today.month - month.month;
    std::vector<platform::DateTime> months = {month};
    for (int n = std::min(since, kMostMonths); n > 0; --n) {
        month = {month.year + month.month / 12, month.month % 12 + 1, 1, 0, 0, 0, 0};
        months.push_back(month);
    }
    months.push_back(today);
    std::vector<std::string> files = {target, pendingFile(app.values)};
    for (const platform::DateTime &each : months) {
        files.push_back(monthFile(app.values, each));
        files.push_back(deletedFile(app.values, each));
    }
    std::vector<std::string> once;
    for (const std::string &file : files)
        if (std::find(once.begin(), once.end(), file) == once.end())
            once.push_back(file);
    return once;
}

/// The part of a field that identifies a transaction: letters and digits of the identifier, the
/// trimmed text of any other field.
std::string comparable(const CardRecord &record, const CardField &field)
{
    std::string text = record.text(field);
    if (field.offset == CCXcTranID.offset)
        std::erase_if(text, [](char c) {
            return !((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'));
        });
    return text;
}

/// Reads the whole file at once: slot by slot would need one round trip to the server for each.
Sighting findIn(App &app, const std::string &file, const CardRecord &record)
{
    std::string bytes;
    Sighting sighting{app.files.read(file, bytes), file, 0};
    if (bytes.size() >= platform::Files::kReadLimit)
        sighting.outcome = Outcome::Broken;
    traceTail(app, file, bytes.size());
    bytes.resize((bytes.size() + kCardSlotLength - 1) / kCardSlotLength * kCardSlotLength, '\0');
    for (std::size_t at = 0; at < bytes.size() && done(sighting.outcome); at += kCardSlotLength) {
        CardRecord there;
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), CardRecord::kSize,
                    there.data().begin());
        if (!sameTransaction(there, record))
            continue;
        sighting.slot = static_cast<long>(at / kCardSlotLength) + 1;
        break;
    }
    return sighting;
}

} // namespace

bool sameTransaction(const CardRecord &one, const CardRecord &other)
{
    constexpr std::array kIdentity = {CCReceipt, CCXcTranID, CApprovalCode, CCDate,
                                      CCTime,    CCStation,  CCSaleAmt};
    return std::all_of(kIdentity.begin(), kIdentity.end(), [&](const CardField &field) {
        return comparable(one, field) == comparable(other, field);
    });
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
