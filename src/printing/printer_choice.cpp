#include "printing/printer_choice.h"

namespace printing {

void Set_Printer(const records::App &app, Printer &printer)
{
    printer.select(records::Trim(app.values.ReceiptPrinterName));
}

void Set_PrinterVendor(Printer &printer)
{
    printer.selectVendor();
}

} // namespace printing
