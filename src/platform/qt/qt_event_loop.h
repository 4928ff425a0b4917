// QtClock and QtEventLoop: the system's time, and Qt's events turned one step at a time. exec() is
// never called: every wait, modal screens and the main loop included, is a loop over Run::yield().
#pragma once

#include "platform/clock.h"
#include "platform/run.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

namespace platform {

/// `scale` is how many milliseconds pass here for one of the wall's; programs run on 1, executables
/// for tests on more.
class QtClock : public Clock {
public:
    explicit QtClock(double scale = 1.0);
    DateTime now() const override;
    std::uint64_t milliseconds() const override;

    /// Milliseconds of the wall until the next timer is due, at most `longest`.
    int wallTimeToNextTimer(int longest) const;
    /// Milliseconds of the wall for so many of the program, at least 1.
    unsigned long wallTime(std::uint32_t milliseconds) const;

private:
    double factor;
    QDateTime begun;
    QElapsedTimer elapsed;
};

/// One turn delivers what waits (input, paints, due timers, screens to destroy) and then rests
/// until something arrives, at most kLongestRest and never past the next timer. What a handler
/// leaves to deleteLater() is destroyed by a turn outside that handler, never inside it. Must live
/// on the thread of the application object, and be destroyed before it.
class QtEventLoop : public QObject, public EventLoop {
public:
    /// Long enough that waiting costs next to nothing, short enough for a file to be noticed.
    static constexpr int kLongestRest = 5;

    explicit QtEventLoop(QtClock &theClock);
    /// A glance is a turn without the rest, and none within so much of the last one.
    static constexpr int kGlanceEvery = 5;
    void turn() override;
    void glance() override;
    /// Repainted at most this often, in milliseconds.
    static constexpr int kRepaintEvery = 50;
    void rest(std::uint32_t milliseconds) override;

protected:
    bool event(QEvent *event) override;

private:
    void deliver(bool outermost);
    void rest();

    QtClock &clock;
    QTimer alarm;
    QElapsedTimer sinceDelivery;
    QElapsedTimer sinceRepaint;
    int depth = 0;
};

} // namespace platform
