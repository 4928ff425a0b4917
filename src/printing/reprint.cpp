// Slips printed later from a stored record: reprints of both copies, and the void slip.
#include "printing/slip_parts.h"

namespace printing {

using records::App;
using records::Money;

namespace {

std::string reprintedCard(const App &app)
{
    return cardText(app, fieldText(app, records::CCNumb));
}

void printReprintEnd(const App &app, Printer &printer, const SlipContext &context,
                     std::string_view banner)
{
    printer.blankLines();
    if (context.reprint) {
        printer.setSize(18);
        printer.setBold(true);
        printer.line("  REPRINT    REPRINT");
        printer.setBold(false);
    }
    printBanner(printer, banner, 12, 1);
    // Kept: any balance except 0, even a negative one; a first print wants a positive one.
    if (context.giftMarker && !app.values.CCdata.value(records::GCbalance).isZero()) {
        printer.setSize(14);
        printer.setBold(true);
        print_balance(app, printer);
        printer.blankLines(15);
        printer.setBold(false);
        printer.setSize(SlipFont(app).smallSize());
    }
    printer.blankLines(2);
    closeOrCut(app, printer);
}

Money amountOf(const App &app, const records::CardField &field)
{
    Money amount;
    const std::string text = fieldText(app, field);
    return records::readNumber(text, amount) ? amount : records::Val(text);
}

Money voidedAmount(const App &app)
{
    for (const records::CardField &field :
         {records::CCTabAmt, records::CCApprovedAmt, records::CCSaleAmt, records::CCAdjAmt}) {
        const Money amount = amountOf(app, field);
        if (!amount.isZero())
            return amount;
    }
    return {};
}

std::string voidedCard(const App &app)
{
    const std::string hidden = fieldText(app, records::HiddenNumb);
    return hidden.empty() ? reprintedCard(app) : hidden;
}

void printVoidedCopy(const App &app, Printer &printer, std::string_view banner,
                     const std::string &card)
{
    const SlipFont font(app);
    printBanner(printer, banner, 12, 3);
    printHeader(app, printer, saleLine(app), card);
    printBoldLine(app, printer, approvalLine(app));
    printer.line("Amount      " + records::Currency(voidedAmount(app)));
    printer.setSize(font.smallSize());
    printer.blankLines();
    printer.setSize(font.base > 0 ? font.largeSize() + 6 : 0);
    printer.line("   TRANSACTION");
    printer.line("     ----VOIDED----");
    printer.blankLines();
    printer.line("x_______________________________");
    printer.line("       Signature for " + app.values.config.text(records::kBusinessName));
    printer.blankLines();
    printBanner(printer, banner, 12, 2);
    closeOrCut(app, printer);
}

} // namespace

void Reprint_Merch(const App &app, Printer &printer, const SlipContext &context)
{
    printer.beginSlip(kMerchantSlip);
    printBanner(printer, "Picture2", 12, 3);
    printHeader(app, printer, saleLine(app), reprintedCard(app) + transRecordText(context));
    printBoldLine(app, printer, approvalLine(app));
    printAmounts(app, printer, underscoredTip(), 8);
    printReprintEnd(app, printer, context, "Picture2");
}

void Reprint_Cust(const App &app, Printer &printer, const SlipContext &context)
{
    printer.beginSlip(kCustomerSlip);
    printBanner(printer, "Picture1", 12, 3);
    printHeader(app, printer, saleLine(app), reprintedCard(app));
    printBoldLine(app, printer, terminalLine(app));
    printAmounts(app, printer, underscoredTip(), 7);
    printReprintEnd(app, printer, context, "Picture1");
}

void Print_Cust2(const App &app, Printer &printer, const SlipContext &context)
{
    printer.beginSlip("customer's void slip");
    printVoidedCopy(app, printer, "Picture1", voidedCard(app));
    printer.beginSlip("merchant's void slip");
    printVoidedCopy(app, printer, "Picture2", voidedCard(app) + transRecordText(context));
    printer.closeJob();
}

} // namespace printing
