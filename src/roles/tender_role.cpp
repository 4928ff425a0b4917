#include "roles/tender_role.h"

#include "printing/printer.h"
#include "records/app.h"
#include "tender/Xcharge1.h"

namespace roles {

namespace {

struct TenderRole {
    explicit TenderRole(platform::Services &services)
        : app(services), printer(services.printers), screen(app, printer)
    {
    }

    records::App app;
    printing::Printer printer;
    tender::Xcharge1 screen;
};

} // namespace

std::shared_ptr<void> openTender(Program &program)
{
    auto role = std::make_shared<TenderRole>(program.services());
    role->screen.openWhole();
    return role;
}

} // namespace roles
