#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace support {

namespace {

std::string boxOf(const std::string &title, const std::string &text, platform::Buttons buttons)
{
    constexpr std::array kCaptions = {" (Ok)", " (Ok, Cancel)", " (Yes, No)"};
    return "[" + title + "] " + text + kCaptions[static_cast<std::size_t>(buttons)];
}

} // namespace

ScriptedDialogs::~ScriptedDialogs()
{
    EXPECT_EQ(expected.size(), 0U) << "boxes that never came up";
}

void ScriptedDialogs::expect(Text title, Text text, Buttons buttons, Answer answer,
                             WhileOpen whileOpen)
{
    expected.push_back({boxOf(title, text, buttons), answer, std::move(whileOpen)});
}

platform::Answer ScriptedDialogs::ask(Text title, Text text, Buttons buttons)
{
    const Answer harmless = buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    shown.push_back(boxOf(title, text, buttons));
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

std::optional<std::string> ScriptedDialogs::askText(Text title, Text text, Text initial, bool)
{
    EXPECT_NE(noted, nullptr) << "nobody types into [" << title << "] " << text;
    if (noted != nullptr)
        *noted += "[" + title + "] " + text + " (" + initial + ")\n";
    return typed;
}

} // namespace support
