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

/// What of a field tells transactions apart: letters and digits of the identifier, the trimmed text
/// of any other.
std::string comparable(const CardRecord &record, const CardField &field)
{
    std::string text = record.text(field);
    if (field.offset == CCXcTranID.offset)
        std::erase_if(text, [](char c) {
            return !((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'));
        });
    return text;
}

/// In one reading of the whole file: slot by slot would be a round trip each where it is far away.
Sighting findIn(App &app, const std::string &file, const CardRecord &record)
{
    std::string bytes;
    Sighting sighting{app.files.read(file, bytes), file, 0};
    if (bytes.size() >= platform::Files::kReadLimit)
        sighting.outcome = Outcome::Broken;
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
