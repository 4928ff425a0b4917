// Files that lie beside the tests: golden bytes and broken inputs.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
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

} // namespace support
