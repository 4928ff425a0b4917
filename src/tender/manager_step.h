// ManagerStep: asks a manager before something that a server may not decide.
#pragma once

#include "records/app.h"
#include "tender/display.h"

#include <string>

namespace tender {

class ManagerStep {
public:
    ManagerStep(records::App &theApp, Display &theDisplay) : app(theApp), display(theDisplay) {}

    /// Shows the manager's screen and waits for the answer in `managerResult`: a name, or "NO",
    /// also at the program's end. The list of managers is read again, because the shared
    /// directory was not known at the load. `managerRequest` stays set for the caller to clear.
    std::string ask(const std::string &what);
    /// Swipes and other commands that come meanwhile are ignored.
    bool asking() const { return isAsking; }

private:
    records::App &app;
    Display &display;
    bool isAsking = false;
};

} // namespace tender
