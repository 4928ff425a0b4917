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

TEST(Structure, PlanHasNoCirclesAndNoStaleExceptions)
{
    EXPECT_GE(plan().rooms.size(), 12U) << "the table of rooms was not found";
    EXPECT_EQ(told(checkPlan(plan(), project())), "");
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
    EXPECT_EQ(told(checkCalls(plan(), project())), "");
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

| Binary fraction in | For |
|---|---|
| records/ruler.h | millimetres |
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
        {"src/records/ruler.h", "// Ruler.\n#pragma once\ninline double mm;\n"},
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
    return told(checkPlan(rules, house)) + told(checkIncludes(rules, house)) +
           told(checkCircles(house)) + told(checkCalls(rules, house)) + told(checkShape(house)) +
           told(checkWords(house));
}

struct Trial {
    const char *name;
    Source file;
    const char *complaint;
};

std::ostream &operator<<(std::ostream &out, const Trial &trial)
{
    return out << trial.name;
}

class BrokenHouse : public testing::TestWithParam<Trial> {};

} // namespace

TEST(SourceRules, PassAHouseInOrder)
{
    EXPECT_EQ(verdict(smallHouse()), "");
}

TEST_P(BrokenHouse, IsNoticed)
{
    const std::string text = verdict(houseWith(GetParam().file));
    EXPECT_NE(text.find(GetParam().complaint), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << "one fault, one complaint" << text;
}

const Trial kTrials[] = {
    {"IncludeUp",
     {"src/platform/disk.h", "// Disk.\n#pragma once\n#include \"details/page.h\"\n"},
     "disk.h:3: platform must not include details"},
    {"IncludeSideways",
     {"src/tender/slip.cpp", "#include \"details/page.h\"\n"},
     "slip.cpp:1: tender must not include details"},
    {"QtRoomFromARule",
     {"src/tender/slip.cpp", "\n#include \"platform/qt/base.h\"\n"},
     "slip.cpp:2: tender must not include platform/qt"},
    {"RoomUnknownToThePlan",
     {"src/cellar/wine.cpp", "#include \"records/card.h\"\n"},
     "no room \"cellar\""},
    {"IncludeWithoutItsRoom", {"src/records/card.cpp", "#include \"card.h\"\n"}, "names the room"},
    {"Circle",
     {"src/platform/disk.h", "// Disk.\n#pragma once\n#include \"platform/disk.h\"\n"},
     "circle of includes: src/platform/disk.h"},
    {"QtInARule", {"src/tender/slip.cpp", "#include <QString>\n"}, "includes Qt: QString"},
    {"QtInATestOfRules",
     {"tests/tender/slip_test.cpp", "#include <QtCore/QString>\n"},
     "includes Qt: QtCore/QString"},
    {"ScreenInARule",
     {"src/tender/slip.cpp", "#include \"tender/Xcharge1.h\"\n"},
     "includes a screen: tender/Xcharge1.h"},
    {"SystemOutsidePlatform",
     {"src/tender/slip.cpp", "#ifdef _WIN32\n#endif\n"},
     "slip.cpp:1: a system outside platform/: _WIN32"},
    {"FileCall",
     {"src/tender/slip.cpp", "void f()\n{\n    fopen (\"x\", \"r\");\n}\n"},
     "slip.cpp:3: a file call outside platform/: fopen("},
    {"FileStream",
     {"src/records/card.cpp", "std::ofstream out;\n"},
     "a file call outside platform/: std::ofstream"},
    {"BareOpen", {"src/records/card.cpp", "int f = ::open(name);\n"}, "::open("},
    {"QtFileInAScreen", {"src/tender/Xcharge1.cpp", "QFile file;\n"}, "QFile"},
    {"TimerOfQt", {"src/tender/Xcharge1.cpp", "QTimer timer;\n"}, "time outside platform/: QTimer"},
    {"EventLoopOfItsOwn", {"src/roles/start.cpp", "int f() { return app.exec(); }\n"}, "exec("},
    {"ModalOfQt", {"src/platform/qt/base.cpp", "int f() { return dialog.exec(); }\n"}, "exec("},
    {"SystemClock",
     {"src/tender/slip.cpp", "auto now = std::chrono::system_clock::now();\n"},
     "time outside platform/: system_clock"},
    {"SystemTime", {"src/tender/slip.cpp", "auto t = time(nullptr);\n"}, "time(nullptr"},
    {"ThrowingNumber", {"src/records/card.cpp", "int f = std::stoi(text);\n"}, "std::stoi"},
    {"ThrowingIndex", {"src/platform/disk.cpp", "char c = text.at(1);\n"}, ".at("},
    {"LoopInAScreen", {"src/tender/Xcharge1.cpp", "void f() { while (on()) go(); }\n"}, "while("},
    {"WaitInAScreen", {"src/tender/Xcharge1.cpp", "void f() { app.yield(); }\n"}, "yield("},
    {"FileNameInAScreen",
     {"src/tender/Xcharge1.cpp", "const char *f = \"CCPending.dat\";\n"},
     "Xcharge1.cpp:1: a file name in a screen"},
    {"BinaryMoney",
     {"src/tender/slip.cpp", "double total;\n"},
     "a binary fraction near money: double"},
    {"ExceptionNobodyNeeds",
     {"src/records/ruler.h", "// Ruler.\n#pragma once\n"},
     "needs no exception"},
    {"HeaderWithoutAWord",
     {"src/records/bare.h", "#pragma once\n"},
     "begins with what lives there"},
    {"HeaderTwice", {"src/records/bare.h", "// Bare.\n#include <string>\n"}, "#pragma once"},
    {"LongSource", {"src/records/card.cpp", std::string(601, '\n')}, "longer than 600"},
    {"WordThatLeadsNowhere",
     {"docs/x.md", "one\nsee P"
                   "art 2.3\n"},
     "x.md:2: leads nowhere"},
};

INSTANTIATE_TEST_SUITE_P(SourceRules, BrokenHouse, testing::ValuesIn(kTrials),
                         [](const auto &trial) { return trial.param.name; });

TEST(SourceRules, PlanThatLeadsInACircleIsNoticed)
{
    const Plan round = readPlan("| Room | Includes | Its screens also |\n|---|---|---|\n"
                                "| a | b | |\n| b | c | |\n| c | a | d |\n");
    const std::string text = told(checkPlan(round, {}));
    EXPECT_NE(text.find("a: the plan leads back"), std::string::npos) << text;
    EXPECT_NE(text.find("c: the plan has no room \"d\""), std::string::npos) << text;
}

TEST(SourceRules, CommentsAndLiteralsAreNoCode)
{
    EXPECT_EQ(withoutComments("a/* b\nc */d // e\nf", true), "a    \n    d     \nf");
    EXPECT_EQ(withoutComments(R"(f("a\"//b", '"', 1'000);)", true), R"(f("      ", ' ', 1'000);)");
    EXPECT_EQ(withoutComments(R"(f("//a"); // b)", false), R"(f("//a");     )");
    EXPECT_EQ(withoutComments("R\"x(a\"//)\" )x\" b", true), "R\"x(       )x\" b");
}
