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
    ui->keypadCard->typeInto(*ui->codeBox);
    connectCommands();
    setDefaultCommand(ui->okCommand);
    ui->codeBox->setFocus();
}

ManagerApproval::~ManagerApproval() = default;

void ManagerApproval::connectCommands()
{
    connect(ui->codeBox, &QLineEdit::textChanged, this,
            [this](const QString &text) { ui->okCommand->setDisabled(text.isEmpty()); });
    onClick(ui->okCommand, *this, &ManagerApproval::okCommand_Click); // "OK"
    onClick(ui->cancelCommand, *this, &ManagerApproval::closeAsked);  // "Cancel"
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
