// Asked payments: the payments of this station that were started and whose answer no tender has
// read. A payment application that its tender has given up may still answer, in the midst of the
// next tender.
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

/// Those of today that are still open.
std::vector<AskedPayment> openPayments(records::App &app);
/// Adds one. Failures of all of these end nothing.
void noteAsked(records::App &app, const AskedPayment &payment);
/// Takes it out again, and what is not of today.
void noteAnswered(records::App &app, const AskedPayment &payment);

/// The result in `CCdata` is for another amount than `amount`: what is approved and what is still
/// owed do not make it up. A result that names no approved amount is for any.
bool isForAnotherAmount(const records::CardRecord &CCdata, std::string_view amount);

} // namespace tender
