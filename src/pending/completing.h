// Rewrites of "CCPending.dat" that move settled, declined and dated records out of it.
#pragma once

#include "records/app.h"

#include <functional>
#include <string>

namespace pending {

/// Called for each slot of a walk through the locked file; it must not let events run.
using Progress = std::function<void(long slot)>;

/// "Finish": settled records move to the month file, empty slots vanish. In all others, moving and
/// staying, `CCNumb` is scrambled and `CCEncoded` set to "1" where it is not yet, and `CCAdjStatus`
/// is left-justified; tips, amounts and `CCstatus` stay as they are. Called in ErrorsIgnored. Kept:
/// a refused lock is ignored. What others append meanwhile is kept, and a file that was replaced
/// meanwhile is not touched. What can still be lost stands in docs/file-formats.md.
platform::Outcome finishPending(records::App &app, const Progress &progress);

/// "Mark Completed": the records of one day, "MM/DD/YYYY" or "MM/DD/YY", move to the month file as
/// "Completed", whatever their status was. A record with a status and without a date, or a `date`
/// that is not one, ends the program with the system's message. No record has left the file then,
/// but those before it are in the month file already. Kept: a card number that a "Save" has left
/// plain moves as it is, with "DELETE RED'S" too.
platform::Outcome markCompleted(records::App &app, const std::string &date,
                                const Progress &progress);

/// "DELETE RED'S": records whose `CCstatus` begins with "Decl" move to the month's deleted file.
/// Kept: "Dec" without the "l" shows red and stops the batch, but is not moved.
platform::Outcome moveDeclines(records::App &app, const Progress &progress);

} // namespace pending
