// The table of all screens: how each is opened on an ordinary evening. A further screen is a row
// more; a form without one fails.
#pragma once

#include "platform/qt/screen.h"
#include "support/tender_story.h"

namespace support {

/// A restaurant in which every screen has something to show.
struct Evening : TenderStory {
    Evening();
};

struct ScreenRow {
    const char *form; // and class
    /// Makes the screen; one that fills the display is shown already.
    std::function<std::unique_ptr<platform::Screen>(Evening &)> make;
};

const std::vector<ScreenRow> &allScreens();

} // namespace support
