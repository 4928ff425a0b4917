// NoticePanel: the amber band with a notice that needs no click. Its parts
// stand side by side; a text of several lines stands below what comes before it.
// In a form: a QFrame promoted, whose children are handed to addPart().
#pragma once

#include <QFrame>

class QHBoxLayout;
class QVBoxLayout;

namespace platform {

class NoticePanel : public QFrame {
    Q_OBJECT

public:
    explicit NoticePanel(QWidget *parent = nullptr);

    /// Called by the form for each of its parts.
    void addPart(QWidget *part);

private:
    QVBoxLayout *lines;
    QHBoxLayout *line = nullptr; // the last one, where it is of single parts
};

} // namespace platform
