// The audit compares the amount of the tender with the one that the point of sale has calculated,
// in "XAudit.DAT" in `Maindir`.
#pragma once

#include "records/app.h"
#include "tender/display.h"

namespace tender {

/// Asks the operator when the two amounts differ; a file that cannot be read agrees with no amount.
/// True after "Cancel"; then the result word is empty. Without the command line (`localPath`) the
/// question has another wording.
bool auditRefused(records::App &app, Display &display, bool localPath);

} // namespace tender
