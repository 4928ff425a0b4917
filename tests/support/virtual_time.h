// VirtualTime: clock and event loop of the tests. An hour of waiting passes in milliseconds, and
// what the other side does happens at the moments the test has written down.
#pragma once

#include "platform/clock.h"
#include "platform/run.h"

#include <cstdint>
#include <functional>
#include <map>

namespace support {

class VirtualTime : public platform::Clock, public platform::EventLoop {
public:
    /// Wednesday, five past one in the afternoon.
    static constexpr platform::DateTime kDefaultStart{2025, 1, 15, 13, 5, 0, 0};

    explicit VirtualTime(const platform::DateTime &start = kDefaultStart);

    platform::DateTime now() const override;
    std::uint64_t milliseconds() const override { return elapsed; }

    /// Moves on by `maxStep` at most, never past the next scripted event or due timer; then runs
    /// the due events, in the order of their times, and fires the due timers.
    void turn() override;
    /// Turns until `milliseconds` have passed, exactly. Not through Run: see TestStation::advance.
    void advance(std::uint64_t milliseconds);
    /// Sets the calendar alone, as when somebody corrects the computer's clock; timers go on.
    void setNow(const platform::DateTime &dateTime);

    /// Runs `event` when milliseconds() reaches `moment`; events of one moment in order of entry.
    void at(std::uint64_t moment, std::function<void()> event);
    void after(std::uint64_t milliseconds, std::function<void()> event);

    /// The longest step of one turn, at least 1; the granularity of a wait that polls.
    std::uint64_t maxStep = 100;
    /// A test that lasts longer than this has run away: it fails, and `onRunAway` is called once.
    /// When it still goes on for as long again, the process is aborted.
    std::uint64_t limit = 2ULL * 60 * 60 * 1000;
    std::function<void()> onRunAway;
    /// Called at the beginning of each turn; a test of screens delivers the toolkit's events here.
    std::function<void()> everyTurn;

private:
    void watchLimit();

    std::int64_t calendarStart = 0; // milliseconds since 1970 at elapsed 0, local, no time zone
    std::uint64_t elapsed = 0;
    bool ranAway = false;
    std::multimap<std::uint64_t, std::function<void()>> events;
};

} // namespace support
