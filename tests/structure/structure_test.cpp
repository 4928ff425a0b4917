// The laws of docs/architecture.md, held against every source of the project; and against made-up
// sources that break them, so that a rule that lost its bite is noticed.
#include "structure/source_rules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
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

// A small house in which everything is wrong that can be; behind "//!" stands what the rules must
// say of the line.

const char kSmallPlan[] = R"(
| Room | Includes | Its screens also |
|---|---|---|
| platform | | |
| platform/qt | platform | |
| records | platform | platform/qt |
| details | records, platform | platform/qt |
| tender | records, platform | platform/qt |
| attic | attic, cellar | |
)";

const Project kBrokenHouse = {
    {"attic", "//!leads in a circle back to itself"},
    {"docs/x.md", "one\nsee P"
                  "art 2.3 //!leads nowhere: P"
                  "art 2.3"},
    {"src/cellar/a.cpp", "#include \"records/card.h\" //!the plan has no room \"cellar\""},
    {"src/details/page.h", "// Page.\n#pragma once"},
    {"src/platform/disk.h", "// Disk. //!leads in a circle back to itself\n#pragma once\n"
                            "#include \"details/page.h\" //!platform must not include details\n"
                            "#include \"platform/disk.h\""},
    {"src/platform/qt/base.h", "// Base. //!no opening words, or no pragma\n"
                               "#include <QWidget>\n#pragma once"},
    {"src/platform/qt/a.cpp", "f = box.exec(); //!only yield() turns the event loop: exec("},
    {"src/records/card.h", "#pragma once //!no opening words, or no pragma"},
    {"src/records/card.cpp", "//!longer than 600 lines" + std::string(600, '\n') +
                                 "#include \"card.h\" //!an include names the room too: card.h"},
    {"src/tender/Xcharge1.ui", "<ui/>"},
    {"src/tender/Xcharge1.h", "// Screen.\n#pragma once\n#include \"platform/qt/base.h\""},
    {"src/tender/Xcharge1.cpp",
     "#include \"ui_Xcharge1.h\"\n"
     "QFile file; //!belongs into platform/: QFile\n"
     "QTimer timer; //!belongs into platform/: QTimer\n"
     "while (on()) //!a loop or a wait in a screen: while (\n"
     "app.yield(); //!a loop or a wait in a screen: yield(\n"
     "s = \"CCPending.dat\"; //!a file name in a screen: s = \"CCPending.dat\""},
    {"src/tender/slip.cpp",
     "#include \"platform/qt/base.h\" //!tender must not include platform/qt\n"
     "#include \"tender/Xcharge1.h\" //!no screen, yet it includes a screen: tender/Xcharge1.h\n"
     "#include <QString> //!no screen, yet it includes Qt: #include <QString\n"
     "#include <unistd.h> //!belongs into platform/: unistd.h\n"
     "#ifdef _WIN32 //!belongs into platform/: _WIN32\n"
     "fopen (name); //!belongs into platform/: fopen (\n"
     "std::ofstream out; //!belongs into platform/: ofstream\n"
     "a = ::open(name); //!belongs into platform/:  ::open(\n"
     "t = system_clock::now(); //!belongs into platform/: system_clock\n"
     "u = time(nullptr); //!belongs into platform/: time(nullptr\n"
     "b = std::stoi(text); //!an exception, or what this compiler lacks: std::stoi\n"
     "c = text.at(1); //!an exception, or what this compiler lacks: .at(\n"
     "double total; //!a binary fraction near money: double\n"},
    {"tests/a_test.cpp",
     "#include <Qt/Q> //!no screen, yet it includes Qt: #include <Qt/Q\nfopen(x);"},
};

TEST(SourceRules, NoticeEachFault)
{
    std::set<std::string> expected = {"attic:1: the plan has no room \"cellar\""};
    for (const auto &[path, text] : kBrokenHouse) {
        std::istringstream lines(text);
        std::size_t number = 0;
        for (std::string line; std::getline(lines, line);) {
            ++number;
            if (const auto at = line.find("//!"); at != std::string::npos)
                expected.insert(path + ':' + std::to_string(number) + ": " + line.substr(at + 3));
        }
    }
    EXPECT_EQ(violations(kSmallPlan, kBrokenHouse), expected);
}

} // namespace
