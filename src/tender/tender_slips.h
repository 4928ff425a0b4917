// The slips of a tender: the values that they take from the screen, the order of printing, and
// their lines in "CCLastProcess.dat".
#pragma once

#include "printing/slip.h"
#include "records/app.h"
#include "tender/display.h"

#include <string_view>

namespace tender {

/// The tip that a guest approves in advance, and the sale with it. Shown and printed; the payment
/// is asked for the sale only.
/// `percent` of `amount`, cut to cents by the mask "######.##".
Gratuity gratuityOf(std::string_view amount, const records::Money &percent);

/// `slot` is the record's place in its card file, 0 for none.
printing::SlipContext slipContext(const TenderFields &fields, long slot);

/// The merchant's and the guest's copy of an approval. Kept: no printer is chosen for a request
/// that deletes a prepayment.
void printSlips(records::App &app, printing::Printer &printer, Display &display,
                const printing::SlipContext &context);
/// The two copies of a partial approval, and the attention slip for the server.
void printPartialSlips(records::App &app, printing::Printer &printer, Display &display,
                       const printing::SlipContext &context);

} // namespace tender
