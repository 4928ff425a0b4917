#include "support/qt/hand.h"

#include "support/qt/screen_checks.h"
#include "support/test_files.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace support {

namespace {

void press(int key, const QString &text = {})
{
    if (QWidget *target = QApplication::focusWidget())
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier, text));
}

/// The command of that name; null until it can be pressed.
QAbstractButton *commandNamed(const QWidget &window, const QString &name)
{
    for (auto *command : window.findChildren<QAbstractButton *>())
        if (accessibleNameOf(*command) == name && command->isEnabled())
            return command;
    return nullptr;
}

/// Types the row's beginning, and Enter, into the list that has the keyboard, once it has rows.
bool openRow(const QString &beginning)
{
    const auto *list = qobject_cast<QAbstractItemView *>(QApplication::focusWidget());
    if (list == nullptr || list->model()->rowCount() == 0)
        return false;
    for (const QChar letter : beginning)
        press(0, letter);
    press(Qt::Key_Return);
    return true;
}

} // namespace

Hand::Hand(platform::Clock &clock)
    : steps(QString::fromStdString(setting("LUMBRIO_PLAY_PRESS")).split(u';', Qt::SkipEmptyParts)),
      track(setting("LUMBRIO_PLAY_SWIPE")), presser(clock, [this] { takeStep(); }),
      reader(clock, [this] { swipe(); }), finger(clock, [this] { pressEscape(); })
{
    const std::string escapeAt = setting("LUMBRIO_PLAY_ESCAPE");
    presser.setInterval(steps.isEmpty() ? 0 : 20);
    reader.setInterval(track.empty() ? 0 : 20);
    if (!escapeAt.empty())
        finger.setInterval(static_cast<std::uint32_t>(std::stoul(escapeAt)));
}

void Hand::swipe()
{
    const auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    if (!steps.isEmpty() || box == nullptr || box->isReadOnly())
        return;
    reader.setInterval(0);
    // Each key goes to the box that has the focus when it is typed.
    for (const char letter : track) {
        press(0, QString(QLatin1Char(letter)));
        QCoreApplication::sendPostedEvents();
    }
}

void Hand::takeStep()
{
    const QWidget *window = QApplication::activeWindow();
    if (window == nullptr)
        return;
    const QString row = QStringLiteral("Row ");
    const bool opens = steps.first().startsWith(row);
    QAbstractButton *command = opens ? nullptr : commandNamed(*window, steps.first());
    if (opens ? !openRow(steps.first().mid(row.size())) : command == nullptr)
        return;
    steps.removeFirst();
    if (steps.isEmpty())
        presser.setInterval(0);
    if (command != nullptr)
        command->click(); // a modal screen goes on inside
}

void Hand::pressEscape()
{
    finger.setInterval(0);
    press(Qt::Key_Escape);
}

} // namespace support
