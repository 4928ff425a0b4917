// Files that a killed program of this station left, and the lock that shows that no other is
// running.
#pragma once

#include "records/trace.h"

namespace records {

/// Takes "Data\" + the executable's name + ".lock" in `Maindir` and holds it to the end of the
/// program. The folder is created if it is missing. A program that cannot take it, because another
/// program of this role runs or because of a failure, works as usual and deletes no work files.
/// Locked when another program of this role runs.
platform::Outcome takeRoleLock(App &app);
/// True: no other program of this role runs on `Maindir`, so that no file it left is in use.
bool holdsRoleLock(const App &app);

/// Removes the work files that this role left at this station, in all folders where it writes some:
/// `Maindir` and `Remotedir` with their data folders, "C:\Lumbrio\", the exchange with the payment
/// server, the spool. Without the role's lock it removes none. Gives a line for the trace for each
/// file.
TraceLines clearLeftOvers(App &app);

} // namespace records
