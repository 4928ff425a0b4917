// Configuration: the readers of "LumbrioINI.dat", "CCard.dat" and the flag files. Every role reads
// them only at its start.
#pragma once

#include "records/app.h"

#include <array>
#include <string>
#include <string_view>

namespace records {

/// "LumbrioINI.dat" of the fixed directory "C:\Lumbrio\", under its lock: `Maindir` (field 6),
/// `Remotedir` (field 49), `ReceiptPrinterName`, the time clock directory, and the whole record.
/// `Maindir` is reset to "C:\Lumbrio\" first; a missing file leaves everything else as it was,
/// without a message. A shorter file reads as NULs after its end. The point of sale locks it while
/// it writes: Get_INI waits for that (platform::Wait::Configuration), but only once. If the lock is
/// refused all that time, it is a failure; false where errors are ignored.
enum class IniLock { WaitedFor, AtOnce };
bool Get_INI(App &app, IniLock wait = IniLock::WaitedFor);

/// The tool tip of the version label: the owner code in the mask "########.##" between the
/// program's version and "688".
std::string versionToolTip(const LumbrioConfig &config);

/// The ten lines of "CCard.dat" as written; a missing line is empty.
using CardOptions = std::array<std::string, 10>;

CardOptions parseCardOptions(std::string_view content);
/// The second line with a backslash at its end; the usual directory if it is empty.
std::string paymentDirectory(const CardOptions &options);

/// "CCard.dat" in `Maindir`: the payment directory, `PrintTipLine`, `NoPartialSupport` and
/// `PreApproveTip`. An empty `Maindir` becomes "c:\Lumbrio\"; without the file nothing changes.
/// Errors are ignored: a file that still cannot be read after a wait (platform::Wait::Options)
/// counts as missing; the process trace says so, and which settings are used.
void Get_CCini(App &app);

/// What loading the setup screen sets: if "CCard.dat" exists, `NoPartialSupport` from it and
/// `TndrNOpreAUTH` from the presence of "Data\CCnoPREauth.dat" in `Remotedir`. No file changes.
/// Errors are ignored as in Get_CCini().
void loadSetupFlags(App &app);

/// An empty `Maindir` becomes "c:\Lumbrio\", an empty `Remotedir` "C:\Lumbrio\".
void fillEmptyDirectories(App &app);

} // namespace records
