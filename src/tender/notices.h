// Notices: what a person has to know about a tender, shown after record and answer are written.
// They stay until somebody presses OK.
#pragma once

#include "printing/printer.h"
#include "records/app.h"

#include <string>
#include <vector>

namespace tender {

/// What a failure means that ends the program, before and after the payment is started.
inline constexpr const char *kNotCharged =
    "No card was charged. Try again; if this comes back, call the manager.";
inline constexpr const char *kMayBeCharged =
    "The card may be charged. Do not run it again before the manager has looked into the payment "
    "application.";

/// The record of a charge is in no card file. With `kept` it is in a file of the station.
platform::Notice notStoredNotice(const records::CardRecord &CCdata, platform::Outcome outcome,
                                 bool kept, const std::string &file);
/// The point of sale gets no answer; `result` is the word that it would have got.
platform::Notice notAnsweredNotice(const records::CardRecord &CCdata, const std::string &result,
                                   bool unknown, platform::Outcome outcome,
                                   const std::string &file);
/// The bank's word is unknown. `what` says why, `file` keeps what is known.
platform::Notice unknownNotice(const records::CardRecord &CCdata, const std::string &what,
                               const std::string &reason, const std::string &file);
inline constexpr const char *kNotRead = "The payment answered, but its answer cannot be read";

/// Says which slips of the record in `CCdata` were not printed, and where to print them again;
/// writes the same to both traces first. Does nothing when all were printed.
void tellUnprinted(records::App &app, const std::vector<printing::Unprinted> &unprinted);

} // namespace tender
