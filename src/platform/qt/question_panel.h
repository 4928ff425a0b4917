// QuestionPanel: a card that asks for a decision. Its texts stand at the top, its answers side by
// side at the bottom; centred, all of it stands in the middle.
// In a form: a QFrame promoted, whose children are handed to addPart().
#pragma once

#include <QFrame>

class QHBoxLayout;
class QVBoxLayout;

namespace platform {

class QuestionPanel : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool centred READ centred WRITE setCentred)
    Q_PROPERTY(QString edgeState READ edgeState WRITE setEdgeState)

public:
    explicit QuestionPanel(QWidget *parent = nullptr);

    /// Called by the form for each of its parts, from top to bottom. Buttons are the answers. The
    /// property "place" of a part, "bottom", begins the lower half above them.
    void addPart(QWidget *part);

    bool centred() const { return inTheMiddle; }
    void setCentred(bool on);
    /// The state that colours the left edge ("attention"); without it there is no such edge.
    QString edgeState() const;
    void setEdgeState(const QString &state);

private:
    void addAnswer(QWidget *answer);

    QHBoxLayout *whole;
    QVBoxLayout *texts;
    QHBoxLayout *answers = nullptr;
    QFrame *edgeBar;
    bool inTheMiddle = false;
};

} // namespace platform
