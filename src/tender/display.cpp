#include "tender/display.h"

namespace tender {

void Display::show()
{
    fields.setup.enabled =
        fields.cancel.enabled && fields.cancel.visible && !fields.requestAtServer;
    view.refresh(fields);
}

void Display::status(const std::string &text)
{
    fields.status = text;
    show();
}

void Display::statusPainted(const std::string &text)
{
    status(text);
    view.paintNow();
}

} // namespace tender
