// ElidedLabel: a one-line label that ends in "..." where its text does not fit; the whole text is
// then its tool tip. For texts that others write, such as names.
#pragma once

#include <QLabel>

namespace platform {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QString fitting() const;
};

} // namespace platform
