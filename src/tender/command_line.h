// The command line that starts the payment application with one transaction.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tender {

inline constexpr const char *kXchargeProgram = "c:\\Program Files\\X-charge\\Xcharge.exe";
inline constexpr const char *kResultFile = "C:/lumbrio/xResultFile.txt";
/// Kept: the program is spelled otherwise, so one that is left over is not ended by this name.
inline constexpr const char *kXchargeImage = "X-Charge.exe";

/// A value as it may stand on the command line: it ends where a blank and a "/" would begin another
/// option. Control characters must be blanks already.
std::string argumentValue(std::string_view value);

/// The values of the command line, as argumentValue() gives them. They are neither quoted nor
/// trimmed here.
struct PaymentCall {
    bool purchase = false; // charge at once instead of pre-authorising
    bool partialSupport = true;
    std::string amount;
    std::string receipt;
    std::string clerk;
    std::string userId;
    std::string password;
};

/// Program and arguments, one blank between options, a blank at the end.
std::string commandLine(const PaymentCall &call);

/// The arguments, an option a line, as the trace lists them.
std::vector<std::string> commandLineParts(const PaymentCall &call);

} // namespace tender
