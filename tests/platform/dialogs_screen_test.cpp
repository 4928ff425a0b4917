// The boxes as a person meets them: by what a screen reader calls them, by finger and by keyboard.
#include "platform/qt/qt_dialogs.h"

#include "support/qt/qt_station.h"

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using platform::Buttons;
using support::press;

class DialogsOnScreen : public testing::Test {
protected:
    /// What the person at the screen does half a second from now.
    void soon(std::function<void()> act) { station.time.after(500, std::move(act)); }

    support::QtStation station;
    platform::QtDialogs dialogs{station.run};
};

TEST_F(DialogsOnScreen, AnswersForFingerEnterEscapeAndTheCross)
{
    struct Case {
        const char *name;
        Buttons buttons;
        std::function<void()> act;
        Answer answer;
    };
    const auto enter = [] { press(Qt::Key_Return); };
    const auto escape = [] { press(Qt::Key_Escape); };
    const auto cross = [] { QApplication::activeModalWidget()->close(); };
    const auto finger = [](const char *caption) {
        return [caption] { EXPECT_TRUE(support::click(QString::fromLatin1(caption))); };
    };
    const Case cases[] = {
        {"OK by finger", Buttons::Ok, finger("OK"), Answer::Ok},
        {"the only button also for Escape", Buttons::Ok, escape, Answer::Ok},
        {"Enter is OK", Buttons::OkCancel, enter, Answer::Ok},
        {"Cancel by finger", Buttons::OkCancel, finger("Cancel"), Answer::Cancel},
        {"Escape is Cancel", Buttons::OkCancel, escape, Answer::Cancel},
        {"the cross is Cancel", Buttons::OkCancel, cross, Answer::Cancel},
        {"Enter is Yes", Buttons::YesNo, enter, Answer::Yes},
        {"No by finger", Buttons::YesNo, finger("No"), Answer::No},
        {"Escape is No", Buttons::YesNo, escape, Answer::No},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        soon(one.act);
        EXPECT_EQ(dialogs.message("AUDIT FAILED", "Go on?", one.buttons), one.answer);
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST_F(DialogsOnScreen, TypedTextIsKeptOnEnterAndForgottenOnEscape)
{
    soon([] {
        support::type(QStringLiteral("Z\u00fcrich"));
        press(Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.input("Manager", "Enter your code", "old text"), "Z\xFCrich");
    soon([] {
        support::type(QStringLiteral("1234"));
        press(Qt::Key_Escape);
    });
    EXPECT_EQ(dialogs.input("Manager", "Enter your code", {}, true), std::nullopt);
}

TEST_F(DialogsOnScreen, TimersGoOnAndTheEndClosesTheBox)
{
    int fired = 0;
    platform::Timer timer(station.time, [&] {
        if (++fired == 3)
            station.run.end();
    });
    timer.setInterval(1000);
    EXPECT_EQ(dialogs.message("A", "B", Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(fired, 3);

    // The system's own message is still shown while the program ends.
    bool seen = false;
    soon([&] {
        seen = QApplication::activeModalWidget() != nullptr;
        press(Qt::Key_Return);
    });
    dialogs.systemMessage("write failed: no room on the disk");
    EXPECT_TRUE(seen);
}

} // namespace
