#include "support/qt/qt_station.h"

#include "support/qt/screen_checks.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

namespace support {

QWidget *controlNamed(const QString &accessibleName)
{
    const QWidget *modal = QApplication::activeModalWidget(); // no finger reaches behind it
    for (QWidget *control : QApplication::allWidgets()) {
        // A caption has the name of the control that it belongs to.
        const auto *label = qobject_cast<QLabel *>(control);
        const bool isCaption = label != nullptr && label->buddy() != nullptr;
        if (control->isVisible() && !control->isWindow() && !isCaption &&
            (modal == nullptr || control->window() == modal) &&
            accessibleNameOf(*control) == accessibleName)
            return control;
    }
    return nullptr;
}

bool click(const QString &accessibleName)
{
    auto *button = qobject_cast<QAbstractButton *>(controlNamed(accessibleName));
    if (button == nullptr || !button->isEnabled())
        return false;
    button->click();
    return true;
}

void touch(QWidget &control, QEvent::Type what, QPointF place)
{
    const auto held = what == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(what, place, control.mapToGlobal(place), Qt::LeftButton, held, {});
    QCoreApplication::sendEvent(&control, &event);
}

void press(Qt::Key key, const QString &text)
{
    QCoreApplication::processEvents(); // a window just shown takes the keyboard
    QWidget *focused = QApplication::focusWidget();
    if (focused == nullptr)
        focused = QApplication::activeWindow();
    ASSERT_NE(focused, nullptr) << "nothing has the keyboard";
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(focused, &event);
    }
}

} // namespace support
