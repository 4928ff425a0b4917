// Source rules: the laws of docs/architecture.md as functions on texts. They read no files, so
// that each can be tried on made-up sources.
#pragma once

#include <map>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace structure {

/// A file of the project; `path` from the project's folder, with '/'.
struct Source {
    std::string path;
    std::string text;
};

using Project = std::vector<Source>;

struct Violation {
    std::string where; // path, and ":line" where there is one
    std::string what;
};

inline std::ostream &operator<<(std::ostream &out, const Violation &violation)
{
    return out << violation.where << ": " << violation.what;
}

/// What the tables of the plan allow.
struct Plan {
    struct Room {
        std::set<std::string> includes;
        std::set<std::string> screenIncludes;
    };
    std::map<std::string, Room> rooms;
};

/// Reads the table "Room" of a Markdown text.
Plan readPlan(std::string_view markdown);

/// A plan that allows a circle of rooms, or an include of a room it does not have.
std::vector<Violation> checkPlan(const Plan &plan);
/// Includes against the plan; Qt and screens' headers where no window belongs.
std::vector<Violation> checkIncludes(const Plan &plan, const Project &project);
/// Headers that include each other, directly or round a corner.
std::vector<Violation> checkCircles(const Project &project);
/// Systems, files, clocks and waits outside platform/; exceptions in the core; loops and file
/// names in screens; binary fractions near money.
std::vector<Violation> checkCalls(const Project &project);
/// A header's opening comment and `#pragma once`; the length of every source.
std::vector<Violation> checkShape(const Project &project);
/// Words that explain nothing to whoever has only this project before him.
std::vector<Violation> checkWords(const Project &texts);

/// The source with its comments blanked, and its literals too when asked. Lines stay in place.
std::string withoutComments(std::string_view text, bool blankLiterals);

} // namespace structure
