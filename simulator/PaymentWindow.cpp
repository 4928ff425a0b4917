// The whole program sim_xcharge_window: sim_xcharge becomes it when a person shall decide.
#include "simulator/PaymentWindow.h"

#include "platform/qt/qt_text.h"
#include "platform/qt/screen.h"
#include "simulator/result_file.h"
#include "ui_PaymentWindow.h"

#include <QApplication>
#include <QPushButton>

namespace simulator {

PaymentWindow::PaymentWindow(const PaymentRequest &theRequest)
    : ui(std::make_unique<Ui::PaymentWindow>()), request(theRequest)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setWindowFlag(Qt::WindowStaysOnTopHint); // the tender stays above all others too
    ui->Amount->setText(platform::toQt("$" + request.amount));
    ui->Receipt->setText(platform::toQt(request.receipt));
    ui->Clerk->setText(platform::toQt(request.clerk));
    ui->Kind->setText(platform::toQt(request.transactionType));
    ui->Partial->setEnabled(request.partialSupport);
    connect(ui->Approve, &QPushButton::clicked, this, [this] { answer(approvedResult(request)); });
    connect(ui->Decline, &QPushButton::clicked, this, [this] { answer(declinedResult(request)); });
    connect(ui->Partial, &QPushButton::clicked, this, [this] { answer(partialResult(request)); });
    connect(ui->Close, &QPushButton::clicked, this, &QDialog::reject); // no answer
}

PaymentWindow::~PaymentWindow() = default;

void PaymentWindow::answer(const std::string &content)
{
    PaymentOutcome outcome;
    outcome.content = content;
    if (deliver(outcome, resultPath(request)))
        accept();
    else
        ui->Notice->setText(QStringLiteral("The result file could not be written."));
}

} // namespace simulator

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    platform::applyTheme(application);
    std::string arguments;
    for (int i = 1; i < argc; ++i)
        arguments += std::string(argv[i]) + ' ';
    simulator::PaymentWindow window(simulator::parsePaymentRequest(arguments));
    window.show();
    return QApplication::exec();
}
