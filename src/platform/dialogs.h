// Dialogs: message, question and input boxes, modal to the program while its timers go on.
#pragma once

#include "platform/run.h"

#include <optional>
#include <string>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// Once the end was asked for, every call answers Cancel (No, nothing) at once and shows nothing.
/// Escape and the window's cross answer Cancel (No; Ok where that is the only button).
class Dialogs {
public:
    explicit Dialogs(Run &theRun) : run(theRun) {}
    virtual ~Dialogs() = default;

    Answer message(const std::string &title, const std::string &text,
                   Buttons buttons = Buttons::Ok);
    /// A text the user types, or nothing for Cancel. `hidden` shows asterisks.
    std::optional<std::string> input(const std::string &title, const std::string &text,
                                     const std::string &initial = {}, bool hidden = false);
    /// The system's own message; shown even while the program ends.
    void systemMessage(const std::string &text) { ask({}, text, Buttons::Ok); }

protected:
    /// An empty title stands for the program's name.
    virtual Answer ask(const std::string &title, const std::string &text, Buttons buttons) = 0;
    virtual std::optional<std::string> askText(const std::string &title, const std::string &text,
                                               const std::string &initial, bool hidden) = 0;

private:
    Run &run;
};

} // namespace platform
