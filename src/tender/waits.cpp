#include "tender/tender.h"
#include "tender/wait_rules.h"

namespace tender {

using namespace records;

void Tender::startCounting()
{
    app.values.StopWaiting = 0;
    waiting = true;
    fields.Label7Visible = true;
    fields.Label7 = "0";
    fields.Label4 = "0";
    startTick = app.clock.tick();
}

int Tender::countNow() const
{
    return countSince(startTick, app.clock.tick());
}

void Tender::setLabel7(int count)
{
    const std::string text = std::to_string(count);
    if (fields.Label7 == text)
        return;
    fields.Label7 = text;
    if (Label7_Change(count, fields))
        Show_Offline_Panel();
}

void Tender::Timer2_Timer()
{
    if (waitTimerTick(wholeNumber(fields.Label7), fields, app.values.StopWaiting))
        Timer2.setInterval(0);
    show();
}

void Tender::Timer5_Timer()
{
    setLabel7(wholeNumber(fields.Label7) + 1);
    if (wholeNumber(fields.Label7) == 10 && fields.X1009)
        fields.Text3.clear();
    show();
}

void Tender::status(const std::string &text)
{
    fields.Text3 = text;
    show();
}

void Tender::statusPainted(const std::string &text)
{
    status(text);
    view.paintNow();
}

/// "CONFIG" can end the tender, so it goes with "Cancel"; but it withdraws no request.
void Tender::show()
{
    fields.SSCommand5.enabled =
        fields.SSCommand1.enabled && fields.SSCommand1.visible && !local.set();
    view.refresh(fields);
}

} // namespace tender
