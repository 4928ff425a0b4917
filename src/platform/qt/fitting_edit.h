// FittingEdit: a box whose letters become smaller where its text would not fit. Where the smallest
// do not either, dots stand at its edge, so that a cut text is not read as a whole one.
#pragma once

#include <QLineEdit>

namespace platform {

class FittingEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit FittingEdit(QWidget *parent = nullptr);
    /// Sets the text without a change signal, so that it does not count as typed.
    void put(const QString &text);
    /// Those of the usual letters, so that the boxes around stay where they are.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QRect textPlace() const;
    bool fits(const QFont &letters) const;
    void fit();

    QFont usual;
    QSize usualSize;
    QSize usualLeast;
};

} // namespace platform
