// Saving: this record, and the repair that marks all records of the file.
#include "details/entry_record.h"
#include "details/entry_working.h"
#include "records/card_files.h"
#include "records/status_words.h"
#include "records/typed_amount.h"

namespace details {

using namespace records;

namespace {

constexpr const char *kNothingSaved = " is not an amount. Nothing has been saved. ";

} // namespace

/// Commas become the point of the card files. False, with a message, where a box holds no amount.
bool EntryDetails::takeAmounts()
{
    for (const auto &[box, name] : kAmountBoxes) {
        std::string &text = fields.boxes[box];
        if (fields.wrong[box] || (box == Box::Tip && fields.tipWrong)) {
            app.dialogs.message("NOT AN AMOUNT",
                                std::string("The ") + name + kNothingSaved + kAmountRule + ".");
            return false;
        }
        if (text != settled[box])
            text = typedAmount(text).value_or(text);
    }
    return true;
}

bool EntryDetails::exceedsBalance()
{
    const Money balance = Val(fields.boxes[Box::Balance]);
    if (balance.isZero() || tip() <= balance)
        return false;
    app.dialogs.message("YOU HAVE EXCEEDED THE CRD VALUE",
                        "Tip Exceeeds the balance of the card. This is either a gift card or debit "
                        "card and the maximum funds you can add to the card is " +
                            Currency(balance) + " Please revise the TIP and try again.");
    return true;
}

/// For a slot that holds another record by now: that one must not be overwritten or removed.
void EntryDetails::tellOtherRecord()
{
    app.dialogs.message("THE ENTRY HAS CHANGED",
                        "This entry was changed or moved in its file since it was opened here. The "
                        "file has been left as it is. Please close this window and open the entry "
                        "from the list again.");
}

/// False when nothing is saved: the slot holds another record by now, or the program is ending.
bool EntryDetails::write(bool scrambled)
{
    CardRecord next = record;
    Save_Fields(fields, next);
    if (scrambled)
        encodePlainNumber(next);
    app.files.createIfMissing(fields.file);
    // In an empty file the arrows lead to slot 0, where nothing can be written.
    const bool written =
        fields.slot < 1 || replaceRecord(app, fields.file, fields.slot, stored, next);
    if (app.ending())
        return false;
    if (!written) {
        tellOtherRecord();
        return false;
    }
    stored = record = next;
    settled = fields.boxes;
    return true;
}

void EntryDetails::reloadPending()
{
    // Kept: the pending list is reloaded even when the archive has opened this screen.
    if (callbacks.reloadPending)
        callbacks.reloadPending();
}

/// False, and the screen stays, when nothing is saved.
bool EntryDetails::saveThenClose()
{
    bool saved = false;
    {
        const Working here(*this);
        if (fields.tip.empty())
            fields.tip = "0";
        saved = takeAmounts() && !exceedsBalance() && write(true);
        if (saved)
            reloadPending();
    }
    if (!saved || app.values.editMode == "KEEP")
        show();
    else
        unload();
    return saved;
}

void EntryDetails::saveAndClose()
{
    if (mayChange())
        saveThenClose();
    else if (!busy())
        unload();
}

// Kept: no balance check, and the number is plain on the disk until a later "Done", a deletion or
// the list's "Finish".
void EntryDetails::save()
{
    if (!mayChange())
        return;
    const Working here(*this);
    if (takeAmounts() && write(false))
        reloadPending();
    show();
}

// Kept: no question is asked, and all records are marked, completed and empty ones too.
void EntryDetails::forceAllAdjusted()
{
    if (!mayChange())
        return;
    setStatus(kAdjusted);
    {
        const Working here(*this);
        setEveryStatus(app, fields.file, kAdjusted);
        if (app.ending())
            return;
        reloadPending();
    }
    unload();
}

} // namespace details
