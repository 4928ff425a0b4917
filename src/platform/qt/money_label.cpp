#include "platform/qt/money_label.h"

#include <QPainter>
#include <QStyle>

namespace platform {

namespace {

constexpr int kLetters[] = {22, 16, 14, 11, 10}; // points, those that the theme has anyway
constexpr int kSmallest = 10;

int widthIn(QFont letters, int points, const QString &text)
{
    letters.setPointSize(points);
    return QFontMetrics(letters).horizontalAdvance(text);
}

} // namespace

MoneyLabel::MoneyLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

QSize MoneyLabel::minimumSizeHint() const
{
    const int margins = width() - contentsRect().width();
    return {widthIn(font(), kSmallest, text()) + margins, QLabel::minimumSizeHint().height()};
}

QFont MoneyLabel::lettersThatFit() const
{
    QFont letters = font();
    for (const int points : kLetters) {
        if (QFontMetrics(letters).horizontalAdvance(text()) <= contentsRect().width())
            break;
        if (points < letters.pointSize())
            letters.setPointSize(points);
    }
    return letters;
}

void MoneyLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(lettersThatFit());
    style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                          isEnabled(), text(), foregroundRole());
}

} // namespace platform
