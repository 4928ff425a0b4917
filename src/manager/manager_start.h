// ManagerStart: the procedures of the manager's first screen, `TndrMgr`. Before every choice it
// copies the pending card file, so that no back-office work starts without a copy of the data.
#pragma once

#include "manager/manager_in_use.h"
#include "platform/clock.h"
#include "platform/view.h"
#include "records/app.h"

#include <functional>
#include <string>
#include <vector>

namespace manager {

struct ManagerStartFields {
    std::string version;         // Label5
    std::string status;          // of the clean-up
    bool choicesEnabled = false; // SSCommand3 "NEXT" after business hours, SSCommand4 "QUIT"

    bool operator==(const ManagerStartFields &) const = default;
};

/// The narrow view that the procedures have of their screen.
class ManagerStartView : public virtual platform::View {
public:
    virtual void refresh(const ManagerStartFields &fields) = 0;
};

/// Where the choices lead to. Choices that this version cannot serve yet are greyed out.
struct ManagerRoutes {
    /// Shows `XchargePend` and fills its list.
    std::function<void()> openList;
};

class ManagerStart {
public:
    ManagerStart(records::App &theApp, ManagerStartView &theView, ManagerRoutes theRoutes);

    /// Reads the configuration, makes the folders, begins the log and marks the files as in use.
    /// Errors are ignored.
    void Form_Load();
    void startAfterHours(); // "NEXT" after business hours
    void quit();            // "QUIT", and the window's cross

    const ManagerStartFields &state() const { return fields; }

private:
    void ensureFolders();
    void storeKept();
    void Clean_Logs();
    long deleteOld(const std::string &folder, const std::string &ending, int before);
    void backUp(const std::string &choice, const std::vector<std::string> &behind);
    void goToList();
    bool overrides();
    void tell(const std::string &status);
    void enableChoices(bool on);

    records::App &app;
    ManagerStartView &view;
    ManagerRoutes routes;
    ManagerStartFields fields;
    ManagerInUse inUse;
    platform::Timer routeTimer; // Timer1: 100 ms after the choice
};

} // namespace manager
