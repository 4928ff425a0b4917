#include "records/delimited.h"

#include "platform/files.h"

#include <algorithm>

namespace records {

std::string DelimitedReader::next()
{
    while (at < content.size() && content[at] == ' ')
        ++at;
    std::string value;
    bool quoted = false;
    for (; at < content.size(); ++at) {
        const char c = content[at];
        if (c == '"') {
            quoted = !quoted;
            continue;
        }
        if (c == '\r' || c == '\n') {
            skipLineEnd();
            return value;
        }
        if (c == ',' && !quoted) {
            ++at;
            return value;
        }
        value += c;
    }
    return value;
}

void DelimitedReader::skipLineEnd()
{
    const bool pair = content.substr(at, 2) == "\r\n";
    at += pair ? 2 : 1;
}

std::string quotedLine(std::string_view value)
{
    return platform::textLine('"' + std::string(value) + '"');
}

std::string quotedValues(const std::vector<std::string> &values)
{
    std::string line;
    for (const std::string &value : values)
        line += (line.empty() ? "\"" : ",\"") + value + '"';
    return platform::textLine(line);
}

} // namespace records
