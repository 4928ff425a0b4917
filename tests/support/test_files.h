// Files that lie beside the tests: golden bytes, broken inputs, and the tables of the documents.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace support {

/// The bytes of a file below tests/, such as "golden/records/approved.slot".
inline std::string testFile(const std::string &name)
{
    std::ifstream file(std::string(TESTS_DIR "/") + name, std::ios::binary);
    if (!file.is_open())
        ADD_FAILURE() << "there is no tests/" << name;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The rows "| number | offset | length | name |" of one section of docs/file-formats.md, each as
/// "number offset length name" with a line feed.
inline std::string documentedFields(const std::string &heading)
{
    const std::string document = testFile("../docs/file-formats.md");
    const std::size_t from = document.find("\n## " + heading + "\n");
    if (from == std::string::npos)
        ADD_FAILURE() << "docs/file-formats.md tells nothing of " << heading;
    const std::string section = document.substr(from, document.find("\n## ", from + 1) - from);
    const std::regex row(R"(\n\| (\d+) \| (\d+) \| (\d+) \| `?([^|`]+)[`|, ])");
    std::string fields;
    for (std::sregex_iterator at(section.begin(), section.end(), row), end; at != end; ++at)
        fields += at->format("$1 $2 $3 $4\n");
    return fields;
}

} // namespace support
