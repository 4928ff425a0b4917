#include "records/text.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace records {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isSmallLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

/// A loop of our own for speed: a list trims a dozen short fields of each record.
std::string_view withoutBlanks(std::string_view text)
{
    const auto isBlankChar = [](char c) { return c == ' ' || c == '\0'; };
    while (!text.empty() && isBlankChar(text.back()))
        text.remove_suffix(1);
    while (!text.empty() && isBlankChar(text.front()))
        text.remove_prefix(1);
    return text;
}

/// Digits, one point, digits, from `at` on; true when there was a digit.
bool scanNumber(std::string_view text, std::size_t &at, bool grouped, Money &value)
{
    constexpr std::int64_t kDigitLimit = std::int64_t(1) << 52;
    std::int64_t whole = 0;
    std::int64_t fraction = 0;
    int decimals = 0;
    bool digits = false;
    for (; at < text.size() && (isDigit(text[at]) || (grouped && digits && text[at] == ','));
         ++at) {
        if (text[at] == ',')
            continue;
        digits = true;
        if (whole < kDigitLimit)
            whole = whole * 10 + (text[at] - '0');
    }
    if (at < text.size() && text[at] == '.') {
        for (++at; at < text.size() && isDigit(text[at]); ++at) {
            digits = true;
            if (decimals < 4) {
                fraction = fraction * 10 + (text[at] - '0');
                ++decimals;
            }
        }
    }
    for (; decimals < 4; ++decimals)
        fraction *= 10;
    value = Money::fromWhole(whole) + Money::fromTenThousandths(fraction);
    return digits;
}

/// A rounded value as digits, before a mask is applied. In one piece of memory for speed: a list
/// writes several for each record.
class NumberParts {
public:
    NumberParts(Money value, int decimals);

    bool negative = false;
    std::string_view whole;    // without leading zeros; empty for 0
    std::string_view fraction; // exactly as many digits as decimals were asked for

    NumberParts(const NumberParts &) = delete;
    NumberParts &operator=(const NumberParts &) = delete;

    void cutTrailingZeros(std::size_t keep)
    {
        while (fraction.size() > keep && fraction.back() == '0')
            fraction.remove_suffix(1);
    }

private:
    static constexpr std::size_t kDecimals = 4;
    std::array<char, 24> digits; // the whole ends where the fraction begins
};

NumberParts::NumberParts(Money value, int decimals)
{
    const std::int64_t units = value.rounded(decimals).tenThousandths();
    negative = units < 0;
    auto rest = units == std::numeric_limits<std::int64_t>::min()
                    ? static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())
                    : static_cast<std::uint64_t>(negative ? -units : units);
    char *const end = digits.data() + digits.size();
    char *at = end;
    for (; at > end - kDecimals; rest /= 10)
        *--at = static_cast<char>('0' + rest % 10);
    fraction = std::string_view(at, std::min(static_cast<std::size_t>(decimals), kDecimals));
    for (; rest > 0; rest /= 10)
        *--at = static_cast<char>('0' + rest % 10);
    whole = std::string_view(at, static_cast<std::size_t>(end - kDecimals - at));
}

std::size_t mandatoryDigits(std::string_view mask)
{
    return static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '0'));
}

constexpr const char *kMonthNames[] = {"January",   "February", "March",    "April",
                                       "May",       "June",     "July",     "August",
                                       "September", "October",  "November", "December"};
constexpr const char *kDayNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};

std::string padded(int number, std::size_t width)
{
    const std::string text = std::to_string(number);
    return text.size() >= width ? Right(text, width) : std::string(width - text.size(), '0') + text;
}

/// Reads a date mask; the meaning of a letter group depends on the one before it.
class DateMask {
public:
    DateMask(const platform::DateTime &theTime, std::string_view theMask)
        : when(theTime), mask(theMask), lower(toLower(theMask)),
          twelveHours(lower.find("ampm") != std::string::npos)
    {
    }

    std::string text()
    {
        std::string result;
        while (at < mask.size())
            result += nextPiece();
        return result;
    }

private:
    bool take(std::string_view token)
    {
        const bool found = startsWith(std::string_view(lower).substr(at), token);
        at += found ? token.size() : 0;
        return found;
    }

    std::string nextPiece()
    {
        const bool minutes = std::exchange(afterHour, afterHour && !isSmallLetter(lower[at]));
        if (take("ampm"))
            return when.hour < 12 ? "AM" : "PM";
        if (take("dddd"))
            return kDayNames[when.weekday()];
        if (take("mmmm"))
            return kMonthNames[when.month - 1];
        if (take("dd"))
            return padded(when.day, 2);
        if (take("yyyy"))
            return padded(when.year, 4);
        if (take("yy"))
            return padded(when.year, 2);
        if (take("hh"))
            return hour();
        if (take("nn"))
            return padded(when.minute, 2);
        if (take("mm"))
            return padded(minutes ? when.minute : when.month, 2);
        if (take("ss"))
            return padded(when.second, 2);
        return std::string(1, mask[at++]);
    }

    std::string hour()
    {
        afterHour = true;
        return padded(twelveHours ? (when.hour + 11) % 12 + 1 : when.hour, 2);
    }

    const platform::DateTime &when;
    std::string_view mask;
    std::string lower;
    bool twelveHours;
    bool afterHour = false;
    std::size_t at = 0;
};

/// Takes a number of `least` to `most` digits off the front of `text`; -1 for anything else.
int takeNumber(std::string_view &text, std::size_t least, std::size_t most)
{
    std::size_t digits = 0;
    int number = 0;
    for (; digits < text.size() && isDigit(text[digits]) && digits < most; ++digits)
        number = number * 10 + (text[digits] - '0');
    text.remove_prefix(digits);
    return digits >= least ? number : -1;
}

bool takeSlash(std::string_view &text)
{
    const bool found = !text.empty() && text.front() == '/';
    text.remove_prefix(found ? 1 : 0);
    return found;
}

int daysIn(int month, int year)
{
    constexpr std::array<int, 12> kDays = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return kDays[static_cast<std::size_t>(month - 1)] + (leap && month == 2 ? 1 : 0);
}

} // namespace

std::string Trim(std::string_view text)
{
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    const bool nothing = !text.empty() && text.front() == '\0' && isBlank(text);
    return nothing ? std::string() : std::string(text);
}

bool isBlank(std::string_view text)
{
    return withoutBlanks(text).empty();
}

Money Val(std::string_view text)
{
    std::size_t at = std::min(text.find_first_not_of(' '), text.size());
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        ++at;
    Money value;
    scanNumber(text, at, false, value);
    return negative ? -value : value;
}

int wholeNumber(std::string_view text)
{
    return static_cast<int>(std::clamp<std::int64_t>(Val(text).whole(), -999999999, 999999999));
}

bool readNumber(std::string_view text, Money &value)
{
    std::string_view rest = withoutBlanks(text);
    bool negative = false;
    if (rest.size() > 2 && rest.front() == '(' && rest.back() == ')') {
        negative = true;
        rest = rest.substr(1, rest.size() - 2);
    }
    std::size_t at = 0;
    if (at < rest.size() && (rest[at] == '-' || rest[at] == '+'))
        negative = (rest[at++] == '-') != negative;
    if (at < rest.size() && rest[at] == '$')
        ++at;
    Money number;
    if (!scanNumber(rest, at, true, number) || at != rest.size())
        return false;
    value = negative ? -number : number;
    return true;
}

std::string Format(Money value, std::string_view mask)
{
    const std::size_t point = mask.find('.');
    const bool hasPoint = point != std::string_view::npos;
    const std::string_view decimals = hasPoint ? mask.substr(point + 1) : std::string_view();
    NumberParts parts(value, static_cast<int>(decimals.size()));
    parts.cutTrailingZeros(mandatoryDigits(decimals));
    const std::size_t needed = mandatoryDigits(mask.substr(0, point));
    std::string text = parts.negative ? "-" : "";
    text.append(std::max(needed, parts.whole.size()) - parts.whole.size(), '0').append(parts.whole);
    if (hasPoint)
        text.append(".").append(parts.fraction);
    return text;
}

std::string Format(std::string_view text, std::string_view mask)
{
    Money value;
    return readNumber(text, value) ? Format(value, mask) : std::string(text);
}

std::string Format(const platform::DateTime &when, std::string_view mask)
{
    return DateMask(when, mask).text();
}

std::string Currency(Money value)
{
    const NumberParts parts(value, 2);
    std::string whole(parts.whole.empty() ? "0" : parts.whole);
    for (std::size_t at = whole.size(); at > 3;) {
        at -= 3;
        whole.insert(at, 1, ',');
    }
    const std::string text = ("$" + whole).append(".").append(parts.fraction);
    return parts.negative ? "(" + text + ")" : text;
}

std::string Currency(std::string_view text)
{
    Money value;
    if (!readNumber(text, value))
        value = Val(text);
    return Currency(value);
}

std::string Format_Money(Money value)
{
    const NumberParts parts(value, 2);
    std::string text = parts.negative ? "-" : "";
    return text.append(parts.whole).append(".").append(parts.fraction);
}

std::string plainText(Money value)
{
    NumberParts parts(value, 4);
    parts.cutTrailingZeros(0);
    std::string text = parts.negative ? "-" : "";
    text.append(parts.whole.empty() ? "0" : parts.whole);
    if (!parts.fraction.empty())
        text.append(".").append(parts.fraction);
    return text;
}

std::string Right(std::string_view text, std::size_t count)
{
    return std::string(text.size() > count ? text.substr(text.size() - count) : text);
}

std::string Left(std::string_view text, std::size_t count)
{
    return std::string(text.substr(0, count));
}

std::string toLower(std::string_view text)
{
    std::string lower(text);
    for (char &c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

std::string stampOf(const platform::DateTime &when)
{
    return Format(when, "YYYYMMDD") + "-" + Format(when, "HHMMSS");
}

int dayNumber(const platform::DateTime &when)
{
    return (when.year * 100 + when.month) * 100 + when.day;
}

int dayOf(std::string_view text)
{
    std::string_view rest = withoutBlanks(text);
    platform::DateTime date;
    date.month = takeNumber(rest, 1, 2);
    bool good = takeSlash(rest);
    date.day = takeNumber(rest, 1, 2);
    good = takeSlash(rest) && good;
    const bool shortYear = rest.size() == 2;
    date.year = takeNumber(rest, 2, 4);
    good = good && (shortYear || date.year >= 1000) && rest.empty();
    date.year += shortYear ? 2000 : 0;
    good = good && date.month >= 1 && date.month <= 12 && date.day >= 1 &&
           date.day <= daysIn(date.month, date.year);
    return good ? dayNumber(date) : 0;
}

} // namespace records
