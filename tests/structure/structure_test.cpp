// Holds every source of the project against docs/architecture.md and laws.txt; and a made-up
// project that breaks each law, so that a check that no longer finds anything is noticed.
#include "platform/files.h"
#include "support/test_files.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;
using platform::splitLines;
using Project = std::map<std::string, std::string>; // texts by their paths, with '/'
using Graph = std::map<std::string, std::set<std::string>>;

constexpr const char *kPlan = "docs/architecture.md";
constexpr std::size_t kLongestSource = 600;

/// A row of laws.txt.
struct Law {
    std::string what;
    std::regex binds;
    bool code;
    std::regex forbidden;
};

std::vector<Law> readLaws()
{
    static const std::regex row(R"((.+?) +\| +(.+?) +\| +(code|line|words) +\| +(.+))");
    std::vector<Law> laws;
    std::smatch cells;
    for (const std::string &line : splitLines(support::testFile("structure/laws.txt"))) {
        if (!std::regex_match(line, cells, row))
            continue;
        const auto letters = cells.str(3) == "words" ? std::regex::icase : std::regex::ECMAScript;
        laws.push_back({cells.str(1), std::regex(cells.str(2)), cells.str(3) == "code",
                        std::regex(cells.str(4), letters)});
    }
    return laws;
}

/// Which rooms a room may include, by the plan's table "Room"; its screens stand under its name
/// and " screen".
Graph readPlan(const std::string &markdown)
{
    static const std::regex row(R"(\| ([\w/]+) \|([^|]*)\|([^|]*)\|)");
    static const std::regex name(R"([\w/]+)");
    Graph plan;
    const std::size_t table = markdown.find("\n|--", markdown.find("\n| Room |"));
    for (const std::string &line : splitLines(markdown.substr(table + 1))) {
        if (!line.starts_with('|'))
            break;
        if (std::smatch cells; std::regex_match(line, cells, row))
            for (const auto &[room, others] :
                 {std::pair(cells.str(1), cells.str(2)), {cells.str(1) + " screen", cells.str(3)}})
                plan[room] = {std::sregex_token_iterator(others.begin(), others.end(), name), {}};
    }
    return plan;
}

class Inspection {
public:
    explicit Inspection(const Project &theProject) : project(theProject) {}

    /// "path:line: what" for each place that breaks a law; line 1 for a file as a whole.
    std::set<std::string> run()
    {
        for (const auto &[path, text] : project)
            check(path, text);
        for (const auto &[room, others] : plan)
            for (const std::string &other : others)
                if (!used[room].contains(other))
                    report(kPlan, 1, room + " does not include " + other);
        for (Graph graph : {plan, includes}) {
            const auto leadsOut = [&](const auto &one) {
                return std::none_of(one.second.begin(), one.second.end(),
                                    [&](const auto &to) { return graph.contains(to); });
            };
            while (std::erase_if(graph, leadsOut) > 0) {
            }
            for (const auto &[from, others] : graph)
                report(from, 1, "includes itself in a circle");
        }
        return found;
    }

private:
    void report(const std::string &where, std::size_t line, const std::string &what)
    {
        found.insert(where + ':' + std::to_string(line) + ": " + what);
    }

    static std::string folderOf(const std::string &path)
    {
        return path.substr(0, path.rfind('/') + 1);
    }
    /// The folder of a source below src/ ("" directly in it), "simulator", or nothing for the
    /// others, which may include every room.
    static std::optional<std::string> roomOf(const std::string &path)
    {
        static const std::regex free("(tests|bench|fuzz)/.*");
        static const std::regex room("(?:src/)?(?:(.*)/)?[^/]*");
        std::smatch parts;
        return std::regex_match(path, free) || !std::regex_match(path, parts, room)
                   ? std::nullopt
                   : std::optional(parts.str(1));
    }
    /// A screen has a form of its name beside it, a windowed source may know Qt; empty for a file
    /// that is no source.
    std::string kindOf(const std::string &path) const
    {
        static const std::regex windowed(R"(src/roles/.*|.*/qt/[^/]*|.*_screen_(test|bench)\.cpp)");
        if (!path.ends_with(".h") && !path.ends_with(".cpp"))
            return "";
        if (project.contains(path.substr(0, path.rfind('.')) + ".ui"))
            return " screen";
        return std::regex_match(path, windowed) ? " windowed" : " plain";
    }

    void check(const std::string &path, const std::string &text)
    {
        static const std::regex noCode(R"re("(\\.|[^"\\])*"|'(\\.|[^'\\])'|//.*)re");
        const std::string kind = kindOf(path);
        const auto room = roomOf(path);
        if (!kind.empty() && room && !plan.contains(*room))
            report(path, 1, "its room is not in the table");
        if (path.ends_with(".h") &&
            (!text.starts_with("// ") || text.find("#pragma once") >= text.find("#include")))
            report(path, 1, "no opening comment, or no pragma");
        std::vector<const Law *> binding;
        for (const Law &law : laws)
            if (std::regex_match(path + kind, law.binds))
                binding.push_back(&law);
        std::size_t number = 0; // 0 is the file's own name
        for (const std::string &line : splitLines(path + '\n' + text)) {
            const std::string code = std::regex_replace(line, noCode, " ");
            std::smatch hit;
            for (const Law *law : binding)
                if (std::regex_search(law->code ? code : line, hit, law->forbidden))
                    report(path, number, law->what + ": " + hit.str());
            if (!kind.empty())
                checkInclude(path, number, line);
            ++number;
        }
        if (!kind.empty() && number > kLongestSource + 1)
            report(path, 1, "longer than " + std::to_string(kLongestSource) + " lines");
    }

    void checkInclude(const std::string &path, std::size_t number, const std::string &line)
    {
        static const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)".*)re");
        std::smatch parts;
        if (!std::regex_match(line, parts, include))
            return;
        const std::string name = parts.str(1);
        // In the order in which the build looks.
        const std::vector<std::string> places = {folderOf(path) + name, "src/" + name, name,
                                                 "tests/" + name};
        const auto target = std::find_if(places.begin(), places.end(), [&](const auto &place) {
            return project.contains(place);
        });
        if (target == places.end())
            return; // a generated header, or an error that the compiler reports
        includes[path].insert(*target);
        if (kindOf(*target) == " screen" && kindOf(path) == " plain")
            report(path, number, "includes a screen and is none: " + name);
        if (path.starts_with("src/") && *target != "src/" + name)
            report(path, number, "an include names the room too: " + name);
        const auto from = roomOf(path);
        const auto to = roomOf(*target);
        if (!from || from == to)
            return;
        const bool isScreen = kindOf(path) == " screen";
        const std::string row = isScreen && !plan[*from].contains(*to) ? *from + " screen" : *from;
        used[row].insert(*to);
        if (!plan[row].contains(*to))
            report(path, number, *from + " must not include " + *to);
    }

    const Project &project;
    const std::vector<Law> laws = readLaws();
    Graph plan = readPlan(project.at(kPlan)); // of rooms: what they may include
    Graph used;                               // and what they do include
    Graph includes;                           // of files
    std::set<std::string> found;
};

TEST(Structure, KeepsTheLawsOfThePlan)
{
    // What is committed: no build, no sandbox, no hidden files but those of the tools.
    const std::regex outside(R"(build.*|sandbox|\.(?!ci$|clang-|editorconfig$).*)");
    Project project;
    const fs::path root = PROJECT_DIR;
    for (fs::recursive_directory_iterator entry(root), end; entry != end; ++entry) {
        if (std::regex_match(entry->path().filename().string(), outside)) {
            entry.disable_recursion_pending();
        } else if (entry->is_regular_file()) {
            const std::string path = entry->path().lexically_relative(root).generic_string();
            if (const std::string text = support::testFile("../" + path);
                text.find('\0') == text.npos)
                project[path] = text;
        }
    }
    ASSERT_TRUE(project.contains("src/platform/files.h")) << "the sources were not found";
    for (const std::string &violation : Inspection(project).run())
        ADD_FAILURE() << violation;
}

/// Each file of the made-up project begins with a line "=== path"; after "//!" stands what must be
/// reported of the line. An '@' is left out: this file itself must keep the laws.
TEST(Laws, NoticeEachFault)
{
    Project broken;
    std::set<std::string> expected;
    std::string path;
    int number = 0;
    for (std::string line : splitLines(support::testFile("broken/structure/project.txt"))) {
        std::erase(line, '@');
        if (line.starts_with("=== ")) {
            path = line.substr(4);
            number = 0;
            continue;
        }
        broken[path] += line + '\n';
        ++number;
        for (std::size_t at = 0; (at = line.find("//!", at)) != line.npos; at += 3)
            expected.insert(path + ':' + std::to_string(number) + ": " +
                            line.substr(at + 3, line.find("//!", at + 3) - at - 3));
    }
    broken["src/records/card.cpp"].append(600, '\n');
    EXPECT_EQ(Inspection(broken).run(), expected);
}

} // namespace
