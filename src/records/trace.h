// Trace logs: plain text about every step of a transaction. Writing a trace never stops anything:
// each block opens, appends and closes with errors ignored.
#pragma once

#include "records/app.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace records {

inline constexpr const char *kLastProcessFile = "C:\\LUMBrio\\CCLastProcess.dat";
inline constexpr const char *kTraceLogFile = "C:\\LUMBrio\\TRACELOG.TXT";

using TraceLines = std::vector<std::string>;

/// Appends lines to a trace file, created when missing: one block, open to close.
void traceBlock(App &app, const std::string &path, const TraceLines &lines);
/// "CCLastProcess.dat", the steps of the last process on this station.
void traceProcess(App &app, const TraceLines &lines);
/// "TRACELOG.TXT", which grows without limit.
void traceLog(App &app, const TraceLines &lines);

/// Restarts "CCLastProcess.dat" with the date and time of this process.
void startProcessTrace(App &app);

/// "Data\CCmgrLOGS\" + "MMYYYY" + "MGRlog.txt" in `Maindir`: appends the non-empty lines of
/// `ManagerLogBuffer` in order and clears all ten. A missing folder loses the lines.
void Write_Log(App &app);

/// Appends one line of twelve quoted values to "data\AsstTrace" + "MMYY" + ".dat" in `Remotedir`,
/// under its lock: date, time, the current manager code, the manager's name, `activity`, the
/// station, and six fixed blanks kept for the point of sale's panel.
void Write_AsstMgr(App &app, const std::string &activity);

} // namespace records
