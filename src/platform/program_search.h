// Where the program ends and its arguments begin in a command line without quotes
// ("c:\Program Files\X-charge\Xcharge.exe /TITLE:...").
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct ProgramCall {
    std::string program; // as spelled in the command line, without quotes
    std::string arguments;
};

/// The program is the first prefix up to a blank (or the end) that `isFile` accepts, growing to
/// the right, or what stands in leading quotes. Nothing when no prefix is a file.
std::optional<ProgramCall> findProgram(std::string_view commandLine,
                                       const std::function<bool(const std::string &)> &isFile);

/// Arguments split at runs of blanks.
std::vector<std::string> splitArguments(std::string_view arguments);

} // namespace platform
