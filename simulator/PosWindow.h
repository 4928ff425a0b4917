// PosWindow: the point of sale in a demo. The user chooses table, receipt, server and amount,
// starts one tender after the other and reads the answer of each.
#pragma once

#include "simulator/pos_desk.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <vector>

namespace Ui {
class PosWindow;
}

namespace simulator {

class PosWindow : public QDialog {
    Q_OBJECT

public:
    explicit PosWindow(PosDesk &theDesk);
    ~PosWindow() override;

private:
    Mode mode() const;
    void TakeCard_clicked();
    void Clock_timeout();
    void showMode();
    void showSample(int row);
    void showRunning(bool running);
    void showAnswer();
    void showResult(const QString &words, const char *state);

    std::unique_ptr<Ui::PosWindow> ui;
    PosDesk &desk;
    std::vector<SampleAmount> samples; // of the mode, as listed
    QTimer Clock;                      // looks for the end of the tender
    bool waiting = false;
};

} // namespace simulator
