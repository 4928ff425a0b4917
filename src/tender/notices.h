// Notices: what a person has to know of a tender whose record and answer are written. They stay
// until somebody presses OK.
#pragma once

#include "printing/printer.h"
#include "records/app.h"

#include <string>
#include <vector>

namespace tender {

/// For a failure that ends the program, before the payment is asked and from there on.
inline constexpr const char *kNotCharged =
    "No card was charged. Try again; if this comes back, call the manager.";
inline constexpr const char *kMayBeCharged =
    "The card may be charged. Do not run it again before the manager has looked into the payment "
    "application.";

/// A charge whose record is in no card file; `kept`: it is in a file of the station's own.
platform::Notice notStoredNotice(const records::CardRecord &CCdata, platform::Outcome outcome,
                                 bool kept, const std::string &file);
/// The point of sale does not get to know how the tender ended; `result` is its word.
platform::Notice notAnsweredNotice(const records::CardRecord &CCdata, const std::string &result,
                                   bool unknown, platform::Outcome outcome,
                                   const std::string &file);
/// Nobody knows what the bank said: `what` tells why, `file` keeps what is known.
platform::Notice unknownNotice(const records::CardRecord &CCdata, const std::string &what,
                               const std::string &reason, const std::string &file);
inline constexpr const char *kNotRead = "The payment answered, but its answer cannot be read";

/// Says which slips of the record in `CCdata` were not printed, and where to print them again; the
/// same goes to both traces first. Nothing for none.
void tellUnprinted(records::App &app, const std::vector<printing::Unprinted> &unprinted);

} // namespace tender
