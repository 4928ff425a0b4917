// ScriptedDialogs: the user of the tests. Every box must have been expected, with its title, text
// and buttons, in the order of the expectations; none may be left over. In a story a person answers
// each box. Or, for tests that tell what was shown, every box is written down and answered alike.
#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <vector>

namespace support {

class ScriptedDialogs : public platform::Dialogs {
public:
    using Answer = platform::Answer;
    using Buttons = platform::Buttons;
    using Text = const std::string &;
    using WhileOpen = std::function<void()>;

    explicit ScriptedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}
    ~ScriptedDialogs() override;

    /// The next box is this one, as a story tells it: "[title] text (Ok)"; it gets Ok.
    void expect(Text box) { expected.push_back({box, Answer::Ok, {}}); }
    /// The next box, whatever it is, gets this answer; `shown` tells afterwards what it was.
    /// `whileOpen` runs while it is open (let time pass, press Cancel on the screen behind it); the
    /// loop turns once in any case.
    void answerNext(Answer answer, WhileOpen whileOpen = {})
    {
        expected.push_back({{}, answer, std::move(whileOpen)});
    }
    std::vector<std::string> shown;

    /// Who answers a box, as it is told, by one of its captions, "" being no answer; one without
    /// captions by "with " and the text that is typed into it.
    std::function<std::string(Text box, const std::vector<std::string> &captions)> person;

    std::string *noted = nullptr; // what happened: then no box has to be expected
    std::optional<std::string> typed;

protected:
    Answer ask(Text title, Text text, Buttons buttons) override;
    std::optional<std::string> askText(Text title, Text text, Text initial, bool) override;

private:
    struct Expectation {
        std::string box; // everything that is seen of it, in words
        Answer answer;
        WhileOpen whileOpen;
    };

    platform::Run &run;
    std::deque<Expectation> expected;
};

} // namespace support
