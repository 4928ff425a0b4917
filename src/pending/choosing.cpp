// Choosing an entry of the list: by a finger, by keys, or by its receipt number.
#include "pending/pending.h"

namespace pending {

void Pending::showReceipt()
{
    fields.receiptHint = receipt.hint();
    show();
}

void Pending::MList1_Type(const std::string &text)
{
    receipt.type(text);
    showReceipt();
}

void Pending::MList1_Backspace()
{
    receipt.backspace();
    showReceipt();
}

void Pending::MList1_Leave()
{
    receipt.clear();
    showReceipt();
}

void Pending::MList1_Enter(long current)
{
    if (working) // the rows are not all there
        return;
    const TypedReceipt::Entered entered = receipt.enter(MList1, current);
    if (entered.row >= 0 && entered.row != current)
        view.selectRow(entered.row);
    if (entered.opens)
        MList1_Click(entered.row);
    else
        showReceipt();
}

void Pending::MList1_Click(long index)
{
    if (working || index < 0 || index >= static_cast<long>(MList1.size()))
        return;
    receipt.clear();
    fields.receiptHint.clear();
    fields.Label8 = index;
    view.showEntry(fields.Label6, MList1[static_cast<std::size_t>(index)].slot);
    enable(12, false);
    show();
}

} // namespace pending
