// Stories: plays all stories of a room and holds them against what they show. The language, and how
// stories are written anew, is in tests/README.md.
#pragma once

#include "story/stage.h"

#include <memory>

namespace story {

using MakeStage = std::function<std::unique_ptr<Stage>()>;

/// Each story of tests/golden/ROOM/*.story, on a stage of its own, must tell what it shows, and
/// nothing in its script may be left that did not happen.
void expectStories(const std::string &room, const MakeStage &makeStage);

template <class RoomStage> void expectStories(const std::string &room)
{
    expectStories(room, [] { return std::make_unique<RoomStage>(); });
}

} // namespace story
