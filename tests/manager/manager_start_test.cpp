// The manager's first screen: a copy of the data before every choice, the log of it, what is
// cleaned up before the list opens, and who may change the files.
#include "story/stories.h"
#include "support/manager_stage.h"

namespace {

TEST(Stories, OfTheStartTellWhatTheyShow)
{
    story::expectStories<support::ManagerStage>("manager");
}

} // namespace
