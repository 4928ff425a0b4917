// WaitPanel: how long something has been waited for: a bar that fills in the usual time, and the
// seconds, which go on being counted after that.
// In a form: a QWidget promoted, whose one child is the label of the seconds.
#pragma once

#include <QWidget>

#include <string>

class QHBoxLayout;
class QLabel;
class QProgressBar;

namespace platform {

class WaitPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int usualWait READ usualWait WRITE setUsualWait)

public:
    explicit WaitPanel(QWidget *parent = nullptr);

    /// Called by the form for the label of the seconds.
    void addPart(QWidget *seconds);

    int usualWait() const; // seconds
    void setUsualWait(int seconds);
    void putWaited(const std::string &seconds);
    /// When the wait is over the seconds stay.
    void putRunning(bool running);

private:
    QHBoxLayout *line;
    QProgressBar *bar;
    QLabel *waited = nullptr;
};

} // namespace platform
