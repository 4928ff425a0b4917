// Small routines that all screens use: the scrambling of stored card references, brands, masks, and
// two time helpers.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace records {

struct App;

/// Position-dependent shift of single-byte codes: the first by the length of the text, any other
/// by its position from 1. Codes wrap at 256. The same length; empty stays empty.
std::string StrEncode(std::string_view text);
/// The exact reverse.
std::string StrDecode(std::string_view text);

/// A card's brand: the name shown on screens and the type number used by totals.
struct CardBrand {
    std::string_view name;
    int type;
};

/// "Unknown" (9) for fewer than 14 digits or for any character other than digits, blanks and
/// hyphens; the first prefix rule that gives a name wins.
CardBrand CreditCardType(std::string_view number);

/// "XXXX XXXX XXXX " and the last 4 characters of the trimmed number.
std::string maskedNumber(std::string_view number);

/// The text with each run of 13 digits or more (with or without blanks and hyphens in between) as a
/// masked number: it could be a card number, with whatever directly follows it.
std::string withoutCardNumbers(std::string_view text);

/// Swaps the halves of a 4-digit expiry, "YYMM" to "MMYY" and back; any other text stays.
std::string turnedExpiry(std::string_view expiry);

/// Waits by the time of day, with a yield() in each pass. Kept: across midnight the difference
/// becomes negative and the wait lasts until the clock has passed the start again.
void Pause(App &app, std::chrono::milliseconds length);

/// "HH:MM" of a count of minutes, each at least two digits; `seconds` appends ":00".
std::string MinToHr(int minutes, bool seconds = false);

} // namespace records
