#include "tender/XCreader1.h"

#include "platform/qt/qt_text.h"
#include "tender/result_reader.h"
#include "ui_XCreader1.h"

namespace tender {

using platform::fromQt;
using platform::toQt;

XCreader1::XCreader1(records::App &theApp)
    : Screen(theApp), app(theApp), ui(std::make_unique<Ui::XCreader1>())
{
    ui->setupUi(this);
    ui->Text1->setText(toQt(kDefaultResultFile));
    onClick(ui->Command1, *this, &XCreader1::Command1_Click);
    onClick(ui->Command2, *this, &XCreader1::Command2_Click);
    onClick(ui->Command3, *this, &XCreader1::Command3_Click);
    setDefaultCommand(ui->Command1);
}

XCreader1::~XCreader1() = default;

void XCreader1::Command1_Click()
{
    ui->List1->clear();
    for (const std::string &line : readResultFile(app, fromQt(ui->Text1->text())).lines)
        ui->List1->addItem(toQt(line));
}

void XCreader1::Command2_Click()
{
    unload();
}

/// A trial on a record of its own: the working record stays as it is.
void XCreader1::Command3_Click()
{
    records::CardRecord trial;
    for (const std::string &line : platform::splitLines(fromQt(ui->Text3->toPlainText())))
        applyResultLine(line, trial);
    ui->List1->clear();
    for (const std::string &line : platform::splitLines(resultDebugFile(trial)))
        ui->List1->addItem(toQt(line));
}

} // namespace tender
