// ScriptedDialogs: the user of the tests. Every box must have been expected, with its title, text
// and buttons, in the order of the expectations; none may be left over. In a story a person answers
// each box. Or, for tests that tell what was shown, every box is written down and answered alike.
#pragma once

#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace support {

class ScriptedDialogs : public platform::Dialogs {
public:
    using Answer = platform::Answer;
    using Buttons = platform::Buttons;
    using Text = const std::string &;
    using WhileOpen = std::function<void()>;

    explicit ScriptedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}
    ~ScriptedDialogs() override { EXPECT_EQ(expected.size(), 0U) << "boxes that never came up"; }

    /// The next box is a message with just this title, text and buttons. An empty title is the
    /// system's own message. `whileOpen` runs while the box is open (let time pass, press Cancel
    /// on the screen behind it); the loop turns once in any case.
    void expect(Text title, Text text, Buttons buttons, Answer answer, WhileOpen whileOpen = {})
    {
        expected.push_back({boxOf(title, text, buttons), answer, std::move(whileOpen)});
    }
    /// The next box, whatever it is, gets this answer; `shown` tells afterwards what it was.
    void answerNext(Answer answer, WhileOpen whileOpen = {})
    {
        expected.push_back({{}, answer, std::move(whileOpen)});
    }
    std::vector<std::string> shown;

    /// Who answers a box, as it is told, by one of its captions, "" being no answer; one without
    /// captions by "with " and the text that is typed into it.
    std::function<std::string(Text box, const std::vector<std::string> &captions)> person;

    std::string *noted = nullptr; // what happened: then no box has to be expected
    Answer choice = Answer::Ok;   // then, where there is one
    std::optional<std::string> typed;

protected:
    Answer ask(Text title, Text text, Buttons buttons) override
    {
        const Answer harmless = buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
        shown.push_back(boxOf(title, text, buttons));
        if (person)
            return answerNamed(person(shown.back(), captionsOf(buttons)), harmless);
        if (noted != nullptr) {
            *noted += "[" + title + "] " + text + "\n";
            run.yield();
            return buttons == Buttons::Ok ? Answer::Ok : choice;
        }
        EXPECT_FALSE(expected.empty()) << shown.back();
        if (expected.empty())
            return harmless;
        const Expectation next = std::move(expected.front());
        expected.pop_front(); // before the loop turns: a timer may bring up the next box
        EXPECT_EQ(next.box.empty() ? shown.back() : next.box, shown.back());
        const bool wasEnding = run.ending();
        run.yield();
        if (next.whileOpen)
            next.whileOpen();
        return run.ending() && !wasEnding ? harmless : next.answer;
    }
    std::optional<std::string> askText(Text title, Text text, Text initial, bool) override
    {
        if (person) {
            const std::string said = person("[" + title + "] " + text + " (" + initial + ")", {});
            return said.starts_with("with")
                       ? std::optional(said.substr(std::min<std::size_t>(5, said.size())))
                       : std::nullopt;
        }
        EXPECT_NE(noted, nullptr) << "nobody types into [" << title << "] " << text;
        if (noted != nullptr)
            *noted += "[" + title + "] " + text + " (" + initial + ")\n";
        return typed;
    }

private:
    struct Expectation {
        std::string box; // everything that is seen of it, in words
        Answer answer;
        WhileOpen whileOpen;
    };

    static std::vector<std::string> captionsOf(Buttons buttons)
    {
        return buttons == Buttons::Ok         ? std::vector<std::string>{"Ok"}
               : buttons == Buttons::OkCancel ? std::vector<std::string>{"Ok", "Cancel"}
                                              : std::vector<std::string>{"Yes", "No"};
    }
    static std::string boxOf(Text title, Text text, Buttons buttons)
    {
        std::string captions;
        for (const std::string &caption : captionsOf(buttons))
            captions += (captions.empty() ? "" : ", ") + caption;
        return "[" + title + "] " + text + " (" + captions + ")";
    }
    static Answer answerNamed(Text caption, Answer otherwise)
    {
        return caption == "Ok"       ? Answer::Ok
               : caption == "Cancel" ? Answer::Cancel
               : caption == "Yes"    ? Answer::Yes
               : caption == "No"     ? Answer::No
                                     : otherwise;
    }

    platform::Run &run;
    std::deque<Expectation> expected;
};

} // namespace support
