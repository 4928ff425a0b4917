#include "platform/qt/qt_event_loop.h"

#include <QApplication>
#include <QEvent>
#include <QThread>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

QtClock::QtClock(double scale) : factor(scale), begun(QDateTime::currentDateTime())
{
    elapsed.start();
}

DateTime QtClock::now() const
{
    // Read anew each time: the system's clock may be set, or change to summer time, meanwhile.
    const QDateTime local = factor == 1.0 ? QDateTime::currentDateTime()
                                          : begun.addMSecs(static_cast<qint64>(milliseconds()));
    const QDate date = local.date();
    const QTime time = local.time();
    return {date.year(),   date.month(),  date.day(), time.hour(),
            time.minute(), time.second(), time.msec()};
}

std::uint64_t QtClock::milliseconds() const
{
    return static_cast<std::uint64_t>(static_cast<double>(elapsed.elapsed()) * factor);
}

int QtClock::wallTimeToNextTimer(int longest) const
{
    const std::optional<std::uint64_t> due = nextDue();
    if (!due)
        return longest;
    const std::uint64_t present = milliseconds();
    if (*due <= present)
        return 0;
    const double wall = std::ceil(static_cast<double>(*due - present) / factor);
    return static_cast<int>(std::min(wall, static_cast<double>(longest)));
}

unsigned long QtClock::wallTime(std::uint32_t milliseconds) const
{
    return static_cast<unsigned long>(std::max(1.0, milliseconds / factor));
}

QtEventLoop::QtEventLoop(QtClock &theClock) : clock(theClock)
{
    alarm.setSingleShot(true);
    alarm.setTimerType(Qt::PreciseTimer);
    sinceDelivery.start();
}

void QtEventLoop::turn()
{
    deliver(depth++ == 0);
    rest();
    --depth;
}

void QtEventLoop::glance()
{
    if (sinceDelivery.elapsed() < kGlanceEvery)
        return;
    deliver(depth++ == 0);
    --depth;
}

/// Straight to the windows, whole: an event loop would bring input and timers along.
void QtEventLoop::rest(std::uint32_t milliseconds)
{
    if (!sinceRepaint.isValid() || sinceRepaint.elapsed() >= kRepaintEvery) {
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->isVisible())
                window->repaint();
        sinceRepaint.restart();
    }
    QThread::msleep(clock.wallTime(milliseconds));
}

void QtEventLoop::deliver(bool outermost)
{
    QCoreApplication::processEvents();
    // Below an outermost turn no handler runs. An inner one leaves it to Qt's own count of levels.
    if (outermost)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // Timers fire inside an event, so that what their handlers leave to deleteLater() is counted
    // as left by a running handler.
    QEvent due(QEvent::User);
    QCoreApplication::sendEvent(this, &due);
    sinceDelivery.restart();
}

bool QtEventLoop::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return QObject::event(event);
    clock.fireDueTimers();
    return true;
}

void QtEventLoop::rest()
{
    const int wall = clock.wallTimeToNextTimer(kLongestRest);
    if (wall == 0)
        return;
    alarm.start(wall);
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    alarm.stop();
}

} // namespace platform
