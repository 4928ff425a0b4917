// VirtualTime: clock and event loop of the tests. An hour of waiting passes in milliseconds, and
// what the other side does happens at the moments that the test gives.
#pragma once

#include "platform/clock.h"
#include "platform/run.h"

#include <map>

namespace support {

class VirtualTime : public platform::Clock, public platform::EventLoop {
public:
    /// Wednesday, five past one in the afternoon.
    static constexpr platform::DateTime kDefaultStart{2025, 1, 15, 13, 5, 0, 0};

    explicit VirtualTime(const platform::DateTime &start = kDefaultStart) { setNow(start); }

    platform::DateTime now() const override;
    std::uint64_t milliseconds() const override { return elapsed; }

    /// Moves on by `maxStep` at most, never past the next scripted event or due timer; then runs
    /// the due events, in the order of their times, and fires the due timers.
    void turn() override { turnBy(maxStep); }
    /// A turn of 1 ms at most.
    void glance() override { turnBy(1); }
    /// Scripted events happen; timers wait for the next turn.
    void rest(std::uint32_t milliseconds) override;
    void turnBy(std::uint64_t step);
    /// Sets only the calendar, as when somebody corrects the computer's clock; timers go on.
    void setNow(const platform::DateTime &to);

    /// Runs `event` when milliseconds() reaches `moment`; events of one moment in order of entry.
    void at(std::uint64_t moment, std::function<void()> event)
    {
        events.emplace(moment, std::move(event));
    }
    void after(std::uint64_t milliseconds, std::function<void()> event)
    {
        at(elapsed + milliseconds, std::move(event));
    }

    /// The longest step of one turn, at least 1; the granularity of a wait that polls.
    std::uint64_t maxStep = 100;
    /// A test that lasts longer than this has run away: the process is aborted.
    std::uint64_t limit = 2ULL * 60 * 60 * 1000;
    /// Called at the beginning of each turn; a test of screens delivers the toolkit's events here.
    std::function<void()> everyTurn;

private:
    void pass(std::uint64_t next);

    std::int64_t calendarStart = 0; // local, at elapsed 0; ms since 1970
    std::uint64_t elapsed = 0;
    std::multimap<std::uint64_t, std::function<void()>> events;
};

} // namespace support
