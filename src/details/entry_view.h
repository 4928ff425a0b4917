// EntryView: the narrow view that the procedures of one entry have of their screen. The bulk
// commands of the manager's list use one that shows nothing.
#pragma once

#include "details/entry_fields.h"
#include "platform/view.h"

#include <optional>
#include <string>
#include <vector>

namespace details {

class EntryView : public virtual platform::View {
public:
    /// Shows the fields.
    virtual void refresh(const EntryFields &fields) = 0;
    virtual void focusTip() = 0;
    /// The print dialog, with `current` of `names` selected; nothing for "Cancel".
    virtual std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                                     const std::string &current) = 0;
};

} // namespace details
