#include "platform/qt/question_panel.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QLabel>
#include <QVariant>

namespace platform {

QuestionPanel::QuestionPanel(QWidget *parent)
    : QFrame(parent), whole(new QHBoxLayout(this)), texts(new QVBoxLayout),
      edgeBar(new QFrame(this))
{
    edgeBar->hide();
    texts->setContentsMargins(12, 16, 20, 16);
    texts->setSpacing(8);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(edgeBar);
    whole->addLayout(texts, 1);
    setAccessibleName(QStringLiteral("Question"));
    setProperty("card", QStringLiteral("plain"));
    connect(this, &QObject::objectNameChanged, edgeBar, [this](QString name) {
        edgeBar->setObjectName(name.remove(QStringLiteral("Card")) + QStringLiteral("Edge"));
    });
}

void QuestionPanel::addPart(QWidget *part)
{
    if (qobject_cast<QAbstractButton *>(part) != nullptr)
        return addAnswer(part);
    if (part->property("place") == QStringLiteral("bottom"))
        texts->addStretch();
    auto *label = qobject_cast<QLabel *>(part);
    if (label != nullptr && inTheMiddle)
        label->setAlignment(Qt::AlignCenter);
    texts->insertWidget(texts->count() - (inTheMiddle ? 1 : 0), part);
}

void QuestionPanel::addAnswer(QWidget *answer)
{
    if (answers == nullptr) {
        answers = new QHBoxLayout;
        answers->setSpacing(8);
        answers->addStretch();
        if (!inTheMiddle)
            texts->addStretch();
        texts->insertLayout(texts->count() - (inTheMiddle ? 1 : 0), answers);
        if (inTheMiddle)
            answers->addStretch();
    }
    answers->insertWidget(answers->count() - (inTheMiddle ? 1 : 0), answer);
}

void QuestionPanel::setCentred(bool on)
{
    if (on && !inTheMiddle)
        for (int end = 0; end < 2; ++end)
            texts->addStretch();
    inTheMiddle = on;
}

QString QuestionPanel::edgeState() const
{
    return edgeBar->property("edge").toString();
}

void QuestionPanel::setEdgeState(const QString &state)
{
    edgeBar->setProperty("edge", state);
    edgeBar->setHidden(state.isEmpty());
}

} // namespace platform
