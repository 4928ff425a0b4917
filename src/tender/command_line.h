// The one command line that starts the payment application and fixes its transaction.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tender {

inline constexpr const char *kXchargeProgram = "c:\\Program Files\\X-charge\\Xcharge.exe";
inline constexpr const char *kResultFile = "C:/lumbrio/xResultFile.txt";
/// Kept: not the program's own spelling, so that a program left over by that name lives on.
inline constexpr const char *kXchargeImage = "X-Charge.exe";

/// A value as it may stand on the command line: it ends where a blank and a "/" would begin another
/// option. Control characters must be blanks already.
std::string argumentValue(std::string_view value);

/// What the command line is made of. Values go in as argumentValue() gives them: no quotes, no
/// trimming here.
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
