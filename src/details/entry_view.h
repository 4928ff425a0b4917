// EntryView: the narrow view that the procedures of one entry have of their screen. The bulk
// commands of the manager's list give one that shows nothing.
#pragma once

#include "details/entry_fields.h"

#include <optional>
#include <string>
#include <vector>

namespace details {

class EntryView {
public:
    virtual ~EntryView() = default;
    /// Brings the screen up to date with the fields.
    virtual void refresh(const EntryFields &fields) = 0;
    virtual void focusTip() = 0;
    virtual void setBusyPointer(bool on) = 0;
    /// The print dialog: the chosen one of `names`, `current` proposed; nothing for Cancel.
    virtual std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                                     const std::string &current) = 0;
    /// The screen closes.
    virtual void unload() = 0;
};

} // namespace details
