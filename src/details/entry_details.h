// EntryDetails: one record of any card file in full. It enters, forces and takes back tips, saves,
// deletes, undeletes, reprints and goes to the next one. It knows no window: the details screen
// shows its fields, and the bulk commands of the manager's list use it without any screen.
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
    std::function<bool()> listWorks; // then commands are ignored
    std::function<void()> closed;    // the screen is
};

/// Works on its own copy of the record, never on `CCdata`. A slot that holds another record by now
/// is neither written nor removed, and a message says so. Outside ErrorsIgnored
/// a file that cannot be locked, opened or written ends the program with the system's message. A
/// command that arrives while another one or the manager's list works (reloading a list lets events
/// run) is ignored.
class EntryDetails {
public:
    EntryDetails(records::App &theApp, printing::Printer &thePrinter, EntryView &theView,
                 EntryCallbacks theCallbacks);

    /// Shows slot `slot` of `file`, opened from `source` ("PEND", "ARCH", "DELE"). The first time,
    /// and after each unload, this is the screen's load.
    void open(const std::string &file, long slot, const std::string &source);
    /// Reads the slot again and fills all boxes; what was typed is dropped. A missing
    /// file is created empty; a slot that does not exist shows an empty record.
    void Fill_data();
    /// Before the list rewrites the file and moves its slots: closes the screen, and asks first if
    /// something is not saved. False where it stays open, because the manager wants that or a
    /// command works.
    bool closeForRewrite();
    void setSlot(long slot);                 // only the field; Fill_data follows
    void setStatus(std::string_view status); // only the box

    // What the manager types. While a command works the box gets its old text back. Text that is
    // not an amount (records/typed_amount.h) is not saved, not even in part.
    void typeBox(Box box, const std::string &text);
    /// Any other amount than before makes the record "Adjusted - Pending".
    void typeTip(const std::string &text);

    void saveAndClose();                  // "Done"
    void forceNoTip();                    // "Force NO TIP"
    void cancel();                        // "Cancel", and the window's cross
    void undoTip();                       // "Undo TIP Adjustment"
    void deleteEntry();                   // "Delete This Entry "
    void takeQuickTip(std::size_t index); // "Quick Tip Buttons", 0 to 14
    void reprintCustomer();               // "Customer": reprint
    void reprintMerchant();               // "Merchant": reprint
    void step(long by);                   // arrows: -1 previous, 1 next
    void save();                          // "Save"
    void forceAllNoTip();                 // "Force ALL NO TIP"
    void deleteAndPrint();                // "Delete and Print a Receipt"
    void undelete();                      // "UnDelete - Move to Pending List"
    void forceAdjusted();                 // "Force" ("Change to Adjusted Pending")
    void voidEntry();                     // "VOID"
    void forceAllAdjusted();              // "Force ALL to Adjusted - Pending"
    void clearTip();                      // "Clear Tip Amount"
    void offerQuickTips();                // the tab: fills the quick tips
    void revealTrackLine();               // the track read line
    void revealNumber();                  // "View Card #"

    const EntryFields &state() const { return fields; }

private:
    class Working;

    // entry_details.cpp
    bool busy() const;
    bool mayChange() const;
    bool mayType() const;
    void load();
    void unload();
    void showLateCommands();
    void readSlot();
    void show();

    // entry_tips.cpp
    records::Money tab() const;
    records::Money tip() const;
    void setTip(const std::string &text);
    void setWrongTip(const std::string &text);
    void showTabAlone();
    bool saveWithoutTip();

    // entry_save.cpp
    bool takeAmounts();
    bool exceedsBalance();
    bool saveThenClose();
    bool write(bool scrambled);
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
    platform::Timer lateCommands; // Timer1: once, 500 ms after the load
    EntryFields fields;
    records::CardRecord record;
    // As they were read, or saved since: the slot, and the boxes.
    records::CardRecord stored;
    PerBox<std::string> settled;
    long count = 0;      // of the file, at the last Fill_data
    bool loaded = false; // the screen is there
    bool working = false;
};

} // namespace details
