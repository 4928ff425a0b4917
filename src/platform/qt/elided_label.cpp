#include "platform/qt/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace platform {

ElidedLabel::ElidedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int fewLetters = fontMetrics().horizontalAdvance(QStringLiteral("MM\u2026"));
    return {qMin(fewLetters, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::fitting() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), fitting(), foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    setToolTip(fitting() == text() ? QString() : text());
}

} // namespace platform
