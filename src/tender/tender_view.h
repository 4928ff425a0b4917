// TenderView: the narrow view that the tender's procedures have of their screen.
#pragma once

#include "platform/view.h"
#include "tender/manual_entry.h"
#include "tender/tender_fields.h"

#include <optional>
#include <string>

namespace tender {

enum class TenderBox { FirstTrack, SecondTrack, Cancel, KeepWaiting };

class TenderView : public virtual platform::View {
public:
    /// Brings the screen up to date with the fields; called on every pass of a wait, so it must
    /// be cheap when nothing has changed.
    virtual void refresh(const TenderFields &fields) = 0;
    virtual void focus(TenderBox box) = 0;
    /// Shows the modal screen `xcharge3` ("File Server Busy"); returns when it was left.
    virtual void showServerBusy() = 0;
    /// Shows the modal screen `Xcharge2`; nothing when it was left by "Cancel".
    virtual std::optional<TypedCard> askCard() = 0;
    /// Shows the modal manager step, which leaves its answer in `managerResult`. `what` is being
    /// approved, `amount` is currency.
    virtual void askManager(const std::string &what, const std::string &amount) = 0;
    /// The setup screen, and its removal of the payment application, belong to a higher room.
    virtual void showSetup() = 0;
    virtual void removePaymentApplication() = 0;
};

} // namespace tender
