// Text semantics that every file and screen shares: trimming, the reading of numbers, number and
// date masks, currency text. The only way between text and Money.
#pragma once

#include "platform/clock.h"
#include "records/money.h"

#include <string>
#include <string_view>

namespace records {

/// Cuts blanks (0x20) at both ends. A text of only blanks and NULs, as in a field never assigned,
/// becomes empty; NULs after other text stay.
std::string Trim(std::string_view text);

/// Only blanks and NULs.
bool isBlank(std::string_view text);

/// The number a text begins with: leading blanks skipped, sign, digits, one point, digits; it
/// stops at anything else ("1,234" is 1, "$5" is 0). More than 4 decimals are cut; a number beyond
/// Money saturates; no number is 0.
Money Val(std::string_view text);

/// The whole part of Val as a small number, for counts and flags.
int wholeNumber(std::string_view text);

/// True when the text as a whole is a number: digits with an optional sign, point, currency symbol
/// and grouping ("$1,234.50", "($5.00)" is -5), blanks around it allowed.
bool readNumber(std::string_view text, Money &value);

/// A number mask: `#` an optional digit, `0` one that always prints; the point always prints,
/// digits left of the mask are never cut, rounding is half away from zero ("#######.##": 12 is
/// "12.", 0 is ".", 0.5 is ".5"; "##########": 0 is "").
std::string Format(Money value, std::string_view mask);

/// The same for a text; a text that is not a number stays as it is.
std::string Format(std::string_view text, std::string_view mask);

/// A date or time mask of MM MMMM DD DDDD YY YYYY HH NN SS and ampm (in any case); MM right after
/// an hour is minutes; with ampm the hour has 12 hours. English names. "HH:MM ampm" is "01:05 PM".
std::string Format(const platform::DateTime &when, std::string_view mask);

/// "$1,234.50", negative "($5.00)"; a text is read as by readNumber, else as by Val.
std::string Currency(Money value);
std::string Currency(std::string_view text);

/// Amount in lists and batches, always two decimals and no leading zero: 12 is "12.00", 0.5 is
/// ".50", 0 is ".00", 1234.567 is "1234.57".
std::string Format_Money(Money value);

/// The plain text of a value: no trailing zeros or point, "0" before a point: 30.50 is "30.5".
std::string plainText(Money value);

/// The last `count` characters, or all of a shorter text.
std::string Right(std::string_view text, std::size_t count);
/// The first `count` characters, or all of a shorter text.
std::string Left(std::string_view text, std::size_t count);
std::string toLower(std::string_view text);
bool startsWith(std::string_view text, std::string_view beginning);
/// "20250115-130500": date and time for names of files; they sort by time.
std::string stampOf(const platform::DateTime &when);
/// Calendar day as a number that sorts (YYYYMMDD).
int dayNumber(const platform::DateTime &when);
/// The same for a date "MM/DD/YY" or "MM/DD/YYYY"; blanks around it and one-digit months and days
/// are allowed; a year of two digits is 20YY. 0 if it is not a date.
int dayOf(std::string_view text);

} // namespace records
