// Tips: typed, quick, forced, cleared and taken back.
#include "details/entry_details.h"
#include "details/entry_record.h"
#include "details/quick_tips.h"
#include "records/status_words.h"
#include "records/typed_amount.h"

#include <utility>

namespace details {

using namespace records;

Money EntryDetails::tab() const
{
    return record.value(CCTabAmt);
}

void EntryDetails::typeTip(const std::string &text)
{
    if (!mayType() || fields.tipLocked)
        return show(); // the box gets the old tip back
    if (typedAmount(text))
        setTip(text);
    else
        setWrongTip(text);
}

Money EntryDetails::tip() const
{
    return Val(typedAmount(fields.tip).value_or(fields.tip));
}

/// Clears the tip and total of the last right text: they would look like those of this one.
void EntryDetails::setWrongTip(const std::string &text)
{
    fields.tip = text;
    fields.tipWrong = true;
    for (std::string *of : {&fields.total, &fields.boxes[Box::Tip], &fields.boxes[Box::NewTotal]})
        of->clear();
    record.set(CCAdjAmt, stored.raw(CCAdjAmt));
    show();
}

// Any change makes the record adjusted, even one to nothing or on a declined record.
void EntryDetails::setTip(const std::string &text)
{
    if (text == fields.tip && !fields.tipWrong)
        return;
    fields.tip = text;
    fields.tipWrong = fields.wrong[Box::Tip] = false;
    const Money total = tab() + tip();
    fields.total = Currency(total);
    fields.boxes[Box::Tip] = plainText(tip());
    fields.boxes[Box::NewTotal] = totalText(total);
    fields.boxes[Box::TipStatus] = kAdjusted;
    // Kept: the first character goes with the sign, so a total below zero leaves "$1.50)".
    record.set(CCAdjAmt, Currency(total).substr(1));
    show();
}

void EntryDetails::showTabAlone()
{
    fields.total = Currency(tab());
    fields.boxes[Box::Tip] = "0";
    fields.wrong[Box::Tip] = false;
    fields.boxes[Box::NewTotal] = totalText(tab());
}

void EntryDetails::forceNoTip()
{
    if (mayChange())
        saveWithoutTip();
}

// Kept: any other status than "Adjusted - Pending" counts as one without a tip, "Completed" and a
// void too: the tip is removed, and the record waits for the bank again.
bool EntryDetails::saveWithoutTip()
{
    const bool stays =
        app.values.editMode == "KEEP" && Trim(fields.boxes[Box::TipStatus]) == kAdjusted;
    if (!stays) {
        setTip("0");
        showTabAlone();
        fields.boxes[Box::TipStatus] = kAdjusted;
    }
    return saveThenClose();
}

// Kept: the tip stays in its field, so a balance that it exceeds refuses this save too.
void EntryDetails::undoTip()
{
    if (!mayChange())
        return;
    if (std::exchange(fields.tipWrong, false))
        fields.tip = "0"; // also a text that is not an amount is taken back
    showTabAlone();
    fields.boxes[Box::TipStatus] = kNotAdjusted;
    saveThenClose();
}

void EntryDetails::takeQuickTip(std::size_t index)
{
    if (mayType() && index < fields.quickTips.size())
        setTip(fields.quickTips[index]);
}

void EntryDetails::forceAllNoTip()
{
    if (!mayChange() || !saveWithoutTip())
        return;
    if (callbacks.forceAllNoTip)
        callbacks.forceAllNoTip();
    unload();
}

void EntryDetails::forceAdjusted()
{
    setStatus(kAdjusted);
}

void EntryDetails::clearTip()
{
    if (!mayType())
        return;
    setTip("");
    view.focusTip();
}

void EntryDetails::offerQuickTips()
{
    if (working)
        return;
    fields.quickTips = quickTips(tab());
    show();
}

} // namespace details
