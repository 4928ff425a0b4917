// Rewrites of "CCPending.dat" that move settled, declined and dated records out of it, and the
// backups around them.
#pragma once

#include "records/app.h"

#include <functional>
#include <string>
#include <vector>

namespace pending {

/// Told the slots of a walk through the locked file; no event may run in it.
using Progress = std::function<void(long slot)>;

/// "Finish": settled records move to the month file, empty slots vanish. In all others, moving and
/// staying, `CCNumb` is scrambled where `CCEncoded` is not "1", which it is then, and `CCAdjStatus`
/// stands left-justified; tips, amounts and `CCstatus` stay as they are. Called in ErrorsIgnored.
/// Kept: a refused lock is passed over. What others append meanwhile comes along, and a file that
/// was replaced meanwhile is left alone; what may be lost all the same stands in
/// docs/file-formats.md.
platform::Outcome finishPending(records::App &app, const Progress &progress);

/// "Mark Completed": the records of one day, "MM/DD/YYYY" or "MM/DD/YY", move to the month file as
/// "Completed", whatever their status was. A record with a status and without a date, or a `date`
/// that is none, ends the program with the system's message; nothing has left the file then, but
/// the records before it are in the month file already.
/// Kept: a number that a "Save" has left plain goes there plain, as with "DELETE RED'S".
platform::Outcome markCompleted(records::App &app, const std::string &date,
                                const Progress &progress);

/// "DELETE RED'S": records whose `CCstatus` begins with "Decl" move to the month's deleted file.
/// Kept: a "Dec" without the "l" shows red and holds up the batch, but stays.
platform::Outcome moveDeclines(records::App &app, const Progress &progress);

/// What became of a backup.
struct Backup {
    platform::DateTime when;           // the moment that its name tells
    std::string stamp;                 // MMDDYYYYHHMMSS, the beginning of its name
    int copies = 0;                    // made; none where there was nothing to copy
    std::vector<std::string> failures; // a line for the log for each copy that was not made
};

/// Copies "CCpending.dat" of `Remotedir`, if it is there, to "data\CCdata\" + MMDDYYYYHHMMSS +
/// `name` in `Remotedir`, and in `Maindir` where that is another directory.
Backup backUpPending(records::App &app, const std::string &name);

inline constexpr const char *kBackup = "CCpending.dat";
inline constexpr const char *kBatchBackup = "CCpendingBatch.dat";

} // namespace pending
