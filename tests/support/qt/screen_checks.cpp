#include "support/qt/screen_checks.h"

#include "platform/qt/elided_label.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace support {

namespace {

bool isCommandOrBox(QWidget *control)
{
    return qobject_cast<QAbstractButton *>(control) != nullptr ||
           qobject_cast<QLineEdit *>(control) != nullptr ||
           qobject_cast<QAbstractScrollArea *>(control) != nullptr;
}

bool tooSmall(QWidget *control)
{
    if (qobject_cast<platform::ElidedLabel *>(control) != nullptr)
        return control->height() < control->minimumSizeHint().height();
    if (auto *label = qobject_cast<QLabel *>(control); label != nullptr && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    if (auto *box = qobject_cast<QLineEdit *>(control)) {
        return box->height() < box->sizeHint().height() ||
               box->fontMetrics().horizontalAdvance(box->text()) > box->contentsRect().width();
    }
    if (qobject_cast<QLabel *>(control) == nullptr &&
        qobject_cast<QAbstractButton *>(control) == nullptr)
        return false;
    const QSize wanted = control->sizeHint();
    return control->width() < wanted.width() || control->height() < wanted.height();
}

std::string lines(const QStringList &found)
{
    return found.join(u'\n').toStdString();
}

QString described(const QWidget *control)
{
    return QStringLiteral("%1 (%2 x %3)")
        .arg(control->objectName())
        .arg(control->width())
        .arg(control->height());
}

QList<QWidget *> visibleControls(QWidget &window)
{
    QList<QWidget *> all = window.findChildren<QWidget *>();
    all.removeIf([](const QWidget *one) {
        return !one->isVisible() || one->isWindow() || one->objectName().startsWith(u"qt_");
    });
    return all;
}

bool overlapsASibling(const QWidget *control, const QList<QWidget *> &all)
{
    return std::any_of(all.begin(), all.end(), [control](const QWidget *other) {
        return other != control && other->parent() == control->parent() &&
               other->geometry().intersects(control->geometry());
    });
}

} // namespace

void resizeTo(QWidget &window, QSize size)
{
    window.resize(size);
    QApplication::processEvents();
}

std::string clippedControls(QWidget &window, QSize size)
{
    resizeTo(window, size);
    QStringList found;
    if (window.width() > size.width() || window.height() > size.height())
        found << described(&window);
    const QList<QWidget *> all = visibleControls(window);
    for (QWidget *control : all) {
        const bool reachesOut = !control->parentWidget()->rect().contains(control->geometry());
        if (tooSmall(control) || reachesOut || overlapsASibling(control, all))
            found << described(control);
    }
    return lines(found);
}

std::string elidedLabels(QWidget &window)
{
    QStringList found;
    for (auto *label : window.findChildren<platform::ElidedLabel *>()) {
        if (label->isVisible() && label->width() < label->sizeHint().width())
            found << label->text();
    }
    return lines(found);
}

std::string badlyNamedControls(QWidget &window)
{
    QStringList found;
    QStringList names;
    for (QWidget *control : visibleControls(window)) {
        if (!isCommandOrBox(control))
            continue;
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(control);
        const QString name = seen == nullptr ? QString() : seen->text(QAccessible::Name);
        if (name.isEmpty() || names.contains(name))
            found << control->objectName() + QStringLiteral(": ") + name;
        names << name;
    }
    return lines(found);
}

} // namespace support
