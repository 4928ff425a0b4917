// Pending: the procedures of the manager's list of "CCPending.dat", and the bulk commands that
// empty it. It knows no window: it works on App, on the printer and on a narrow view of its screen.
#pragma once

#include "details/entry_details.h"
#include "pending/pending_list.h"
#include "pending/pending_view.h"
#include "pending/running_totals.h"
#include "pending/typed_receipt.h"
#include "platform/clock.h"
#include "printing/printer.h"
#include "records/app.h"
#include "reports/walk_progress.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pending {

/// What the commands for other screens open. A command without one is greyed out.
struct PendingRoutes {
    std::function<void()> archive;
    std::function<void()> totalsByServer;
    std::function<void()> totalsByTerminal;
    std::function<void()> totalsByType;
};

/// During a load, a walk through the file or a question, other commands are ignored, those of an
/// open entry too. A command that rewrites the file closes that entry first. No file is locked
/// while events run.
class Pending {
public:
    Pending(records::App &theApp, printing::Printer &thePrinter, PendingView &theView,
            PendingRoutes theRoutes = {});

    /// The load of the screen. Also sets the batch marker "ServerISBatching.dat", so that stations
    /// take no tenders meanwhile. Does nothing in the card role.
    void Form_Load();
    /// An entry was saved: the list is loaded again, at once or after the command that is running.
    void entrySaved();
    /// What an entry opened from the list calls; they refer to this list.
    details::EntryCallbacks entryCallbacks();

    void leave();                      // "Done", and the window's cross
    void process();                    // "Process"
    void refresh();                    // "Refresh"
    void print();                      // "Print"
    void finish();                     // "Finish"
    void showArchive();                // "Archive"
    void showTotalsByServer();         // "Totals by Servers"
    void showTotalsByTerminal();       // "Totals by Terminal"
    void forceAllNoTip();              // "Force ALL NO TIP"
    void hintForceAllNoTip(bool over); // the mouse is on the command, or has left it
    void showTotalsByType();           // "Totals by CC Type"
    void markDayCompleted();           // "Mark Completed"
    void deleteDeclines();             // "DELETE RED'S"
    void markAllCompleted();           // "Mark all completed"
    void markAllCompletedByPicture();  // the picture in the corner, with a shorter question
    void sortBy(int option);           // 0 to 6
    void openRow(long index);          // a row, from 0
    // Typing a receipt number. Works during a command too, but Enter does nothing then.
    void typeReceipt(const std::string &text);
    void backspaceReceipt();
    void enterReceipt(long current); // the chosen row, from 0; -1: none
    void dropReceipt();              // Escape, an arrow, a finger

    const PendingFields &state() const { return fields; }
    const reports::ListRows &rows() const { return shownRows; }
    /// cardTypes: "card type|tab|tip|total" for each listed record, in the order of the slots.
    const std::vector<std::string> &types() const { return cardTypes; }

private:
    enum class Work { Looks, Changes };
    class Working;

    // pending.cpp
    void enable(Command command, bool on);
    void check_Connection();
    void showConnection();
    void Disable_Buttons();
    void Enable_Buttons();
    void Make_Sound();
    void loadList();
    void clearList();
    void showRows();
    void readList(ListBuilder &fresh);
    std::vector<records::CardRecord> readRecords();
    void takeTotals(const reports::Totals &totals);
    void takeRows(ListBuilder &fresh);
    void colourRows();
    void traceList(long listed);
    void Sort_Rows(int column);
    bool choosePaper();
    void trace(const std::string &line);
    void panel(const std::string &text);
    void showProgress(long record);
    void show();

    // choosing.cpp
    void showReceipt();

    // leaving.cpp
    void runFinish();
    std::function<void(long)> slotsShown();
    void tellNotFinished(const std::string &reason);
    void endOfRewrite();
    void exitExpired();

    // bulk_commands.cpp
    void forceAllCompleted(const std::string &question);
    void driveEntries(const std::function<void(details::EntryDetails &)> &step);
    void reloadQuietly();
    void showQuietlyLoaded();

    records::App &app;
    printing::Printer &printer;
    PendingView &view;
    PendingRoutes routes;
    PendingFields fields;
    reports::ListRows shownRows;        // MList1
    std::vector<std::string> cardTypes; // MList2
    ListState colours;
    std::optional<RunningTotals> saved; // the file after the last save of a bulk command
    int sortColumn = 0;
    TypedReceipt receipt;
    std::string leaving;                          // "EXIT", "Expired", "Operation is completed"
    platform::Timer exitTimer;                    // Timer3: the longest that "Done" waits
    platform::Timer connectionTimer;              // asks whether the test has an answer
    std::optional<std::uint64_t> connectionBegun; // when it was begun, ms
    reports::WalkProgress progress;
    bool working = false;
    bool loadAgain = false; // an entry was saved during a load
};

} // namespace pending
