#include "records/card_helpers.h"

#include "records/app.h"
#include "records/text.h"

#include <algorithm>
#include <array>

namespace records {

namespace {

/// Adds `sign` times the place's shift to every code.
std::string shifted(std::string_view text, int sign)
{
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        const auto shift = static_cast<unsigned>(i == 0 ? result.size() : i + 1);
        const auto code = static_cast<unsigned char>(result[i]);
        result[i] =
            static_cast<char>(static_cast<unsigned char>(sign > 0 ? code + shift : code - shift));
    }
    return result;
}

struct PrefixRule {
    std::string_view from; // first and last prefix, of the same length
    std::string_view to;
    CardBrand brand;
};

constexpr CardBrand kUnknown{"Unknown", 9};

// In the order of the checks: two digits, then four, then three, then one.
constexpr std::array kPrefixRules = {
    PrefixRule{"34", "34", {"American Express", 3}},
    PrefixRule{"37", "37", {"American Express", 3}},
    PrefixRule{"36", "36", {"Diners Club", 5}},
    PrefixRule{"38", "38", {"Carte Blanche", 6}},
    PrefixRule{"51", "55", {"MasterCard", 2}},
    PrefixRule{"60", "60", {"Discover", 4}},
    PrefixRule{"2131", "2131", {"JCB", 8}},
    PrefixRule{"1800", "1800", {"JCB", 8}},
    PrefixRule{"2014", "2014", {"EnRoute", 7}},
    PrefixRule{"2149", "2149", {"EnRoute", 7}},
    PrefixRule{"300", "305", {"American Diners Club", 9}},
    PrefixRule{"3", "3", {"JCB", 8}},
    PrefixRule{"4", "4", {"Visa", 2}},
};

bool isSeparator(char c)
{
    return c == ' ' || c == '-';
}

/// Digits and the separators between them that `text` begins with.
std::string_view digitRun(std::string_view text)
{
    if (text.empty() || isSeparator(text.front()))
        return {};
    const std::string_view run = text.substr(0, text.find_first_not_of("0123456789 -"));
    return run.substr(0, run.find_last_not_of(" -") + 1);
}

std::string twoDigits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

std::string StrEncode(std::string_view text)
{
    return shifted(text, 1);
}

std::string StrDecode(std::string_view text)
{
    return shifted(text, -1);
}

CardBrand CreditCardType(std::string_view number)
{
    std::string digits = Trim(number);
    std::erase_if(digits, isSeparator);
    const bool numeric = digits.find_first_not_of("0123456789") == std::string::npos;
    if (!numeric || digits.size() < 14)
        return kUnknown;
    for (const PrefixRule &rule : kPrefixRules) {
        const std::string_view prefix = std::string_view(digits).substr(0, rule.from.size());
        if (prefix >= rule.from && prefix <= rule.to)
            return rule.brand;
    }
    return kUnknown;
}

std::string maskedNumber(std::string_view number)
{
    return "XXXX XXXX XXXX " + Right(Trim(number), 4);
}

std::string withoutCardNumbers(std::string_view text)
{
    constexpr std::size_t kShortestCard = 13; // digits
    std::string result;
    while (!text.empty()) {
        const std::string_view run = digitRun(text);
        std::string digits(run);
        std::erase_if(digits, isSeparator);
        if (digits.size() >= kShortestCard)
            result += maskedNumber(digits);
        else
            result += text.substr(0, std::max<std::size_t>(run.size(), 1));
        text.remove_prefix(std::max<std::size_t>(run.size(), 1));
    }
    return result;
}

std::string turnedExpiry(std::string_view expiry)
{
    const std::string text(expiry);
    return text.size() == 4 ? text.substr(2) + text.substr(0, 2) : text;
}

void Pause(App &app, std::chrono::milliseconds length)
{
    const int start = app.clock.now().millisecondsOfDay();
    auto wanted = length.count();
    while (!app.ending()) {
        const int passed = app.clock.now().millisecondsOfDay() - start;
        if (passed < 0) // the full length might not be reached before the next midnight
            wanted = 0;
        if (passed >= wanted)
            return;
        app.yield();
    }
}

std::string MinToHr(int minutes, bool seconds)
{
    return twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60) + (seconds ? ":00" : "");
}

} // namespace records
