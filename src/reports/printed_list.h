// The printed list: a list of card records on paper, 50 rows a page, across.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "reports/card_list.h"

namespace reports {

/// True for a receipt roll: its paper is so narrow that a row could not be read.
bool isRoll(platform::Printers &printers, const std::string &printerName);

/// Prints the records of `rows`, in that order, on the selected printer; then the receipt printer
/// is selected. Each record is read again from `file`, and a slot that is no longer there is
/// skipped. A missing file leaves only the headings.
/// Kept: the lines have the tab as it stands in the file, not the approved amount; `totals`
/// are those of the screen.
void printList(records::App &app, printing::Printer &printer, const ListRows &rows,
               const std::string &file, const TotalTexts &totals);

} // namespace reports
