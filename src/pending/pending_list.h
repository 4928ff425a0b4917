// The manager's list of "CCPending.dat" as rules: which records are on it, which amount
// counts as their tab, what their colours decide.
#pragma once

#include "reports/card_list.h"

namespace pending {

/// False for an empty slot: `CCstatus` is blank or begins with a NUL.
bool isListed(const records::CardRecord &record);

/// What a record counts for in the totals.
struct Counted {
    bool listed = false;
    records::Money tab;
    records::Money tip;
};

/// The approved amount takes the place of the tab in the copy.
Counted countedAs(records::CardRecord &copy);

/// Takes the records of a file in the order of their slots.
class ListBuilder {
public:
    explicit ListBuilder(const platform::DateTime &today) : list(today) {}

    /// The record of a slot as it stands in the file; an empty slot is ignored.
    /// Kept: with an approved amount above 0 that amount is listed and totalled as the tab, whether
    /// less (a partial approval) or more (a tip approved beforehand). The file keeps the tab, which
    /// is what the bank gets, until somebody saves the entry.
    void add(long slot, records::CardRecord copy);

    reports::CardList list;
    bool sawNotAdjusted = false; // a `CCAdjStatus` begins with "Not"
    bool sawDeleted = false;     // a `CCstatus` begins with "Del"
};

/// The column that "Receipt Number", "Server Number", "Table Number", "Tab Amount", "Time",
/// "Terminal", "Status" (options 0 to 6) sort by. A row has no table, so "Table Number" sorts by
/// receipt.
int sortColumnOf(int option);

/// What the colour passes find and decide.
struct ListState {
    int toAdjust = 0;            // above 0: somebody still has to adjust a row
    long white = 0;              // rows "Not Adjusted"
    bool sawDeleted = false;     // by the loader
    bool processEnabled = false; // "Process"
    bool noticeVisible = false;
    std::string notice;
};

/// By the status of the tip. A "Not" counts 2 in `toAdjust`, any other status with an N 1.
/// "Process" is disabled when that is above 0, and with an empty list.
void Color_Not_Adjusted(reports::ListRows &rows, ListState &state);

/// Rows declined red. When nothing waits to be adjusted: with a declined row "Process" is disabled
/// and a notice shown; without one the notice goes, and more than one row enables it, unless a
/// record was marked deleted.
void Color_Declines(reports::ListRows &rows, ListState &state);

} // namespace pending
