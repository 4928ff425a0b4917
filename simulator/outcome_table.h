// What the stand-in for the payment application answers: the command line with which it was
// started, the table that decides by the cents of the amount, and the text of the result file. No
// file, no clock and no window here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// The options of the command line that matter for an answer; what is absent is empty.
struct PaymentRequest {
    std::string transactionType; // "PreAuth" or "Purchase"
    std::string amount;
    std::string receipt;
    std::string clerk;
    std::string resultFile; // as spelled, a Windows path
    std::string title;
    bool partialSupport = false;
};

/// Reads "/NAME:value /NAME ..."; a value ends at the next blank before a slash, so it may be empty
/// or contain blanks. The case of names does not matter; unknown names are ignored.
PaymentRequest parsePaymentRequest(std::string_view arguments);

enum class Delivery {
    Whole,            // under a temporary name, then renamed
    FirstPart,        // the first part under the final name, and never more
    FirstPartThenAll, // the same, and the rest 0.4 s later
    None,             // no file at all
};

/// How one start of the payment application ends.
struct PaymentOutcome {
    std::string_view name; // the row of the table
    std::string content;   // of the result file
    Delivery delivery = Delivery::Whole;
    std::size_t firstPart = 0; // bytes
    int waitSeconds = 0;       // before anything is written
};

/// One row of the table: an amount whose cents lie in the range ends like this.
struct OutcomeRow {
    int firstCents;
    int lastCents;
    std::string_view name;
    std::string_view meaning;

    bool holds(std::int64_t cents) const
    {
        return cents % 100 >= firstCents && cents % 100 <= lastCents;
    }
};

/// All rows in the order of the cents. All other cents approve, including 48.50 and every whole
/// amount.
std::vector<OutcomeRow> outcomeRows();

/// The answer to a request. An amount of 0, a negative one or a text that is not a number is
/// declined; a partial approval without /PartialApprovalSupport:T is a full decline.
PaymentOutcome decide(const PaymentRequest &request);

/// The texts that a person at the payment window chooses from.
std::string approvedResult(const PaymentRequest &request);
std::string declinedResult(const PaymentRequest &request);
/// Half of the amount, rounded down to the cent.
std::string partialResult(const PaymentRequest &request);

} // namespace simulator
