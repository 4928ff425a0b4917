// The manager's list of "CCPending.dat" as rules: which records are on it, their rows, totals,
// dates, order and colours. Screens, printed list and totals find a row's fields by counting bars,
// so the twelve columns and their order stay as they are.
#pragma once

#include "records/card_record.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace pending {

/// The system's button-face colour, FFFFFF, 80FF80 and FF (a pure red).
enum class RowColour { ButtonFace, White, LightGreen, Red };

struct ListRow {
    std::string text; // twelve columns with "|" between them
    long slot = 0;    // of its record in the file, from 1
    RowColour colour = RowColour::ButtonFace;
};

using ListRows = std::vector<ListRow>;

inline constexpr std::array<const char *, 12> kColumnHeads = {"Recp #",
                                                              "Server",
                                                              "TabAmt",
                                                              "AuthAmt",
                                                              "TipAmt",
                                                              "nTotal",
                                                              "Adjusted  Status ###",
                                                              "Auth  #.....",
                                                              "Status .....",
                                                              "Date .........",
                                                              "Time .........",
                                                              "Terminal"};

/// False for an empty slot: `CCstatus` is blank or begins with a NUL.
bool isListed(const records::CardRecord &record);

/// Column 0: the value of the receipt as plain text, "0" in front of two characters, "00" in front
/// of one. "12A" is "012", "MGR7" "000", "1043" itself.
std::string receiptColumn(const records::CardRecord &record);

/// A row of the list, from a working copy in which takeApprovedAmount() was applied.
/// Kept: a "|" inside a field shifts the columns behind it. A NUL shows as a blank.
std::string rowOf(const records::CardRecord &copy);

/// Column N of a row, from 0; one that is not there is empty.
std::string_view columnOf(std::string_view row, int column);

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
    explicit ListBuilder(const platform::DateTime &today);

    /// The record of a slot as it stands in the file; a slot that is not listed is passed over.
    /// Kept: with an approved amount above 0 that amount is listed and totalled as the tab, be it
    /// less (a partial approval) or more (a tip approved beforehand). The file keeps the tab, and
    /// that is what the bank is sent, until somebody saves the entry.
    void add(long slot, records::CardRecord copy);

    void reserve(std::size_t count);

    long listed = 0;
    ListRows rows; // shownRows
    std::vector<std::string>
        types; // cardTypes: "card type|tab|tip|total", in the order of the slots
    records::Money tabs;
    records::Money tips;
    std::string oldest; // today as MM/DD/YYYY, or a record's own date
    std::string newest;
    bool sawNotAdjusted = false; // a `CCAdjStatus` begins with "Not"
    bool sawDeleted = false;     // a `CCstatus` begins with "Del"

private:
    void takeDate(long slot, const records::CardRecord &record);

    int oldestDay;
    int newestDay;
    std::string lastDate; // the date read last, for the many records that have the same
    int lastDay = 0;
};

/// Sorts by the whole text of a column, byte by byte without sign, blanks first; rows alike keep
/// their order. Kept: "10" stands before "7" and "01:00 PM" before "11:00 AM".
void Sort_List(ListRows &rows, int column);

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

/// "Not Adjusted" white, "Com..." light green, all others in the button's colour. A "Not" counts 2
/// in `toAdjust`, any other status with an N 1. "Process" is disabled when that is above 0, and
/// with an empty list.
void Color_Not_Adjusted(ListRows &rows, ListState &state);

/// Rows declined ("Dec...") red. When nothing waits to be adjusted: with a declined row "Process"
/// is disabled and a notice shown; without one the notice goes, and more than one row enables it,
/// unless a record was marked deleted.
void Color_Declines(ListRows &rows, ListState &state);

} // namespace pending
