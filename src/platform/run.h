// Run: the state of this process's run. Whether it is ending, whether errors are ignored just
// now, and the one way to let the event loop turn during a wait.
#pragma once

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
};

class Run {
public:
    explicit Run(EventLoop &eventLoop) : loop(eventLoop) {}
    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    /// Lets other events run once. Handlers that run inside do not inherit an ErrorsIgnored
    /// scope of the caller: it is set aside for the turn and restored behind it.
    void yield();

    /// Asks for the end of the program. From here on the file layer is shut and every dialog
    /// answers Cancel; every loop tests ending(). What must still happen happens before.
    void end() { over = true; }
    bool ending() const { return over; }

    /// A file operation failed outside every ErrorsIgnored scope: shuts the file layer, shows the
    /// system's own message once (`operation` and `path` named) and ends the program.
    void fail(std::string_view operation, std::string_view path, Outcome outcome);
    bool failed() const { return failure; }

    bool errorsIgnored() const { return ignoring > 0; }

    /// Shows the message of fail(); set by whoever builds the services.
    std::function<void(const std::string &text)> reportFailure;

private:
    friend class ErrorsIgnored;
    EventLoop &loop;
    int ignoring = 0;
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

} // namespace platform
