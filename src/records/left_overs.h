// What a killed program of this station has left behind, and the lock that says that none lives.
#pragma once

#include "records/trace.h"

namespace records {

/// "Data\" + the executable's name + ".lock" in `Maindir`: held from here to the end of the
/// program. The folder is made when it is missing. Whoever cannot have it, because another program
/// of this role runs or because of a failure, works as ever and clears nothing away.
/// Locked when another program of this role lives.
platform::Outcome takeRoleLock(App &app);
/// No other program of this role runs on `Maindir`, so that nothing it left is in use.
bool holdsRoleLock(const App &app);

/// Removes the work files that this role has left at this station, wherever it writes some:
/// `Maindir` and `Remotedir` with their data folders, "C:\Lumbrio\", the exchange with the payment
/// server, the spool. Nothing without the role's lock. Gives a line for each one, for the trace.
TraceLines clearLeftOvers(App &app);

} // namespace records
