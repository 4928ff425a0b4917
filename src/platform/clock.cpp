#include "platform/clock.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

int DateTime::weekday() const
{
    static constexpr std::array<int, 12> kShift = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    if (month < 1 || month > 12)
        return 0;
    const int y = month < 3 ? year - 1 : year;
    return (y + y / 4 - y / 100 + y / 400 + kShift[static_cast<std::size_t>(month - 1)] + day) % 7;
}

void Clock::fireDueTimers()
{
    const std::vector<Timer *> asked = timers;
    for (Timer *timer : asked) {
        const bool alive = std::find(timers.begin(), timers.end(), timer) != timers.end();
        if (!alive || timer->every == 0 || timer->due > milliseconds())
            continue;
        timer->due = milliseconds() + timer->every;
        const std::function<void()> handler = timer->fire; // the handler may destroy the timer
        handler();
    }
}

std::optional<std::uint64_t> Clock::nextDue() const
{
    std::optional<std::uint64_t> next;
    for (const Timer *timer : timers) {
        if (timer->every != 0 && (!next || timer->due < *next))
            next = timer->due;
    }
    return next;
}

Timer::Timer(Clock &theClock, std::function<void()> handler)
    : clock(theClock), fire(std::move(handler))
{
    clock.timers.push_back(this);
}

Timer::~Timer()
{
    std::erase(clock.timers, this);
}

void Timer::setInterval(std::uint32_t milliseconds)
{
    every = milliseconds;
    due = clock.milliseconds() + milliseconds;
}

} // namespace platform
