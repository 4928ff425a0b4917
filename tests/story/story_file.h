// StoryFile: a family of stories as it stands in tests/golden/. The language is in tests/README.md.
#pragma once

#include "story/differences.h"

#include <string>
#include <vector>

namespace story {

/// A line of a script, and what is shown of what it did.
struct ScriptLine {
    Lines above; // comments
    std::string text;
    int number = 0; // in the file
    Lines shown;
};

struct Story {
    std::string name;
    std::string like;   // the name of another one; empty: none
    ScriptLine heading; // shows what the given lines did
    std::vector<ScriptLine> script;
    Lines shown; // of what it leaves behind
};

struct StoryFile {
    std::string path;
    std::vector<ScriptLine> given; // begins each story
    std::vector<Story> stories;
    Lines tail; // comments
};

StoryFile readStories(const std::string &path, const std::string &content);
/// The same file; blank lines stand between stories only.
std::string written(const StoryFile &file);

} // namespace story
