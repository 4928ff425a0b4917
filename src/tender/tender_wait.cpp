#include "tender/tender_wait.h"

#include "platform/patience.h"
#include "records/text.h"
#include "tender/wait_rules.h"

#include <utility>

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kTimeoutTimer = 1200; // ms

/// Whether there is something at the path, a file or anything else.
platform::Outcome lookFor(App &app, const std::string &file, bool &there)
{
    platform::Found found = platform::Found::Nothing;
    const platform::Outcome outcome = app.files.look(file, found);
    there = found != platform::Found::Nothing;
    return outcome;
}

} // namespace

TenderWait::TenderWait(App &theApp, Display &theDisplay, std::function<void()> theOfflineCount)
    : app(theApp), display(theDisplay), onOfflineCount(std::move(theOfflineCount)),
      ladder(app.clock, [this] { tick(); }), timeout(app.clock, [this] { tickAfterTimeout(); })
{
}

void TenderWait::startTimer(std::uint32_t interval)
{
    ladder.setInterval(interval);
}

void TenderWait::start(const std::string &theFile)
{
    file = theFile;
    app.values.StopWaiting = 0;
    waiting = true;
    display.fields.waitCountVisible = true;
    display.fields.waitCount = "0";
    display.fields.sharedCount = "0";
    startTick = app.clock.tick();
}

WaitEnd TenderWait::untilThere(const std::function<void(platform::Outcome looked)> &onPass)
{
    for (bool there = false;;) {
        const platform::Outcome looked = lookFor(app, file, there);
        if (there)
            return WaitEnd::Answered;
        if (app.ending())
            return WaitEnd::ProgramEnds;
        if (app.values.StopWaiting == kStopWaiting)
            return WaitEnd::Stopped;
        setCount(countSince(startTick, app.clock.tick()));
        onPass(looked);
        display.show();
        app.yield();
    }
}

platform::Outcome TenderWait::lookOnceMore(bool &there)
{
    if (!waiting)
        return platform::Outcome::Done;
    return platform::patiently(app.run, platform::Wait::Result,
                               [&] { return lookFor(app, file, there); });
}

void TenderWait::end()
{
    waiting = false;
    ladder.setInterval(0);
}

void TenderWait::countOn()
{
    timeout.setInterval(kTimeoutTimer);
    display.fields.sharedCount = "1";
}

void TenderWait::stopTimers()
{
    ladder.setInterval(0);
    timeout.setInterval(0);
}

void TenderWait::setCount(int count)
{
    const std::string text = std::to_string(count);
    if (display.fields.waitCount == text)
        return;
    display.fields.waitCount = text;
    if (reactToCount(count, display.fields))
        onOfflineCount();
}

void TenderWait::tick()
{
    if (waitTimerTick(wholeNumber(display.fields.waitCount), display.fields,
                      app.values.StopWaiting))
        ladder.setInterval(0);
    display.show();
}

void TenderWait::tickAfterTimeout()
{
    setCount(wholeNumber(display.fields.waitCount) + 1);
    if (wholeNumber(display.fields.waitCount) == 10 && display.fields.X1009)
        display.fields.status.clear();
    display.show();
}

} // namespace tender
