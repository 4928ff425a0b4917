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
        // At once: no handler runs any more, and later their printer would be gone.
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

    /// One at a time; one that is still open is closed, unless the manager keeps what he typed.
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
