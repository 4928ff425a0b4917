// VirtualTime: clock and event loop of the tests. An hour of waiting passes in milliseconds, and
// what the other side does happens at the moments the test has written down.
#pragma once

#include "platform/clock.h"
#include "platform/run.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <map>
#include <utility>

namespace support {

class VirtualTime : public platform::Clock, public platform::EventLoop {
public:
    /// Wednesday, five past one in the afternoon.
    static constexpr platform::DateTime kDefaultStart{2025, 1, 15, 13, 5, 0, 0};

    explicit VirtualTime(const platform::DateTime &start = kDefaultStart) { setNow(start); }

    platform::DateTime now() const override
    {
        const auto moment = calendarStart + std::chrono::milliseconds(elapsed);
        const auto day = std::chrono::floor<std::chrono::days>(moment);
        const std::chrono::year_month_day date(day);
        const auto month = static_cast<unsigned>(date.month());
        const auto ofDay = static_cast<int>((moment - day).count());
        return {static_cast<int>(date.year()),
                static_cast<int>(month),
                static_cast<int>(static_cast<unsigned>(date.day())),
                ofDay / 3'600'000,
                ofDay / 60'000 % 60,
                ofDay / 1000 % 60,
                ofDay % 1000};
    }
    std::uint64_t milliseconds() const override { return elapsed; }

    /// Moves on by `maxStep` at most, never past the next scripted event or due timer; then runs
    /// the due events, in the order of their times, and fires the due timers.
    void turn() override { turnBy(maxStep); }
    /// A turn of 1 ms at most.
    void glance() override { turnBy(1); }
    /// What the other side does happens; timers wait for the next turn.
    void rest(std::uint32_t milliseconds) override
    {
        for (const std::uint64_t until = elapsed + milliseconds; elapsed < until;)
            pass(until);
    }
    void turnBy(std::uint64_t step)
    {
        if (everyTurn)
            everyTurn();
        std::uint64_t next = elapsed + step;
        if (const auto due = nextDue())
            next = std::min(next, *due);
        pass(next);
        fireDueTimers();
    }
    /// Sets the calendar alone, as when somebody corrects the computer's clock; timers go on.
    void setNow(const platform::DateTime &to)
    {
        const std::chrono::sys_days date = std::chrono::year(to.year) / to.month / to.day;
        calendarStart = date + std::chrono::milliseconds(to.millisecondsOfDay()) -
                        std::chrono::milliseconds(elapsed);
    }

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
    /// To `next`, or to the scripted events before it.
    void pass(std::uint64_t next)
    {
        if (!events.empty())
            next = std::min(next, events.begin()->first);
        elapsed = std::max(elapsed, next);
        if (elapsed > limit)
            std::abort();
        while (!events.empty() && events.begin()->first <= elapsed) {
            const auto event = events.extract(events.begin()); // it may turn the loop itself
            event.mapped()();
        }
    }

    std::chrono::sys_time<std::chrono::milliseconds> calendarStart; // local, at elapsed 0
    std::uint64_t elapsed = 0;
    std::multimap<std::uint64_t, std::function<void()>> events;
};

} // namespace support
