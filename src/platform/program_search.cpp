#include "platform/program_search.h"

#include <algorithm>

namespace platform {

std::optional<ProgramCall> findProgram(std::string_view commandLine,
                                       const std::function<bool(const std::string &)> &isFile)
{
    std::size_t from = 0;
    std::size_t skipped = 0; // characters between the program and the rest: a quote or none
    char separator = ' ';
    if (!commandLine.empty() && commandLine.front() == '"') {
        from = 1;
        skipped = 1;
        separator = '"';
    }
    for (std::size_t end = from; end < commandLine.size();) {
        end = std::min(commandLine.find(separator, end + 1), commandLine.size());
        std::string program(commandLine.substr(from, end - from));
        if (isFile(program)) {
            std::string_view rest = commandLine.substr(std::min(end + skipped, commandLine.size()));
            rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
            return ProgramCall{std::move(program), std::string(rest)};
        }
        if (separator == '"')
            break;
    }
    return std::nullopt;
}

std::vector<std::string> splitArguments(std::string_view arguments)
{
    std::vector<std::string> parts;
    for (std::size_t at = arguments.find_first_not_of(' '); at < arguments.size();
         at = arguments.find_first_not_of(' ', at)) {
        const std::size_t end = std::min(arguments.find(' ', at), arguments.size());
        parts.emplace_back(arguments.substr(at, end - at));
        at = end;
    }
    return parts;
}

} // namespace platform
