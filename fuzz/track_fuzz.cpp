// What a card reader types: whatever it is, a card that was read has a number from the right place
// and an expiry of four digits, and its request is one line of seven values.
#include "memory_station.h"
#include "tender/local_request.h"
#include "tender/track.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string track = fuzz::textOf(data, size);
    const std::string stripped = tender::Remove_Swipe(track);
    fuzz::require(track.find(stripped) != std::string::npos && stripped.size() <= track.size());
    const std::optional<tender::CardData> card = tender::parseTrack(track);
    if (!card)
        return 0;
    fuzz::require(track.substr(2, card->number.size() + 1) == card->number + "^");
    fuzz::require(card->expiry.size() == 4 &&
                  card->expiry.find_first_not_of("0123456789") == std::string::npos);
    // Valid in a later month: an expired card cannot become valid again.
    const platform::DateTime early{2010, 1, 1, 0, 0, 0, 0};
    const platform::DateTime late{2030, 12, 1, 0, 0, 0, 0};
    fuzz::require(!tender::isExpired(card->expiry, early) || tender::isExpired(card->expiry, late));
    if (track.find_first_of("\"\r\n") != std::string::npos)
        return 0; // no key of a reader
    tender::LocalRequest request;
    request.number = card->number;
    request.cardText = track;
    const std::string line = tender::requestLine(request);
    fuzz::require(std::count(line.begin(), line.end(), '"') == 14 && line.ends_with("\"\r\n"));
    return 0;
}
