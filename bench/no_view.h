// NoView: the view of a manager's list without a window.
#pragma once

#include "pending/pending.h"

namespace bench {

class NoView : public pending::PendingView, public platform::WindowlessView {
public:
    void refresh(const pending::PendingFields &) override {}
    void showRows(const reports::ListRows &) override {}
    void rowsColoured() override {}
    void selectRow(long) override {}
    void showEntry(const std::string &, long) override {}
    bool closeEntry() override { return true; }
    std::optional<std::string> choosePrinter(const std::vector<std::string> &,
                                             const std::string &) override
    {
        return std::nullopt;
    }
};

} // namespace bench
