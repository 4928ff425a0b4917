#include "pending/typed_receipt.h"

#include "records/text.h"

#include <algorithm>

namespace pending {

namespace {

constexpr std::size_t kLongestReceipt = 20; // of a card record

std::string_view withoutZeros(std::string_view number)
{
    return number.substr(std::min(number.find_first_not_of('0'), number.size()));
}

bool beginsSo(std::string_view shown, std::string_view number)
{
    const std::string_view value = withoutZeros(number);
    return shown.starts_with(number) ||
           (!value.empty() && value == number && withoutZeros(shown).starts_with(value));
}

template <class Fits> ReceiptMatch matching(const reports::ListRows &rows, bool whole, Fits fits)
{
    ReceiptMatch match{-1, 0, whole};
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (fits(reports::columnOf(rows[row].text, 0)) && match.rows++ == 0)
            match.first = static_cast<long>(row);
    return match;
}

std::string told(const ReceiptMatch &match, const std::string &number)
{
    if (match.rows == 0)
        return "No entry has receipt " + number;
    const bool one = match.rows == 1;
    const char *does = match.whole ? (one ? " has receipt " : " have receipt ")
                                   : (one ? " begins with " : " begin with ");
    return std::to_string(match.rows) + (one ? " entry" : " entries") + does + number +
           ". Enter opens the one that is chosen, Escape clears the number.";
}

} // namespace

ReceiptMatch findReceipt(const reports::ListRows &rows, std::string_view number)
{
    const std::string_view value = withoutZeros(number);
    const ReceiptMatch match = matching(
        rows, true, [value](std::string_view shown) { return withoutZeros(shown) == value; });
    if (match.rows > 0)
        return match;
    return matching(rows, false,
                    [number](std::string_view shown) { return beginsSo(shown, number); });
}

void TypedReceipt::type(std::string_view text)
{
    const bool begins = typed.empty() || !said.empty();
    if (begins && records::isBlank(text))
        return;
    if (begins)
        clear();
    if (typed.size() <= kLongestReceipt)
        typed += text;
}

void TypedReceipt::backspace()
{
    if (typed.size() > kLongestReceipt) // the rest would be another number
        return clear();
    said.clear();
    chosen = -1;
    if (!typed.empty())
        typed.pop_back();
}

void TypedReceipt::clear()
{
    *this = {};
}

TypedReceipt::Entered TypedReceipt::enter(const reports::ListRows &rows, long current)
{
    if (typed.empty() || (chosen >= 0 && chosen == current))
        return {current, current >= 0};
    const std::string number = records::Trim(typed);
    const ReceiptMatch match =
        number.size() > kLongestReceipt ? ReceiptMatch() : findReceipt(rows, number);
    if (match.whole && match.rows == 1)
        return {match.first, true};
    said = told(match, number);
    chosen = match.first;
    return {chosen, false};
}

/// What is too long for a receipt may be a swiped card: its number must not be shown.
std::string TypedReceipt::hint() const
{
    if (typed.size() > kLongestReceipt)
        return "This is too long for a receipt number. Escape clears it.";
    if (typed.empty() || !said.empty())
        return said;
    return "Receipt " + typed + ". Enter opens it, Escape clears the number.";
}

} // namespace pending
