// EntryFields: what the manager's one-entry screen shows of a card record. Plain values; the screen
// only mirrors them. Texts are bytes, as the card files hold them.
#pragma once

#include "records/per_name.h"

#include <array>
#include <string>
#include <utility>

namespace details {

/// The boxes of a record, in the order of their controls Text1[0] to Text1[24]. `NewTotal`, `Brand`
/// and `FundsNeeded` are only shown; a save takes all others.
enum class Box {
    Number,
    Expiry,
    Name,
    TrackLine,
    Sale,
    Server,
    Table,
    Tab,
    Approved,
    Response,
    ApprovalCode,
    Status,
    Tip,
    Receipt,
    Date,
    Time,
    Verification,
    Swiped,
    Station,
    TipStatus,
    NewTotal,
    Brand,
    Balance,
    FundsNeeded, // that the card lacked
    Transaction, // of the processor
};
inline constexpr std::size_t kBoxes = 25;
static_assert(static_cast<std::size_t>(Box::Transaction) + 1 == kBoxes);
template <class Value> using PerBox = records::PerName<Box, Value, kBoxes>;

/// The boxes that take an amount, and what people call it.
inline constexpr std::array<std::pair<Box, const char *>, 5> kAmountBoxes = {
    {{Box::Sale, "sale amount"},
     {Box::Tab, "tab amount"},
     {Box::Approved, "approved amount"},
     {Box::Tip, "tip"},
     {Box::Balance, "balance of the card"}}};

struct EntryFields {
    PerBox<std::string> boxes; // Text1
    std::string maskedNumber;  // Text2: the number as people may see it, over its box
    std::string slipNumber;    // Text3: the number as slips show it
    std::string tip;           // Text4: the tip being edited
    bool tipLocked = false;
    // Something typed is not an amount: nothing can be saved, and there is no new total.
    bool tipWrong = false;
    PerBox<bool> wrong;

    long slot = 0;           // Label1[1], from 1
    std::string tab;         // Label3[0]
    std::string total;       // Label3[1]: tab and tip
    std::string ofRecords;   // Label4[3]: "of " and the number of records
    std::string file;        // Label8, of the record
    std::string deletedFile; // Label9: the month's, as of the load
    std::string openedFrom;  // Label10: "PEND", "ARCH", "DELE"
    std::string cardNotice;  // Label12: "THIS IS A PARTIAL APPROVAL", "This is GIFT / DEBIT CARD"
    bool cardNoticeVisible = false;
    // The box of the funds needed; Label4[26] "ADDITIONAL FUNDS NEEDED" and Label4[27] "Table was
    // not CLOSED" with the notice beside them.
    bool fundsNoticesVisible = false;
    bool quickTipsVisible = true; // SSPanel2

    std::array<std::string, 15> quickTips; // SSCommand6: captions
    bool previousEnabled = true;           // SSCommand9[0], an arrow
    bool nextEnabled = true;               // SSCommand9[1]
    bool deleteAndPrintVisible = false;    // SSCommand12
    bool undeleteVisible = false;          // SSCommand13
    bool numberRevealed = false;           // until then the box with the plain number is hidden
    bool trackLineRevealed = false;        // its box shows its characters

    bool operator==(const EntryFields &) const = default;
};

} // namespace details
