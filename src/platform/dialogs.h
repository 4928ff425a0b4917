// Dialogs: message, question and input boxes, modal to the program while its timers go on.
#pragma once

#include "platform/run.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace platform {

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// What a person must know and act upon, in letters large enough to read from two steps away.
struct Notice {
    std::string title;                                      // what happened, in a few words
    std::string text;                                       // what it means, and what to do next
    std::vector<std::pair<std::string, std::string>> facts; // "Receipt", "1043"
    std::string file;                                       // that it is about; may be empty
};

/// While the program ends, every call answers Cancel (No, nothing) at once and shows nothing.
/// Escape and the window's close button answer Cancel (No; Ok where that is the only button).
class Dialogs {
public:
    explicit Dialogs(Run &theRun) : run(theRun) {}
    virtual ~Dialogs() = default;

    Answer message(const std::string &title, const std::string &text,
                   Buttons buttons = Buttons::Ok);
    /// A text the user types, or nothing for Cancel. `hidden` shows asterisks.
    std::optional<std::string> input(const std::string &title, const std::string &text,
                                     const std::string &initial = {}, bool hidden = false);
    /// Stays until "OK" is pressed.
    void notice(const Notice &notice);
    /// The system's own message; shown even while the program ends.
    void systemMessage(const std::string &text) { showFailure(text); }

protected:
    /// A message box, unless the implementation has large letters.
    virtual void show(const Notice &notice);
    virtual void showFailure(const std::string &text) { ask({}, text, Buttons::Ok); }
    /// An empty title stands for the program's name.
    virtual Answer ask(const std::string &title, const std::string &text, Buttons buttons) = 0;
    virtual std::optional<std::string> askText(const std::string &title, const std::string &text,
                                               const std::string &initial, bool hidden) = 0;

private:
    Run &run;
};

} // namespace platform
