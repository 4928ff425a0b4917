#include "reports/card_list.h"

#include "records/card_helpers.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace reports {

using namespace records;

namespace {

constexpr std::size_t kMoneysDigits = 14; // of a whole number that Money surely holds

/// The digits that a text begins with, without their leading zeros.
std::string_view leadingDigits(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
    return text.substr(0, text.find_first_not_of("0123456789"));
}

std::string receiptValue(std::string_view receipt)
{
    const std::string_view digits = leadingDigits(receipt);
    return digits.size() > kMoneysDigits ? std::string(digits) : plainText(Val(receipt));
}

/// A row being put together, in one piece of memory.
class RowText {
public:
    RowText &operator+=(std::string_view text)
    {
        const std::size_t length = std::min(text.size(), bytes.size() - used);
        std::copy_n(text.data(), length, bytes.data() + used);
        used += length;
        return *this;
    }
    /// A length that is known when compiled is copied without a call.
    void addField(const CardRecord &record, const CardField &field)
    {
        if (field.length >= bytes.size() - used)
            return;
        bytes[used] = '|';
        std::memcpy(bytes.data() + used + 1, record.view().data() + field.offset, field.length);
        used += field.length + 1;
    }
    /// A NUL shows as a blank.
    std::string text() const
    {
        std::string all(bytes.data(), used);
        if (all.find('\0') != std::string::npos) // few have one
            std::replace(all.begin(), all.end(), '\0', ' ');
        return all;
    }

private:
    std::array<char, 400> bytes; // of any row
    std::size_t used = 0;
};

std::string rowText(const CardRecord &copy, Money total)
{
    RowText row;
    row += receiptColumn(copy);
    row += "|";
    row += copy.text(CCServer);
    row.addField(copy, CCTabAmt);
    row.addField(copy, CCApprovedAmt);
    row.addField(copy, CCTip);
    row += "|";
    row += Format_Money(total);
    row.addField(copy, CCAdjStatus);
    row.addField(copy, CApprovalCode);
    row.addField(copy, CCstatus);
    row.addField(copy, CCDate);
    row.addField(copy, CCTime);
    row.addField(copy, CCStation);
    return row.text();
}

std::string typeText(CardRecord &copy, Money total)
{
    decodeCardNumber(copy);
    RowText row;
    row += std::to_string(CreditCardType(copy.text(CCNumb)).type);
    row.addField(copy, CCTabAmt);
    row.addField(copy, CCTip);
    row += "|";
    row += plainText(total);
    return row.text();
}

} // namespace

std::string receiptColumn(const CardRecord &record)
{
    std::string text = receiptValue(record.text(CCReceipt));
    if (text.size() < 3)
        text.insert(0, 3 - text.size(), '0');
    return text;
}

std::string_view columnOf(std::string_view row, int column)
{
    for (; column > 0; --column) {
        const std::size_t bar = row.find('|');
        if (bar == std::string_view::npos)
            return {};
        row.remove_prefix(bar + 1);
    }
    return row.substr(0, row.find('|'));
}

void Sort_List(ListRows &rows, int column)
{
    struct Key {
        std::string_view text;
        std::size_t row;
    };
    std::vector<Key> keys;
    keys.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        keys.push_back({columnOf(rows[i].text, column), i});
    std::stable_sort(keys.begin(), keys.end(),
                     [](const Key &a, const Key &b) { return a.text < b.text; });
    ListRows sorted;
    sorted.reserve(rows.size());
    for (const Key &key : keys)
        sorted.push_back(std::move(rows[key.row]));
    rows = std::move(sorted);
}

void Totals::add(Money tab, Money tip)
{
    ++listed;
    tabs = tabs + tab;
    tips = tips + tip;
}

TotalTexts textsOf(const Totals &totals)
{
    return {Currency(totals.tabs), Currency(totals.tips), Currency(totals.tabs + totals.tips)};
}

DateSpan::DateSpan(const platform::DateTime &today)
    : oldest(Format(today, "MM/DD/YYYY")), newest(oldest), oldestDay(dayNumber(today)),
      newestDay(oldestDay)
{
}

void DateSpan::take(long slot, const CardRecord &record)
{
    const std::string_view date = record.view().substr(CCDate.offset, CCDate.length);
    if (date != lastDate) {
        lastDate = date;
        lastDay = dayOf(date);
    }
    // Kept: only slot 1 takes the place of today, so that without it the newest is today at least.
    if (slot == 1) {
        oldest = newest = record.text(CCDate);
        oldestDay = newestDay = lastDay;
    }
    if (lastDay == 0)
        return;
    if (lastDay < oldestDay || oldestDay == 0) {
        oldest = record.text(CCDate);
        oldestDay = lastDay;
    }
    if (lastDay > newestDay) {
        newest = record.text(CCDate);
        newestDay = lastDay;
    }
}

void CardList::reserve(std::size_t count)
{
    rows.reserve(count);
    types.reserve(count);
}

void CardList::add(long slot, CardRecord copy)
{
    const Money tab = copy.value(CCTabAmt);
    const Money tip = copy.value(CCTip);
    rows.push_back({rowText(copy, tab + tip), slot, RowColour::ButtonFace});
    totals.add(tab, tip);
    dates.take(slot, copy);
    types.push_back(typeText(copy, tab + tip));
}

} // namespace reports
