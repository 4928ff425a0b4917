// PendingView: the narrow view that the procedures of the manager's list have of their screen.
#pragma once

#include "pending/pending_fields.h"
#include "pending/pending_list.h"

#include <optional>
#include <string>
#include <vector>

namespace pending {

class PendingView {
public:
    virtual ~PendingView() = default;
    /// Brings the screen, but for the list itself, up to date with the fields.
    virtual void refresh(const PendingFields &fields) = 0;
    /// Other rows, or another order: told before the rows of the last time go. `rows` stay where
    /// they are until the next call.
    virtual void showRows(const ListRows &rows) = 0;
    /// The rows are the same, their colours may be others.
    virtual void rowsColoured() = 0;
    /// The row with this index is the selected one, and in sight.
    virtual void selectRow(long index) = 0;
    /// Paints at once what was refreshed, without letting other events run: the next step is a long
    /// one, or a file is locked.
    virtual void paintNow() = 0;
    virtual void setBusyPointer(bool on) = 0;
    /// Brings up `XchargeEntryDetals` for one record, opened from "PEND"; returns at once.
    virtual void showEntry(const std::string &file, long slot) = 0;
    /// Closes it, if it is open, before the file is rewritten. False where it stays: its changes
    /// are not saved, and shall not be lost.
    virtual bool closeEntry() = 0;
    /// The print dialog: the chosen one of `names`, `proposed` at first; nothing for "Cancel".
    virtual std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                                     const std::string &proposed) = 0;
};

} // namespace pending
