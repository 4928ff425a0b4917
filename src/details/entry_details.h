// EntryDetails: one record of any card file in full. It enters, forces and takes back tips, saves,
// deletes, undeletes, reprints and steps on. It knows no window: the details screen shows its
// fields; the bulk commands of the manager's list drive it without any screen.
#pragma once

#include "details/entry_view.h"
#include "platform/clock.h"
#include "printing/printer.h"
#include "records/app.h"

#include <functional>
#include <string>
#include <string_view>

namespace details {

struct EntryCallbacks {
    std::function<void()> reloadPending; // the manager's list reads its file again
    std::function<void()> reloadArchive;
    std::function<void()>
        forceAllNoTip;               // the bulk command of the manager's list, with its question
    std::function<bool()> listWorks; // the manager's list does: commands are ignored
    std::function<void()> closed;    // the screen has
};

/// Works on a copy of the record of its own, never on `CCdata`. A slot that holds another record by
/// now than the one read is neither written nor taken out: a message says so. Outside ErrorsIgnored
/// a file that cannot be locked, opened or written ends the program with the system's message. A
/// command that arrives while another one works (the lists' reloading lets events run), or the
/// manager's list does, is ignored.
class EntryDetails {
public:
    EntryDetails(records::App &theApp, printing::Printer &thePrinter, EntryView &theView,
                 EntryCallbacks theCallbacks);

    /// Shows slot `slot` of `file` (Label8, Label1(1)), opened from `source` (Label10: "PEND",
    /// "ARCH", "DELE"). The first time, and after each unload, this is the screen's load.
    void open(const std::string &file, long slot, const std::string &source);
    /// Reads Label1(1) of Label8 again and fills all boxes; what was typed is dropped. A missing
    /// file is created empty; a slot that does not exist shows an empty record.
    void Fill_data();
    /// Before the list rewrites the file, in which slots move: closes the screen, and asks first
    /// where something is not saved. False where it stays open: so the manager wants it, or a
    /// command works.
    bool closeForRewrite();
    void setSlot(long slot);                 // Label1(1) alone; Fill_data follows
    void setStatus(std::string_view status); // Text1(19) alone

    // What the manager types, and no command may lose: while one works, the old text comes back. A
    // text that is not an amount (records/typed_amount.h) is not saved, nor is a part of it.
    void Text1_Change(std::size_t index, const std::string &text);
    /// Any other amount than before makes the record "Adjusted - Pending".
    void Text4_Change(const std::string &text);

    void SSCommand1_Click();                  // "Done"
    void SSCommand2_Click();                  // "Force NO TIP"
    void SSCommand3_Click();                  // "Cancel", and the window's cross
    void SSCommand4_Click();                  // "Undo TIP Adjustment"
    void SSCommand5_Click();                  // "Delete This Entry "
    void SSCommand6_Click(std::size_t index); // "Quick Tip Buttons", 0 to 14
    void SSCommand7_Click();                  // "Customer": reprint
    void SSCommand8_Click();                  // "Merchant": reprint
    void SSCommand9_Click(std::size_t index); // arrows: 0 previous, 1 next
    void SSCommand10_Click();                 // "Save"
    void SSCommand11_Click();                 // "Force ALL NO TIP"
    void SSCommand12_Click();                 // "Delete and Print a Receipt"
    void SSCommand13_Click();                 // "UnDelete - Move to Pending List"
    void SSCommand14_Click();                 // "Force" ("Change to Adjusted Pending")
    void SSCommand15_Click();                 // "VOID"
    void SSCommand16_Click();                 // "Force ALL to Adjusted - Pending"
    void SSCommand17_Click();                 // "Clear Tip Amount"
    void Label3_Click();                      // the tab: fills the quick tips
    void Command1_Click();                    // the track read line
    void Command2_Click();                    // "View Card #"

    const EntryFields &state() const { return fields; }

private:
    class Working;

    // entry_details.cpp
    bool busy() const;
    bool mayChange() const;
    bool mayType() const;
    void load();
    void unload();
    void Timer1_Timer();
    void readSlot();
    void show();

    // entry_tips.cpp
    records::Money tab() const;
    records::Money tip() const;
    void setTip(const std::string &text);
    void setWrongTip(const std::string &text);
    void showTabAlone();
    bool forceNoTip();

    // entry_save.cpp
    bool takeAmounts();
    bool exceedsBalance();
    bool saveAndLeave();
    bool save(bool scrambled);
    void tellOtherRecord();
    void reloadPending();

    // entry_moves.cpp
    bool moveRecord(const std::string &to, bool locked);
    bool stillThere();

    // entry_slips.cpp
    template <class Slips> void print(Slips slips);
    void reprint(bool customer);
    bool voidSlipSettled();

    records::App &app;
    printing::Printer &printer;
    EntryView &view;
    EntryCallbacks callbacks;
    platform::Timer Timer1; // once, 500 ms after the load
    EntryFields fields;
    records::CardRecord record;
    // As they were read, or saved since: the slot, and the boxes.
    records::CardRecord stored;
    std::array<std::string, 25> settled;
    long count = 0;      // of the file, at the last Fill_data
    bool loaded = false; // the screen is there
    bool working = false;
};

} // namespace details
