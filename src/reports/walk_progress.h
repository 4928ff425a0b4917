// WalkProgress: when a long walk through a file says how far it is.
#pragma once

#include "platform/clock.h"

namespace reports {

/// At most every 50 ms, because each report repaints.
class WalkProgress {
public:
    explicit WalkProgress(platform::Clock &theClock) : clock(theClock) {}

    /// A walk begins, and what is on the screen was just painted.
    void begin() { said = clock.milliseconds(); }
    /// Whether it is time again; then it counts as said.
    bool due();
    /// Like due(), but asks the clock only at every 16th record: one look at it takes a fifth of
    /// the time of a record.
    bool dueAt(long record);

private:
    platform::Clock &clock;
    std::uint64_t said = 0;
};

} // namespace reports
