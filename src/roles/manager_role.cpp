#include "roles/manager_role.h"

#include "details/XchargeEntryDetals.h"
#include "manager/TndrMgr.h"
#include "pending/XchargePend.h"
#include "printing/printer.h"
#include "records/app.h"

#include <memory>
#include <utility>

namespace roles {

namespace {

using platform::Screen;

class ManagerRole {
public:
    explicit ManagerRole(platform::Services &services)
        : app(services), printer(services.printers), start(app, {[this] { openList(); }})
    {
        start.openWhole();
    }
    ~ManagerRole()
    {
        // Now, because no handler runs any more and their printer is destroyed before they would
        // be.
        delete entry.release();
        delete list.release();
    }
    ManagerRole(const ManagerRole &) = delete;
    ManagerRole &operator=(const ManagerRole &) = delete;

private:
    void openList()
    {
        list.reset(new pending::XchargePend(
            app, printer,
            {[this](const std::string &file, long slot) { openEntry(file, slot); },
             [this] { return !entry || entry->closeForRewrite(); }}));
        list->openWhole();
        list->fillList();
        start.hide();
    }

    /// Only one is open at a time; an open one is closed first, unless the manager keeps the typed
    /// text.
    void openEntry(const std::string &file, long slot)
    {
        if (entry && !entry->closeForRewrite())
            return;
        if (!entry || entry->unloaded())
            entry.reset(new details::XchargeEntryDetals(app, printer, list->entryCallbacks()));
        entry->open(file, slot, "PEND");
    }

    records::App app;
    printing::Printer printer;
    manager::TndrMgr start;
    std::unique_ptr<pending::XchargePend, Screen::Later> list;
    std::unique_ptr<details::XchargeEntryDetals, Screen::Later> entry;
};

} // namespace

std::shared_ptr<void> openManager(Program &program)
{
    if (!program.hasInstallation())
        return {};
    return std::make_shared<ManagerRole>(program.services());
}

} // namespace roles
