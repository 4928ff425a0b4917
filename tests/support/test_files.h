// Files that lie beside the tests: golden bytes, broken inputs, and the tables of the documents.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace support {

/// The bytes of a file of this system; none when it cannot be read.
std::string contentOf(const std::string &path);
/// The bytes of a file below tests/, such as "golden/records/approved.slot".
std::string testFile(const std::string &name);
/// The paths of all files in a folder of this system and in those below it, sorted.
std::vector<std::string> filesBelow(const std::string &folder);

/// An environment variable; empty when it is not set.
std::string setting(const char *name);

/// The text with every `what` replaced. (A std::regex costs three seconds in each test that has
/// one.)
std::string replaced(std::string text, const std::string &what, const std::string &by);

} // namespace support
