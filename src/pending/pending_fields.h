// PendingFields: what the manager's list screen shows beside its rows. Plain values; the screen
// only mirrors them.
#pragma once

#include "platform/command_state.h"
#include "records/per_name.h"
#include "reports/card_list.h"

#include <string>

namespace pending {

/// On the notice panel while the mouse is over "Force ALL NO TIP".
inline constexpr const char *kNoTipHint =
    "All entries with no tip will be forced no tip and marked adjusted";

/// In the order of their controls, from SSCommand1 to SSCommand15.
enum class Command {
    Done,
    Process,
    Refresh,
    Print,
    Finish,
    Archive, // SScommand6
    TotalsByServer,
    Continue,
    Wait,
    TotalsByTerminal,
    ForceAllNoTip,
    TotalsByType,
    MarkCompleted,
    DeleteDeclines, // "DELETE RED'S"
    MarkAllCompleted,
};
inline constexpr std::size_t kCommands = 15;
static_assert(static_cast<std::size_t>(Command::MarkAllCompleted) + 1 == kCommands);

using platform::CommandState;

struct PendingFields {
    reports::TotalTexts totals; // Label5: tabs, tips, grand total

    std::string recordRead; // Label19 and Label4: its slot, while the file is walked through
    std::string file;       // Label6, its path
    int toAdjust = 0;       // Label7; above 0: rows still need a tip
    long notAdjusted = 0;   // how many of them are white
    std::string fromDate;   // Label16: oldest date on the list
    std::string toDate;     // Label17: newest
    std::string swipes;     // Label18: rows, and " Swipes"
    std::string connection; // Label20, in words
    bool connected = false;
    long clickedRow = 0; // Label8: index of the row last clicked; 0 selects none

    std::string receiptHint; // while a receipt number is typed; shown in place of the notice
    std::string notice;      // SSPanel1[0]
    bool noticeVisible = false;
    bool batchQuestionVisible = false; // SSPanel2

    int sortedBy = -1; // SSOption1: the chosen one, 0 to 6; -1: none

    records::PerName<Command, CommandState, kCommands> commands; // SSCommand1 to SSCommand15

    bool operator==(const PendingFields &) const = default;
};

} // namespace pending
