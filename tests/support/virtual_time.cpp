#include "support/virtual_time.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace support {

namespace {

using Milliseconds = std::chrono::milliseconds;

std::int64_t millisecondsSince1970(const platform::DateTime &dateTime)
{
    const std::chrono::sys_days date =
        std::chrono::year(dateTime.year) / dateTime.month / dateTime.day;
    return Milliseconds(date.time_since_epoch()).count() + dateTime.millisecondsOfDay();
}

} // namespace

VirtualTime::VirtualTime(const platform::DateTime &start)
    : calendarStart(millisecondsSince1970(start))
{
}

platform::DateTime VirtualTime::now() const
{
    const Milliseconds moment(calendarStart + static_cast<std::int64_t>(elapsed));
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date{std::chrono::sys_days(day)};
    const std::chrono::hh_mm_ss time(moment - day);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count()),
            static_cast<int>(time.subseconds().count())};
}

void VirtualTime::setNow(const platform::DateTime &dateTime)
{
    calendarStart = millisecondsSince1970(dateTime) - static_cast<std::int64_t>(elapsed);
}

void VirtualTime::advance(std::uint64_t milliseconds)
{
    const std::uint64_t end = elapsed + milliseconds;
    at(end, [] {}); // no step goes past it
    while (elapsed < end)
        turn();
}

void VirtualTime::turn()
{
    if (everyTurn)
        everyTurn();
    std::uint64_t next = elapsed + std::max<std::uint64_t>(maxStep, 1);
    if (const auto due = nextDue())
        next = std::min(next, *due);
    if (!events.empty())
        next = std::min(next, events.begin()->first);
    elapsed = std::max(elapsed, next);
    watchLimit();

    while (!events.empty() && events.begin()->first <= elapsed) {
        const auto event = events.extract(events.begin()); // it may turn the loop itself
        event.mapped()();
    }
    fireDueTimers();
}

void VirtualTime::watchLimit()
{
    if (elapsed > limit && !ranAway) {
        ranAway = true;
        ADD_FAILURE() << "the test ran away: " << limit / 1000 << " s of virtual time are over";
        if (onRunAway)
            onRunAway();
    }
    if (elapsed > 2 * limit)
        std::abort();
}

void VirtualTime::at(std::uint64_t moment, std::function<void()> event)
{
    events.emplace(moment, std::move(event));
}

void VirtualTime::after(std::uint64_t milliseconds, std::function<void()> event)
{
    at(elapsed + milliseconds, std::move(event));
}

} // namespace support
