// Run: the state of this process's run. Whether it is ending, whether errors are ignored just
// now, and the one way to let the event loop turn during a wait.
#pragma once

#include "platform/clock.h"
#include "platform/outcome.h"

#include <functional>
#include <string>
#include <string_view>

namespace platform {

/// One turn of the event loop: deliver what is due (input, paints, timers), then rest a few
/// milliseconds. Production turns Qt's loop; tests turn virtual time.
class EventLoop {
public:
    virtual ~EventLoop() = default;
    virtual void turn() = 0;
    /// The same without the rest, for work that goes on at once. It may be called a hundred
    /// thousand times: a loop for which a turn costs something makes one every few milliseconds.
    virtual void glance() { turn(); }
    /// Lets so much time pass and repaints the windows; no input, timer or handler runs. Nothing
    /// passes where nobody waits.
    virtual void rest(std::uint32_t) {}
};

class Run {
public:
    Run(EventLoop &eventLoop, const Clock &theClock) : loop(eventLoop), clock(theClock) {}
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    /// Lets other events run once. Handlers that run inside do not inherit an ErrorsIgnored
    /// scope of the caller: it is set aside for the turn and restored behind it.
    void yield();
    /// The same in the midst of work, by EventLoop::glance(): at every record of a list.
    void glance();
    /// For patiently() alone: so much time passes, painted, and nothing else happens.
    void rest(std::uint32_t milliseconds) { loop.rest(milliseconds); }
    std::uint64_t milliseconds() const { return clock.milliseconds(); }

    /// Asks for the end of the program. From here on the file layer is shut and every dialog
    /// answers Cancel; every loop tests ending(). What must still happen happens before.
    void end() { over = true; }
    /// The same, with the exit code of a program that a failure ended; who ends it has said why.
    void endInFailure() { over = failure = true; }
    bool ending() const { return over; }

    /// A file operation failed outside every ErrorsIgnored scope: shuts the file layer, shows the
    /// system's own message once (`operation` and `path` named) and ends the program.
    void fail(std::string_view operation, std::string_view path, Outcome outcome);
    /// The same for what is no file operation, such as a text that should be a date.
    void fail(const std::string &message);
    bool failed() const { return failure; }

    bool errorsIgnored() const { return ignoring > 0; }
    bool impatient() const { return hurrying > 0; }

    /// What an end by fail() means for the guest's money and what to do next, as things stand just
    /// now: said behind the message. The procedures keep it true.
    std::string consequence;
    /// Shows the message of fail(); set by whoever builds the services.
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

/// While one lives, failed file operations are passed over: reads give nothing, writes do
/// nothing, a refused lock is ignored. Set at the marked point from which a routine ignores
/// errors; called routines inherit it.
class ErrorsIgnored {
public:
    explicit ErrorsIgnored(Run &theRun) : run(theRun) { ++run.ignoring; }
    ~ErrorsIgnored() { --run.ignoring; }
    ErrorsIgnored(const ErrorsIgnored &) = delete;
    ErrorsIgnored &operator=(const ErrorsIgnored &) = delete;

private:
    Run &run;
};

/// While one lives, patiently() makes one attempt and waits for nothing: what is about to be tried
/// was waited for already.
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
