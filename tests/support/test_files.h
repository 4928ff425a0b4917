// Files that lie beside the tests: golden bytes, broken inputs, and the tables of the documents.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

namespace support {

/// The bytes of a file of this system; none when it cannot be read.
inline std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The bytes of a file below tests/, such as "golden/records/approved.slot".
inline std::string testFile(const std::string &name)
{
    const std::filesystem::path path = TESTS_DIR "/" + name;
    EXPECT_TRUE(is_regular_file(path)) << "there is no tests/" << name;
    return contentOf(path);
}

/// Whether docs/file-formats.md has the row of a field, by its first columns: "4 | 120 | 20".
inline bool isDocumented(const std::string &row)
{
    return testFile("../docs/file-formats.md").find("\n| " + row + " |") != std::string::npos;
}

} // namespace support
