// Tips: typed, quick, forced, cleared and taken back.
#include "details/entry_details.h"
#include "details/entry_record.h"
#include "details/quick_tips.h"
#include "records/typed_amount.h"

#include <utility>

namespace details {

using namespace records;

Money EntryDetails::tab() const
{
    return record.value(CCTabAmt);
}

void EntryDetails::Text4_Change(const std::string &text)
{
    if (!mayType() || fields.Text4Locked)
        return show(); // the box holds the old tip again
    if (typedAmount(text))
        setTip(text);
    else
        setWrongTip(text);
}

Money EntryDetails::tip() const
{
    return Val(typedAmount(fields.Text4).value_or(fields.Text4));
}

/// The tip and the total of what was right before it are gone: they would pass for this one's.
void EntryDetails::setWrongTip(const std::string &text)
{
    fields.Text4 = text;
    fields.Text4Wrong = true;
    for (std::string *of : {&fields.Label3_1, &fields.Text1[12], &fields.Text1[20]})
        of->clear();
    record.set(CCAdjAmt, stored.raw(CCAdjAmt));
    show();
}

// Any change makes the record adjusted, also one to nothing and on a declined record.
void EntryDetails::setTip(const std::string &text)
{
    if (text == fields.Text4 && !fields.Text4Wrong)
        return;
    fields.Text4 = text;
    fields.Text4Wrong = fields.Text1Wrong[12] = false;
    const Money total = tab() + tip();
    fields.Label3_1 = Currency(total);
    fields.Text1[12] = plainText(tip());
    fields.Text1[20] = totalText(total);
    fields.Text1[19] = kAdjusted;
    // Kept: the sign goes as the first character, so a total below zero leaves "$1.50)".
    record.set(CCAdjAmt, Currency(total).substr(1));
    show();
}

void EntryDetails::showTabAlone()
{
    fields.Label3_1 = Currency(tab());
    fields.Text1[12] = "0";
    fields.Text1Wrong[12] = false;
    fields.Text1[20] = totalText(tab());
}

void EntryDetails::SSCommand2_Click()
{
    if (mayChange())
        forceNoTip();
}

// Kept: any other status than "Adjusted - Pending" is taken for one without a tip, "Completed" and
// a void too: the tip goes, and the record waits for the bank again.
bool EntryDetails::forceNoTip()
{
    const bool stays = app.values.editMode == "KEEP" && Trim(fields.Text1[19]) == kAdjusted;
    if (!stays) {
        setTip("0");
        showTabAlone();
        fields.Text1[19] = kAdjusted;
    }
    return saveAndLeave();
}

// Kept: Text4 keeps the tip, so a balance that it exceeds refuses this save too.
void EntryDetails::SSCommand4_Click()
{
    if (!mayChange())
        return;
    if (std::exchange(fields.Text4Wrong, false))
        fields.Text4 = "0"; // taken back, whatever it was to be
    showTabAlone();
    fields.Text1[19] = kNotAdjusted;
    saveAndLeave();
}

void EntryDetails::SSCommand6_Click(std::size_t index)
{
    if (mayType() && index < fields.SSCommand6.size())
        setTip(fields.SSCommand6[index]);
}

void EntryDetails::SSCommand11_Click()
{
    if (!mayChange() || !forceNoTip())
        return;
    if (callbacks.forceAllNoTip)
        callbacks.forceAllNoTip();
    unload();
}

void EntryDetails::SSCommand14_Click()
{
    setStatus(kAdjusted);
}

void EntryDetails::SSCommand17_Click()
{
    if (!mayType())
        return;
    setTip("");
    view.focusTip();
}

void EntryDetails::Label3_Click()
{
    if (working)
        return;
    fields.SSCommand6 = quickTips(tab());
    show();
}

} // namespace details
