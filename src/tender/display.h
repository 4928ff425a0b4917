// Display: what the operator sees of a tender, that is its fields and the screen that shows them.
#pragma once

#include "tender/tender_fields.h"
#include "tender/tender_view.h"

#include <string>

namespace tender {

struct Display {
    /// `theView` must outlive the display.
    explicit Display(TenderView &theView) : view(theView) {}

    /// Brings the screen up to date with the fields. Whether "CONFIG" is enabled follows from the
    /// other fields: it can end the tender, so it goes with "Cancel"; but it withdraws no request
    /// from the payment server.
    void show();
    void status(const std::string &text);
    /// Painted before control goes on, for what takes its time.
    void statusPainted(const std::string &text);

    TenderFields fields;
    TenderView &view;
};

} // namespace tender
