// PaymentWindow: the payment application's window in a demo. It shows what is to be paid and lets
// the user choose the bank's answer.
#pragma once

#include "simulator/outcome_table.h"

#include <QDialog>

#include <memory>

namespace Ui {
class PaymentWindow;
}

namespace simulator {

class PaymentWindow : public QDialog {
    Q_OBJECT

public:
    explicit PaymentWindow(const PaymentRequest &theRequest);
    ~PaymentWindow() override;

private:
    void answer(const std::string &content);

    std::unique_ptr<Ui::PaymentWindow> ui;
    PaymentRequest request;
};

} // namespace simulator
