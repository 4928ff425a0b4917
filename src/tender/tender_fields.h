// TenderFields: the tender's working storage. What the tender screen shows and what slips and
// procedures read is one plain struct; the screen only mirrors it.
#pragma once

#include <array>
#include <string>

namespace tender {

/// A command's state as the procedures set it.
struct CommandState {
    bool enabled = true;
    bool visible = true;
    bool operator==(const CommandState &) const = default;
};

struct TenderFields {
    // Label3: 0 card number, 1 expiry "YYMM", 2 first name, 3 last name, 4 server number, 5 table,
    // 6 receipt, 8 version, 9 total with gratuity, 10 "%" and the percent, 12 server's name,
    // 13 value of X1009, 14 partial support "YES"/"NO", 15 "PreAuth"/"Purchase".
    std::array<std::string, 16> Label3;

    std::string Text1;        // result line and what is read of a card
    std::string Text2;        // takes the swipe as it arrives
    std::string Text3;        // status line
    std::string Text4;        // the amount charged, as the request spells it
    std::string Text5;        // takes what follows a swipe's first part
    std::string Label4 = "0"; // the count that timers and the wait share
    std::string Label7 = "0"; // counts of the wait; one count is 960 ms
    std::string Label9;       // the audit's amount
    std::string Label12;      // tip line "YES"/"NO"
    std::string Label13_3;    // "Version 5.68.0"
    std::string Label14;      // cut between the copies "YES"/"NO"
    std::string versionToolTip;
    std::string SSCommand6Caption;        // "View" while card digits are masked
    std::string SSCommand7Caption = "NO"; // "YES": slip with gratuity

    std::string partApproved; // of a partial approval: what the bank gave,
    std::string stillOwed;    // and what the guest has to pay otherwise

    int waitingRecords = 0; // charged cards of this station that no card file holds yet

    bool Label7Visible = false;
    bool Text1Masked = false; // card digits show as asterisks
    bool boxesLocked = true;  // Text2 and Text5 take no swipe
    bool cardTaken = false;   // a card is being validated or charged: no other one is read
    bool Text3Red = false;
    bool SSCheck1Enabled = false; // once it is known where it is remembered
    bool SSCheck1 = false;        // "Do not print a RECEIPT for Customer"
    bool SSPanel2Visible = false; // wait panel
    bool SSPanel4Visible = false; // warning panel
    bool SSPanel5Visible = false; // offline panel
    bool SSRibbonsVisible = false;
    bool SSPanel4Red = false;
    std::string SSPanel4; // the warning

    CommandState SSCommand1{false, true}; // "Cancel"
    CommandState SSCommand2{false, true}; // "Finish Tender"
    CommandState SSCommand3{false, true}; // "Enter Manually"
    CommandState SSCommand4{false, true}; // "Clear"
    CommandState SSCommand5{false, true}; // "CONFIG"
    CommandState SSCommand6{false, true}; // "View"
    CommandState Command3{false, true};   // "Start Xcharge"

    bool X1009 = false;
    bool result = false;   // there is a result (colours the state card)
    bool approved = false; // and it is an approval,
    bool partial = false;  // be it of a part alone
    bool unknown = false;  // the bank has answered, and nobody can read it

    bool operator==(const TenderFields &) const = default;
};

/// Those that hold what is read of a card: wiped when it is done with.
inline std::array<std::string *, 7> cardTexts(TenderFields &fields)
{
    return {&fields.Text1,     &fields.Text2,     &fields.Text5,    &fields.Label3[0],
            &fields.Label3[1], &fields.Label3[2], &fields.Label3[3]};
}

} // namespace tender
