// Which printer a slip goes to: the receipt printer of the configuration, or the full-page printer
// of the template slips. The flag they set is Printer::vendorPrinterPresent().
#pragma once

#include "printing/printer.h"
#include "records/app.h"

namespace printing {

/// Selects the printer of `ReceiptPrinterName`, trimmed: the last one that begins with it, or else
/// the default printer, which is reported in "CCLastProcess.dat". Does nothing before the
/// configuration was read, because an empty name would fit the last printer of the list. Takes no
/// time: the printers are not looked up before the result is needed.
void Set_Printer(records::App &app, Printer &printer);

/// Selects the last printer that begins with "VENDOR".
void Set_PrinterVendor(Printer &printer);

} // namespace printing
