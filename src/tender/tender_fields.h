// TenderFields: the tender's working storage. What the tender screen shows and what slips and
// procedures read is one plain struct; the screen only mirrors it. The comment beside a field
// begins with the control that shows it.
#pragma once

#include "platform/command_state.h"
#include "records/money.h"

#include <array>
#include <string>

namespace tender {

using platform::CommandState;

struct Gratuity {
    records::Money tip;
    records::Money total; // with the amount
    bool operator==(const Gratuity &) const = default;
};

struct TenderFields {
    // Of the request and of who asks.
    std::string amount;            // Text4, what is charged, as the request spells it
    std::string server;            // Label3[4], the number
    std::string serverName;        // Label3[12]
    std::string table;             // Label3[5]
    std::string receipt;           // Label3[6]
    std::string totalWithGratuity; // Label3[9], currency
    std::string gratuityPercent;   // Label3[10], "%" and the percent
    Gratuity gratuity;             // as shown there: a slip prints no other
    std::string auditAmount;       // Label9, what the point of sale calculated; currency

    // Of the card.
    std::string firstTrack;   // Text2, takes the swipe as it arrives
    std::string secondTrack;  // Text5, takes what follows a swipe's first part
    std::string cardNumber;   // Label3[0]
    std::string expiry;       // Label3[1], "YYMM"
    std::string firstName;    // Label3[2]
    std::string lastName;     // Label3[3]
    std::string cardOrResult; // Text1, what is read of a card, then the result
    bool cardMasked = false;  // Text1, its characters show as asterisks
    bool boxesLocked = true;  // Text2 and Text5 take no swipe
    bool cardTaken = false;   // a card is being validated or charged: no other one is read

    // Of the wait.
    bool requestAtServer = false;     // the card is with the payment server, or on its way there
    std::string status;               // Text3
    bool statusRed = false;           // Text3
    std::string waitCount = "0";      // Label7; one count is 960 ms
    bool waitCountVisible = false;    // Label7
    std::string sharedCount = "0";    // Label4, of timers and the wait together
    bool waitPanelVisible = false;    // SSPanel2
    std::string warning;              // SSPanel4
    bool warningRed = false;          // SSPanel4
    bool warningVisible = false;      // SSPanel4
    bool ribbonsVisible = false;      // SSRibbon1 and SSRibbon2, beside the warning
    bool offlinePanelVisible = false; // SSPanel5

    // Of the result.
    bool result = false;      // there is a result (colours the state card)
    bool approved = false;    // the result is an approval, whole or partial
    bool partial = false;     // the approval is partial
    bool unknown = false;     // the bank has answered, and nobody can read it
    std::string partApproved; // what the bank gave in a partial approval
    std::string stillOwed;    // what the guest has to pay in another way then
    int waitingRecords = 0;   // charged cards of this station that no card file holds yet

    // Of the setup.
    std::string version;             // Label3[8]
    std::string versionLine;         // Label13[3], "Version 5.68.0"
    std::string versionToolTip;      // Label13[3]
    bool X1009 = false;              // the payment application is driven by its command line
    std::string commandLineMode;     // Label3[13], X1009 as "True"/"False"
    std::string partialSupport;      // Label3[14], "YES"/"NO"
    std::string saleKind;            // Label3[15], "PreAuth"/"Purchase"
    std::string tipLine;             // Label12, "YES"/"NO"
    std::string cutBetweenCopies;    // Label14, "YES"/"NO"
    std::string gratuitySlip = "NO"; // SSCommand7, "YES": slip with gratuity
    bool noReceipt = false;          // SSCheck1, "Do not print a RECEIPT for Customer"
    bool noReceiptEnabled = false;   // SSCheck1, once it is known where it is remembered

    // The commands.
    CommandState cancel{false, true};        // SSCommand1, "Cancel"
    CommandState finish{false, true};        // SSCommand2, "Finish Tender"
    CommandState enterManually{false, true}; // SSCommand3, "Enter Manually"
    CommandState clear{false, true};         // SSCommand4, "Clear"
    CommandState setup{false, true};         // SSCommand5, "CONFIG"
    CommandState view{false, true};          // SSCommand6, "View"
    CommandState startServer{false, true};   // Command3, "Start Xcharge"

    bool operator==(const TenderFields &) const = default;
};

/// The fields that hold the card; they are wiped after use.
inline std::array<std::string *, 7> cardTexts(TenderFields &fields)
{
    return {&fields.cardOrResult, &fields.firstTrack, &fields.secondTrack, &fields.cardNumber,
            &fields.expiry,       &fields.firstName,  &fields.lastName};
}

} // namespace tender
