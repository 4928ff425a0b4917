// WalkProgress: when a long walk through a file says how far it is.
#pragma once

#include "platform/clock.h"

namespace reports {

/// At most every 50 ms, for each time costs a painting.
class WalkProgress {
public:
    explicit WalkProgress(platform::Clock &theClock) : clock(theClock) {}

    /// A walk begins, and what is on the screen was just painted.
    void begin() { said = clock.milliseconds(); }
    /// Whether it is time again; then it counts as said.
    bool due();
    /// For a walk so fast that a look at the clock takes a fifth of a record: asks at every 16th.
    bool dueAt(long record);

private:
    platform::Clock &clock;
    std::uint64_t said = 0;
};

} // namespace reports
