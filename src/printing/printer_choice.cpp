#include "printing/printer_choice.h"

#include "records/trace.h"

namespace printing {

void Set_Printer(records::App &app, Printer &printer)
{
    if (!app.values.ReceiptPrinterName)
        return;
    const std::string name = records::Trim(*app.values.ReceiptPrinterName);
    printer.select(name, [&app, name](const std::string &instead) {
        records::traceProcess(
            app, {"  RECEIPT PRINTER NOT FOUND - " + name + " - printing on " + instead});
    });
}

void Set_PrinterVendor(Printer &printer)
{
    printer.selectVendor();
}

} // namespace printing
