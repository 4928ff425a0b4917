// MoneyLabel: an amount at the right of its place, which is never cut: where it would be, it is
// written in the next smaller letters of the theme, and the place grows for the smallest.
// In a form: a QLabel promoted. Its "part" gives the usual letters.
#pragma once

#include <QLabel>

namespace platform {

class MoneyLabel : public QLabel {
    Q_OBJECT

public:
    explicit MoneyLabel(QWidget *parent = nullptr);

    /// The width of the smallest letters and the height of the usual ones, so that neighbours do
    /// not move.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont lettersThatFit() const;
};

} // namespace platform
