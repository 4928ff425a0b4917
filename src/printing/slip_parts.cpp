#include "printing/slip_parts.h"

#include "records/flag_files.h"

namespace printing {

using records::App;
using records::Currency;

SlipFont::SlipFont(const App &app)
    : family(app.values.config.text(records::kSlipFontFamily)),
      base(static_cast<double>(app.values.config.value(records::kSlipFontSize).tenThousandths()) /
           static_cast<double>(records::Money::kScale))
{
}

std::string fieldText(const App &app, const records::CardField &field)
{
    return app.values.CCdata.text(field);
}

std::string fieldAmount(const App &app, const records::CardField &field)
{
    return Currency(fieldText(app, field));
}

std::string hashedNumber(std::string_view number)
{
    return "#### #### #### " + records::Right(number, 4);
}

void useSlipFont(const App &app, Printer &printer)
{
    const SlipFont font(app);
    printer.setFamily(font.family);
    printer.setBold(false);
    printer.setItalic(false);
    printer.setSize(font.base);
}

void printBanner(Printer &printer, std::string_view picture, double sizeAfter, int blankLines)
{
    printer.picture(picture, sizeAfter);
    printer.blankLines(blankLines);
}

std::string saleLine(const App &app)
{
    return fieldText(app, records::CCDate) + "  " + fieldText(app, records::CCTime) + "  " +
           fieldText(app, records::CCReceipt) + " - " + fieldText(app, records::CCServer) + " " +
           records::Trim(app.values.EmployeeShortName) + " - " + fieldText(app, records::CCTable);
}

std::string cardText(const App &app, std::string_view hashed)
{
    return app.values.X1009 ? fieldText(app, records::HiddenNumb) : hashedNumber(hashed);
}

void printHeader(const App &app, Printer &printer, const std::string &sale, const std::string &card)
{
    const SlipFont font(app);
    const records::LumbrioConfig &config = app.values.config;
    useSlipFont(app, printer);
    printer.setBold(true);
    printer.line(config.text(records::kBusinessName));
    printer.setBold(false);
    printer.line(config.text(records::kAddressLine1));
    printer.line(config.text(records::kAddressLine2));
    printer.setSize(font.smallSize());
    printer.line(std::string(50, '_'));
    printer.line(sale);
    printer.line("Name: " + fieldText(app, records::CCName));
    printer.line("Card: " + card);
}

std::string transRecordText(const SlipContext &context)
{
    return "  TransRecord " + std::to_string(context.transRecord);
}

std::string authorizationLine(const App &app)
{
    return "AUTH - " + fieldText(app, records::CApprovalCode) + "  Terminal " +
           fieldText(app, records::CCStation);
}

std::string approvalLine(const App &app)
{
    const std::string trout = fieldText(app, records::CCTroutID);
    if (trout.empty())
        return authorizationLine(app);
    return "TROUT - " + trout + "  Terminal " + fieldText(app, records::CCStation);
}

std::string terminalLine(const App &app)
{
    return "Terminal / Station  " + fieldText(app, records::CCStation);
}

void printBoldLine(const App &app, Printer &printer, const std::string &text)
{
    printer.setBold(true);
    printer.line(text);
    printer.blankLines();
    printer.setBold(false);
    printer.setSize(SlipFont(app).largeSize());
}

TipTexts underscoredTip()
{
    return {"Gratuity      ___________________________",
            "Total          ___________________________"};
}

namespace {

void printGap(Printer &printer, const SlipFont &font)
{
    printer.setSize(font.smallSize());
    printer.blankLines();
    printer.setSize(font.largeSize());
}

} // namespace

void printAmounts(const App &app, Printer &printer, const TipTexts &tip, int indent)
{
    const SlipFont font(app);
    printer.line("Amount      " + fieldAmount(app, records::CCTabAmt));
    printGap(printer, font);
    if (app.values.PrintTipLine) {
        printer.line(tip.tip);
        printGap(printer, font);
        printer.line(tip.total);
    }
    printer.blankLines();
    printer.line("x_______________________________");
    printer.setSize(font.smallSize());
    printer.line("       Signature");
    printer.setSize(font.base);
    printer.setBold(true);
    // The field as it stands, padding included.
    printer.line(std::string(static_cast<std::size_t>(indent), ' ') +
                 app.values.CCdata.raw(records::CCName));
    printer.setBold(false);
}

void blankPairs(Printer &printer, int count)
{
    for (int i = 0; i < count; ++i)
        printer.line("  ");
}

bool hasBalance(const App &app)
{
    return app.values.CCdata.value(records::GCbalance) > records::Money();
}

bool cutsAtEnd(const App &app)
{
    return app.values.config.value(records::kReceiptAutocut) == records::Money::fromWhole(-1);
}

void closeOrCut(const App &app, Printer &printer)
{
    if (cutsAtEnd(app))
        CutSequence(printer);
    else
        printer.closeJob();
}

bool customerCopySuppressed(const App &app, const SlipContext &context)
{
    return context.noCustomerCopy || app.files.exists(records::noReceiptFlag(app.values)) ||
           records::startsWith(context.requestText, "DelPrePay");
}

bool merchantCopySuppressed(const SlipContext &context)
{
    // Kept: eight letters here, nine for the customer, and only here the text is trimmed.
    return records::startsWith(records::Trim(context.requestText), "DelPrePa");
}

} // namespace printing
