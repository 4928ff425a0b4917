#include "support/test_files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace support {

std::string contentOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string testFile(const std::string &name)
{
    const std::string path = TESTS_DIR "/" + name;
    EXPECT_TRUE(std::filesystem::is_regular_file(path)) << "there is no tests/" << name;
    return contentOf(path);
}

std::vector<std::string> filesBelow(const std::string &folder)
{
    std::vector<std::string> paths;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder))
        if (entry.is_regular_file())
            paths.push_back(entry.path().string());
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string replaced(std::string text, const std::string &what, const std::string &by)
{
    for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += by.size())
        text.replace(at, what.size(), by);
    return text;
}

} // namespace support
