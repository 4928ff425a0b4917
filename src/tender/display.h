// Display: what the operator sees of a tender, that is its fields and the screen that shows them.
#pragma once

#include "tender/tender_fields.h"
#include "tender/tender_view.h"

#include <string>

namespace tender {

struct Display {
    /// `theView` must outlive the display.
    explicit Display(TenderView &theView) : view(theView) {}

    /// Brings the screen up to date with the fields. Enables "CONFIG" where "Cancel" is enabled,
    /// since both can end the tender, but not once the payment server has a request: "CONFIG" does
    /// not withdraw it.
    void show();
    void status(const std::string &text);
    /// Shows the status at once, before work that takes some time.
    void statusPainted(const std::string &text);

    TenderFields fields;
    TenderView &view;
};

} // namespace tender
