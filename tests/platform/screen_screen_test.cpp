// The life of a screen: how it opens, how it is left, and that no handler ever runs on a screen
// that is gone.
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/screen.h"

#include "support/qt/qt_station.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>

namespace {

using platform::Screen;
using support::press;

class Panel : public Screen {
public:
    Panel(platform::Services &theServices, std::function<void(Panel &)> click)
        : Screen(theServices), onClick(std::move(click))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&box);
        layout->addWidget(&command);
        connect(&command, &QPushButton::clicked, this, [this] { onClick(*this); });
        setDefaultCommand(&command);
    }
    ~Panel() override { ++destroyed; }

    using Screen::whileLoaded;
    void wait() { services.yield(); }

    QLineEdit box;
    QPushButton command{QStringLiteral("Finish")};
    int closeAsks = 0;
    static int destroyed;

protected:
    void closeAsked() override { ++closeAsks; }

private:
    std::function<void(Panel &)> onClick;
};

int Panel::destroyed = 0;

class ScreenLife : public testing::Test {
protected:
    void SetUp() override { Panel::destroyed = 0; }
    void soon(std::function<void()> act) { station.time.after(500, std::move(act)); }

    support::QtStation station;
};

TEST_F(ScreenLife, AModalScreenReturnsWhenUnloadedAndAfterItsHandler)
{
    bool handlerDone = false;
    Panel panel(station.services, [&](Panel &self) {
        self.unload();
        self.wait(); // a handler may go on after it has unloaded its own screen
        EXPECT_FALSE(self.isVisible());
        handlerDone = true;
    });
    soon([&] {
        EXPECT_TRUE(panel.isVisible());
        EXPECT_TRUE(support::click(QStringLiteral("Finish")));
    });
    panel.runModal();
    EXPECT_TRUE(handlerDone);
    EXPECT_TRUE(panel.unloaded());

    panel.runModal(); // unloaded for good: returns at once
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(ScreenLife, TheEndOfTheProgramClosesNestedScreens)
{
    Panel inner(station.services, [&](Panel &) { station.run.end(); });
    Panel outer(station.services, [&](Panel &) {
        soon([] { support::click(QStringLiteral("Finish")); });
        inner.runModal();
        EXPECT_TRUE(station.run.ending());
    });
    soon([&] { outer.command.click(); });
    outer.command.setText(QStringLiteral("Open"));
    outer.runModal();
    EXPECT_FALSE(inner.isVisible());
    EXPECT_FALSE(outer.isVisible());
}

TEST_F(ScreenLife, EscapeAndTheCrossAskAndEnterWorksTheDefaultCommand)
{
    int finished = 0;
    Panel panel(station.services, [&](Panel &) { ++finished; });
    panel.box.setFocus();
    soon([&] {
        press(Qt::Key_Escape);
        panel.close();
        EXPECT_EQ(panel.closeAsks, 2);
        EXPECT_TRUE(panel.isVisible());

        press(Qt::Key_Return); // out of the text box
        EXPECT_EQ(finished, 1);
        panel.command.setEnabled(false);
        press(Qt::Key_Enter);
        EXPECT_EQ(finished, 1);
        panel.unload();
    });
    panel.runModal();
}

TEST_F(ScreenLife, TheTopMostFlagChangesWithoutHidingTheScreen)
{
    Panel panel(station.services, [](Panel &) {});
    panel.SetTopMostWindow(true);
    panel.show();
    QWindow *window = panel.windowHandle();
    EXPECT_TRUE(window->flags().testFlag(Qt::WindowStaysOnTopHint));
    panel.SetTopMostWindow(false);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.windowHandle(), window);
    EXPECT_FALSE(window->flags().testFlag(Qt::WindowStaysOnTopHint));
    panel.SetTopMostWindow(true);
    EXPECT_TRUE(panel.isVisible());

    // What is opened over a top-most screen must not disappear behind it.
    Panel above(station.services, [](Panel &self) { self.unload(); });
    soon([&] {
        EXPECT_TRUE(above.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
        above.command.click();
    });
    above.runModal();
}

TEST_F(ScreenLife, ATimerOfAnUnloadedScreenDoesNothing)
{
    int fired = 0;
    Panel panel(station.services, [](Panel &) {});
    platform::Timer timer(station.time, panel.whileLoaded([&] { ++fired; }));
    timer.setInterval(1000);
    station.advance(2500);
    panel.unload();
    station.advance(5000);
    EXPECT_EQ(fired, 2);
}

// On the loop of the programs, where time is the wall's: a wait inside a handler must not destroy
// the screen whose handler waits, however the handler was reached.
class ScreenOnTheProgramsLoop : public testing::Test {
protected:
    void SetUp() override
    {
        Panel::destroyed = 0;
        panel.reset(new Panel(station.services, [this](Panel &) { letGoAndWait(); }));
        panel->show();
    }
    void letGoAndWait()
    {
        panel.reset();
        QMetaObject::invokeMethod(
            &loop, [this] { turn(5); }, Qt::QueuedConnection);
        turn(5); // the queued turns run inside these, one level deeper
        destroyedDuringHandler = Panel::destroyed;
        handled = true;
    }
    void turn(int times)
    {
        for (int i = 0; i < times; ++i)
            run.yield();
    }
    void turnUntilHandled()
    {
        while (!handled)
            run.yield();
        run.yield();
        EXPECT_EQ(destroyedDuringHandler, 0);
        EXPECT_EQ(Panel::destroyed, 1);
    }

    support::TestStation station;
    platform::QtClock clock{50};
    platform::QtEventLoop loop{clock};
    platform::Run run{loop};
    std::unique_ptr<Panel, Screen::Later> panel;
    int destroyedDuringHandler = -1;
    bool handled = false;
};

TEST_F(ScreenOnTheProgramsLoop, OutlivesTheHandlerOfATimer)
{
    platform::Timer timer(clock, [&] {
        timer.setInterval(0);
        letGoAndWait();
    });
    timer.setInterval(100);
    turnUntilHandled();
}

TEST_F(ScreenOnTheProgramsLoop, OutlivesTheHandlerOfACommand)
{
    QMetaObject::invokeMethod(&panel->command, "click", Qt::QueuedConnection);
    turnUntilHandled();
}

// A modal screen may stay open all day; what its timers let go of must not pile up until then.
TEST_F(ScreenOnTheProgramsLoop, IsDestroyedWhileAModalWaitGoesOn)
{
    platform::Timer timer(clock, [&] {
        timer.setInterval(0);
        panel.reset();
    });
    timer.setInterval(100);
    QMetaObject::invokeMethod(
        &loop,
        [&] {
            while (panel != nullptr)
                run.yield();
            turn(3);
            EXPECT_EQ(Panel::destroyed, 1);
            handled = true;
        },
        Qt::QueuedConnection);
    while (!handled)
        run.yield();
}

} // namespace
