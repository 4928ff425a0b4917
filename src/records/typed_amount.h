// Amounts of money as people type them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace records {

/// The message for a text that is not an amount.
inline constexpr const char *kAmountRule =
    "Only digits and one point, as 12 or 12.50, up to 9999999.99";

/// The amount in a text that a person typed, with a point, so that Val can read it and a card field
/// of 10 characters can hold it; empty for a blank text. An amount has up to 7 digits, and up to 2
/// more after a point, or after a comma between digits; blanks around it are ignored. Any other
/// text is not an amount, because it would become another amount if a part of it were left out:
/// "1,234" may mean a thousand or have a comma too much, and ",50" is refused too.
std::optional<std::string> typedAmount(std::string_view text);

} // namespace records
