// Amounts of money as people type them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace records {

/// What is said of a text that is none.
inline constexpr const char *kAmountRule =
    "Only digits and one point, as 12 or 12.50, up to 9999999.99";

/// The amount in a text that a person has typed, with a point, as Val reads it and a card field of
/// 10 characters holds it; empty for a blank text. It has up to 7 digits, and up to 2 behind a
/// point, or behind a comma that stands between digits; blanks around it do not count. Any other
/// text is no amount: with a part of it left out it would be another one. So "1,234" is none, be it
/// a thousand or a comma too far, and so is ",50".
std::optional<std::string> typedAmount(std::string_view text);

} // namespace records
