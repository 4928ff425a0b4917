// Notices: what a person has to know of a tender whose record and answer are written. They stay
// until somebody presses OK.
#pragma once

#include "printing/printer.h"
#include "records/app.h"

#include <vector>

namespace tender {

/// Says which slips of the record in `CCdata` were not printed, and where to print them again; the
/// same goes to both traces first. Nothing for none.
void tellUnprinted(records::App &app, const std::vector<printing::Unprinted> &unprinted);

} // namespace tender
