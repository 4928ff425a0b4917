// The sandbox: a drives folder with a plausible restaurant in it, for the demo and for tests that
// start the real programs. Nothing here belongs to a real business or person.
#pragma once

#include "platform/files.h"

#include <array>
#include <string>
#include <string_view>

namespace simulator {

/// The directories as the sandbox's "LumbrioINI.dat" names them.
inline constexpr const char *kSandboxMaindir = "C:\\Lumbrio\\";
inline constexpr const char *kSandboxRemotedir = "F:\\Lumbrio\\";
inline constexpr const char *kXchargeProgram = "c:\\Program Files\\X-charge\\Xcharge.exe";
inline constexpr const char *kServerProgram = "c:\\Program Files\\X-charge\\Xchrgsrv.exe";

/// Everything: folders, "installation.ini", "LumbrioINI.dat", "CCard.dat", "X1009Version.dat",
/// employees, managers, `xchargeProgram` (a real path) as the payment application and the
/// "sim_server" beside it as the payment server. Files that are there are written again. False when
/// something failed; `files` has reported it then.
bool makeSandbox(platform::Files &files, const std::string &drivesFolder,
                 const std::string &xchargeProgram);
/// True when the drives folder holds an installation, a sandbox or a real one.
bool isInstalled(platform::Files &files);
/// Links the paths of both payment programs to the stand-ins in `programsFolder` if there is
/// nothing, or a broken link (the build was moved, the sandbox is older). Real programs stay.
void mendLinks(platform::Files &files, const std::string &programsFolder);

/// How a station reaches the payment programs: "X1009Version.dat" in its directory says it.
enum class Mode { CommandLine, Local };
Mode modeOf(platform::Files &files, const std::string &Maindir);
bool setMode(platform::Files &files, const std::string &Maindir, Mode mode);

/// A card that belongs to nobody, for local requests.
struct SampleCard {
    const char *number = "4111111111111111";
    const char *expiry = "1232"; // "MMYY"
    const char *verify = "123";  // from its back
    const char *track = "%B4111111111111111^SAMPLE/WILLOW^32121010000000000000?";
};

/// The contents of the sandbox's files, for tests that need only one of them or a changed one.
struct RestaurantOptions {
    std::string receiptPrinter = "Receipt TM-88";
    std::string fontFamily = "DejaVu Sans";
    std::string fontSize = "10";
    std::string autocut = "-1";
    std::string gratuityPercent = "18";
};
/// "LumbrioINI.dat", 2300 bytes.
std::string configurationFile(const RestaurantOptions &options = {});
/// "CCard.dat", ten quoted lines; the flags are "-1" and "0".
std::string cardOptionsFile(std::string_view printTipLine = "-1",
                            std::string_view noPartialSupport = "0",
                            std::string_view preApproveTip = "0");
/// "Data\Zemployee.dat", one record of 1000 bytes for each employee.
std::string employeeFile();
/// "ini\3\ButtonAM.dat".
std::string managerFile();
/// "installation.ini" with a roll printer and one for letter pages.
std::string installationFile();

struct SandboxEmployee {
    const char *number;
    const char *name;
};
inline constexpr std::array<SandboxEmployee, 12> kSandboxEmployees = {{
    {"1", "Rosemary Field"},
    {"2", "Basil Rivers"},
    {"3", "Olive Hartwood"},
    {"4", "Sage Whitestone"},
    {"5", "Juniper Lake"},
    {"6", "Clementine"},
    {"7", "Rosalind Oak"},
    {"8", "Linden Brook"},
    {"9", "Hazel Meadow"},
    {"10", "Laurel Bridge"},
    {"11", "Ash Northfield"},
    {"12", "Ivy Gate"},
}};

} // namespace simulator
