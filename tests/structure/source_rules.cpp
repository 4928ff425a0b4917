#include "structure/source_rules.h"

#include <algorithm>
#include <cctype>
#include <optional>
#include <regex>

namespace structure {

namespace {

constexpr int kLongestSource = 600;
constexpr std::string_view kQtRoom = "platform/qt";

bool isNameChar(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> split(std::string_view text, char at)
{
    std::vector<std::string> pieces;
    while (true) {
        const auto end = text.find(at);
        pieces.emplace_back(trimmed(text.substr(0, end)));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string> lines(const std::string &text)
{
    return split(text, '\n');
}

std::set<std::string> names(const std::string &list)
{
    std::set<std::string> result;
    for (const std::string &name : split(list, ','))
        if (!name.empty())
            result.insert(name);
    return result;
}

std::string folderOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

bool isHeader(const std::string &path)
{
    return path.ends_with(".h");
}

bool isSource(const std::string &path)
{
    return isHeader(path) || path.ends_with(".cpp");
}

// "tender" for src/tender/slip.cpp, "simulator" for what stands there; tests and benches have no
// room.
std::string roomOf(const std::string &path)
{
    const std::string folder = folderOf(path);
    if (folder.starts_with("src/"))
        return folder.substr(4);
    return folder.starts_with("simulator") ? "simulator" : std::string();
}

const Source *find(const Project &project, const std::string &path)
{
    const auto found = std::find_if(project.begin(), project.end(),
                                    [&](const Source &source) { return source.path == path; });
    return found == project.end() ? nullptr : &*found;
}

bool isScreen(const Project &project, const std::string &path)
{
    return find(project, path.substr(0, path.rfind('.')) + ".ui") != nullptr;
}

bool mayUseQt(const Project &project, const std::string &path)
{
    const std::string room = roomOf(path);
    return folderOf(path).ends_with("/qt") || room == "roles" || isScreen(project, path) ||
           path.ends_with("_screen_test.cpp") || path.ends_with("_screen_bench.cpp");
}

std::string at(const Source &source, std::size_t line)
{
    return source.path + ':' + std::to_string(line);
}

struct Include {
    std::string name;
    bool system = false;
    std::size_t line = 0;
};

std::vector<Include> includesOf(const Source &source)
{
    std::vector<Include> result;
    std::size_t number = 0;
    for (const std::string &line : lines(withoutComments(source.text, false))) {
        ++number;
        const auto open = line.find_first_of("<\"");
        if (!line.starts_with('#') || line.find("include") > open || open == std::string::npos)
            continue;
        const auto close = line.find_first_of(">\"", open + 1);
        result.push_back({line.substr(open + 1, close - open - 1), line[open] == '<', number});
    }
    return result;
}

// The file of the project behind a quoted include, in the order in which the build looks.
const Source *resolve(const Project &project, const Source &from, const std::string &name)
{
    for (const std::string &path :
         {folderOf(from.path) + '/' + name, "src/" + name, name, "tests/" + name})
        if (const Source *source = find(project, path))
            return source;
    return nullptr;
}

bool isQt(const Include &include)
{
    const std::string &name = include.name;
    if (!include.system)
        return name.starts_with("ui_");
    return name.size() > 1 && name[0] == 'Q' &&
           (name[1] == 't' || std::isupper(static_cast<unsigned char>(name[1])) != 0);
}

std::optional<std::string> wrongDirection(const Plan &plan, const Project &project,
                                          const Source &from, const std::string &target)
{
    const std::string room = roomOf(from.path);
    const auto rules = plan.rooms.find(room);
    if (rules == plan.rooms.end())
        return "the plan has no room \"" + room + '"';
    const bool allowed =
        target == room || rules->second.includes.contains(target) ||
        (isScreen(project, from.path) && rules->second.screenIncludes.contains(target));
    if (allowed)
        return std::nullopt;
    return room + " must not include " + (target.empty() ? "what has no room" : target);
}

void checkInclude(const Plan &plan, const Project &project, const Source &from,
                  const Include &include, std::vector<Violation> &found)
{
    const auto report = [&](const std::string &what) {
        found.push_back({at(from, include.line), what});
    };
    const bool windowed = mayUseQt(project, from.path);
    if (isQt(include) && !windowed)
        report("no screen, yet it includes Qt: " + include.name);
    if (include.system || include.name.starts_with("ui_") || include.name.ends_with(".moc"))
        return;
    const Source *target = resolve(project, from, include.name);
    if (target == nullptr) // the compiler says so
        return;
    if (isScreen(project, target->path) && !windowed)
        report("no screen, yet it includes a screen: " + include.name);
    if (from.path.starts_with("src/") && target->path != "src/" + include.name)
        report("an include names the room too: " + include.name);
    if (!roomOf(from.path).empty())
        if (const auto what = wrongDirection(plan, project, from, roomOf(target->path)))
            report(*what);
}

// Depth first through the includes; a file met again on the way down closes a circle.
class CircleSearch {
public:
    explicit CircleSearch(const Project &theProject) : project(theProject) {}

    std::vector<Violation> run()
    {
        for (const Source &source : project)
            if (isSource(source.path))
                visit(source);
        return found;
    }

private:
    void visit(const Source &source)
    {
        const auto onPath = std::find(path.begin(), path.end(), source.path);
        if (onPath != path.end())
            return report(onPath - path.begin());
        if (!seen.insert(source.path).second)
            return;
        path.push_back(source.path);
        for (const Include &include : includesOf(source))
            if (const Source *next =
                    include.system ? nullptr : resolve(project, source, include.name))
                visit(*next);
        path.pop_back();
    }
    void report(std::ptrdiff_t first)
    {
        std::string circle;
        for (auto step = path.begin() + first; step != path.end(); ++step)
            circle += *step + " > ";
        found.push_back({path[static_cast<std::size_t>(first)], "circle of includes: " + circle});
    }

    const Project &project;
    std::set<std::string> seen;
    std::vector<std::string> path;
    std::vector<Violation> found;
};

// A phrase that ends in '(' is a call, blanks before the bracket or not; names match whole.
bool matchesAt(std::string_view code, std::size_t at, std::string_view phrase)
{
    const bool call = phrase.ends_with('(');
    std::size_t end = at + phrase.size() - (call ? 1 : 0);
    if (at > 0 && isNameChar(code[at - 1]) && (isNameChar(phrase[0]) || phrase[0] == ':'))
        return false;
    if (call)
        while (end < code.size() && code[end] == ' ')
            ++end;
    const char next = end < code.size() ? code[end] : '\n';
    return call ? next == '(' : !isNameChar(phrase.back()) || !isNameChar(next);
}

void findPhrase(const Source &source, std::string_view code, std::string_view phrase,
                const std::string &what, std::vector<Violation> &found)
{
    const std::string_view head = phrase.substr(0, phrase.size() - (phrase.ends_with('(') ? 1 : 0));
    for (auto hit = code.find(head); hit != std::string_view::npos; hit = code.find(head, hit + 1))
        if (matchesAt(code, hit, phrase)) {
            const auto line = std::count(code.begin(), code.begin() + static_cast<long>(hit), '\n');
            found.push_back({at(source, static_cast<std::size_t>(line) + 1),
                             what + ": " + std::string(phrase)});
        }
}

using Phrases = std::vector<std::string_view>;

const Phrases kSystems = {"_WIN32",    "_WIN64",    "__MINGW32__", "__linux__",  "__unix__",
                          "__APPLE__", "windows.h", "unistd.h",    "sys/stat.h", "fcntl.h"};
const Phrases kFileCalls = {
    "fopen(",     "freopen(",    "std::ifstream", "std::ofstream", "std::fstream", "fstream",
    "filesystem", "std::rename", "::open(",       "::unlink(",     "::rename(",    "QFile",
    "QSaveFile",  "QDir",        "QFileInfo",     "QSettings",     "QProcess",     "QLockFile",
    "popen(",     "fork(",       "std::system("};
const Phrases kTimeCalls = {"QTimer",         "QElapsedTimer",  "QEventLoop",
                            "processEvents(", "sleep_for(",     "sleep_until(",
                            "sleep(",         "usleep(",        "nanosleep(",
                            "Sleep(",         "msleep(",        "this_thread",
                            "std::thread",    "QThread",        "system_clock",
                            "steady_clock",   "std::time(",     "high_resolution_clock",
                            "time(nullptr",   "time(NULL",      "time(0",
                            "gettimeofday(",  "clock_gettime(", "localtime(",
                            "GetTickCount",   "GetTickCount64"};
const Phrases kThrowing = {"std::stoi", "std::stol",   "std::stoul", "std::stoll", "std::stoull",
                           "std::stof", "std::stod",   "std::stold", ".at(",       "->at(",
                           "throw",     "try",         "catch(",     "std::any",   "std::regex",
                           "<regex>",   "std::format", "<format>",   "std::views", "<ranges>"};
const Phrases kLoopsAndWaits = {"while(", "do", "yield(", "for (;"};
const Phrases kFractions = {"double", "float"};

void findAny(const Source &source, std::string_view code, const Phrases &phrases,
             const std::string &what, std::vector<Violation> &found)
{
    for (const std::string_view phrase : phrases)
        findPhrase(source, code, phrase, what, found);
}

// A literal that ends like a file of the exchange, or a path with a drive.
void findFileNames(const Source &source, std::vector<Violation> &found)
{
    static const std::regex fileName(
        R"re("[^"]*(\.(dat|txt|req|ans|tmp|log|ini)|[A-Z]:[/\\][^"]*)")re", std::regex::icase);
    std::size_t number = 0;
    for (const std::string &line : lines(withoutComments(source.text, false))) {
        ++number;
        if (line.find('"') != std::string::npos && std::regex_search(line, fileName))
            found.push_back({at(source, number), "a file name in a screen"});
    }
}

bool handlesMoney(const std::string &room)
{
    return room != "platform" && room != kQtRoom && room != "printing" && room != "roles";
}

void checkCallsOf(const Project &project, const Source &source, std::vector<Violation> &found)
{
    const std::string room = roomOf(source.path);
    const std::string code = withoutComments(source.text, true);
    const bool platform = room == "platform" || room == kQtRoom;
    if (!platform) {
        findAny(source, code, kSystems, "a system outside platform/", found);
        findAny(source, code, kFileCalls, "a file call outside platform/", found);
        findAny(source, code, kTimeCalls, "time outside platform/", found);
    }
    findPhrase(source, code, "exec(", "only yield() turns the event loop", found);
    if (!mayUseQt(project, source.path))
        findAny(source, code, kThrowing, "an exception, or what this compiler lacks", found);
    if (isScreen(project, source.path) && !platform) {
        findAny(source, code, kLoopsAndWaits, "a loop or a wait in a screen", found);
        findFileNames(source, found);
    }
    if (handlesMoney(room))
        findAny(source, code, kFractions, "a binary fraction near money", found);
}

void checkShapeOf(const Source &source, std::vector<Violation> &found)
{
    const auto length = std::count(source.text.begin(), source.text.end(), '\n');
    if (length > kLongestSource)
        found.push_back({source.path, "longer than " + std::to_string(kLongestSource) + " lines"});
    if (!isHeader(source.path))
        return;
    if (!source.text.starts_with("// "))
        found.push_back({at(source, 1), "a header begins with what lives there"});
    const auto once = source.text.find("#pragma once");
    if (once == std::string::npos || source.text.find("#include") < once)
        found.push_back({source.path, "no #pragma once before the first include"});
}

void addRow(Plan &plan, const std::string &title, const std::vector<std::string> &cells)
{
    if (title == "Room" && cells.size() > 3)
        plan.rooms[cells[1]] = {names(cells[2]), names(cells[3])};
}

bool reaches(const Plan &plan, const std::string &from, const std::string &to,
             std::set<std::string> &seen)
{
    const auto room = plan.rooms.find(from);
    if (room == plan.rooms.end() || !seen.insert(from).second)
        return false;
    return std::any_of(
        room->second.includes.begin(), room->second.includes.end(),
        [&](const std::string &next) { return next == to || reaches(plan, next, to, seen); });
}

} // namespace

Plan readPlan(std::string_view markdown)
{
    Plan plan;
    std::string title;
    for (const std::string &line : split(markdown, '\n')) {
        if (!line.starts_with('|')) {
            title.clear();
            continue;
        }
        const std::vector<std::string> cells = split(line, '|');
        if (title.empty())
            title = cells[1];
        else if (!cells[1].starts_with("--"))
            addRow(plan, title, cells);
    }
    return plan;
}

std::vector<Violation> checkPlan(const Plan &plan)
{
    std::vector<Violation> found;
    for (const auto &[name, room] : plan.rooms) {
        std::set<std::string> seen;
        if (reaches(plan, name, name, seen))
            found.push_back({name, "the plan leads back into the room"});
        for (const auto *allowed : {&room.includes, &room.screenIncludes})
            for (const std::string &other : *allowed)
                if (!plan.rooms.contains(other))
                    found.push_back({name, "the plan has no room \"" + other + '"'});
    }
    return found;
}

std::vector<Violation> checkIncludes(const Plan &plan, const Project &project)
{
    std::vector<Violation> found;
    for (const Source &source : project)
        if (isSource(source.path))
            for (const Include &include : includesOf(source))
                checkInclude(plan, project, source, include, found);
    return found;
}

std::vector<Violation> checkCircles(const Project &project)
{
    return CircleSearch(project).run();
}

std::vector<Violation> checkCalls(const Project &project)
{
    std::vector<Violation> found;
    for (const Source &source : project)
        if (source.path.starts_with("src/") && isSource(source.path))
            checkCallsOf(project, source, found);
    return found;
}

std::vector<Violation> checkShape(const Project &project)
{
    std::vector<Violation> found;
    for (const Source &source : project)
        if (isSource(source.path))
            checkShapeOf(source, found);
    return found;
}

std::vector<Violation> checkWords(const Project &texts)
{
    static const std::regex strange(
        R"re(\bparts? [0-9]+\.[0-9]+|specif[i]cation|\bthe [s]pec\b|\bV[B]6?\b|(^|[^a-z])/w[o]rk/)re",
        std::regex::icase | std::regex::optimize);
    std::vector<Violation> found;
    for (const Source &text : texts) {
        std::size_t number = 0;
        for (const std::string &line : lines(text.path + '\n' + text.text)) {
            std::smatch word;
            if (std::regex_search(line, word, strange))
                found.push_back({at(text, number), "leads nowhere: " + word.str()});
            ++number; // line 0 is the file's own name
        }
    }
    return found;
}

} // namespace structure
