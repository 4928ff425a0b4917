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

bool takesAmount(Box box)
{
    return std::any_of(kAmountBoxes.begin(), kAmountBoxes.end(),
                       [box](const auto &amount) { return amount.first == box; });
}

/// Removes control characters from what was typed, and only from that: the rest is the file's.
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
      lateCommands(app.clock, [this] { showLateCommands(); })
{
}

void EntryDetails::open(const std::string &file, long slot, const std::string &source)
{
    if (working)
        return;
    if (!loaded)
        load();
    fields.file = file;
    fields.openedFrom = source;
    // It comes half a second after the load; a second entry on the same screen does without it.
    if (source == "PEND")
        fields.deleteAndPrintVisible = false;
    setSlot(slot);
    Fill_data();
}

bool EntryDetails::closeForRewrite()
{
    if (working)
        return false;
    const bool mayGo =
        !loaded || (fields.boxes == settled && !fields.tipWrong) ||
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

/// For commands that write.
bool EntryDetails::mayChange() const
{
    return !busy() && !app.values.lookOnly;
}

/// For all that changes a box.
bool EntryDetails::mayType() const
{
    return !working && !app.values.lookOnly;
}

void EntryDetails::load()
{
    loaded = true;
    fields.deletedFile = records::deletedFile(app.values, app.clock.now());
    lateCommands.setInterval(500);
}

void EntryDetails::unload()
{
    if (!std::exchange(loaded, false))
        return;
    lateCommands.setInterval(0);
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

void EntryDetails::showLateCommands()
{
    lateCommands.setInterval(0);
    fields.deleteAndPrintVisible = fields.openedFrom != "DELE";
    // Kept: any entry can be moved to the pending list, even one that came from it.
    fields.undeleteVisible = true;
    show();
}

void EntryDetails::setSlot(long slot)
{
    fields.slot = slot;
}

void EntryDetails::setStatus(std::string_view status)
{
    if (mayType())
        fields.boxes[Box::TipStatus] = status;
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
    fields.ofRecords = "of " + std::to_string(count);
    fillBoxes(record, fields);
    if (app.values.lookOnly) {
        fields.tipLocked = true;
        fields.quickTipsVisible = false;
    }
    settled = fields.boxes;
    show();
}

void EntryDetails::readSlot()
{
    count = 0;
    if (!records::makeIfMissing(app, fields.file))
        return;
    platform::SlotFile slots(app.files, fields.file, records::kCardSlotLength);
    slots.open(platform::SlotUse::Read);
    slots.lock();
    count = slots.count();
    records::traceTail(app, slots);
    slots.read(fields.slot, record.data());
}

void EntryDetails::typeBox(Box box, const std::string &text)
{
    if (mayType()) {
        fields.boxes[box] = plainlyTyped(fields.boxes[box], text);
        // A text that the file holds already is accepted even if it is not an amount.
        fields.wrong[box] = takesAmount(box) && text != settled[box] && !records::typedAmount(text);
    }
    show(); // the box gets the text of its field back
}

void EntryDetails::cancel()
{
    if (!busy())
        unload();
}

void EntryDetails::step(long by)
{
    if (busy())
        return;
    long slot = fields.slot + by;
    fields.previousEnabled = fields.nextEnabled = true;
    if (slot < 2) {
        slot = 1;
        fields.previousEnabled = false;
    }
    if (slot >= count) {
        slot = count;
        fields.nextEnabled = false;
    }
    app.system.playSound(app.values.Maindir + "whoosh.wav");
    setSlot(slot);
    Fill_data();
}

void EntryDetails::voidEntry()
{
    if (mayChange())
        app.dialogs.message("VOID", "This version cannot void yet. Nothing has been changed.");
}

void EntryDetails::revealTrackLine()
{
    if (busy() || !mayViewTrackLine(app.dialogs))
        return;
    fields.trackLineRevealed = true;
    show();
}

void EntryDetails::revealNumber()
{
    if (busy() || !mayViewNumber(app.dialogs))
        return;
    fields.numberRevealed = true;
    show();
}

} // namespace details
