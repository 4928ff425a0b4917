// QtStation: a test station with windows. Virtual time as elsewhere; each of its turns delivers
// Qt's events too, so a screen's waits and timers run without one real second passing.
#pragma once

#include "support/test_station.h"

#include <QAbstractButton>
#include <QApplication>
#include <QWidget>

namespace support {

class QtStation : public TestStation {
public:
    QtStation()
    {
        time.everyTurn = [] { QCoreApplication::processEvents(); };
    }
    /// What the person at the screen does half a second from now.
    void soon(std::function<void()> act) { time.after(500, std::move(act)); }
    ~QtStation() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
};

/// The visible control of that accessible name (a button's caption, where it has no other) in the
/// modal window, or in any open one while there is none; null when it is not there.
QWidget *controlNamed(const QString &accessibleName);
/// Clicks it as a finger does, when it is enabled; false when it is not, or not there.
bool click(const QString &accessibleName);
/// One event of a finger on it; a second tap is a press too (MouseButtonDblClick).
void touch(QWidget &control, QEvent::Type what, QPointF place = {2, 2});
/// Types into whatever has the keyboard.
void press(Qt::Key key, const QString &text = {});
inline void type(const QString &text)
{
    for (const QChar letter : text)
        press(Qt::Key_unknown, letter);
}

} // namespace support
