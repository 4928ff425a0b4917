#include "platform/qt/header_bar.h"

#include "platform/qt/elided_label.h"

#include <QHBoxLayout>
#include <QVariant>

namespace platform {

HeaderBar::HeaderBar(QWidget *parent)
    : QFrame(parent), parts(new QHBoxLayout(this)), heading(new QLabel(this))
{
    parts->setContentsMargins(20, 0, 20, 0);
    parts->setSpacing(10);
    parts->addWidget(heading);
    parts->addStretch();
    setAccessibleName(QStringLiteral("Header"));
    heading->setObjectName(QStringLiteral("title"));
    heading->setProperty("part", QStringLiteral("title"));
}

QString HeaderBar::title() const
{
    return heading->text();
}

void HeaderBar::setTitle(const QString &text)
{
    heading->setText(text);
}

void HeaderBar::addPart(QWidget *part)
{
    if (part->property("part") == QStringLiteral("title")) {
        delete parts->replaceWidget(heading, part);
        delete heading;
        heading = qobject_cast<QLabel *>(part);
        return;
    }
    if (!part->property("part").isValid()) {
        part->setProperty("part", QStringLiteral("aside"));
        parts->addSpacing(8); // a value stands closer to its caption
    }
    auto *elided = qobject_cast<ElidedLabel *>(part);
    if (elided != nullptr)
        elided->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    else if (qobject_cast<QLabel *>(part) == nullptr)
        parts->setContentsMargins(20, 0, 12, 0); // a picture has room of its own around
    parts->addWidget(part, elided != nullptr ? 1 : 0);
}

} // namespace platform
