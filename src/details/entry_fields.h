// EntryFields: what the manager's one-entry screen shows of a card record. Plain values; the screen
// only mirrors them. Texts are bytes, as the card files hold them.
#pragma once

#include <array>
#include <string>
#include <utility>

namespace details {

/// The boxes of Text1 that take an amount, and what people call it.
inline constexpr std::array<std::pair<std::size_t, const char *>, 5> kAmountBoxes = {
    {{4, "sale amount"},
     {7, "tab amount"},
     {8, "approved amount"},
     {12, "tip"},
     {22, "balance of the card"}}};

struct EntryFields {
    // Text1: 0 number, 1 expiry, 2 name, 3 track read line, 4 sale, 5 server, 6 table, 7 tab,
    // 8 approved, 9 response, 10 approval code, 11 status, 12 tip, 13 receipt, 14 date, 15 time,
    // 16 verification, 17 swiped, 18 station, 19 status of the tip, 20 new total, 21 brand,
    // 22 balance, 23 additional funds, 24 transaction of the processor. 20, 21 and 23 are shown
    // only, a save takes all others.
    std::array<std::string, 25> Text1;
    std::string Text2; // the number as people may see it, over Text1(0)
    std::string Text3; // the number as slips show it
    std::string Text4; // the tip being edited
    bool Text4Locked = false;
    // Typed, and not an amount: nothing is saved until it is one. There is no new total then.
    bool Text4Wrong = false;
    std::array<bool, 25> Text1Wrong{};

    long Label1_1 = 0;    // slot, from 1
    std::string Label3_0; // tab
    std::string Label3_1; // tab and tip
    std::string Label4_3; // "of " and the number of records
    std::string Label8;   // file of the record
    std::string Label9;   // the month's deleted file, as of the load
    std::string Label10;  // "PEND", "ARCH", "DELE": who opened the screen
    std::string Label12;  // "THIS IS A PARTIAL APPROVAL", "This is GIFT / DEBIT CARD"
    bool Label12Visible = false;
    // Text1(23), Label4(26) "ADDITIONAL FUNDS NEEDED", Label4(27) "Table was not CLOSED" and the
    // notice beside them
    bool fundsNoticesVisible = false;
    bool SSPanel2Visible = true; // quick tips

    std::array<std::string, 15> SSCommand6;            // captions of the quick tips
    std::array<bool, 2> SSCommand9Enabled{true, true}; // arrows: previous, next
    bool SSCommand12Visible = false;                   // "Delete and Print a Receipt"
    bool SSCommand13Visible = false;                   // "UnDelete - Move to Pending List"
    bool numberRevealed = false;    // Text2 is hidden; before, nobody may read Text1(0)
    bool trackLineRevealed = false; // Text1(3) shows its characters

    bool operator==(const EntryFields &) const = default;
};

} // namespace details
