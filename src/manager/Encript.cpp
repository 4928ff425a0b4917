#include "manager/Encript.h"

#include "ui_Encript.h"

#include "platform/qt/qt_text.h"
#include "records/card_helpers.h"

#include <QRegularExpressionValidator>

namespace manager {

Encript::Encript(platform::Services &theServices)
    : Screen(theServices), ui(std::make_unique<Ui::Encript>())
{
    ui->setupUi(this);
    // What the shared files can hold: one byte a character.
    static const QRegularExpression singleBytes(QStringLiteral("[\\x{0}-\\x{FF}]*"));
    ui->Text1->setValidator(new QRegularExpressionValidator(singleBytes, this));
    onClick(ui->SSCommand1, *this, &Encript::SSCommand1_Click);
    onClick(ui->SSCommand2, *this, &Encript::SSCommand2_Click);
    setDefaultCommand(ui->SSCommand1);
    ui->Text1->setFocus();
}

Encript::~Encript() = default;

void Encript::SSCommand1_Click()
{
    replaceText(records::StrEncode(platform::fromQt(ui->Text1->text())));
}

void Encript::SSCommand2_Click()
{
    replaceText(records::StrDecode(platform::fromQt(ui->Text1->text())));
}

void Encript::replaceText(const std::string &text)
{
    ui->Text1->setText(platform::toQt(text));
    ui->Text1->selectAll();
    ui->Text1->setFocus();
}

/// The tool has no other screen.
void Encript::closeAsked()
{
    services.end();
}

} // namespace manager
