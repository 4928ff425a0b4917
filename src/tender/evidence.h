// Evidence: what tells of a charge when a tender was killed, or could not read what the bank said.
// A result or answer that no tender has dealt with is put aside, never deleted.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace tender {

/// "Data\ResultTaken.dat" in `Maindir`: the size, time and digest of the last result whose record
/// and answer were on the disk.
std::string resultTakenFile(const records::ProcessValues &values);

/// The digest of a content, as 16 hexadecimal digits; it tells results apart and protects nothing.
std::string digestOf(std::string_view content);

/// What a result is known by, from the bytes that were read and the time of their last writing.
std::string resultMark(std::string_view content, const platform::DateTime &modified);

/// Notes that the result of this mark has been dealt with. Failures end nothing: a result that is
/// not noted is put aside by the next tender.
void noteTaken(records::App &app, const std::string &mark);

/// Deletes the result or answer at `path` where it was dealt with; any other one gets a name with
/// date and time in the same folder, and a line in both traces. One that is not there is no
/// failure.
void clearResult(records::App &app, const std::string &path);

/// What tenders of this station that were killed have left of their exchange with the payment
/// server: their requests, which nobody waits for any more, are deleted, receipt, amount and masked
/// number traced before; their answers are cleared as results are. Only where no other tender of
/// this station can be alive.
void clearDeadRequests(records::App &app);

/// Keeps what is known of a card whose outcome nobody knows: "Data\Unknown-<date>-<time>" in
/// `Maindir` with a line `field=value` for each field of the tender, the card's number masked, and
/// a copy of the result beside it as far as it can be read. The path of the file, empty when it
/// could not be written.
std::string keepUnknown(records::App &app, const std::string &resultPath,
                        const std::string &reason);

} // namespace tender
