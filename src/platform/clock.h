// Clock and Timer: the only source of time. The programs read the system's clock, tests set a
// virtual one; both run the timers of the procedures and screens.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace platform {

/// Local date and time. Months and days from 1, 24 hours; year with its century.
struct DateTime {
    int year = 2000;
    int month = 1;
    int day = 1;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;

    /// 0 is Sunday.
    int weekday() const;
    int millisecondsOfDay() const
    {
        return ((hour * 60 + minute) * 60 + second) * 1000 + millisecond;
    }
};

class Timer;

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime now() const = 0;
    /// Milliseconds on a clock that never goes back; only differences have a meaning.
    virtual std::uint64_t milliseconds() const = 0;
    /// The same as a 32-bit count that wraps; differences are taken unsigned.
    std::uint32_t tick() const { return static_cast<std::uint32_t>(milliseconds()); }

    /// Fires every timer that is due, each at most once. Each turn of the event loop calls it.
    void fireDueTimers();
    /// When the next timer is due, on the scale of milliseconds().
    std::optional<std::uint64_t> nextDue() const;

private:
    friend class Timer;
    std::vector<Timer *> timers;
};

/// Fires repeatedly at its interval until the interval is set to 0. A new timer is stopped. A
/// handler may set or stop any timer, and destroy its own.
class Timer {
public:
    Timer(Clock &theClock, std::function<void()> handler);
    ~Timer();
    Timer(const Timer &) = delete;
    Timer &operator=(const Timer &) = delete;

    /// Milliseconds; 0 stops. Setting it restarts the interval.
    void setInterval(std::uint32_t milliseconds);
    std::uint32_t interval() const { return every; }

private:
    friend class Clock;
    Clock &clock;
    std::function<void()> fire;
    std::uint32_t every = 0;
    std::uint64_t due = 0;
};

} // namespace platform
