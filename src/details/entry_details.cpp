#include "details/entry_details.h"

#include "details/entry_record.h"
#include "details/entry_working.h"
#include "details/hidden_card_data.h"
#include "records/card_files.h"
#include "records/exchange_file.h"
#include "records/typed_amount.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace details {

namespace {

bool takesAmount(std::size_t box)
{
    return std::any_of(kAmountBoxes.begin(), kAmountBoxes.end(),
                       [box](const auto &amount) { return amount.first == box; });
}

/// What was put into a box is cleaned; what the file held around it stays as it stands.
std::string plainlyTyped(std::string_view before, std::string_view now)
{
    const auto [had, from] = std::mismatch(before.begin(), before.end(), now.begin(), now.end());
    const auto behind =
        std::mismatch(std::make_reverse_iterator(before.end()), std::make_reverse_iterator(had),
                      std::make_reverse_iterator(now.end()), std::make_reverse_iterator(from))
            .second.base();
    return std::string(now.begin(), from)
        .append(records::withoutControls(std::string(from, behind)))
        .append(behind, now.end());
}

} // namespace

EntryDetails::EntryDetails(records::App &theApp, printing::Printer &thePrinter, EntryView &theView,
                           EntryCallbacks theCallbacks)
    : app(theApp), printer(thePrinter), view(theView), callbacks(std::move(theCallbacks)),
      Timer1(app.clock, [this] { Timer1_Timer(); })
{
}

void EntryDetails::open(const std::string &file, long slot, const std::string &source)
{
    if (working)
        return;
    if (!loaded)
        load();
    fields.Label8 = file;
    fields.Label10 = source;
    // Timer1 brings it, once a load: the screen of a second entry does without.
    if (source == "PEND")
        fields.SSCommand12Visible = false;
    setSlot(slot);
    Fill_data();
}

bool EntryDetails::closeForRewrite()
{
    if (working)
        return false;
    const bool mayGo =
        !loaded || (fields.Text1 == settled && !fields.Text4Wrong) ||
        app.dialogs.message("ENTRY NOT SAVED",
                            "The entry that is open has changes that are not saved. They are lost "
                            "when you go on.",
                            platform::Buttons::OkCancel) == platform::Answer::Ok;
    if (mayGo)
        unload();
    return mayGo;
}

bool EntryDetails::busy() const
{
    return !loaded || working || (callbacks.listWorks && callbacks.listWorks());
}

/// Asked by every command that writes.
bool EntryDetails::mayChange() const
{
    return !busy() && !app.values.lookOnly;
}

/// Asked by all that changes a box.
bool EntryDetails::mayType() const
{
    return !working && !app.values.lookOnly;
}

void EntryDetails::load()
{
    loaded = true;
    fields.Label9 = records::deletedFile(app.values, app.clock.now());
    Timer1.setInterval(500);
}

void EntryDetails::unload()
{
    if (!std::exchange(loaded, false))
        return;
    Timer1.setInterval(0);
    // What a password has revealed is hidden again.
    fields = {};
    record = {};
    stored = {};
    settled = {};
    view.unload();
    if (callbacks.closed)
        callbacks.closed();
}

void EntryDetails::show()
{
    if (loaded)
        view.refresh(fields);
}

void EntryDetails::Timer1_Timer()
{
    Timer1.setInterval(0);
    fields.SSCommand12Visible = fields.Label10 != "DELE";
    // Kept: an entry of any source can be moved to the pending list, also one that is there.
    fields.SSCommand13Visible = true;
    show();
}

void EntryDetails::setSlot(long slot)
{
    fields.Label1_1 = slot;
}

void EntryDetails::setStatus(std::string_view status)
{
    if (mayType())
        fields.Text1[19] = status;
    show();
}

void EntryDetails::Fill_data()
{
    record = {};
    stored = {};
    readSlot();
    if (app.ending())
        return;
    stored = record;
    settleRecord(record);
    fields.Label4_3 = "of " + std::to_string(count);
    fillBoxes(record, fields);
    if (app.values.lookOnly) {
        fields.Text4Locked = true;
        fields.SSPanel2Visible = false;
    }
    settled = fields.Text1;
    show();
}

void EntryDetails::readSlot()
{
    count = 0;
    if (!records::makeIfMissing(app, fields.Label8))
        return;
    platform::SlotFile slots(app.files, fields.Label8, records::kCardSlotLength);
    slots.open(platform::SlotUse::Read);
    slots.lock();
    count = slots.count();
    records::traceTail(app, slots);
    slots.read(fields.Label1_1, record.data());
}

void EntryDetails::Text1_Change(std::size_t index, const std::string &text)
{
    if (mayType() && index < fields.Text1.size()) {
        fields.Text1[index] = plainlyTyped(fields.Text1[index], text);
        // What the file holds may be no amount, and is not refused.
        fields.Text1Wrong[index] =
            takesAmount(index) && text != settled[index] && !records::typedAmount(text);
    }
    show(); // a box holds what its field does
}

void EntryDetails::SSCommand3_Click()
{
    if (!busy())
        unload();
}

void EntryDetails::SSCommand9_Click(std::size_t index)
{
    if (busy())
        return;
    long slot = fields.Label1_1 + (index == 1 ? 1 : -1);
    fields.SSCommand9Enabled = {true, true};
    if (slot < 2) {
        slot = 1;
        fields.SSCommand9Enabled[0] = false;
    }
    if (slot >= count) {
        slot = count;
        fields.SSCommand9Enabled[1] = false;
    }
    app.system.playSound(app.values.Maindir + "whoosh.wav");
    setSlot(slot);
    Fill_data();
}

void EntryDetails::SSCommand15_Click()
{
    if (mayChange())
        app.dialogs.message("VOID", "This version cannot void yet. Nothing has been changed.");
}

void EntryDetails::Command1_Click()
{
    if (busy() || !mayViewTrackLine(app.dialogs))
        return;
    fields.trackLineRevealed = true;
    show();
}

void EntryDetails::Command2_Click()
{
    if (busy() || !mayViewNumber(app.dialogs))
        return;
    fields.numberRevealed = true;
    show();
}

} // namespace details
