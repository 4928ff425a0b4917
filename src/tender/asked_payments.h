// Asked payments: the payments of this station that were started and whose result no tender has
// read. When a tender has given up, the payment application may still answer, during the next
// tender.
#pragma once

#include "records/app.h"

#include <string>
#include <vector>

namespace tender {

/// A line of "Data\PaymentsAsked.dat" in `Maindir`: three quoted values with commas between.
struct AskedPayment {
    std::string stamp; // of its start, see records::stampOf()
    std::string receipt;
    std::string amount;
    bool operator==(const AskedPayment &) const = default;
};

/// The payments of today that are still open. Errors are ignored here and below.
std::vector<AskedPayment> openPayments(records::App &app);
/// Adds a payment.
void noteAsked(records::App &app, const AskedPayment &payment);
/// Removes the payment, and those of earlier days.
void noteAnswered(records::App &app, const AskedPayment &payment);

/// True when the approved amount and the amount still owed in `CCdata` do not add up to `amount`.
/// False for a result without an approved amount.
bool isForAnotherAmount(const records::CardRecord &CCdata, std::string_view amount);

} // namespace tender
