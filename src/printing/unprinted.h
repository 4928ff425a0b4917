// Messages and trace lines about slips that no printer took.
#pragma once

#include "platform/dialogs.h"
#include "printing/printer.h"

#include <string>
#include <vector>

namespace printing {

/// "The merchant's slip and the customer's slip were not printed on Receipt: no room on the disk."
/// One sentence for each printer and reason.
std::string unprintedWords(const std::vector<Unprinted> &unprinted);

/// "  NOT PRINTED - merchant's slip - no room on the disk - Receipt", a line for each slip.
std::vector<std::string> unprintedLines(const std::vector<Unprinted> &unprinted);

/// Shows what `printer` has not printed, followed by `whatNow`. Ok if everything was printed.
platform::Answer showUnprinted(platform::Dialogs &dialogs, Printer &printer,
                               const std::string &whatNow,
                               platform::Buttons buttons = platform::Buttons::Ok);

} // namespace printing
