#include "pending/pending_list.h"

#include "records/card_helpers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace pending {

using namespace records;

namespace {

constexpr std::size_t kMoneysDigits = 14; // of a whole number that Money surely holds

bool beginsWith(const CardRecord &record, const CardField &field, std::string_view beginning)
{
    return startsWith(record.view().substr(field.offset, field.length), beginning);
}

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

bool isListed(const CardRecord &record)
{
    return !record.isEmpty(CCstatus) && record.view()[CCstatus.offset] != '\0';
}

Counted countedAs(CardRecord &copy)
{
    takeApprovedAmount(copy);
    return {isListed(copy), copy.value(CCTabAmt), copy.value(CCTip)};
}

std::string receiptColumn(const CardRecord &record)
{
    std::string text = receiptValue(record.text(CCReceipt));
    if (text.size() < 3)
        text.insert(0, 3 - text.size(), '0');
    return text;
}

std::string rowOf(const CardRecord &copy)
{
    return rowText(copy, copy.value(CCTabAmt) + copy.value(CCTip));
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

ListBuilder::ListBuilder(const platform::DateTime &today)
    : oldest(Format(today, "MM/DD/YYYY")), newest(oldest), oldestDay(dayNumber(today)),
      newestDay(oldestDay)
{
}

void ListBuilder::reserve(std::size_t count)
{
    rows.reserve(count);
    types.reserve(count);
}

void ListBuilder::add(long slot, CardRecord copy)
{
    const auto [isOn, tab, tip] = countedAs(copy);
    if (!isOn)
        return;
    sawNotAdjusted = sawNotAdjusted || beginsWith(copy, CCAdjStatus, "Not");
    sawDeleted = sawDeleted || beginsWith(copy, CCstatus, "Del");
    ++listed;
    rows.push_back({rowText(copy, tab + tip), slot, RowColour::ButtonFace});
    types.push_back(typeText(copy, tab + tip));
    tabs = tabs + tab;
    tips = tips + tip;
    takeDate(slot, copy);
}

void ListBuilder::takeDate(long slot, const CardRecord &record)
{
    const std::string_view date = record.view().substr(CCDate.offset, CCDate.length);
    if (date != lastDate) {
        lastDate = date;
        lastDay = dayOf(date);
    }
    // Kept: slot 1 alone takes the place of today, so that without it the newest is today at least.
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

int sortColumnOf(int option)
{
    constexpr std::array<int, 7> kColumns = {0, 1, 0, 2, 10, 11, 6};
    return kColumns[static_cast<std::size_t>(std::clamp(option, 0, 6))];
}

void Color_Not_Adjusted(ListRows &rows, ListState &state)
{
    state.toAdjust = 0;
    state.white = 0;
    for (ListRow &row : rows) {
        const std::string_view status = columnOf(row.text, 6);
        row.colour = RowColour::ButtonFace;
        if (startsWith(status, "Not")) {
            row.colour = RowColour::White;
            ++state.toAdjust;
            ++state.white;
        }
        if (startsWith(status, "N")) // Kept: so a "Not" counts twice
            ++state.toAdjust;
        if (startsWith(status, "Com"))
            row.colour = RowColour::LightGreen;
    }
    if (rows.empty() || state.toAdjust > 0)
        state.processEnabled = false;
}

void Color_Declines(ListRows &rows, ListState &state)
{
    int declines = 0;
    for (ListRow &row : rows) {
        const std::string_view status = columnOf(row.text, 8);
        if (startsWith(status, "Dec")) {
            row.colour = RowColour::Red;
            ++declines;
        } else if (startsWith(status, "Com")) {
            row.colour = RowColour::LightGreen;
        }
    }
    // Kept: while something waits to be adjusted the notice stays as it is, red rows or not.
    if (state.toAdjust > 0)
        return;
    if (declines > 0)
        state.processEnabled = false;
    else if (rows.size() > 1 && !state.sawDeleted)
        state.processEnabled = true;
    state.noticeVisible = declines > 0;
    if (declines > 0)
        state.notice = "You have " + std::to_string(declines) +
                       " Declined entries. You must delete the declined entries before you can "
                       "process the approved items";
}

} // namespace pending
