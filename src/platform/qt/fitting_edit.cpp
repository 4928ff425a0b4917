#include "platform/qt/fitting_edit.h"

#include <QFocusEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFrame>

namespace platform {

namespace {

constexpr double kLeastLetters = 7; // pt
constexpr double kStep = 0.5;
constexpr int kMargin = 2; // Qt's, between the frame and the letters

} // namespace

FittingEdit::FittingEdit(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &FittingEdit::fit);
}

void FittingEdit::put(const QString &shown)
{
    if (text() == shown)
        return;
    const QSignalBlocker quiet(this);
    const int typedUpTo = hasFocus() ? cursorPosition() : 0;
    setText(shown);
    setCursorPosition(typedUpTo);
    fit();
}

QSize FittingEdit::sizeHint() const
{
    return usualSize.isValid() ? usualSize : QLineEdit::sizeHint();
}

QSize FittingEdit::minimumSizeHint() const
{
    return usualLeast.isValid() ? usualLeast : QLineEdit::minimumSizeHint();
}

QRect FittingEdit::textPlace() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .adjusted(kMargin, 0, -kMargin, 0);
}

bool FittingEdit::fits(const QFont &letters) const
{
    return QFontMetrics(letters).horizontalAdvance(displayText()) < textPlace().width();
}

void FittingEdit::fit()
{
    if (!usualSize.isValid())
        return; // not shown yet
    QFont letters = usual;
    while (!fits(letters) && letters.pointSizeF() > kLeastLetters)
        letters.setPointSizeF(letters.pointSizeF() - kStep);
    const QString look =
        letters == usual ? QString() : QStringLiteral("font-size: %1pt").arg(letters.pointSizeF());
    if (styleSheet() != look)
        setStyleSheet(look);
}

/// While somebody types, the box shows the place that is typed at.
void FittingEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (hasFocus() || fits(font()))
        return;
    QPainter painter(this);
    const QString dots = QStringLiteral("\u2026");
    QRect place = textPlace();
    place.setLeft(place.right() - fontMetrics().horizontalAdvance(dots));
    painter.fillRect(place.adjusted(0, 0, kMargin, 0), palette().base());
    painter.setPen(palette().text().color());
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, dots);
}

void FittingEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    fit();
}

void FittingEdit::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    if (usualSize.isValid())
        return;
    usual = font();
    usualLeast = QLineEdit::minimumSizeHint();
    usualSize = QLineEdit::sizeHint();
    fit();
}

void FittingEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const bool leavesWindow =
        event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason;
    if (!leavesWindow && !fits(font()))
        setCursorPosition(0); // the beginning is what is read
}

} // namespace platform
