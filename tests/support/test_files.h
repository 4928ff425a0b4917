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

/// Whether docs/file-formats.md has the row of a field, by its first columns: "4 | 120 | 20".
inline bool isDocumented(const std::string &row)
{
    return testFile("../docs/file-formats.md").find("\n| " + row + " |") != std::string::npos;
}

} // namespace support
