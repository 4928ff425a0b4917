#include "pending/pending_list.h"

#include "records/status_words.h"
#include "reports/row_colours.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pending {

using namespace records;
using reports::ListRow;
using reports::ListRows;

namespace {

std::string_view fieldOf(const CardRecord &record, const CardField &field)
{
    return record.view().substr(field.offset, field.length);
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

void ListBuilder::add(long slot, CardRecord copy)
{
    if (!isListed(copy))
        return;
    takeApprovedAmount(copy);
    sawNotAdjusted = sawNotAdjusted || beginsNotAdjusted(fieldOf(copy, CCAdjStatus));
    sawDeleted = sawDeleted || beginsDeleted(fieldOf(copy, CCstatus));
    list.add(slot, copy);
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
        const std::string_view status = reports::columnOf(row.text, reports::kTipStatusColumn);
        row.colour = reports::tipStatusColour(status);
        if (beginsNotAdjusted(status)) {
            ++state.toAdjust;
            ++state.white;
        }
        if (status.starts_with("N")) // Kept: so a "Not" counts twice
            ++state.toAdjust;
    }
    if (rows.empty() || state.toAdjust > 0)
        state.processEnabled = false;
}

void Color_Declines(ListRows &rows, ListState &state)
{
    int declines = 0;
    for (ListRow &row : rows) {
        const std::string_view status = reports::columnOf(row.text, reports::kStatusColumn);
        row.colour = reports::statusColour(status).value_or(row.colour);
        declines += beginsDeclined(status) ? 1 : 0;
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
