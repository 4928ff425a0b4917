#include "support/qt/qt_station.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QLabel>

namespace support {

namespace {

QString nameOf(QWidget &control)
{
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&control);
    return seen == nullptr ? QString() : seen->text(QAccessible::Name);
}

/// A caption has the name of the control that it belongs to.
bool isCaption(QWidget *control)
{
    const auto *label = qobject_cast<QLabel *>(control);
    return label != nullptr && label->buddy() != nullptr;
}

void send(int key, const QString &text)
{
    QCoreApplication::processEvents(); // a window just shown takes the keyboard
    QWidget *focused = QApplication::focusWidget();
    if (focused == nullptr)
        focused = QApplication::activeWindow();
    if (focused == nullptr)
        return;
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(kind, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(focused, &event);
    }
}

} // namespace

QWidget *controlNamed(const QString &accessibleName)
{
    for (QWidget *control : QApplication::allWidgets()) {
        if (control->isVisible() && !control->isWindow() && !isCaption(control) &&
            nameOf(*control) == accessibleName)
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

void press(Qt::Key key)
{
    send(key, {});
}

void type(const QString &text)
{
    for (const QChar letter : text)
        send(0, letter);
}

} // namespace support
