// Writes an answer of the payment application to disk.
#pragma once

#include "simulator/outcome_table.h"

#include <string>

namespace simulator {

/// Waits as the outcome says and leaves the result file at the real path `path`; a whole one is
/// written beside it and renamed, so that nobody ever sees a part of it. False when it could not.
bool deliver(const PaymentOutcome &outcome, const std::string &path);

/// The real path of the result file that the request names, in the drives folder of this process.
std::string resultPath(const PaymentRequest &request);

/// Adds a line about this start to "sim_xcharge.log" beside the program as it was started: what was
/// asked, how it ends.
void logStart(const std::string &programPath, const PaymentRequest &request,
              std::string_view ending);

} // namespace simulator
