// Saves: of this record, and the repair that marks all records of the file.
#include "details/entry_record.h"
#include "details/entry_working.h"
#include "records/card_files.h"
#include "records/typed_amount.h"

namespace details {

using namespace records;

namespace {

constexpr std::size_t kTipBox = 12;
constexpr const char *kNothingSaved = " is not an amount. Nothing has been saved. ";

} // namespace

/// Commas become the point of the card files. False, and said, where a box holds no amount.
bool EntryDetails::takeAmounts()
{
    for (const auto &[box, name] : kAmountBoxes) {
        std::string &text = fields.Text1[box];
        if (fields.Text1Wrong[box] || (box == kTipBox && fields.Text4Wrong)) {
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
    const Money balance = Val(fields.Text1[22]);
    if (balance.isZero() || tip() <= balance)
        return false;
    app.dialogs.message("YOU HAVE EXCEEDED THE CRD VALUE",
                        "Tip Exceeeds the balance of the card. This is either a gift card or debit "
                        "card and the maximum funds you can add to the card is " +
                            Currency(balance) + " Please revise the TIP and try again.");
    return true;
}

/// Nobody's record shall be written over or taken out in place of the one shown.
void EntryDetails::tellOtherRecord()
{
    app.dialogs.message("THE ENTRY HAS CHANGED",
                        "This entry was changed or moved in its file since it was opened here. The "
                        "file has been left as it is. Please close this window and open the entry "
                        "from the list again.");
}

/// False when nothing is saved: the slot holds another record by now, or the program is ending.
bool EntryDetails::save(bool scrambled)
{
    CardRecord next = record;
    Save_Fields(fields, next);
    if (scrambled)
        encodePlainNumber(next);
    app.files.createIfMissing(fields.Label8);
    // Stepping through an empty file leads to slot 0: there is nothing to write.
    const bool written =
        fields.Label1_1 < 1 || replaceRecord(app, fields.Label8, fields.Label1_1, stored, next);
    if (app.ending())
        return false;
    if (!written) {
        tellOtherRecord();
        return false;
    }
    stored = record = next;
    settled = fields.Text1;
    return true;
}

void EntryDetails::reloadPending()
{
    // Kept: the pending list, also when the archive has opened this screen.
    if (callbacks.reloadPending)
        callbacks.reloadPending();
}

/// False, and the screen stays, when nothing is saved.
bool EntryDetails::saveAndLeave()
{
    bool saved = false;
    {
        const Working here(*this);
        if (fields.Text4.empty())
            fields.Text4 = "0";
        saved = takeAmounts() && !exceedsBalance() && save(true);
        if (saved)
            reloadPending();
    }
    if (!saved || app.values.editMode == "KEEP")
        show();
    else
        unload();
    return saved;
}

void EntryDetails::SSCommand1_Click()
{
    if (mayChange())
        saveAndLeave();
    else if (!busy())
        unload();
}

// Kept: without the balance check, and the number stays plain on the disk until a later "Done",
// a deletion or the list's "Finish".
void EntryDetails::SSCommand10_Click()
{
    if (!mayChange())
        return;
    const Working here(*this);
    if (takeAmounts() && save(false))
        reloadPending();
    show();
}

// Kept: without a question, whatever a record held before, completed and empty ones included.
void EntryDetails::SSCommand16_Click()
{
    if (!mayChange())
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
