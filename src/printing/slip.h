// The direct slips: their lines, from the record in `CCdata`. Each procedure writes to the selected
// printer with errors ignored: a slip that cannot be printed is lost, and the transaction goes on.
// A slip is written without a turn of the event loop, because the operator's "Cancel" must not come
// between an approval and its answer.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "records/money.h"

#include <string>

namespace printing {

/// What a slip takes from the screen that prints it.
struct SlipContext {
    std::string requestText;       // the table of the request, untrimmed
    std::string seconds;           // what the approval took
    bool tipPreApproved = false;   // a slip with the gratuity is wanted
    records::Money preApprovedTip; // printed only with tipPreApproved
    records::Money totalWithTip;
    long transRecord = 0;        // slot of the record in its file
    bool noCustomerCopy = false; // none for the customer
    bool reprint = false;        // the reprint flag; only reprints read it and the marker
    bool giftMarker = false;     // the marker "T": a reprint shows the card's balance
};

// After an approval. The merchant copy comes first.

/// Prints nothing if the trimmed request text begins with "DelPrePa".
void Print_Merch(records::App &app, Printer &printer, const SlipContext &context);
/// Writes "CreditApproval.dat" instead when no customer copy is wanted (the box or
/// "CCnoPrint.dat") or the request text begins with "DelPrePay". With the NoCut2 flag at -1 the
/// job stays open.
void Print_Cust(records::App &app, Printer &printer, const SlipContext &context);

/// The copies of a partial approval, with the same tests. A `CCaditionalFUNDS` of 0 becomes "5" in
/// `CCdata`. With autocut they leave their job open, for Att_Server to close.
void PrintPartial_Merch(records::App &app, Printer &printer, const SlipContext &context);
void PrintPartial_Cust(records::App &app, Printer &printer, const SlipContext &context);

/// The attention slip for the server after a partial approval, in the plain slip font. Closes the
/// job.
void Att_Server(const records::App &app, Printer &printer);

/// The balance section of a gift card, within a slip.
void print_balance(const records::App &app, Printer &printer);
/// The balance on a separate page, after template slips.
void printGiftBalancePage(const records::App &app, Printer &printer);

// Reprints, from the record in `CCdata`: nothing suppresses them. `CCNumb` must be plain.

void Reprint_Merch(const records::App &app, Printer &printer, const SlipContext &context);
void Reprint_Cust(const records::App &app, Printer &printer, const SlipContext &context);
/// The void slip: the customer's copy, then the merchant's.
void Print_Cust2(const records::App &app, Printer &printer, const SlipContext &context);

/// Cuts the paper and closes the job. The font family stays, its size is 10 afterwards.
void CutSequence(Printer &printer);

/// "CreditApproval.dat" in `Maindir`, for the point of sale: two quoted lines, the end of the card
/// reference as the record holds it and the approval code.
void writeCreditApproval(const records::App &app);

/// Loads printers and the slip font while the program waits anyway.
void warmUp(const records::App &app, Printer &printer);

} // namespace printing
