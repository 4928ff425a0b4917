#include "tender/tender_slips.h"

#include "printing/printer_choice.h"
#include "records/trace.h"
#include "tender/request.h"

namespace tender {

using namespace records;

namespace {

/// Whether the slip template lies in a directory; support people read it in the trace.
std::string templatePosition(App &app, const std::string &directory)
{
    const bool there = app.files.exists(directory + "CCmerchant.VRD");
    return (there ? " CCmerchant.VRD is in " : " CCmerchant.VRD is not in ") + directory;
}

} // namespace

Gratuity gratuityOf(std::string_view amount, const Money &percent)
{
    const Money sale = Val(amount);
    const Money tip = Val(Format(percent * sale / Money::fromWhole(100), "######.##"));
    return {tip, tip + sale};
}

printing::SlipContext slipContext(const TenderFields &fields, long slot)
{
    printing::SlipContext context;
    context.requestText = fields.table;
    context.seconds = fields.waitCount;
    context.tipPreApproved = fields.gratuitySlip == "YES";
    context.preApprovedTip = fields.gratuity.tip;
    context.totalWithTip = fields.gratuity.total;
    context.transRecord = slot;
    context.noCustomerCopy = fields.noReceipt;
    return context;
}

void printSlips(App &app, printing::Printer &printer, Display &display,
                const printing::SlipContext &context)
{
    if (!isDeletedPrepayment(context.requestText))
        printing::Set_Printer(app, printer);
    display.statusPainted("Approved Printing Receipt");
    traceProcess(app, {templatePosition(app, app.values.Maindir),
                       templatePosition(app, app.values.Remotedir),
                       "  Printing Merchant " + context.seconds});
    printing::Print_Merch(app, printer, context);
    printing::Print_Cust(app, printer, context);
}

void printPartialSlips(App &app, printing::Printer &printer, Display &display,
                       const printing::SlipContext &context)
{
    printing::Set_Printer(app, printer);
    display.statusPainted("Approved Printing Receipt");
    traceProcess(app, {" this is a partial approval ", " not able to VRD "});
    printing::PrintPartial_Merch(app, printer, context);
    printing::PrintPartial_Cust(app, printer, context);
    printing::Att_Server(app, printer);
}

} // namespace tender
