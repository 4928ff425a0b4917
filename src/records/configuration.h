// Configuration: the readers of "LumbrioINI.dat", "CCard.dat" and the flag files. Every role
// reads them at its start and watches none of them.
#pragma once

#include "records/app.h"

#include <array>
#include <string>
#include <string_view>

namespace records {

/// "LumbrioINI.dat" of the fixed directory "C:\Lumbrio\", under its lock: `Maindir` (field 6),
/// `Remotedir` (field 49), `ReceiptPrinterName`, the time clock directory, and the whole record.
/// `Maindir` is reset to "C:\Lumbrio\" first; a missing file leaves everything else as it was,
/// without a message. A shorter file reads as NULs behind its end. The point of sale locks it while
/// it writes: that is waited for (platform::Wait::Configuration), unless it has been already. A
/// lock that is refused for all that time is a failure, and false where errors are ignored.
enum class IniLock { WaitedFor, AtOnce };
bool Get_INI(App &app, IniLock wait = IniLock::WaitedFor);

/// The tool tip of the version label: the owner code in the mask "########.##" between the
/// program's version and "688".
std::string versionToolTip(const LumbrioConfig &config);

/// The ten lines of "CCard.dat" as written; a missing line is empty.
using CardOptions = std::array<std::string, 10>;

CardOptions parseCardOptions(std::string_view content);
/// The second line with a backslash at its end; the usual place where it is empty.
std::string paymentDirectory(const CardOptions &options);

/// "CCard.dat" in `Maindir`: the payment directory, `PrintTipLine`, `NoPartialSupport` and
/// `PreApproveTip`. An empty `Maindir` becomes "c:\Lumbrio\"; without the file nothing changes.
/// Errors are ignored: a file that cannot be read counts as missing, once that was waited for
/// (platform::Wait::Options); the process trace says so, and what holds then.
void Get_CCini(App &app);

/// What loading the setup screen sets: with "CCard.dat" there, `NoPartialSupport` from it and
/// `TndrNOpreAUTH` from the presence of "Data\CCnoPREauth.dat" in `Remotedir`. No file changes.
/// Errors are ignored as in Get_CCini().
void loadSetupFlags(App &app);

/// "c:\Lumbrio\" into an empty `Maindir`, "C:\Lumbrio\" into an empty `Remotedir`.
void fillEmptyDirectories(App &app);

} // namespace records
