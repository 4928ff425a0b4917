#include "platform/qt/keypad.h"

#include <QGridLayout>
#include <QIcon>
#include <QLineEdit>
#include <QPushButton>

namespace platform {

Keypad::Keypad(QWidget *parent) : QFrame(parent), grid(new QGridLayout(this))
{
    setAccessibleName(QStringLiteral("Keypad"));
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(8);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    for (const std::size_t digit : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 0U}) {
        const QString text = QString::number(digit);
        digits[digit] = addKey(text, QStringLiteral("Digit ") + text);
        connect(digits[digit], &QAbstractButton::clicked, this, [this, text] { type(text); });
    }
    point = addKey(QStringLiteral("."), QStringLiteral("Point"));
    clear = addKey(QStringLiteral("Clear"), QStringLiteral("Clear"));
    back = addKey({}, QStringLiteral("Backspace"));
    point->setObjectName(QStringLiteral("pointKey"));
    clear->setObjectName(QStringLiteral("clearKey"));
    back->setObjectName(QStringLiteral("backspaceKey"));
    back->setIcon(QIcon(QStringLiteral(":/pictures/backspace.svg")));
    back->setIconSize({36, 28});
    connect(point, &QAbstractButton::clicked, this, [this] { type(QStringLiteral(".")); });
    connect(clear, &QAbstractButton::clicked, this, [this] { empty(); });
    connect(back, &QAbstractButton::clicked, this, &Keypad::backspace);
    setDigitName(QStringLiteral("digit"));
    arrange();
}

QPushButton *Keypad::addKey(const QString &text, const QString &name)
{
    auto *key = new QPushButton(text, this);
    key->setProperty("command", QStringLiteral("key"));
    key->setAccessibleName(name);
    key->setFocusPolicy(Qt::NoFocus); // the keyboard stays with the box
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return key;
}

void Keypad::arrange()
{
    for (int digit = 1; digit <= 9; ++digit) {
        const int row = (digit - 1) / 3;
        grid->addWidget(digits[static_cast<std::size_t>(digit)], forAmounts ? 2 - row : row,
                        (digit - 1) % 3);
    }
    grid->addWidget(forAmounts ? point : clear, 3, 0);
    grid->addWidget(digits[0], 3, 1);
    grid->addWidget(back, 3, 2);
    point->setHidden(!forAmounts);
    clear->setHidden(forAmounts);
}

void Keypad::setAmounts(bool on)
{
    forAmounts = on;
    arrange();
}

QString Keypad::digitName() const
{
    return digits[0]->objectName().chopped(2);
}

void Keypad::setDigitName(const QString &name)
{
    for (std::size_t digit = 0; digit < digits.size(); ++digit)
        digits[digit]->setObjectName(name + u'_' + QString::number(digit));
}

QString Keypad::clearName() const
{
    return clear->accessibleName();
}

void Keypad::setClearName(const QString &name)
{
    clear->setAccessibleName(name);
}

void Keypad::type(const QString &text)
{
    if (target == nullptr)
        return;
    if (forAmounts)
        target->insert(text);
    else
        target->setText(target->text() + text); // cut at the box's length
}

void Keypad::empty()
{
    if (target != nullptr)
        target->setText({});
}

void Keypad::backspace()
{
    if (target == nullptr)
        return;
    if (forAmounts)
        target->backspace();
    else
        target->setText(target->text().chopped(std::min<qsizetype>(1, target->text().size())));
}

} // namespace platform
