// Evidence: files that prove a charge after a tender was killed or could not read what the bank
// said. A result or answer that no tender has dealt with is renamed, never deleted.
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

/// Notes that the result of this mark has been dealt with. Errors are ignored: a result that is not
/// noted is put aside by the next tender.
void noteTaken(records::App &app, const std::string &mark);

/// Deletes the result or answer at `path` if it was dealt with. Any other one is renamed, with date
/// and time, in the same folder, and both traces get a line. Nothing happens without a file.
void clearResult(records::App &app, const std::string &path);

/// Clears what killed tenders of this station have left in the folder of the payment server. Their
/// requests are deleted, after receipt, amount and masked number were traced; their answers are
/// cleared by clearResult(). Call it only when no other tender of this station can be alive.
void clearDeadRequests(records::App &app);

/// Keeps what is known of a card whose outcome is unknown: "Data\Unknown-<date>-<time>" in
/// `Maindir` with a line `field=value` for each field of the tender, the card's number masked, and
/// a copy of the result beside it as far as it can be read. Returns the path of the file, empty
/// when it could not be written.
std::string keepUnknown(records::App &app, const std::string &resultPath,
                        const std::string &reason);

} // namespace tender
