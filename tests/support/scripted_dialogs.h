// ScriptedDialogs: the user of the tests. Every box must have been expected, with its title, text
// and buttons, in the order of the expectations; none may be left over.
#pragma once

#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <functional>
#include <utility>

namespace support {

class ScriptedDialogs : public platform::Dialogs {
public:
    using Answer = platform::Answer;
    using Buttons = platform::Buttons;
    using WhileOpen = std::function<void()>;

    explicit ScriptedDialogs(platform::Run &theRun) : Dialogs(theRun), run(theRun) {}
    ~ScriptedDialogs() override
    {
        for (const Expectation &left : expected)
            ADD_FAILURE() << "never shown: " << left.box;
    }

    /// The next box is a message with just this title, text and buttons. An empty title is the
    /// system's own message. `whileOpen` runs while the box is open (let time pass, press Cancel
    /// on the screen behind it); the loop turns once in any case.
    void expect(const std::string &title, const std::string &text, Buttons buttons, Answer answer,
                WhileOpen whileOpen = {})
    {
        EXPECT_EQ(buttons == Buttons::YesNo, answer == Answer::Yes || answer == Answer::No);
        expected.push_back({boxOf(title, text, buttons), answer, std::move(whileOpen)});
    }

protected:
    Answer ask(const std::string &title, const std::string &text, Buttons buttons) override
    {
        const Answer harmless = buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
        return take(boxOf(title, text, buttons)).value_or(harmless);
    }
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &, bool) override
    {
        ADD_FAILURE() << "no text was expected to be asked for: [" << title << "] " << text;
        return std::nullopt;
    }

private:
    struct Expectation {
        std::string box; // everything that is seen of it, in words
        Answer answer = Answer::Cancel;
        WhileOpen whileOpen;
    };

    static std::string boxOf(const std::string &title, const std::string &text, Buttons buttons)
    {
        constexpr std::array kCaptions = {" (Ok)", " (Ok, Cancel)", " (Yes, No)"};
        return "[" + title + "] " + text + kCaptions[static_cast<std::size_t>(buttons)];
    }

    /// The answer to the box, or nothing when it was not expected or the program ended behind it.
    std::optional<Answer> take(const std::string &box)
    {
        EXPECT_EQ(expected.empty() ? "no box" : expected.front().box, box);
        if (expected.empty())
            return std::nullopt;
        const Expectation answered = std::move(expected.front());
        expected.pop_front(); // before the loop turns: a timer may bring up the next box
        const bool wasEnding = run.ending();
        run.yield();
        if (answered.whileOpen)
            answered.whileOpen();
        if (answered.box != box || (run.ending() && !wasEnding))
            return std::nullopt;
        return answered.answer;
    }

    platform::Run &run;
    std::deque<Expectation> expected;
};

} // namespace support
