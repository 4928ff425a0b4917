// ScriptedDialogs: the user of the tests. Every box must have been expected, with its title, text
// and buttons, in the order of the expectations; none may be left over.
#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace support {

class ScriptedDialogs : public platform::Dialogs {
public:
    explicit ScriptedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}
    ~ScriptedDialogs() override; // a box still expected is a failure

    using WhileOpen = std::function<void()>;

    /// The next box is a message with just this title, text and buttons. An empty title is the
    /// system's own message. `whileOpen` runs while the box is open (let time pass, press Cancel
    /// on the screen behind it); the loop turns once in any case.
    void expect(const std::string &title, const std::string &text, platform::Buttons buttons,
                platform::Answer answer, WhileOpen whileOpen = {});
    void expectInput(const std::string &title, const std::string &text,
                     std::optional<std::string> typed, const std::string &initial = {},
                     bool hidden = false, WhileOpen whileOpen = {});

    /// Boxes shown so far.
    int shown() const { return count; }
    bool allShown() const { return expected.empty(); }

protected:
    platform::Answer ask(const std::string &title, const std::string &text,
                         platform::Buttons buttons) override;
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &initial, bool hidden) override;

private:
    struct Expectation {
        std::string box; // everything that is seen of it, in words
        platform::Answer answer = platform::Answer::Cancel;
        std::optional<std::string> typed;
        WhileOpen whileOpen;
    };

    std::optional<Expectation> take(const std::string &box);

    platform::Run &run;
    std::deque<Expectation> expected;
    int count = 0;
};

} // namespace support
