// QtDialogs: message, question and input boxes in the look of the screens, with buttons for a
// finger and for the keyboard (Enter the first button, Escape the harmless one).
#pragma once

#include "platform/dialogs.h"

namespace platform {

class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(Run &theRun) : Dialogs(theRun), run(theRun) {}

protected:
    void show(const Notice &notice) override;
    void showFailure(const std::string &text) override;
    Answer ask(const std::string &title, const std::string &text, Buttons buttons) override;
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &initial, bool hidden) override;

private:
    Run &run;
};

} // namespace platform
