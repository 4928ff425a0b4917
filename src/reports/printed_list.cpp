#include "reports/printed_list.h"

#include "printing/printer_choice.h"
#include "records/card_files.h"

namespace reports {

using namespace records;

namespace {

constexpr int kRowsOnAPage = 50;
constexpr int kNarrowestPage = 150;                                         // mm
constexpr const char *kTabStops = "14,30,48,66,84,102,148,170,192,214,236"; // mm
constexpr int kRowSize = 7; // points; so that 50 rows and the marks fit a page across

std::string printedRow(const CardRecord &record)
{
    std::string line = receiptColumn(record);
    for (const CardField &field : {CCServer, CCTabAmt, CCApprovedAmt, CCTip})
        line.append("\t").append(record.text(field));
    line.append("\t").append(Format_Money(record.value(CCTabAmt) + record.value(CCTip)));
    for (const CardField &field : {CCAdjStatus, CApprovalCode, CCstatus, CCDate, CCTime, CCStation})
        line.append("\t").append(record.text(field));
    return line;
}

class PrintedList {
public:
    PrintedList(App &theApp, printing::Printer &thePrinter) : app(theApp), printer(thePrinter) {}

    void header()
    {
        printer.setBold(false);
        printer.setSize(28);
        printer.line(app.values.config.text(kBusinessName));
        printer.setSize(12);
        printer.line("Credit Card Transactions as of " + asOf);
        printer.tabs(kTabStops);
        printer.setSize(8);
        printer.setBold(true);
        std::string heads;
        for (const char *head : kColumnHeads)
            heads.append(heads.empty() ? "" : "\t").append(head);
        printer.line(heads);
        printer.setBold(false);
        printer.setSize(kRowSize);
    }

    void row(const CardRecord &record)
    {
        printer.line(printedRow(record));
        if (++onPage < kRowsOnAPage)
            return;
        printer.line("");
        printer.line(std::string(99, ' ') + "Page " + std::to_string(page++));
        printer.newPage();
        onPage = 0;
        header();
    }

    void totals(const TotalTexts &totals)
    {
        printer.line("");
        printer.line("Tab Total " + totals.tabs + "   Tip Total " + totals.tips +
                     "    Grand Total " + totals.grand);
        printer.line(std::string(95, ' ') + "Last Page " + std::to_string(page));
    }

private:
    App &app;
    printing::Printer &printer;
    std::string asOf = Format(app.clock.now(), "MMMM DD YYYY");
    int page = 1;
    int onPage = 0;
};

} // namespace

bool isRoll(platform::Printers &printers, const std::string &printerName)
{
    const int width = printers.paperWidth(printerName);
    return width > 0 && width < kNarrowestPage;
}

void printList(App &app, printing::Printer &printer, const ListRows &rows, const std::string &file,
               const TotalTexts &totals)
{
    printer.beginSlip("list");
    printer.setLandscape(true);
    PrintedList list(app, printer);
    list.header();
    if (app.files.exists(file)) {
        platform::SlotFile slots(app.files, file, kCardSlotLength);
        slots.open(platform::SlotUse::Read);
        const long count = slots.count();
        for (const ListRow &row : rows) {
            CardRecord record;
            if (row.slot >= 1 && row.slot <= count && done(slots.read(row.slot, record.data())))
                list.row(record);
        }
        list.totals(totals);
    }
    printer.closeJob();
    printer.setLandscape(false);
    printing::Set_Printer(app, printer);
}

} // namespace reports
