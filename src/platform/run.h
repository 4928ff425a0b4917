// Run: the state of this process: whether it is ending, whether errors are ignored at the moment,
// and the only way to let the event loop turn during a wait.
#pragma once

#include "platform/clock.h"
#include "platform/outcome.h"

#include <functional>
#include <string>
#include <string_view>

namespace platform {

/// One turn of the event loop: handles what is due (input, paints, timers), then sleeps a few
/// milliseconds. The programs turn Qt's loop; tests turn virtual time.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    virtual void turn() = 0;
    /// The same without the sleep, for use inside long work. It may be called a hundred thousand
    /// times: a loop whose turns are expensive turns only every few milliseconds.
    virtual void glance() { turn(); }
    /// Lets so much time pass and repaints the windows; no input, timer or handler runs. Does
    /// nothing by default.
    virtual void rest(std::uint32_t) {}
};

class Run {
public:
    Run(EventLoop &eventLoop, const Clock &theClock) : loop(eventLoop), clock(theClock) {}
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    /// Lets other events run once. Handlers that run inside do not inherit an ErrorsIgnored scope
    /// of the caller: it is suspended for the turn and restored after it.
    void yield();
    /// The same during long work, by EventLoop::glance(): called at every record of a list.
    void glance();
    /// Only for patiently(): so much time passes, windows are repainted, nothing else happens.
    void rest(std::uint32_t milliseconds) { loop.rest(milliseconds); }
    std::uint64_t milliseconds() const { return clock.milliseconds(); }

    /// Begins the end of the program. From here on the file layer is shut and every dialog answers
    /// Cancel; every loop tests ending(). Whatever must still happen has to happen before.
    void end() { over = true; }
    /// The same, with the exit code for a failure; the caller has already shown why.
    void endInFailure() { over = failure = true; }
    bool ending() const { return over; }

    /// A file operation failed outside every ErrorsIgnored scope: shuts the file layer, shows the
    /// system's own message with `operation` and `path` once, and ends the program.
    void fail(std::string_view operation, std::string_view path, Outcome outcome);
    /// The same for other failures, such as a text that should be a date.
    void fail(const std::string &message);
    bool failed() const { return failure; }

    bool errorsIgnored() const { return ignoring > 0; }
    bool impatient() const { return hurrying > 0; }

    /// What an end by fail() would mean for the guest's money at this moment, and what to do next;
    /// shown after the message. The procedures keep it up to date.
    std::string consequence;
    /// Shows the message of fail(); set where the services are built.
    std::function<void(const std::string &text)> reportFailure;

private:
    friend class ErrorsIgnored;
    friend class Impatient;
    EventLoop &loop;
    const Clock &clock;
    int ignoring = 0;
    int hurrying = 0;
    bool over = false;
    bool failure = false;
};

/// While one exists, failed file operations are ignored: reads give nothing, writes do nothing, a
/// refused lock does not stop anything. Stands at the point from which a routine ignores errors;
/// called routines inherit it.
class ErrorsIgnored {
public:
    explicit ErrorsIgnored(Run &theRun) : run(theRun) { ++run.ignoring; }
    ~ErrorsIgnored() { --run.ignoring; }
    ErrorsIgnored(const ErrorsIgnored &) = delete;
    ErrorsIgnored &operator=(const ErrorsIgnored &) = delete;

private:
    Run &run;
};

/// While one exists, patiently() makes one attempt and does not wait: the caller has already waited
/// for the same failure.
class Impatient {
public:
    explicit Impatient(Run &theRun) : run(theRun) { ++run.hurrying; }
    ~Impatient() { --run.hurrying; }
    Impatient(const Impatient &) = delete;
    Impatient &operator=(const Impatient &) = delete;

private:
    Run &run;
};

} // namespace platform
