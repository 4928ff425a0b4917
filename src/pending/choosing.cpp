// Choosing an entry of the list by touch, by keys, or by its receipt number.
#include "pending/pending.h"

namespace pending {

void Pending::showReceipt()
{
    fields.receiptHint = receipt.hint();
    show();
}

void Pending::typeReceipt(const std::string &text)
{
    receipt.type(text);
    showReceipt();
}

void Pending::backspaceReceipt()
{
    receipt.backspace();
    showReceipt();
}

void Pending::dropReceipt()
{
    receipt.clear();
    showReceipt();
}

void Pending::enterReceipt(long current)
{
    if (working) // the list may be incomplete
        return;
    const TypedReceipt::Entered entered = receipt.enter(shownRows, current);
    if (entered.row >= 0 && entered.row != current)
        view.selectRow(entered.row);
    if (entered.opens)
        openRow(entered.row);
    else
        showReceipt();
}

void Pending::openRow(long index)
{
    if (working || index < 0 || index >= static_cast<long>(shownRows.size()))
        return;
    receipt.clear();
    fields.receiptHint.clear();
    fields.clickedRow = index;
    view.showEntry(fields.file, shownRows[static_cast<std::size_t>(index)].slot);
    enable(Command::TotalsByType, false);
    show();
}

} // namespace pending
