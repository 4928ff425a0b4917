#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <utility>

namespace support {

using platform::Answer;
using platform::Buttons;

namespace {

const char *textOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return "Ok";
    case Buttons::OkCancel: return "Ok, Cancel";
    case Buttons::YesNo: break;
    }
    return "Yes, No";
}

bool offers(Buttons buttons, Answer answer)
{
    switch (answer) {
    case Answer::Ok: return buttons != Buttons::YesNo;
    case Answer::Cancel: return buttons == Buttons::OkCancel;
    case Answer::Yes:
    case Answer::No: break;
    }
    return buttons == Buttons::YesNo;
}

std::string messageBox(const std::string &title, const std::string &text, Buttons buttons)
{
    return "message [" + title + "] \"" + text + "\" (" + textOf(buttons) + ")";
}

std::string inputBox(const std::string &title, const std::string &text, const std::string &initial,
                     bool hidden)
{
    return "input [" + title + "] \"" + text + "\" initially \"" + initial + "\"" +
           (hidden ? " hidden" : "");
}

Answer harmless(Buttons buttons)
{
    return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
}

} // namespace

ScriptedDialogs::~ScriptedDialogs()
{
    for (const Expectation &left : expected)
        ADD_FAILURE() << "never shown: " << left.box;
}

void ScriptedDialogs::expect(const std::string &title, const std::string &text, Buttons buttons,
                             Answer answer, WhileOpen whileOpen)
{
    const std::string box = messageBox(title, text, buttons);
    EXPECT_TRUE(offers(buttons, answer)) << "no such button on the expected " << box;
    expected.push_back({box, answer, std::nullopt, std::move(whileOpen)});
}

void ScriptedDialogs::expectInput(const std::string &title, const std::string &text,
                                  std::optional<std::string> typed, const std::string &initial,
                                  bool hidden, WhileOpen whileOpen)
{
    expected.push_back({inputBox(title, text, initial, hidden), Answer::Cancel, std::move(typed),
                        std::move(whileOpen)});
}

/// The answer to the box, or nothing when it was not expected or the program ended behind it.
std::optional<ScriptedDialogs::Expectation> ScriptedDialogs::take(const std::string &box)
{
    ++count;
    if (expected.empty()) {
        ADD_FAILURE() << "shown without being expected: " << box;
        return std::nullopt;
    }
    if (expected.front().box != box) {
        ADD_FAILURE() << "expected: " << expected.front().box << "\n   shown: " << box;
        expected.pop_front();
        return std::nullopt;
    }
    Expectation answered = std::move(expected.front());
    expected.pop_front(); // before the loop turns: a timer may bring up the next box

    const bool wasEnding = run.ending();
    run.yield();
    if (answered.whileOpen)
        answered.whileOpen();
    if (run.ending() && !wasEnding)
        return std::nullopt;
    return answered;
}

Answer ScriptedDialogs::ask(const std::string &title, const std::string &text, Buttons buttons)
{
    const auto answered = take(messageBox(title, text, buttons));
    return answered ? answered->answer : harmless(buttons);
}

std::optional<std::string> ScriptedDialogs::askText(const std::string &title,
                                                    const std::string &text,
                                                    const std::string &initial, bool hidden)
{
    const auto answered = take(inputBox(title, text, initial, hidden));
    return answered ? answered->typed : std::nullopt;
}

} // namespace support
