// Names of people by their numbers: employees from "Zemployee.dat", managers from "ButtonAM.dat".
#pragma once

#include "records/app.h"

#include <string>

namespace records {

/// Sets `EmployeeFullName` and `EmployeeShortName` for the current employee number, from
/// "Data\Zemployee.dat" of the time clock directory, under its lock. An empty number changes
/// nothing; an unknown one gives "XXXXXX" and leaves the short name.
void Fetch_EmpName(App &app);

/// The first word of a name with the blank after it; without a blank the first five letters.
std::string shortName(const std::string &name);

/// `ManagerTable` from "ini\3\ButtonAM.dat" under `Remotedir` (an empty one becomes
/// "c:\Lumbrio\"): defaults in rows 1 to 10, then the file's lines from row 0 on; the 17th line
/// ends the reading. A line with fewer than three values leaves its row as it was. Errors are
/// ignored.
void Get_AsstMgr(App &app);

/// Name of the manager whose card number equals the code, of rows 1 to 11; else "Not Found".
/// Kept: row 0, the first line of the file, is never found.
std::string managerName(const ProcessValues &values, const std::string &code);

} // namespace records
