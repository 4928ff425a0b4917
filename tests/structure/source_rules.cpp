#include "structure/source_rules.h"

#include <algorithm>
#include <regex>
#include <sstream>
#include <vector>

namespace structure {

namespace {

constexpr std::size_t kLongestSource = 600;
constexpr const char *kScreens = " screens";

using Graph = std::map<std::string, std::set<std::string>>;

/// What a law asks of a file before it binds it.
struct Place {
    std::string path;
    std::string folder;
    std::string room; // tests and benches have none
    bool source = false;
    bool inSrc = false;
    bool platform = false;
    bool screen = false;   // a .ui of its name stands beside it
    bool windowed = false; // may know Qt
};

struct Law {
    const char *what;
    bool (*binds)(const Place &);
    bool wholeLine; // else comments and literals do not count
    std::regex forbidden;
};

const std::vector<Law> kLaws = {
    {"no screen, yet it includes Qt", [](const Place &at) { return at.source && !at.windowed; },
     true, std::regex(R"(^\s*#\s*include\s*(<Q[t/A-Z]|"ui_)[^>"]*)")},
    {"belongs into platform/", [](const Place &at) { return at.inSrc && !at.platform; }, false,
     std::regex( // systems
         R"(\b(_WIN(32|64)|__(MINGW32|linux|unix|APPLE)__)\b|)"
         R"(\b(windows|unistd|sys/stat|fcntl)\.h\b|)"
         // files
         R"(\b([io]?fstream|filesystem|std::rename)\b|(^|[^\w:])::(open|unlink|rename)\s*\(|)"
         R"(\b(f(re)?open|popen|fork|std::system)\s*\(|)"
         R"(\bQ(File|SaveFile|Dir|FileInfo|Settings|Process|LockFile)\b|)"
         // time
         R"(\bQ(Timer|ElapsedTimer|EventLoop|Thread)\b|\b(this_thread|std::thread)\b|)"
         R"(\b(system|steady|high_resolution)_clock\b|\bGetTickCount(64)?\b|)"
         R"(\b(sleep_(for|until)|(u|m|nano)?sleep|Sleep|processEvents|std::time)\s*\(|)"
         R"(\b(gettimeofday|clock_gettime|localtime)\s*\(|\btime\s*\((nullptr|NULL|0))")},
    {"only yield() turns the event loop", [](const Place &at) { return at.inSrc; }, false,
     std::regex(R"(\bexec\s*\()")},
    {"an exception, or what this compiler lacks",
     [](const Place &at) { return at.inSrc && !at.windowed; }, false,
     std::regex(R"(\bstd::(sto(i|l|ul|ll|ull|f|d|ld)|any|regex|format|views)\b|)"
                R"((\.|->)at\s*\(|\b(throw|try)\b|\bcatch\s*\(|<(regex|format|ranges)>)")},
    {"a loop or a wait in a screen", [](const Place &at) { return at.screen && !at.platform; },
     false, std::regex(R"(\b(while|yield)\s*\(|\bdo\b|\bfor\s*\(;)")},
    {"a file name in a screen", [](const Place &at) { return at.screen && !at.platform; }, true,
     std::regex(R"re(^([^/]|/(?!/))*"[^"]*(\.(dat|txt|req|ans|tmp|log|ini)|[A-Z]:[/\\][^"]*)")re",
                std::regex::icase)},
    {"a binary fraction near money",
     [](const Place &at) {
         return at.inSrc && !at.platform && at.room != "printing" && at.room != "roles";
     },
     false, std::regex(R"(\b(double|float)\b)")},
    // Words that explain nothing to whoever has only this project before him.
    {"leads nowhere", [](const Place &) { return true; }, true,
     std::regex(R"(\bparts? [0-9]+\.[0-9]+|specif[i]cation|\bthe [s]pec\b|\bV[B]6?\b|)"
                R"((^|[^a-z])/w[o]rk/)",
                std::regex::icase)},
};

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

/// Who may include whom by the table "Room"; what a room's screens may include besides stands
/// under its name and "screens".
Graph readPlan(const std::string &markdown)
{
    static const std::regex row(R"(\| ([\w/]+) \|([^|]*)\|([^|]*)\|)");
    static const std::regex name(R"([\w/]+)");
    Graph plan;
    const std::size_t table = markdown.find("\n| Room |");
    for (const std::string &line : linesOf(markdown.substr(markdown.find("\n|--", table) + 1))) {
        std::smatch cells;
        if (!line.starts_with('|'))
            break;
        if (!std::regex_match(line, cells, row))
            continue;
        for (const auto &[room, cell] : {std::pair(cells.str(1), cells.str(2)),
                                         std::pair(cells.str(1) + kScreens, cells.str(3))})
            plan[room] = {std::sregex_token_iterator(cell.begin(), cell.end(), name), {}};
    }
    return plan;
}

bool leads(const Graph &graph, const std::string &from, const std::string &to,
           std::set<std::string> &seen)
{
    const auto next = graph.find(from);
    return next != graph.end() && seen.insert(from).second &&
           std::any_of(next->second.begin(), next->second.end(), [&](const std::string &one) {
               return one == to || leads(graph, one, to, seen);
           });
}

class Inspection {
public:
    Inspection(const std::string &markdown, const Project &theProject)
        : plan(readPlan(markdown)), project(theProject)
    {
    }

    std::set<std::string> run()
    {
        for (const auto &[room, others] : plan)
            for (const std::string &other : others)
                if (!plan.contains(other))
                    report(room, 1, "the plan has no room \"" + other + '"');
        for (const auto &[path, text] : project)
            check(placeOf(path), text);
        for (const auto &graph : {plan, includes})
            for (const auto &[from, others] : graph)
                if (std::set<std::string> seen; leads(graph, from, from, seen))
                    report(from, 1, "leads in a circle back to itself");
        return found;
    }

private:
    void report(const std::string &where, std::size_t line, const std::string &what)
    {
        found.insert(where + ':' + std::to_string(line) + ": " + what);
    }

    Place placeOf(const std::string &path) const
    {
        Place at{path, path.substr(0, path.rfind('/')), {}};
        at.source = path.ends_with(".h") || path.ends_with(".cpp");
        at.inSrc = at.source && path.starts_with("src/");
        if (at.inSrc)
            at.room = at.folder.substr(4);
        else if (path.starts_with("simulator/"))
            at.room = "simulator";
        at.platform = at.room == "platform" || at.room == "platform/qt";
        at.screen = at.source && project.contains(path.substr(0, path.rfind('.')) + ".ui");
        at.windowed = at.screen || at.room == "roles" || at.folder.ends_with("/qt") ||
                      path.ends_with("_screen_test.cpp") || path.ends_with("_screen_bench.cpp");
        return at;
    }

    void check(const Place &at, const std::string &text)
    {
        if (at.path.ends_with(".h") &&
            (!text.starts_with("// ") || text.find("#pragma once") >= text.find("#include")))
            report(at.path, 1, "no opening words, or no pragma");
        std::size_t number = 0; // 0 is the file's own name
        for (const std::string &line : linesOf(at.path + '\n' + text))
            checkLine(at, number++, line);
        if (at.source && number > kLongestSource + 1)
            report(at.path, 1, "longer than " + std::to_string(kLongestSource) + " lines");
    }

    void checkLine(const Place &at, std::size_t number, const std::string &line)
    {
        static const std::regex noCode(R"re("(\\.|[^"\\])*"|'(\\.|[^'\\])'|//.*)re");
        const std::string code = std::regex_replace(line, noCode, " ");
        std::smatch hit;
        for (const Law &law : kLaws)
            if (law.binds(at) && std::regex_search(law.wholeLine ? line : code, hit, law.forbidden))
                report(at.path, number, law.what + (": " + hit.str()));
        if (at.source)
            checkInclude(at, number, line);
    }

    void checkInclude(const Place &from, std::size_t number, const std::string &line)
    {
        static const std::regex include(R"re(^\s*#\s*include\s*"([^"]+)".*)re");
        std::smatch parts;
        if (!std::regex_match(line, parts, include))
            return;
        const std::string name = parts.str(1);
        // The order in which the build looks; what it does not find, the compiler tells.
        const std::vector<std::string> places = {from.folder + '/' + name, "src/" + name, name,
                                                 "tests/" + name};
        const auto target = std::find_if(places.begin(), places.end(),
                                         [&](const auto &path) { return project.contains(path); });
        if (target == places.end())
            return;
        includes[from.path].insert(*target);
        const Place to = placeOf(*target);
        if (to.screen && !from.windowed)
            report(from.path, number, "no screen, yet it includes a screen: " + name);
        if (from.inSrc && *target != "src/" + name)
            report(from.path, number, "an include names the room too: " + name);
        if (from.room.empty() || to.room == from.room)
            return;
        if (!plan.contains(from.room))
            report(from.path, number, "the plan has no room \"" + from.room + '"');
        else if (!plan.at(from.room).contains(to.room) &&
                 !(from.screen && plan.at(from.room + kScreens).contains(to.room)))
            report(from.path, number, from.room + " must not include " + to.room);
    }

    const Graph plan;
    const Project &project;
    Graph includes; // of files
    std::set<std::string> found;
};

} // namespace

std::set<std::string> violations(const std::string &plan, const Project &project)
{
    return Inspection(plan, project).run();
}

} // namespace structure
