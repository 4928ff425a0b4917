#include "tender/ManagerApproval.h"

#include "platform/qt/qt_text.h"
#include "ui_ManagerApproval.h"

#include <QKeyEvent>

namespace tender {

using platform::fromQt;
using platform::toQt;

ManagerApproval::ManagerApproval(records::App &theApp, const ManagerQuestion &question)
    : Screen(theApp), ui(std::make_unique<Ui::ManagerApproval>()), check(theApp)
{
    ui->setupUi(this);
    ui->what->setText(toQt(question.what));
    ui->amount->setText(toQt(question.amount));
    ui->amount->setHidden(question.amount.empty());
    digits = {ui->digit_0, ui->digit_1, ui->digit_2, ui->digit_3, ui->digit_4,
              ui->digit_5, ui->digit_6, ui->digit_7, ui->digit_8, ui->digit_9};
    connectCommands();
    setDefaultCommand(ui->okCommand);
    ui->codeBox->setFocus();
}

ManagerApproval::~ManagerApproval() = default;

void ManagerApproval::connectCommands()
{
    connect(ui->codeBox, &QLineEdit::textChanged, this,
            [this](const QString &text) { ui->okCommand->setDisabled(text.isEmpty()); });
    for (int digit = 0; digit < 10; ++digit)
        connect(digits[static_cast<std::size_t>(digit)], &QAbstractButton::clicked, this,
                [this, digit] { digit_Click(digit); });
    const auto click = [this](QAbstractButton *command, void (ManagerApproval::*handler)()) {
        connect(command, &QAbstractButton::clicked, this, handler);
    };
    click(ui->okCommand, &ManagerApproval::okCommand_Click); // "OK"
    click(ui->cancelCommand, &ManagerApproval::closeAsked);  // "Cancel"
    click(ui->backspaceKey, &ManagerApproval::backspaceKey_Click);
    connect(ui->clearKey, &QAbstractButton::clicked, this, [this] { ui->codeBox->setText({}); });
}

void ManagerApproval::okCommand_Click()
{
    const std::string text = fromQt(ui->codeBox->text());
    ui->codeBox->setText({}); // unlike clear(), nothing that could be brought back
    ui->codeBox->setFocus();
    check.read(text);
    ui->answer->setText(toQt(check.triesLeft()));
    if (check.decided())
        unload();
}

void ManagerApproval::digit_Click(int digit)
{
    ui->codeBox->setText(ui->codeBox->text() + QString::number(digit));
}

void ManagerApproval::backspaceKey_Click()
{
    QString text = ui->codeBox->text();
    text.chop(1);
    ui->codeBox->setText(text);
}

void ManagerApproval::closeAsked()
{
    check.refuse();
    unload();
}

/// A reader types whatever has the keyboard: its first character takes it back to the box, before
/// the blanks of a name could press the command that has it.
void ManagerApproval::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    if (ui->codeBox->hasFocus() || text.isEmpty() || !text.at(0).isPrint())
        return Screen::keyPressEvent(event);
    ui->codeBox->setFocus();
    ui->codeBox->insert(text);
}

} // namespace tender
