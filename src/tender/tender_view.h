// TenderView: the narrow view that the tender's procedures have of their screen.
#pragma once

#include "tender/tender_fields.h"

namespace tender {

enum class TenderBox { Text2, Text5, SSCommand1 };

class TenderView {
public:
    virtual ~TenderView() = default;
    /// Brings the screen up to date with the fields; called on every pass of a wait, so it costs
    /// next to nothing when nothing changed.
    virtual void refresh(const TenderFields &fields) = 0;
    /// Paints what was refreshed before control goes on.
    virtual void paintNow() = 0;
    virtual void focus(TenderBox box) = 0;
    virtual void setTopMost(bool on) = 0;
    virtual void hideScreen() = 0;
    /// Shows the modal screen `xcharge3` ("File Server Busy"); returns when it was left.
    virtual void showServerBusy() = 0;
};

} // namespace tender
