#include "platform/qt/notice_panel.h"

#include "platform/qt/elided_label.h"

#include <QHBoxLayout>
#include <QVariant>

namespace platform {

NoticePanel::NoticePanel(QWidget *parent) : QFrame(parent), lines(new QVBoxLayout(this))
{
    lines->setContentsMargins(0, 0, 0, 0); // the theme has the room around
    lines->setSpacing(4);
    setAccessibleName(QStringLiteral("Notice"));
    setProperty("band", QStringLiteral("notice"));
}

void NoticePanel::addPart(QWidget *part)
{
    const auto *label = qobject_cast<QLabel *>(part);
    if (label != nullptr && label->wordWrap()) {
        lines->addWidget(part);
        line = nullptr;
        return;
    }
    if (line == nullptr) {
        line = new QHBoxLayout;
        line->setSpacing(12);
        line->addStretch();
        lines->addLayout(line);
    }
    line->insertWidget(line->count() - 1, part, qobject_cast<ElidedLabel *>(part) ? 1 : 0);
}

} // namespace platform
