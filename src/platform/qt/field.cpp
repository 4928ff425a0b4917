#include "platform/qt/field.h"

#include "platform/qt/screen.h"

#include <QLabel>
#include <QVBoxLayout>

namespace platform {

Field::Field(QWidget *parent)
    : QFrame(parent), lines(new QVBoxLayout(this)), above(new QLabel(this))
{
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(2);
    lines->addWidget(above);
    above->setProperty("part", QStringLiteral("label"));
}

void Field::addPart(QWidget *part)
{
    lines->addWidget(part);
    if (value != nullptr)
        return;
    value = part;
    if (const auto *label = qobject_cast<QLabel *>(value))
        above->setAlignment(label->alignment() & Qt::AlignHorizontal_Mask);
    else
        above->setBuddy(value);
    nameValue();
}

void Field::setCaption(const QString &text)
{
    name = text;
    above->setText(text);
    nameValue();
}

/// What is only read has its name in front of each value, see putValue().
void Field::nameValue()
{
    if (value == nullptr)
        return;
    if (qobject_cast<QLabel *>(value) != nullptr)
        value->setAccessibleDescription(name.trimmed());
    else
        value->setAccessibleName(name.trimmed());
}

void Field::putFault(const QString &fault, const QString &explanation)
{
    const bool none = fault.isEmpty();
    above->setText(none ? name : fault);
    putLook(*above, "state", none ? "" : "declined");
    putLook(*value, "state", none ? "" : "wrong");
    value->setAccessibleDescription(none ? QString() : explanation);
}

} // namespace platform
