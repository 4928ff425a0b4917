// Saves: of this record, and the repair that marks all records of the file.
#include "details/entry_record.h"
#include "details/entry_working.h"
#include "records/card_files.h"

namespace details {

using namespace records;

bool EntryDetails::exceedsBalance()
{
    const Money balance = Val(fields.Text1[22]);
    if (balance.isZero() || Val(fields.Text4) <= balance)
        return false;
    app.dialogs.message("YOU HAVE EXCEEDED THE CRD VALUE",
                        "Tip Exceeeds the balance of the card. This is either a gift card or debit "
                        "card and the maximum funds you can add to the card is " +
                            Currency(balance) + " Please revise the TIP and try again.");
    return true;
}

/// False when the program is ending.
bool EntryDetails::writeRecord()
{
    app.files.createIfMissing(fields.Label8);
    // Stepping through an empty file leads to slot 0: there is nothing to write.
    if (fields.Label1_1 > 0)
        rewriteRecord(app, fields.Label8, fields.Label1_1, record);
    return !app.ending();
}

void EntryDetails::reloadPending()
{
    // Kept: the pending list, also when the archive has opened this screen.
    if (callbacks.reloadPending)
        callbacks.reloadPending();
}

void EntryDetails::saveAndLeave()
{
    {
        const Working here(*this);
        if (fields.Text4.empty())
            fields.Text4 = "0";
        if (exceedsBalance())
            return show();
        Save_Fields(fields, record);
        encodePlainNumber(record);
        if (!writeRecord())
            return;
        reloadPending();
    }
    if (app.values.editMode == "KEEP")
        show();
    else
        unload();
}

void EntryDetails::SSCommand1_Click()
{
    if (!working)
        saveAndLeave();
}

// Kept: without the balance check, and the number stays plain on the disk until a later "Done",
// a deletion or the list's "Finish".
void EntryDetails::SSCommand10_Click()
{
    if (working)
        return;
    const Working here(*this);
    Save_Fields(fields, record);
    if (writeRecord())
        reloadPending();
    show();
}

// Kept: without a question, whatever a record held before, completed and empty ones included.
void EntryDetails::SSCommand16_Click()
{
    if (working)
        return;
    setStatus(kAdjusted);
    {
        const Working here(*this);
        setEveryStatus(app, fields.Label8, kAdjusted);
        if (app.ending())
            return;
        reloadPending();
    }
    unload();
}

} // namespace details
