#include "support/qt/screen_checks.h"

#include "platform/qt/elided_label.h"
#include "platform/qt/money_label.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>

namespace support {

namespace {

int widestWord(const QLabel &label)
{
    int widest = 0;
    for (const QString &word : label.text().split(QRegularExpression(QStringLiteral("\\s"))))
        widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
    return widest;
}

bool tooSmall(QWidget *control)
{
    if (qobject_cast<platform::MoneyLabel *>(control) != nullptr)
        return control->width() < control->minimumSizeHint().width() ||
               control->height() < control->sizeHint().height();
    if (qobject_cast<platform::ElidedLabel *>(control) != nullptr)
        return control->height() < control->minimumSizeHint().height();
    auto *label = qobject_cast<QLabel *>(control);
    if (label != nullptr && label->wordWrap())
        return label->height() < label->heightForWidth(label->width()) ||
               widestWord(*label) > label->contentsRect().width();
    const QSize wanted = control->sizeHint();
    if (auto *box = qobject_cast<QLineEdit *>(control))
        return box->height() < wanted.height() ||
               box->fontMetrics().horizontalAdvance(box->text()) > box->contentsRect().width();
    return (label != nullptr || qobject_cast<QAbstractButton *>(control) != nullptr ||
            qobject_cast<QTabBar *>(control) != nullptr) &&
           (control->width() < wanted.width() || control->height() < wanted.height());
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

} // namespace

QString accessibleNameOf(QWidget &control)
{
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&control);
    return seen == nullptr ? QString() : seen->text(QAccessible::Name);
}

std::string clippedControls(QWidget &window, QSize size)
{
    window.resize(size);
    QApplication::processEvents(); // the layouts follow
    QStringList found;
    if (window.width() > size.width() || window.height() > size.height())
        found << described(&window);
    const QList<QWidget *> all = visibleControls(window);
    for (QWidget *control : all) {
        const bool reachesOut = !control->parentWidget()->rect().contains(control->geometry());
        const bool overlaps = std::any_of(all.begin(), all.end(), [control](QWidget *other) {
            return other != control && other->parent() == control->parent() &&
                   other->geometry().intersects(control->geometry());
        });
        if (tooSmall(control) || reachesOut || overlaps)
            found << described(control);
    }
    return found.join(u'\n').toStdString();
}

std::string screenFaults(QWidget &window)
{
    std::string found;
    const bool fillsDisplay = window.isMaximized();
    const QSize usual = window.size();
    auto *pages = window.findChild<QTabWidget *>();
    for (int page = 0; page < (pages != nullptr ? pages->count() : 1); ++page) {
        if (pages != nullptr)
            pages->setCurrentIndex(page);
        for (const QSize size : kScreenSizes)
            found += clippedControls(window, fillsDisplay ? size : usual.boundedTo(size));
    }
    return found;
}

std::string elidedLabels(QWidget &window)
{
    QStringList found;
    for (auto *label : window.findChildren<platform::ElidedLabel *>()) {
        if (label->isVisible() && label->width() < label->sizeHint().width())
            found << label->text();
    }
    return found.join(u'\n').toStdString();
}

} // namespace support
