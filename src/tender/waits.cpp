#include "tender/tender.h"
#include "tender/wait_rules.h"

namespace tender {

using namespace records;

void Tender::startCounting()
{
    app.values.StopWaiting = 0;
    waiting = true;
    fields.waitCountVisible = true;
    fields.waitCount = "0";
    fields.sharedCount = "0";
    startTick = app.clock.tick();
}

int Tender::countNow() const
{
    return countSince(startTick, app.clock.tick());
}

void Tender::setWaitCount(int count)
{
    const std::string text = std::to_string(count);
    if (fields.waitCount == text)
        return;
    fields.waitCount = text;
    if (reactToCount(count, fields))
        Show_Offline_Panel();
}

void Tender::tickOfWait()
{
    if (waitTimerTick(wholeNumber(fields.waitCount), fields, app.values.StopWaiting))
        waitTimer.setInterval(0);
    display.show();
}

void Tender::tickAfterTimeout()
{
    setWaitCount(wholeNumber(fields.waitCount) + 1);
    if (wholeNumber(fields.waitCount) == 10 && fields.X1009)
        fields.status.clear();
    display.show();
}

} // namespace tender
