#include "records/typed_amount.h"

#include "records/text.h"

#include <algorithm>

namespace records {

namespace {

constexpr std::size_t kWholeDigits = 7;
constexpr std::size_t kDecimals = 2;

/// The number of digits from `at` on.
std::size_t digitsFrom(std::string_view text, std::size_t at)
{
    return std::min(text.find_first_not_of("0123456789", at), text.size()) - at;
}

} // namespace

std::optional<std::string> typedAmount(std::string_view text)
{
    std::string amount = Trim(text);
    const std::size_t point = digitsFrom(amount, 0);
    if (point == amount.size())
        return point <= kWholeDigits ? std::optional(amount) : std::nullopt;
    const std::size_t decimals = digitsFrom(amount, point + 1);
    if (amount[point] == ',' && point > 0 && decimals > 0)
        amount[point] = '.';
    const bool whole = amount[point] == '.' && point + 1 + decimals == amount.size();
    if (!whole || point > kWholeDigits || decimals > kDecimals || point + decimals == 0)
        return std::nullopt;
    return amount;
}

} // namespace records
