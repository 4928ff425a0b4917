#include "support/qt/hand.h"

#include "support/qt/screen_checks.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <cstdlib>

namespace support {

namespace {

void press(int key, const QString &text = {})
{
    if (QWidget *target = QApplication::focusWidget())
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(target, new QKeyEvent(type, key, Qt::NoModifier, text));
}

} // namespace

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

Hand::Hand(platform::Clock &clock)
    : caption(QString::fromStdString(setting("LUMBRIO_PLAY_PRESS"))),
      track(setting("LUMBRIO_PLAY_SWIPE")), presser(clock, [this] { pressCommand(); }),
      reader(clock, [this] { swipe(); }), finger(clock, [this] { pressEscape(); })
{
    const std::string escapeAt = setting("LUMBRIO_PLAY_ESCAPE");
    presser.setInterval(caption.isEmpty() ? 0 : 20);
    reader.setInterval(track.empty() ? 0 : 20);
    if (!escapeAt.empty())
        finger.setInterval(static_cast<std::uint32_t>(std::stoul(escapeAt)));
}

void Hand::swipe()
{
    const auto *box = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    if (!caption.isEmpty() || box == nullptr || box->isReadOnly())
        return;
    reader.setInterval(0);
    // Each key goes to the box that has the focus when it is typed.
    for (const char letter : track) {
        press(0, QString(QLatin1Char(letter)));
        QCoreApplication::sendPostedEvents();
    }
}

void Hand::pressCommand()
{
    const QWidget *window = QApplication::activeWindow();
    if (window == nullptr)
        return;
    for (auto *command : window->findChildren<QAbstractButton *>()) {
        if (accessibleNameOf(*command) != caption || !command->isEnabled())
            continue;
        caption.clear();
        presser.setInterval(0);
        command->click(); // a modal screen goes on inside
        return;
    }
}

void Hand::pressEscape()
{
    finger.setInterval(0);
    press(Qt::Key_Escape);
}

} // namespace support
