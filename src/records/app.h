// App: the platform's services and this process's values, which every routine takes together. There
// are no globals; a test makes its own.
#pragma once

#include "platform/held_file.h"
#include "platform/services.h"
#include "records/card_record.h"
#include "records/lumbrio_config.h"
#include "records/money.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace records {

/// One row of "ini\3\ButtonAM.dat".
struct ManagerRow {
    std::string cardNumber;
    std::string name;
    std::string endDate; // "MM/DD/YYYY"
};

/// The process-wide flags and texts. All start empty, false or 0.
struct ProcessValues {
    // Directories, each ending in a backslash as its source spells it; names are appended.
    std::string Maindir;
    std::string Remotedir;
    std::string timeClockDirectory; // of "Data\Zemployee.dat"
    std::string paymentDirectory;   // line 2 of "CCard.dat"

    LumbrioConfig config;                          // the record of "LumbrioINI.dat" as last read
    std::optional<std::string> ReceiptPrinterName; // none before the configuration was read

    bool X1009 = false;       // command-line mode
    int TndrNOpreAUTH = 0;    // -1: charge at once
    int NoPartialSupport = 0; // 0: partial approvals are supported
    bool PrintTipLine = false;
    bool PreApproveTip = false;
    int NoCut2Flag = 0;            // set only by a click on the setup screen
    std::uint16_t StopWaiting = 0; // 65535 ends a wait
    Money gratuityPercent;

    std::string TndrRESULT; // last result word
    std::string StationName;
    std::string EmployeeNumber;
    std::string EmployeeFullName;
    std::string EmployeeShortName;
    std::string Nextform5;        // "IndTips" while the tip screen shares the tender screen
    std::string managerCheckMode; // "100" while a manager's card is read
    std::string managerRequest;   // "XchargeAPPROVAL", "XchargeTIPS"
    std::string managerResult;    // "NO" refuses, any other word approves
    std::string managerCode;
    std::string editMode; // "KEEP" while a bulk command drives the details of an entry

    // Another manager works on the card files: this process changes none, and no marker or backup.
    bool lookOnly = false;
    std::string inUseBy; // then "In use by BAR1 since 23:10"

    std::array<ManagerRow, 16> ManagerTable;
    std::array<std::string, 10> ManagerLogBuffer;

    CardRecord CCdata; // the one working copy of the tender
};

struct App : platform::Services {
    explicit App(const platform::Services &services) : platform::Services(services) {}
    ProcessValues values;
    platform::HeldFile roleLock{files}; // see records/left_overs.h
};

/// "5.68.0": major, minor and revision of this program.
inline constexpr const char *kProgramVersion = LUMBRIO_VERSION;

} // namespace records
