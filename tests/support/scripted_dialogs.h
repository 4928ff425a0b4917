// ScriptedDialogs: the user of the tests. Every box must have been expected, with its title, text
// and buttons, in the order of the expectations; none may be left over.
#pragma once

#include "platform/dialogs.h"

#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

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
            ADD_FAILURE() << "never shown: " << (left.box.empty() ? "one more box" : left.box);
    }

    /// The next box is a message with just this title, text and buttons. An empty title is the
    /// system's own message. `whileOpen` runs while the box is open (let time pass, press Cancel
    /// on the screen behind it); the loop turns once in any case.
    void expect(const std::string &title, const std::string &text, Buttons buttons, Answer answer,
                WhileOpen whileOpen = {})
    {
        EXPECT_EQ(buttons == Buttons::YesNo, answer == Answer::Yes || answer == Answer::No);
        expected.push_back({boxOf(title, text, buttons), answer, std::move(whileOpen), {}});
    }
    /// The next box, whatever it is, gets this answer; `shown` tells afterwards what it was.
    void answerNext(Answer answer, WhileOpen whileOpen = {})
    {
        expected.push_back({{}, answer, std::move(whileOpen), {}});
    }
    std::vector<std::string> shown;

    /// The next box is one to type into, with `initial` in it; no `typed` is a Cancel.
    void expectInput(const std::string &title, const std::string &text, const std::string &initial,
                     std::optional<std::string> typed)
    {
        const Answer answer = typed ? Answer::Ok : Answer::Cancel;
        expected.push_back({boxOf(title, text, initial), answer, {}, typed.value_or("")});
    }

protected:
    Answer ask(const std::string &title, const std::string &text, Buttons buttons) override
    {
        const Answer harmless = buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
        const auto answered = take(boxOf(title, text, buttons));
        return answered ? answered->answer : harmless;
    }
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &initial, bool) override
    {
        const auto answered = take(boxOf(title, text, initial));
        if (!answered || answered->answer == Answer::Cancel)
            return std::nullopt;
        return answered->typed;
    }

private:
    struct Expectation {
        std::string box; // everything that is seen of it, in words
        Answer answer = Answer::Cancel;
        WhileOpen whileOpen;
        std::string typed;
    };

    static std::string boxOf(const std::string &title, const std::string &text, Buttons buttons)
    {
        constexpr std::array kCaptions = {" (Ok)", " (Ok, Cancel)", " (Yes, No)"};
        return "[" + title + "] " + text + kCaptions[static_cast<std::size_t>(buttons)];
    }

    static std::string boxOf(const std::string &title, const std::string &text,
                             const std::string &initial)
    {
        return "[" + title + "] " + text + " (typed: " + initial + ")";
    }

    /// The answer to the box, or nothing when it was not expected or the program ended behind it.
    std::optional<Expectation> take(const std::string &box)
    {
        shown.push_back(box);
        if (!expected.empty() && expected.front().box.empty())
            expected.front().box = box;
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
        return answered;
    }

    platform::Run &run;
    std::deque<Expectation> expected;
};

} // namespace support
