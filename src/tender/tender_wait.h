// TenderWait: the wait for the bank's word, that is for one file. It counts, runs the timer of the
// ladder of messages (wait_rules.h) and says how the wait ended.
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

    /// Arms the ladder's timer, in milliseconds.
    void startTimer(std::uint32_t interval);
    /// Counts from 0, waiting for `theFile`; whoever asked for a stop has not meant this wait.
    void start(const std::string &theFile);
    /// Turns the event loop until the file exists. `onPass` is called on each pass that has not
    /// found it, with the new count on the screen and the outcome of the look: anything but Done
    /// says that the file may be there. Goes on counting where it is called again.
    WaitEnd untilThere(const std::function<void(platform::Outcome looked)> &onPass);
    /// Looks for the file once more, for some seconds where it cannot be looked for
    /// (platform::Wait::Result). Done and not there when nothing is waited for.
    platform::Outcome lookOnceMore(bool &there);
    /// Nobody waits any more; the ladder goes on.
    void giveUp() { waiting = false; }
    /// The file is there.
    void end();

    /// After a "T" result: the count goes on with a timer of its own, for the operator to see.
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
