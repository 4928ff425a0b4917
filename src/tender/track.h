// Magnetic tracks: what a card reader types into the swipe boxes, a format-B first track with or
// without a second one after it.
#pragma once

#include "platform/clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace tender {

/// A card as read from a swipe; wiped by its destructor.
struct CardData {
    std::string number;
    std::string expiry; // "YYMM"
    std::string firstName;
    std::string lastName;

    ~CardData();
};

/// Number from position 3 to the first "^", the name up to the next, the expiry after it. A name
/// without "/" is the last name and the first name is one blank. Nothing when a "^" is missing or
/// no four digits follow the second one. What follows the expiry is ignored.
std::optional<CardData> parseTrack(std::string_view track);

/// By month: a card of today's month is good. `expiry` is "YYMM".
bool isExpired(std::string_view expiry, const platform::DateTime &today);

/// One sentinel (";", ":" or "?") off the front and one ("?" or "=") off the end of the trimmed
/// text.
std::string Remove_Swipe(std::string_view track);

} // namespace tender
