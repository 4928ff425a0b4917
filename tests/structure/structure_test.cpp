// The laws of docs/architecture.md, held against every source of the project; and against made-up
// sources that break them, so that a rule that lost its bite is noticed.
#include "structure/source_rules.h"
#include "support/test_files.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using namespace structure;

TEST(Structure, KeepsTheLawsOfThePlan)
{
    // What is committed: no build, no sandbox, nothing hidden but what has to be.
    const std::regex outside(R"(build.*|sandbox|\.(?!ci$|clang-|editorconfig$).*)");
    Project project;
    const fs::path root = PROJECT_DIR;
    for (fs::recursive_directory_iterator entry(root), end; entry != end; ++entry) {
        if (std::regex_match(entry->path().filename().string(), outside)) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            std::ifstream file(entry->path(), std::ios::binary);
            const std::string text{std::istreambuf_iterator<char>(file), {}};
            if (text.find('\0') == std::string::npos)
                project[entry->path().lexically_relative(root).generic_string()] = text;
        }
    }
    ASSERT_TRUE(project.contains("src/platform/files.h")) << "the sources were not found";
    for (const std::string &violation : violations(project["docs/architecture.md"], project))
        ADD_FAILURE() << violation;
}

/// The files of a small house in which everything is wrong that can be; each begins with a line
/// "=== path", and behind "//!" stands what the rules must say of the line.
Project brokenHouse()
{
    Project house;
    std::string *file = nullptr;
    std::istringstream lines(support::testFile("broken/structure/house.txt"));
    for (std::string line; std::getline(lines, line);) {
        line.erase(std::remove(line.begin(), line.end(), '@'), line.end()); // breaks words up
        if (line.starts_with("=== "))
            file = &house[line.substr(4)];
        else
            *file += line + '\n';
    }
    house["src/records/card.cpp"].append(600, '\n');
    return house;
}

TEST(SourceRules, NoticeEachFault)
{
    Project house = brokenHouse();
    std::set<std::string> expected = {"attic:1: the plan has no room \"cellar\""};
    for (const auto &[path, text] : house) {
        std::istringstream lines(text);
        std::string line;
        for (std::size_t number = 1; std::getline(lines, line); ++number)
            if (const auto at = line.find("//!"); at != std::string::npos)
                expected.insert(path + ':' + std::to_string(number) + ": " + line.substr(at + 3));
    }
    EXPECT_EQ(violations(house["docs/architecture.md"], house), expected);
}

} // namespace
