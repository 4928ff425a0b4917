// Field: a caption above the value or the box that it names, to the eye and to screen readers.
// With the look "card" it is a card of its own.
// In a form: a QFrame promoted, whose children are handed to addPart().
#pragma once

#include <QFrame>

class QLabel;
class QVBoxLayout;

namespace platform {

class Field : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption)

public:
    explicit Field(QWidget *parent = nullptr);

    /// Called by the form. The first part is the one that the caption names, unless it has another
    /// name; further ones stand in its place while it is hidden.
    void addPart(QWidget *part);

    QString caption() const { return name; }
    void setCaption(const QString &text);
    /// For a box with an invalid text: shows the fault in the caption's place, in red, and gives
    /// the whole explanation to a screen reader. An empty fault brings the caption back.
    void putFault(const QString &fault, const QString &explanation);

private:
    void nameValue();

    QVBoxLayout *lines;
    QLabel *above;
    QWidget *value = nullptr;
    QString name;
};

} // namespace platform
