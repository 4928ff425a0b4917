#include "printing/slip.h"

#include "platform/files.h"
#include "printing/slip_parts.h"
#include "records/delimited.h"

namespace printing {

using records::App;
using records::Currency;

namespace {

TipTexts tipTexts(const SlipContext &context)
{
    if (!context.tipPreApproved)
        return underscoredTip();
    return {"Gratuity      " + Currency(context.preApprovedTip),
            "Total          " + Currency(context.totalWithTip)};
}

void cutBetweenCopies(const App &app, Printer &printer)
{
    if (app.files.exists(app.values.Maindir + "Data\\CCardCut.dat"))
        CutSequence(printer);
}

} // namespace

void Print_Merch(App &app, Printer &printer, const SlipContext &context)
{
    if (merchantCopySuppressed(context))
        return;
    const platform::ErrorsIgnored errorsIgnored(app.run);
    printer.beginSlip(kMerchantSlip);
    printBanner(printer, "Picture2", 12, 3);
    printHeader(app, printer, saleLine(app) + " - " + records::Trim(context.seconds),
                cardText(app, fieldText(app, records::HiddenNumb)) + transRecordText(context));
    printBoldLine(app, printer, approvalLine(app));
    printAmounts(app, printer, tipTexts(context), 8);
    printer.blankLines();
    printBanner(printer, "Picture2", 12, 1);
    if (hasBalance(app)) {
        blankPairs(printer, 3);
        print_balance(app, printer);
        printer.blankLines();
        blankPairs(printer, 12);
    } else {
        printer.blankLines();
    }
    cutBetweenCopies(app, printer);
    closeOrCut(app, printer);
}

void Print_Cust(App &app, Printer &printer, const SlipContext &context)
{
    const platform::ErrorsIgnored errorsIgnored(app.run);
    if (customerCopySuppressed(app, context)) {
        writeCreditApproval(app);
        return;
    }
    printer.beginSlip(kCustomerSlip);
    printBanner(printer, "Picture1", 12, 3);
    printHeader(app, printer, saleLine(app), cardText(app, fieldText(app, records::HiddenNumb)));
    printBoldLine(app, printer, terminalLine(app));
    printAmounts(app, printer, tipTexts(context), 7);
    printer.blankLines();
    printBanner(printer, "Picture1", 12, 1);
    if (hasBalance(app)) {
        blankPairs(printer, 3);
        print_balance(app, printer);
        blankPairs(printer, 12);
    }
    printer.blankLines();
    cutBetweenCopies(app, printer);
    if (app.values.NoCut2Flag == -1)
        return;
    closeOrCut(app, printer);
}

void print_balance(const App &app, Printer &printer)
{
    printer.setSize(16);
    printer.setBold(true);
    printer.line(fieldAmount(app, records::GCbalance));
    printBanner(printer, "Picture8", 12, 1);
    printer.setBold(false);
}

void printGiftBalancePage(const App &app, Printer &printer)
{
    printer.beginSlip("gift card's balance");
    printBanner(printer, "Picture1", 24, 2);
    print_balance(app, printer);
    printer.blankLines(15);
    printBanner(printer, "Picture1", 24, 3);
    printer.closeJob();
}

void CutSequence(Printer &printer)
{
    printer.cut();
    printer.closeJob();
}

void writeCreditApproval(const App &app)
{
    // Kept: the reference is written as in the record, scrambled after an approval.
    app.files.write(app.values.Maindir + "CreditApproval.dat",
                    records::quotedLine(hashedNumber(fieldText(app, records::CCNumb))) +
                        records::quotedLine(authorizationLine(app)));
}

void warmUp(const App &app, Printer &printer)
{
    const SlipFont font(app);
    platform::PrintFont likely = printer.font();
    if (!font.family.empty())
        likely.family = font.family;
    if (font.base > 0)
        likely.size = font.base;
    printer.warmUp(likely);
}

} // namespace printing
