// HeaderBar: the dark band at the top of every screen. Its title stands at the left; what the form
// puts into it (place, station, name, clock or version) stands at the right.
// In a form: a QFrame promoted, whose children are handed to addPart().
#pragma once

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace platform {

class HeaderBar : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    explicit HeaderBar(QWidget *parent = nullptr);

    QString title() const;
    void setTitle(const QString &text);
    /// Called by the form for each of its parts, from left to right. A label of the part "title"
    /// takes the title's place; an ElidedLabel has the room that is left.
    void addPart(QWidget *part);

private:
    QHBoxLayout *parts;
    QLabel *heading;
};

} // namespace platform
