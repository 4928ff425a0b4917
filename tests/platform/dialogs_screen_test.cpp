// The boxes as a person uses them: by accessible name, by finger and by keyboard.
#include "platform/qt/qt_dialogs.h"

#include "support/qt/qt_station.h"

namespace {

using namespace platform;
using support::press;

struct DialogsOnScreen : testing::Test {
    support::QtStation station;
    platform::QtDialogs dialogs{station.run};
};

TEST_F(DialogsOnScreen, answer_for_finger_enter_escape_and_the_cross)
{
    const auto enter = [] { press(Qt::Key_Return); };
    const auto escape = [] { press(Qt::Key_Escape); };
    const auto cross = [] { QApplication::activeModalWidget()->close(); };
    const auto finger = [] { EXPECT_TRUE(support::click(QStringLiteral("No"))); };
    const struct {
        Buttons buttons;
        std::function<void()> act;
        Answer answer;
    } cases[] = {
        {Buttons::Ok, escape, Answer::Ok},          {Buttons::OkCancel, enter, Answer::Ok},
        {Buttons::OkCancel, cross, Answer::Cancel}, {Buttons::OkCancel, escape, Answer::Cancel},
        {Buttons::YesNo, enter, Answer::Yes},       {Buttons::YesNo, escape, Answer::No},
        {Buttons::YesNo, finger, Answer::No},
    };
    for (const auto &[buttons, act, answer] : cases) {
        station.soon(act);
        EXPECT_EQ(dialogs.message("AUDIT FAILED", "Go on?", buttons), answer);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST_F(DialogsOnScreen, return_a_typed_text_on_enter_and_none_on_escape)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        station.soon([key] {
            support::type(QStringLiteral("Z\u00fcrich"));
            press(key);
        });
        const auto typed = dialogs.input("Manager", "Enter your code", "old text", true);
        EXPECT_EQ(typed.value_or("none"), key == Qt::Key_Return ? "Z\xFCrich" : "none");
    }
}

TEST_F(DialogsOnScreen, close_with_the_program)
{
    station.soon([this] { station.run.end(); });
    EXPECT_EQ(dialogs.message("A", "B", Buttons::OkCancel), Answer::Cancel);
}

TEST_F(DialogsOnScreen, ignore_keys_typed_before_a_notice_or_failure_could_be_read)
{
    station.run.reportFailure = [this](const std::string &text) { dialogs.systemMessage(text); };
    for (const bool ends : {false, true}) { // a failure is shown even while the program ends
        const std::uint64_t begun = station.time.milliseconds();
        station.soon([] {
            press(Qt::Key_Return); // of a card reader
            press(Qt::Key_Escape);
        });
        station.time.after(1500, [] { press(Qt::Key_Return); });
        station.time.after(2000, [] {
            press(Qt::Key_Tab);
            press(Qt::Key_Space);
        });
        if (ends)
            station.run.fail("Writing", "CCPending.dat", platform::Outcome::NoRoom);
        else
            dialogs.notice(
                {"RECORD NOT STORED", "Do not charge it again.", {{"Receipt", "1"}}, {}});
        EXPECT_GE(station.time.milliseconds() - begun, 1500U) << ends;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

} // namespace
