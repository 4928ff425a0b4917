// The audit of the amount: what the point of sale calculated, "XAudit.DAT" in `Maindir`, against
// what the tender asks for.
#pragma once

#include "records/app.h"
#include "tender/display.h"

namespace tender {

/// Asks the operator when the two are not the same money; a file that cannot be read agrees with
/// no amount. True when he pressed Cancel: then the result word is empty. `localPath` is for the
/// wording of the question.
bool auditRefused(records::App &app, Display &display, bool localPath);

} // namespace tender
