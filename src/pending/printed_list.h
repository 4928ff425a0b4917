// The printed list: the manager's list on paper, 50 rows a page, across.
#pragma once

#include "pending/pending_fields.h"
#include "pending/pending_list.h"
#include "printing/printer.h"
#include "records/app.h"

namespace pending {

/// Paper on which the rows would come out in letters of a millimetre.
bool isRoll(platform::Printers &printers, const std::string &printerName);

/// Prints the records of `rows`, in that order, on the selected printer; then the receipt printer
/// is selected. Each record is read anew from the file (`file`), and a slot that is no longer
/// there is passed over. A missing file leaves the headings alone.
/// Kept: the lines have the tab as it stands in the file, not the approved amount; the totals are
/// those of the screen.
void printList(records::App &app, printing::Printer &printer, const ListRows &rows,
               const PendingFields &fields);

} // namespace pending
