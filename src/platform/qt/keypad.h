// Keypad: digits for a finger, which go into a box beside what the keyboard types. For codes they
// stand as on a telephone, with "Clear"; for amounts as on a calculator, with a point.
#pragma once

#include <QFrame>

#include <array>

class QGridLayout;
class QLineEdit;
class QPushButton;

namespace platform {

class Keypad : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool amounts READ amounts WRITE setAmounts)
    Q_PROPERTY(QString digitName READ digitName WRITE setDigitName)
    Q_PROPERTY(QString clearName READ clearName WRITE setClearName)

public:
    explicit Keypad(QWidget *parent = nullptr);

    /// The box that the keys go to from now on. A code grows at its end, and deleted digits
    /// cannot be undone; an amount is typed where the cursor is, over what is selected.
    void typeInto(QLineEdit &box) { target = &box; }

    bool amounts() const { return forAmounts; }
    void setAmounts(bool on);
    /// The digits' object names are this followed by "_0" to "_9".
    QString digitName() const;
    void setDigitName(const QString &name);
    /// What a screen reader calls "Clear": it says what is cleared.
    QString clearName() const;
    void setClearName(const QString &name);

private:
    QPushButton *addKey(const QString &text, const QString &name);
    void arrange();
    void type(const QString &text);
    void empty();
    void backspace();

    QGridLayout *grid;
    std::array<QPushButton *, 10> digits{};
    QPushButton *point;
    QPushButton *clear;
    QPushButton *back;
    QLineEdit *target = nullptr;
    bool forAmounts = false;
};

} // namespace platform
