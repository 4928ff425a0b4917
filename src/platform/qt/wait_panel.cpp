#include "platform/qt/wait_panel.h"

#include "platform/qt/controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVariant>

namespace platform {

WaitPanel::WaitPanel(QWidget *parent)
    : QWidget(parent), line(new QHBoxLayout(this)), bar(new QProgressBar(this))
{
    setAccessibleName(QStringLiteral("Wait"));
    bar->setObjectName(QStringLiteral("waitBar"));
    bar->setAccessibleName(QStringLiteral("Time waited"));
    bar->setTextVisible(false);
    bar->setMinimumWidth(160);
    bar->setMaximumWidth(420);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addStretch(1);
    line->addWidget(bar, 4);
    line->addStretch(1);
}

void WaitPanel::addPart(QWidget *seconds)
{
    waited = qobject_cast<QLabel *>(seconds);
    waited->setProperty("part", QStringLiteral("value"));
    waited->setMinimumWidth(44);
    waited->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *unit = new QLabel(QStringLiteral("seconds"), this);
    unit->setObjectName(QStringLiteral("secondsCaption"));
    unit->setProperty("part", QStringLiteral("hint"));
    line->insertWidget(2, waited);
    line->insertWidget(3, unit);
}

int WaitPanel::usualWait() const
{
    return bar->maximum();
}

void WaitPanel::setUsualWait(int seconds)
{
    bar->setMaximum(seconds);
}

void WaitPanel::putWaited(const std::string &seconds)
{
    putValue(*waited, seconds);
    bar->setValue(waited->text().toInt());
}

void WaitPanel::putRunning(bool running)
{
    putVisible(*bar, running);
}

} // namespace platform
