// PendingView: the narrow view that the procedures of the manager's list have of their screen.
#pragma once

#include "pending/pending_fields.h"
#include "platform/view.h"

#include <optional>
#include <string>
#include <vector>

namespace pending {

class PendingView : public virtual platform::View {
public:
    /// Shows the fields; the rows are not among them.
    virtual void refresh(const PendingFields &fields) = 0;
    /// Other rows, or another order. `rows` stays valid until the next call.
    virtual void showRows(const reports::ListRows &rows) = 0;
    /// The same rows in the same order; colours may have changed.
    virtual void rowsColoured() = 0;
    /// Selects the row with this index and scrolls to it.
    virtual void selectRow(long index) = 0;
    /// Shows one record in `XchargeEntryDetals`, opened from "PEND"; returns at once.
    virtual void showEntry(const std::string &file, long slot) = 0;
    /// Closes it before the file is rewritten. False where it stays open, because the manager does
    /// not want to lose changes that are not saved.
    virtual bool closeEntry() = 0;
    /// The print dialog, with `proposed` of `names` selected; nothing for "Cancel".
    virtual std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                                     const std::string &proposed) = 0;
};

} // namespace pending
