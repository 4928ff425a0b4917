#include "support/virtual_time.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

namespace support {

using namespace std::chrono;

platform::DateTime VirtualTime::now() const
{
    const sys_time<std::chrono::milliseconds> moment(
        std::chrono::milliseconds(calendarStart + static_cast<std::int64_t>(elapsed)));
    const auto midnight = floor<days>(moment);
    const year_month_day date(midnight);
    const auto ofDay = static_cast<int>((moment - midnight).count());
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            ofDay / 3'600'000,
            ofDay / 60'000 % 60,
            ofDay / 1000 % 60,
            ofDay % 1000};
}

void VirtualTime::setNow(const platform::DateTime &to)
{
    const sys_days date = year(to.year) / to.month / to.day;
    calendarStart = date.time_since_epoch() / std::chrono::milliseconds(1) +
                    to.millisecondsOfDay() - static_cast<std::int64_t>(elapsed);
}

void VirtualTime::rest(std::uint32_t milliseconds)
{
    for (const std::uint64_t until = elapsed + milliseconds; elapsed < until;)
        pass(until);
}

void VirtualTime::turnBy(std::uint64_t step)
{
    if (everyTurn)
        everyTurn();
    std::uint64_t next = elapsed + step;
    if (const auto due = nextDue())
        next = std::min(next, *due);
    pass(next);
    fireDueTimers();
}

/// Moves on to `next`, or to the scripted events before it.
void VirtualTime::pass(std::uint64_t next)
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

} // namespace support
