// What the stand-in for the payment server answers: the one line of a ".req" file, the table that
// decides by the cents of the amount, and the text of the ".ans" file. No file and no clock here.
#pragma once

#include "simulator/outcome_table.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// The values of a request that matter for an answer; of the card only what may be shown.
struct ServerRequest {
    std::string kind; // "C6" a charge, "C1" a pre-authorisation
    std::string server;
    std::string receipt;
    std::string amount;
    std::string shownCard; // all but the last four digits hidden
};

/// A request that is still being written has no line end yet.
bool isWholeRequest(std::string_view content);
/// Seven quoted values, or eight with the digits from the back of the card, the seventh "99999".
/// Nothing for any other line.
std::optional<ServerRequest> parseServerRequest(std::string_view content);

/// All rows in the order of the cents. Cents that no row names approve.
std::vector<OutcomeRow> serverRows();

/// The answer to a request. An amount of 0, a negative one or a text that is not a number is
/// declined.
PaymentOutcome decide(const ServerRequest &request);
/// The answer to a whole line that is no request.
PaymentOutcome refuse();

/// A readable line: what was asked and how it ended, without card numbers or anything as long as
/// one.
std::string readableStep(const ServerRequest &request, std::string_view ending);

} // namespace simulator
