// The rows of a list of card records, with their order, totals and dates. Screens, printed lists
// and reports find a row's fields by counting bars, so the twelve columns and their order stay as
// they are.
#pragma once

#include "records/card_record.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace reports {

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

inline constexpr int kTipStatusColumn = 6; // `CCAdjStatus`
inline constexpr int kStatusColumn = 8;    // `CCstatus`

/// Column 0: the value of the receipt as plain text, "0" in front of two characters, "00" in front
/// of one. "12A" is "012", "MGR7" "000", "1043" itself.
std::string receiptColumn(const records::CardRecord &record);

/// Column N of a row, from 0; one that is not there is empty.
std::string_view columnOf(std::string_view row, int column);

/// Sorts by the whole text of a column, byte by byte without sign, blanks first; rows alike keep
/// their order. Kept: "10" stands before "7" and "01:00 PM" before "11:00 AM".
void Sort_List(ListRows &rows, int column);

struct Totals {
    long listed = 0;
    records::Money tabs;
    records::Money tips;

    void add(records::Money tab, records::Money tip);
};

/// The totals as currency, as screens and printed lists show them.
struct TotalTexts {
    std::string tabs;
    std::string tips;
    std::string grand;

    bool operator==(const TotalTexts &) const = default;
};

TotalTexts textsOf(const Totals &totals);

/// The oldest and the newest date of the records listed.
class DateSpan {
public:
    explicit DateSpan(const platform::DateTime &today);

    /// In the order of the slots.
    void take(long slot, const records::CardRecord &record);

    std::string oldest; // today as MM/DD/YYYY, or a record's own date
    std::string newest;

private:
    int oldestDay;
    int newestDay;
    std::string lastDate; // the date read last, for the many records that have the same
    int lastDay = 0;
};

/// The records of a file that a list shows, in the order of their slots.
class CardList {
public:
    explicit CardList(const platform::DateTime &today) : dates(today) {}

    void reserve(std::size_t count);
    /// A working copy, with what the list shows as its tab and tip.
    /// Kept: a "|" inside a field shifts the columns after it. A NUL shows as a blank.
    void add(long slot, records::CardRecord copy);

    ListRows rows;
    std::vector<std::string> types; // "card type|tab|tip|total", in the order of the slots
    Totals totals;
    DateSpan dates;
};

} // namespace reports
