#include "tender/track.h"

#include "platform/hardening.h"
#include "records/text.h"

namespace tender {

using namespace records;

namespace {

constexpr std::size_t kNumberFrom = 2; // after the start sentinel and the format letter

bool isDigits(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

void splitName(std::string_view name, CardData &card)
{
    const std::size_t slash = name.find('/');
    card.lastName = Left(name, slash);
    card.firstName = slash == std::string_view::npos ? " " : std::string(name.substr(slash + 1));
}

} // namespace

CardData::~CardData()
{
    for (std::string *text : {&number, &expiry, &firstName, &lastName})
        platform::wipe(*text);
}

std::optional<CardData> parseTrack(std::string_view track)
{
    const std::size_t first = track.find('^', 1);
    if (first == std::string_view::npos || first < kNumberFrom)
        return std::nullopt;
    const std::size_t second = track.find('^', first + 1);
    if (second == std::string_view::npos)
        return std::nullopt;
    CardData card;
    card.number = std::string(track.substr(kNumberFrom, first - kNumberFrom));
    splitName(track.substr(first + 1, second - first - 1), card);
    card.expiry = std::string(track.substr(second + 1, 4));
    if (card.expiry.size() != 4 || !isDigits(card.expiry))
        return std::nullopt;
    return card;
}

bool isExpired(std::string_view expiry, const platform::DateTime &today)
{
    const int year = wholeNumber(expiry.substr(0, 2));
    const int month = wholeNumber(expiry.substr(2, 2));
    const int thisYear = today.year % 100;
    return year < thisYear || (year == thisYear && month < today.month);
}

std::string Remove_Swipe(std::string_view track)
{
    std::string text = Trim(track);
    if (!text.empty() && std::string_view(";:?").find(text.front()) != std::string_view::npos)
        text.erase(0, 1);
    if (!text.empty() && (text.back() == '?' || text.back() == '='))
        text.pop_back();
    return text;
}

} // namespace tender
