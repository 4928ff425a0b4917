// The life of a screen: how it opens, how it is left, and that no handler ever runs on a screen
// that is gone.
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/screen.h"

#include "support/qt/qt_station.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

namespace {

using platform::Screen;

class Panel : public Screen {
public:
    Panel(platform::Services &theServices, std::function<void(Panel &)> onClick)
        : Screen(theServices)
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&command);
        connect(&command, &QPushButton::clicked, this, [this, onClick] { onClick(*this); });
    }
    ~Panel() override { ++destroyed; }

    using Screen::whileLoaded;

    QPushButton command{QStringLiteral("Finish")};
    static int destroyed;
};

int Panel::destroyed = 0;

struct ScreenLife : testing::Test {
    support::QtStation station;
};

TEST_F(ScreenLife, a_modal_screen_returns_when_unloaded_and_after_its_handler)
{
    int handled = 0;
    int fired = 0;
    Panel panel(station.services, [&](Panel &self) {
        self.unload();
        station.advance(3000); // a handler may go on after it has unloaded its own screen
        EXPECT_FALSE(self.isVisible());
        ++handled;
    });
    platform::Timer timer(station.time, panel.whileLoaded([&] { ++fired; }));
    timer.setInterval(400);
    station.soon([&] { panel.command.click(); });
    panel.runModal();
    panel.runModal(); // unloaded for good: returns at once
    EXPECT_EQ(handled, 1);
    EXPECT_EQ(fired, 1) << "a timer of an unloaded screen does nothing";
}

TEST_F(ScreenLife, the_end_of_the_program_closes_nested_screens)
{
    Panel inner(station.services, [&](Panel &) { station.run.end(); });
    Panel outer(station.services, [&](Panel &) {
        station.soon([&] { inner.command.click(); });
        inner.runModal();
    });
    station.soon([&] { outer.command.click(); });
    outer.runModal();
    EXPECT_FALSE(inner.isVisible() || outer.isVisible());
}

// A password is asked for and found wrong in two boxes, without a turn of the loop in between.
TEST_F(ScreenLife, several_boxes_belong_to_the_window_that_asked_and_give_it_the_keyboard_back)
{
    platform::QtDialogs dialogs{station.run};
    std::vector<const QWindow *> below;
    const auto pressOk = [&] {
        below.push_back(QApplication::activeModalWidget()->windowHandle()->transientParent());
        EXPECT_TRUE(support::click(QStringLiteral("OK")));
    };
    Panel entry(station.services, [&](Panel &) {
        for (int box = 0; box < 3; ++box) {
            station.soon(pressOk);
            dialogs.message("FAIL", "You have entered an incorrect password.");
        }
    });
    std::deque<Panel> lists; // the list, and whatever else is open
    for (int window = 0; window < 5; ++window)
        lists.emplace_back(station.services, [](Panel &) {}).show();
    entry.show();
    station.advance(100);
    entry.command.click();
    EXPECT_EQ(below, std::vector<const QWindow *>(3, entry.windowHandle()));
    station.advance(100);
    EXPECT_EQ(QGuiApplication::focusWindow(), entry.windowHandle());
}

// On the programs' own event loop, in real time: a wait inside a handler must not destroy
// the screen whose handler waits, however the handler was reached.
TEST(ScreenOnTheProgramsLoop, is_destroyed_once_none_of_its_handlers_runs)
{
    for (const bool byTimer : {true, false}) {
        SCOPED_TRACE(byTimer ? "timer" : "command");
        support::TestStation station;
        platform::QtClock clock(50);
        platform::QtEventLoop loop(clock);
        platform::Run run(loop, clock);
        bool handled = false;
        std::unique_ptr<Panel, Screen::Later> panel;
        const auto turn = [&run] {
            for (int i = 0; i < 5; ++i)
                run.yield();
        };
        const auto later = [&loop](auto what) {
            QMetaObject::invokeMethod(&loop, what, Qt::QueuedConnection);
        };
        const auto letGo = [&] {
            panel.reset();
            handled = true;
            later(turn);
            turn(); // the queued turns run inside these, one level deeper
            EXPECT_EQ(Panel::destroyed, 0);
        };
        platform::Timer timer(clock, [&] {
            timer.setInterval(0);
            letGo();
        });
        Panel::destroyed = 0;
        panel.reset(new Panel(station.services, [&](Panel &) { letGo(); }));
        panel->show();
        if (byTimer)
            timer.setInterval(100);
        else
            later([&] { panel->command.click(); });
        while (!handled)
            run.yield();
        run.yield();
        EXPECT_EQ(Panel::destroyed, 1);
    }
}

TEST(SecondTap, presses_nothing_in_a_window_that_has_just_opened)
{
    QPushButton below;
    QPushButton above;
    int pressed = 0;
    QObject::connect(&below, &QPushButton::clicked, [&] { ++pressed; });
    const auto tap = [](QPushButton &button, QEvent::Type kind) {
        support::touch(button, kind);
        support::touch(button, QEvent::MouseButtonRelease);
    };
    tap(above, QEvent::MouseButtonPress);
    tap(below, QEvent::MouseButtonDblClick);
    EXPECT_EQ(pressed, 0);
    tap(below, QEvent::MouseButtonPress);
    tap(below, QEvent::MouseButtonDblClick); // a fast finger on one keypad
    EXPECT_EQ(pressed, 2);
}

} // namespace
