// PendingFields: what the manager's list screen shows beside its rows. Plain values; the screen
// only mirrors them.
#pragma once

#include <array>
#include <string>

namespace pending {

/// On the status panel while the mouse is over "Force ALL NO TIP".
inline constexpr const char *kNoTipHint =
    "All entries with no tip will be forced no tip and marked adjusted";

struct CommandState {
    bool enabled = true;
    bool visible = true;
    bool operator==(const CommandState &) const = default;
};

struct PendingFields {
    // Label5: 0 total tabs, 1 total tips, 2 grand total, as currency; 3 actual and 4 estimated time
    // of a batch.
    std::array<std::string, 5> Label5;
    bool batchTimesVisible = false; // Label5(3) and (4)

    std::string Label4; // the record being read, as Label19
    bool Label4Visible = false;
    std::string Label6;   // the file's path
    std::string Label7;   // above 0: rows still need a tip
    long notAdjusted = 0; // so many of them are white
    std::string Label16;  // "From Dater": oldest date on the list
    std::string Label17;  // "To Date": newest
    std::string Label18;  // rows, and " Swipes"
    std::string Label19;  // the record being read
    std::string Label20;  // the connection in words
    bool connected = false;
    long Label8 = 0; // index of the row last clicked; 0 selects none

    std::string receiptHint; // of a receipt number that is typed; then it takes the panel's place
    std::string SSPanel1_0;  // status panel
    bool SSPanel1_0Visible = false;
    bool SSPanel2Visible = false; // the question of a batch

    int SSOption1 = -1; // the chosen one, 0 to 6; -1: none

    /// By number: 1 "Done", 2 "Process", 3 "Refresh", 4 "Print", 5 "Finish", 6 "Archive"
    /// (`SScommand6`), 7 "Totals by Servers", 8 "Continue", 9 "Wait", 10 "Totals by Terminal",
    /// 11 "Force ALL NO TIP", 12 "Totals by CC Type", 13 "Mark Completed", 14 "DELETE RED'S",
    /// 15 "Mark all completed".
    std::array<CommandState, 16> SSCommand;

    bool operator==(const PendingFields &) const = default;
};

} // namespace pending
