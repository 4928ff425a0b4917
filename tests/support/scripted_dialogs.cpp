#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace support {

namespace {

std::vector<std::string> captionsOf(platform::Buttons buttons)
{
    using platform::Buttons;
    return buttons == Buttons::Ok         ? std::vector<std::string>{"Ok"}
           : buttons == Buttons::OkCancel ? std::vector<std::string>{"Ok", "Cancel"}
                                          : std::vector<std::string>{"Yes", "No"};
}

std::string boxOf(const std::string &title, const std::string &text, platform::Buttons buttons)
{
    std::string captions;
    for (const std::string &caption : captionsOf(buttons))
        captions += (captions.empty() ? "" : ", ") + caption;
    return "[" + title + "] " + text + " (" + captions + ")";
}

platform::Answer answerNamed(const std::string &caption, platform::Answer otherwise)
{
    using platform::Answer;
    return caption == "Ok"       ? Answer::Ok
           : caption == "Cancel" ? Answer::Cancel
           : caption == "Yes"    ? Answer::Yes
           : caption == "No"     ? Answer::No
                                 : otherwise;
}

} // namespace

ScriptedDialogs::~ScriptedDialogs()
{
    EXPECT_EQ(expected.size(), 0U) << "boxes that never came up";
}

platform::Answer ScriptedDialogs::ask(Text title, Text text, Buttons buttons)
{
    const Answer harmless = buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    shown.push_back(boxOf(title, text, buttons));
    if (person)
        return answerNamed(person(shown.back(), captionsOf(buttons)), harmless);
    if (noted != nullptr) {
        *noted += "[" + title + "] " + text + "\n";
        run.yield();
        return Answer::Ok;
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

} // namespace support
