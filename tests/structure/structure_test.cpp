// The laws of docs/architecture.md, held against every source of the project; and against made-up
// sources that break them, so that a rule that lost its bite is noticed.
#include "structure/source_rules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

using namespace structure;

namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What is committed: no build, no sandbox, nothing hidden but what has to be.
bool belongs(const fs::path &entry)
{
    const std::string name = entry.filename().string();
    return !name.starts_with("build") && name != "sandbox" &&
           (!name.starts_with('.') || name == ".ci" || name.starts_with(".clang-") ||
            name == ".editorconfig");
}

Project readProject()
{
    Project project;
    const fs::path root = PROJECT_DIR;
    fs::recursive_directory_iterator entry(root);
    for (; entry != fs::recursive_directory_iterator(); ++entry) {
        if (!belongs(entry->path()))
            entry.disable_recursion_pending();
        else if (entry->is_regular_file())
            project.push_back({entry->path().lexically_relative(root).generic_string(),
                               contentOf(entry->path())});
    }
    return project;
}

const Project &project()
{
    static const Project all = readProject();
    return all;
}

const Plan &plan()
{
    static const Plan read = readPlan(contentOf(PROJECT_DIR "/docs/architecture.md"));
    return read;
}

Project texts()
{
    Project result;
    std::copy_if(project().begin(), project().end(), std::back_inserter(result),
                 [](const Source &file) { return file.text.find('\0') == std::string::npos; });
    return result;
}

std::string told(const std::vector<Violation> &violations)
{
    std::ostringstream text;
    for (const Violation &violation : violations)
        text << '\n' << violation;
    return text.str();
}

} // namespace

TEST(Structure, PlanHasNoCircles)
{
    EXPECT_GE(plan().rooms.size(), 12U) << "the table of rooms was not found";
    EXPECT_EQ(told(checkPlan(plan())), "");
}

TEST(Structure, IncludesPointDown)
{
    ASSERT_TRUE(std::any_of(project().begin(), project().end(), [](const Source &file) {
        return file.path == "src/platform/files.h";
    })) << "the sources were not found";
    EXPECT_EQ(told(checkIncludes(plan(), project())), "");
    EXPECT_EQ(told(checkCircles(project())), "");
}

TEST(Structure, CallsStandWhereTheyBelong)
{
    EXPECT_EQ(told(checkCalls(project())), "");
}

TEST(Structure, SourcesHaveTheirShape)
{
    EXPECT_EQ(told(checkShape(project())), "");
}

TEST(Structure, TextsStandOnTheirOwn)
{
    EXPECT_EQ(told(checkWords(texts())), "");
}

// The rules themselves, on a small made-up house.

namespace {

const char kSmallPlan[] = R"(
| Room | Includes | Its screens also |
|---|---|---|
| platform | | |
| platform/qt | platform | |
| records | platform | platform/qt |
| details | records, platform | platform/qt |
| tender | records, platform | platform/qt |
| roles | tender, records, platform, platform/qt | |
)";

// A house without a fault; each trial puts one file in, or another in its place.
Project smallHouse()
{
    return {
        {"src/platform/disk.h", "// Disk.\n#pragma once\n"},
        {"src/platform/disk_posix.cpp", "#include \"platform/disk.h\"\n#include <fcntl.h>\n"
                                        "int f() { return ::open(\"x\", 0); }\n"},
        {"src/platform/qt/base.h", "// Base.\n#pragma once\n#include <QWidget>\n"},
        {"src/records/card.h", "// Card.\n#pragma once\n#include \"platform/disk.h\"\n"},
        {"src/details/page.h", "// Page.\n#pragma once\n"},
        {"src/tender/Xcharge1.ui", "<ui/>"},
        {"src/tender/Xcharge1.h", "// Screen.\n#pragma once\n#include \"platform/qt/base.h\"\n"},
        {"src/tender/Xcharge1.cpp",
         "#include \"tender/Xcharge1.h\"\n#include \"ui_Xcharge1.h\"\n#include <QLabel>\n"
         "void f() { for (auto *box : boxes) show(\"a while\", box); } // while it lasts\n"},
        {"src/roles/start.cpp", "#include \"tender/Xcharge1.h\"\n#include <QApplication>\n"},
        {"tests/tender/slip_test.cpp", "#include <fstream>\n#include \"records/card.h\"\n"},
    };
}

Project houseWith(const Source &file)
{
    Project house = smallHouse();
    std::erase_if(house, [&](const Source &other) { return other.path == file.path; });
    house.push_back(file);
    return house;
}

std::string verdict(const Project &house)
{
    const Plan rules = readPlan(kSmallPlan);
    return told(checkPlan(rules)) + told(checkIncludes(rules, house)) + told(checkCircles(house)) +
           told(checkCalls(house)) + told(checkShape(house)) + told(checkWords(house));
}

} // namespace

TEST(SourceRules, PassAHouseInOrder)
{
    EXPECT_EQ(verdict(smallHouse()), "");
}

TEST(SourceRules, NoticeEachFault)
{
    const char *const slip = "src/tender/slip.cpp";
    const char *const card = "src/records/card.cpp";
    const char *const screen = "src/tender/Xcharge1.cpp";
    const char *const disk = "src/platform/disk.h";
    const char *const bare = "src/records/bare.h";
    const std::string headed = "// Head.\n#pragma once\n";
    const struct {
        Source file;
        const char *complaint;
    } trials[] = {
        {{disk, headed + "#include \"details/page.h\""}, "disk.h:3: platform must not include det"},
        {{slip, "#include \"details/page.h\""}, "slip.cpp:1: tender must not include details"},
        {{slip, "\n#include \"platform/qt/base.h\""}, ":2: tender must not include platform/qt"},
        {{"src/cellar/a.cpp", "#include \"records/card.h\""}, "no room \"cellar\""},
        {{card, "#include \"card.h\""}, "names the room"},
        {{disk, headed + "#include \"platform/disk.h\""},
         "circle of includes: src/platform/disk.h"},
        {{slip, "#include <QString>"}, "includes Qt: QString"},
        {{"tests/slip_test.cpp", "#include <QtCore/QString>"}, "includes Qt: QtCore/QString"},
        {{slip, "#include \"tender/Xcharge1.h\""}, "includes a screen: tender/Xcharge1.h"},
        {{slip, "#ifdef _WIN32\n#endif"}, "slip.cpp:1: a system outside platform/: _WIN32"},
        {{slip, "void f()\n{\n    fopen (name);\n}"}, ":3: a file call outside platform/: fopen("},
        {{card, "std::ofstream out;"}, "a file call outside platform/: std::ofstream"},
        {{card, "int f = ::open(name);"}, "a file call outside platform/: ::open("},
        {{screen, "QFile file;"}, "a file call outside platform/: QFile"},
        {{screen, "QTimer timer;"}, "time outside platform/: QTimer"},
        {{slip, "auto t = std::chrono::system_clock::now();"}, "time outside platform/: system_c"},
        {{slip, "auto t = time(nullptr);"}, "time outside platform/: time(nullptr"},
        {{"src/roles/start.cpp", "int f() { return app.exec(); }"}, "turns the event loop: exec("},
        {{"src/platform/qt/a.cpp", "int f() { return box.exec(); }"},
         "turns the event loop: exec("},
        {{card, "int f = std::stoi(text);"}, "an exception, or what this compiler lacks: std::st"},
        {{"src/platform/disk.cpp", "char c = text.at(1);"}, "what this compiler lacks: .at("},
        {{screen, "void f() { while (on()) go(); }"}, "a loop or a wait in a screen: while("},
        {{screen, "void f() { app.yield(); }"}, "a loop or a wait in a screen: yield("},
        {{screen, "const char *f = \"CCPending.dat\";"}, "Xcharge1.cpp:1: a file name in a screen"},
        {{slip, "double total;"}, "a binary fraction near money: double"},
        {{bare, "#pragma once\n"}, "bare.h:1: a header begins with what lives there"},
        {{bare, "// Bare.\n#include <string>\n#pragma once"}, "no #pragma once before"},
        {{card, std::string(601, '\n')}, "longer than 600"},
        {{"docs/x.md", "one\nsee P"
                       "art 2.3"},
         "x.md:2: leads nowhere"},
    };
    for (const auto &trial : trials) {
        const std::string text = verdict(houseWith(trial.file));
        EXPECT_NE(text.find(trial.complaint), std::string::npos) << trial.complaint << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << trial.complaint << text;
    }
}

TEST(SourceRules, PlanThatLeadsInACircleIsNoticed)
{
    const Plan round = readPlan("| Room | Includes | Its screens also |\n|---|---|---|\n"
                                "| a | b | |\n| b | c | |\n| c | a | d |\n");
    const std::string text = told(checkPlan(round));
    EXPECT_NE(text.find("a: the plan leads back"), std::string::npos) << text;
    EXPECT_NE(text.find("c: the plan has no room \"d\""), std::string::npos) << text;
}

TEST(SourceRules, CommentsAndLiteralsAreNoCode)
{
    EXPECT_EQ(withoutComments("a/* b\nc */d // e\nf", true), "a    \n    d     \nf");
    EXPECT_EQ(withoutComments(R"(f("a\"//b", '"', 1'000);)", true), R"(f(        ,    , 1'000);)");
    EXPECT_EQ(withoutComments(R"(f("//a"); // b)", false), R"(f("//a");     )");
    EXPECT_EQ(withoutComments("R\"x(a\"//)\" )x\" b", true), std::string(15, ' ') + "b");
}
