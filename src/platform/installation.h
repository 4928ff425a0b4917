// Installation: the settings that differ from one installation to the next, read once from
// installation.ini in the drives folder (on Windows beside the executable).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A printer that writes each job as NNNN.pdf and NNNN.txt into a folder. [printer.N] without a
/// name is "Printer N", without a folder (or with one that leads out) "spool/N".
struct SpoolPrinter {
    std::string name;
    double widthMm = 80; // 80 or less: a roll as long as the job
    double heightMm = 0; // 0: 279 for a page
    bool isDefault = false;
    std::string folder; // below the folder of installation.ini
};

/// Every key has a default; the file may be missing. Unknown sections and keys, lines without a
/// meaning and invalid numbers or bytes are ignored.
struct Installation {
    std::vector<SpoolPrinter> spoolPrinters;                   // by their number, [printer.1] first
    std::string cutBytes = std::string("\x1D\x56\x42\x00", 4); // [printer.real] cut, raw
    std::string xchargeUserId = "pos";
    std::string xchargePassword = "trelva";
    std::string connectionTest = "www.example.com:80"; // host:port; empty: passed without a look
    std::string suppliesPage;
    std::string helpPage;
    std::string editorCommand;  // %1 is the file; empty: the system's own
    std::string browserCommand; // %1 is the address; empty: the system's own
    std::string unreadable;     // the file is there, and this is why it could not be read
};

/// Reads the text of installation.ini.
Installation parseInstallation(std::string_view text);

} // namespace platform
