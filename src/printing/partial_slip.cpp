// The slips of a partial approval: both copies and the attention slip for the server.
#include "platform/files.h"
#include "printing/slip_parts.h"

#include <iterator>

namespace printing {

using records::App;

namespace {

void printApprovedPart(const App &app, Printer &printer)
{
    const SlipFont font(app);
    printer.setSize(10);
    printer.setBold(true);
    printBanner(printer, "Picture5", 12, 2);
    printer.setBold(false);
    printer.setSize(font.largeSize());
    printer.line("    Amount      ");
    printer.setSize(28);
    printer.setBold(true);
    printer.line("        " + fieldAmount(app, records::CCApprovedAmt));
    printer.setSize(font.smallSize());
    printer.blankLines();
}

void printBalanceDue(const App &app, Printer &printer)
{
    printer.setSize(SlipFont(app).largeSize());
    printer.setBold(false);
    printer.setSize(16);
    printer.line("    Gratuity NOT Allowed");
    printer.setSize(8);
    printer.blankLines();
    printer.line("  We are unable to put any more funds thru on this card");
    printer.setSize(10);
    printer.line("  The original amount due was     " + fieldAmount(app, records::CCTabAmt));
    printer.setBold(true);
    printer.line("  There is still a Balance Due of " +
                 fieldAmount(app, records::CCaditionalFUNDS));
    printer.setSize(8);
    printer.setBold(false);
    printer.line("  (Please tip your server on the original amount due)");
}

void printSignature(const App &app, Printer &printer)
{
    printer.blankLines(3);
    printer.line("x_______________________________________________");
    printer.setSize(SlipFont(app).smallSize());
    printer.line("                              Signature");
    printer.blankLines();
}

// `gap` blank lines stand between the balance and the three above the signature.
void printCopy(App &app, Printer &printer, std::string_view banner, int gap)
{
    printBanner(printer, banner, 24, 3);
    printHeader(app, printer, saleLine(app), cardText(app, fieldText(app, records::HiddenNumb)));
    printBoldLine(app, printer, authorizationLine(app));
    // Kept: a slip of a partial approval never shows a balance of 0, and the record in memory keeps
    // the 5.
    if (app.values.CCdata.value(records::CCaditionalFUNDS).isZero())
        app.values.CCdata.set(records::CCaditionalFUNDS, "5");
    printApprovedPart(app, printer);
    printBalanceDue(app, printer);
    printer.blankLines(gap);
    printSignature(app, printer);
    printBanner(printer, banner, 24, 2);
    // Kept: after a cut the job stays open, so that all three slips become one job.
    if (cutsAtEnd(app))
        printer.cut();
    else
        printer.closeJob();
}

} // namespace

void PrintPartial_Merch(App &app, Printer &printer, const SlipContext &context)
{
    if (merchantCopySuppressed(context))
        return;
    const platform::ErrorsIgnored errorsIgnored(app.run);
    printer.beginSlip(kMerchantSlip);
    printCopy(app, printer, "Picture4", 0);
}

void PrintPartial_Cust(App &app, Printer &printer, const SlipContext &context)
{
    const platform::ErrorsIgnored errorsIgnored(app.run);
    if (customerCopySuppressed(app, context)) {
        writeCreditApproval(app);
        return;
    }
    printer.beginSlip(kCustomerSlip);
    printCopy(app, printer, "Picture3", 1);
}

void Att_Server(const App &app, Printer &printer)
{
    static constexpr const char *kNotice[] = {
        "Visa, Mastercard, Amx and Discover now require",
        "us to accept a partial payment on a Tab",
        "The card you used for this transaction has been",
        "approved for a partial payment. You will need to",
        "get the partial payment receipt signed and ask the",
        "customer how they would like to pay the balance.",
        "Once you know come back to the tender screen and click ",
        "Split Tender, Put in the parial amount and the ",
        "balance in the approiate box.",
    };
    printer.beginSlip("server's notice");
    useSlipFont(app, printer);
    for (const char *text : kNotice)
        printer.line(text);
    for (const records::CardField &field :
         {records::CCSaleAmt, records::CCApprovedAmt, records::CCaditionalFUNDS})
        printer.line(fieldAmount(app, field) + "  ");
    printer.closeJob();
}

} // namespace printing
