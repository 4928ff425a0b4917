#include "tender/Xcharge2.h"

#include "platform/qt/qt_text.h"
#include "ui_Xcharge2.h"

#include <QRegularExpressionValidator>

#include <algorithm>

namespace tender {

using platform::fromQt;
using platform::putLook;
using platform::toQt;

namespace {

constexpr const char *kClearNames[] = {"Clear card number", "Clear expiry",
                                       "Clear verification digits"};

} // namespace

Xcharge2::Xcharge2(records::App &theApp)
    : Screen(theApp), app(theApp), ui(std::make_unique<Ui::Xcharge2>())
{
    ui->setupUi(this);
    ui->Label2->hide(); // working storage only
    boxes = {ui->Text1, ui->Text2, ui->Text3};
    connectCommands();
    setDefaultCommand(ui->SSCommand4);
    nameBox(0);
    ui->Text1->setFocus();
}

/// The focus also changes while the window goes.
Xcharge2::~Xcharge2()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void Xcharge2::connectCommands()
{
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    for (QLineEdit *box : boxes) {
        box->setValidator(new QRegularExpressionValidator(digits, box));
        connect(box, &QLineEdit::textChanged, this, &Xcharge2::boxesChanged);
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { boxGotFocus(now); });
    onClick(ui->SSCommand4, *this, &Xcharge2::SSCommand4_Click); // "Process"
    onClick(ui->SSCommand7, *this, &Xcharge2::SSCommand7_Click); // "Small Font" / "Large Font"
    onClick(ui->cancelCommand, *this, &Xcharge2::closeAsked);    // "Cancel"
}

void Xcharge2::Form_Load()
{
    font = entryFont(app);
    showFont();
}

void Xcharge2::SSCommand4_Click()
{
    processed =
        TypedCard{fromQt(ui->Text1->text()), fromQt(ui->Text2->text()), fromQt(ui->Text3->text())};
    unload();
}

void Xcharge2::SSCommand7_Click()
{
    font = switchEntryFont(app, font);
    showFont();
}

void Xcharge2::boxGotFocus(QWidget *now)
{
    const auto box = std::find(boxes.begin(), boxes.end(), now);
    if (box != boxes.end())
        nameBox(static_cast<std::size_t>(box - boxes.begin()));
}

void Xcharge2::boxesChanged()
{
    ui->SSCommand4->setEnabled(
        processAllowed(fromQt(ui->Text1->text()), fromQt(ui->Text2->text())));
}

/// It stays named, and yellow, while a command has the keyboard: the keypad goes on with it.
void Xcharge2::nameBox(std::size_t item)
{
    ui->Label2->setText(QString::number(item));
    ui->keypadCard->setClearName(toQt(kClearNames[item]));
    ui->keypadCard->typeInto(*boxes[item]);
    for (QLineEdit *box : boxes)
        putLook(*box, "keypad", box == boxes[item] ? "yes" : "no");
}

QLineEdit &Xcharge2::namedBox() const
{
    return *boxes[ui->Label2->text().toUInt()];
}

void Xcharge2::showFont()
{
    for (QLineEdit *box : boxes)
        putLook(*box, "entry", font == EntryFont::Large ? "large" : "small");
    ui->SSCommand7->setText(toQt(switchCaption(font)));
}

} // namespace tender
