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
    ui->Label2->hide(); // working storage alone
    boxes = {ui->Text1, ui->Text2, ui->Text3};
    SSCommand6 = {ui->SSCommand6_0, ui->SSCommand6_1, ui->SSCommand6_2, ui->SSCommand6_3,
                  ui->SSCommand6_4, ui->SSCommand6_5, ui->SSCommand6_6, ui->SSCommand6_7,
                  ui->SSCommand6_8, ui->SSCommand6_9};
    connectCommands();
    setDefaultCommand(ui->SSCommand4);
    nameBox(0);
    ui->Text1->setFocus();
}

Xcharge2::~Xcharge2() = default;

void Xcharge2::connectCommands()
{
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    for (QLineEdit *box : boxes) {
        box->setValidator(new QRegularExpressionValidator(digits, box));
        connect(box, &QLineEdit::textChanged, this, &Xcharge2::boxesChanged);
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { boxGotFocus(now); });
    for (int digit = 0; digit < 10; ++digit)
        connect(SSCommand6[static_cast<std::size_t>(digit)], &QAbstractButton::clicked, this,
                [this, digit] { SSCommand6_Click(digit); });
    const auto click = [this](QAbstractButton *command, void (Xcharge2::*handler)()) {
        connect(command, &QAbstractButton::clicked, this, handler);
    };
    click(ui->SSCommand4, &Xcharge2::SSCommand4_Click); // "Process"
    click(ui->SSCommand7, &Xcharge2::SSCommand7_Click); // "Small Font" / "Large Font"
    click(ui->backspaceKey, &Xcharge2::backspaceKey_Click);
    click(ui->clearKey, &Xcharge2::clearKey_Click);
    connect(ui->cancelCommand, &QAbstractButton::clicked, this, &Xcharge2::closeAsked); // "Cancel"
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

void Xcharge2::SSCommand6_Click(int digit)
{
    namedBox().setText(namedBox().text() + QString::number(digit)); // cut at the box's length
}

void Xcharge2::SSCommand7_Click()
{
    font = switchEntryFont(app, font);
    showFont();
}

void Xcharge2::backspaceKey_Click()
{
    QString text = namedBox().text();
    text.chop(1);
    namedBox().setText(text);
}

void Xcharge2::clearKey_Click()
{
    namedBox().setText({});
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
    ui->clearKey->setAccessibleName(toQt(kClearNames[item]));
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
