// Told: what a story tells, and how that is shown against the story that it is like.
#pragma once

#include "story/story_file.h"

namespace story {

struct Section {
    std::string title;
    Lines lines;
    bool changes = false;     // told against the last one of its title, not of its line
    std::string sibling = {}; // the title of another, for the first one of its own
};

struct Told {
    std::vector<std::vector<Section>> steps; // by the script's lines; 0: the given lines
    std::vector<Section> left;               // behind
    Lines complaints;
};

/// Another story that this one is like, with what it has told; its own `like` is told before it.
struct Like {
    const Story *story = nullptr;
    const Told *told = nullptr;
};

/// The story with what it is to show: whole where `like` is empty, else what differs from the first
/// of them; looks go up the row of them.
Story shownAs(const Story &story, const Told &told, const std::vector<Like> &like);

} // namespace story
