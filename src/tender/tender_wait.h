// TenderWait: the wait for the bank's word, which comes as a file. It counts, runs the timer that
// changes the messages (wait_rules.h) and says how the wait ended.
#pragma once

#include "platform/clock.h"
#include "records/app.h"
#include "tender/display.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tender {

enum class WaitEnd {
    Answered,
    Stopped, // by `StopWaiting`
    ProgramEnds,
};

class TenderWait {
public:
    /// `theOfflineCount` is called at the counts at which the offline panel would be shown.
    TenderWait(records::App &theApp, Display &theDisplay, std::function<void()> theOfflineCount);

    /// Starts the timer of the messages; `interval` in milliseconds.
    void startTimer(std::uint32_t interval);
    /// Begins to wait for `theFile`, with count 0. Clears a `StopWaiting` of an earlier wait.
    void start(const std::string &theFile);
    /// Turns the event loop until the file exists. `onPass` is called after each look that has not
    /// found it, with the outcome of the look: with any other than Done the file may be there. The
    /// new count is in the fields by then. A second call goes on with the count.
    WaitEnd untilThere(const std::function<void(platform::Outcome looked)> &onPass);
    /// Looks for the file once more. When the look fails, tries again for some seconds
    /// (platform::Wait::Result). Done, and not there, when nothing is waited for.
    platform::Outcome lookOnceMore(bool &there);
    /// Ends a wait that was stopped; the messages go on.
    void giveUp() { waiting = false; }
    /// Ends the wait after the file has come.
    void end();

    /// After a "T" result: the count on the screen goes on, by a timer of its own.
    void countOn();
    void stopTimers();

private:
    void setCount(int count);
    void tick();
    void tickAfterTimeout();

    records::App &app;
    Display &display;
    std::function<void()> onOfflineCount;
    platform::Timer ladder;
    platform::Timer timeout;
    std::string file;
    std::uint32_t startTick = 0;
    bool waiting = false;
};

} // namespace tender
