// Thousands of realistic card records: an evening of several stations and servers, always the same
// for the same seed. For benchmarks, lists and screens.
#pragma once

#include "platform/files.h"
#include "records/card_record.h"

#include <cstdint>
#include <string>

namespace simulator {

struct EveningOptions {
    platform::DateTime opening{2025, 1, 15, 17, 0, 0, 0};
    int minutes = 6 * 60 + 30; // to the last tender, on the same day
    std::uint32_t seed = 1;
    bool allAdjusted = false; // the tips are in, and what got none is marked so
    bool declines = true;     // else what would be declined is approved
};

/// Tender N of an evening, N from 0 to `total` - 1, as the tender and the tip cycle leave it: most
/// not adjusted, a third with a tip, some declined, partial or on gift cards. Times rise with N.
/// Each record can be computed without the others; nothing is stored.
class Evening {
public:
    explicit Evening(std::size_t theTotal, const EveningOptions &theOptions = {})
        : total(theTotal), options(theOptions)
    {
    }
    std::size_t size() const { return total; }
    records::CardRecord record(std::size_t n) const;

private:
    std::size_t total;
    EveningOptions options;
};

/// Writes the evening as a card file of 500-byte slots at a Windows path and replaces what is
/// there. Memory does not grow with the number of records.
platform::Outcome writeCardFile(platform::Files &files, const std::string &path,
                                const Evening &evening);

} // namespace simulator
