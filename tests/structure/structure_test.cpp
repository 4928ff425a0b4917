// The laws of docs/architecture.md, held against every source of the project; and against a made-up
// house that breaks them, so that a rule that lost its bite is noticed.
#include "platform/files.h"
#include "support/test_files.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace {

namespace fs = std::filesystem;
using platform::splitLines;
using Project = std::map<std::string, std::string>; // texts by their paths, with '/'
using Graph = std::map<std::string, std::set<std::string>>;

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

/// Who may include whom by the plan's table "Room"; the screens of a room stand under its name and
/// "screen".
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
            for (const auto &[who, whom] :
                 {std::pair(cells.str(1), cells.str(2)), {cells.str(1) + " screen", cells.str(3)}})
                plan[who] = {std::sregex_token_iterator(whom.begin(), whom.end(), name), {}};
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
        for (Graph graph : {plan, includes}) {
            const auto leadsOut = [&](const auto &one) {
                return std::none_of(one.second.begin(), one.second.end(),
                                    [&](const auto &to) { return graph.contains(to); });
            };
            while (std::erase_if(graph, leadsOut) > 0) {
            }
            for (const auto &[from, others] : graph)
                report(from, 1, "leads into a circle");
        }
        return found;
    }

private:
    void report(const std::string &where, std::size_t line, const std::string &what)
    {
        found.insert(where + ':' + std::to_string(line) + ": " + what);
    }

    static std::string folderOf(const std::string &path) { return path.substr(0, path.rfind('/')); }
    /// Tests and benches have none.
    static std::string roomOf(const std::string &path)
    {
        return path.starts_with("src/")         ? folderOf(path).substr(4)
               : path.starts_with("simulator/") ? "simulator"
                                                : "";
    }
    /// What a source is: a screen has a form of its name beside it, a windowed one may know Qt.
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
        if (path.ends_with(".h") &&
            (!text.starts_with("// ") || text.find("#pragma once") >= text.find("#include")))
            report(path, 1, "no opening words, or no pragma");
        std::size_t number = 0; // 0 is the file's own name
        for (const std::string &line : splitLines(path + '\n' + text)) {
            const std::string code = std::regex_replace(line, noCode, " ");
            std::smatch hit;
            for (const Law &law : laws)
                if (std::regex_match(path + kind, law.binds) &&
                    std::regex_search(law.code ? code : line, hit, law.forbidden))
                    report(path, number, law.what + ": " + hit.str());
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
        // The order in which the build looks; what it does not find, the compiler tells.
        const std::vector<std::string> places = {folderOf(path) + '/' + name, "src/" + name, name,
                                                 "tests/" + name};
        const auto target = std::find_if(places.begin(), places.end(), [&](const auto &place) {
            return project.contains(place);
        });
        if (target == places.end())
            return;
        includes[path].insert(*target);
        if (kindOf(*target) == " screen" && kindOf(path) == " plain")
            report(path, number, "no screen, yet it includes a screen: " + name);
        if (path.starts_with("src/") && *target != "src/" + name)
            report(path, number, "an include names the room too: " + name);
        const std::string from = roomOf(path);
        const std::string to = roomOf(*target);
        if (!from.empty() && from != to && !plan[from].contains(to) &&
            !(kindOf(path) == " screen" && plan[from + " screen"].contains(to)))
            report(path, number, from + " must not include " + to);
    }

    const Project &project;
    const std::vector<Law> laws = readLaws();
    Graph plan = readPlan(project.at("docs/architecture.md"));
    Graph includes; // of files
    std::set<std::string> found;
};

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

/// Each file of the house begins with a line "=== path", and behind "//!" stands what the laws must
/// say of the line.
TEST(Laws, NoticeEachFault)
{
    Project house;
    std::set<std::string> expected;
    std::string path;
    int number = 0;
    for (std::string line : splitLines(support::testFile("broken/structure/house.txt"))) {
        std::erase(line, '@'); // breaks words up
        if (line.starts_with("=== ")) {
            path = line.substr(4);
            number = 0;
            continue;
        }
        house[path] += line + '\n';
        ++number;
        if (const auto at = line.find("//!"); at != line.npos)
            expected.insert(path + ':' + std::to_string(number) + ": " + line.substr(at + 3));
    }
    house["src/records/card.cpp"].append(600, '\n');
    EXPECT_EQ(Inspection(house).run(), expected);
}

} // namespace
