#include "tender/manager_step.h"

#include "records/lookups.h"
#include "records/money.h"

namespace tender {

std::string ManagerStep::ask(const std::string &what)
{
    records::ProcessValues &values = app.values;
    records::Get_AsstMgr(app);
    values.managerResult.clear();
    values.managerRequest = "XchargeAPPROVAL";
    values.managerCheckMode = "100";
    isAsking = true;
    display.view.SetTopMostWindow(false);
    display.view.askManager(what, records::Currency(display.fields.amount));
    while (values.managerResult.empty() && !app.ending())
        app.yield();
    display.view.SetTopMostWindow(true);
    isAsking = false;
    values.managerCheckMode.clear();
    display.view.focus(TenderBox::FirstTrack);
    return app.ending() ? "NO" : values.managerResult;
}

} // namespace tender
