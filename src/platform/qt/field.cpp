#include "platform/qt/field.h"

#include "platform/qt/screen.h"

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace platform {

Field::Field(QWidget *parent)
    : QFrame(parent), lines(new QVBoxLayout(this)), above(new QLabel(this))
{
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(2);
    lines->addWidget(above);
    above->setProperty("part", QStringLiteral("label"));
    above->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QObject::objectNameChanged, above, [this](const QString &ownName) {
        above->setObjectName(ownName + QStringLiteral("Caption"));
    });
}

void Field::addPart(QWidget *part)
{
    lines->addWidget(part);
    if (value != nullptr)
        return;
    value = part;
    if (value->property("part").isValid()) // without a frame
        lines->setSpacing(0);
    if (const auto *label = qobject_cast<QLabel *>(value))
        above->setAlignment((label->alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
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
    const bool onlyRead = qobject_cast<QLabel *>(value) != nullptr;
    if (onlyRead && value->accessibleDescription().isEmpty())
        value->setAccessibleDescription(name.trimmed());
    if (!onlyRead && value->accessibleName().isEmpty())
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
