#include "tender/Xcharge1.h"

#include "platform/hardening.h"
#include "platform/qt/controls.h"
#include "platform/qt/qt_text.h"
#include "tender/ManagerApproval.h"
#include "tender/Xcharge2.h"
#include "tender/tender_words.h"
#include "tender/xcharge3.h"
#include "ui_Xcharge1.h"

#include <QSignalBlocker>

namespace tender {

using platform::putLook;
using platform::putValue;
using platform::putVisible;
using platform::toQt;

namespace {

constexpr int kBoxMargins = 8; // left and right of a text in its box
constexpr int kWidestAmount = 420;

/// Setting a box to what it holds would still move its cursor.
void put(QLineEdit &box, const std::string &value)
{
    const QString text = toQt(value);
    if (box.text() != text)
        box.setText(text);
}

void put(QAbstractButton &command, const CommandState &state)
{
    command.setEnabled(state.enabled);
    putVisible(command, state.visible);
}

const char *lookOf(StateColour colour)
{
    switch (colour) {
    case StateColour::Approved: return "approved";
    case StateColour::Declined: return "declined";
    case StateColour::Attention: return "attention";
    case StateColour::Waiting: break;
    }
    return "waiting";
}

} // namespace

Xcharge1::Xcharge1(records::App &theApp, printing::Printer &printer)
    : Screen(theApp), app(theApp), tender(theApp, printer, *this)
{
    setWindowTitle(QStringLiteral("Xcharge Credit Card Interface"));
}

Xcharge1::~Xcharge1()
{
    if (shown)
        for (std::string *text : cardTexts(*shown))
            platform::wipe(*text);
}

void Xcharge1::gatherArrays()
{
    Label3 = {ui->Label3_0,  ui->Label3_1,  ui->Label3_2,  ui->Label3_3,
              ui->Label3_4,  ui->Label3_5,  ui->Label3_6,  nullptr,
              ui->Label3_8,  ui->Label3_9,  ui->Label3_10, nullptr,
              ui->Label3_12, ui->Label3_13, ui->Label3_14, ui->Label3_15};
}

void Xcharge1::connectCommands()
{
    const auto click = [this](QAbstractButton *command, void (Tender::*handler)()) {
        connect(command, &QAbstractButton::clicked, this, [this, handler] { (tender.*handler)(); });
    };
    click(ui->SSCommand1, &Tender::SSCommand1_Click); // "Cancel"
    click(ui->SSCommand2, &Tender::SSCommand2_Click); // "Finish Tender"
    click(ui->SSCommand3, &Tender::SSCommand3_Click); // "Enter Manually"
    click(ui->SSCommand4, &Tender::SSCommand4_Click); // "Clear"
    click(ui->SSCommand5, &Tender::SSCommand5_Click); // "CONFIG"
    click(ui->SSCommand6, &Tender::SSCommand6_Click); // "View"
    click(ui->SSCommand7, &Tender::SSCommand7_Click); // "NO" / "YES", slip with gratuity
    click(ui->SSCommand8, &Tender::SSCommand8_Click); // "YES", approve offline
    click(ui->SSCommand9, &Tender::SSCommand9_Click); // "NO", go on waiting
    click(ui->SSPanel4, &Tender::SSPanel4_Click);     // the warning
    click(ui->Command3, &Tender::Command3_Click);     // "Start Xcharge"
    const auto typed = [this](QLineEdit *box, void (Tender::*handler)(const std::string &)) {
        connect(box, &QLineEdit::textEdited, this, [this, handler](const QString &text) {
            std::string bytes = platform::fromQt(text);
            (tender.*handler)(bytes);
            platform::wipe(bytes);
        });
    };
    typed(ui->Text2, &Tender::Text2_Change);
    typed(ui->Text5, &Tender::Text5_Change);
    connect(ui->SSCheck1, &QAbstractButton::toggled, this, // "Do not print a RECEIPT for Customer"
            [this](bool checked) { tender.SSCheck1_Click(checked); });
}

/// The controls, and the fonts that they bring in, wait until the operator sees the window.
void Xcharge1::Form_Load()
{
    ui = std::make_unique<Ui::Xcharge1>();
    auto *form = new QWidget; // on the window itself it would bring its own size along
    ui->setupUi(form);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(form);
    ui->waitBar->setMaximum(kUsualWait);
    ui->Label4->hide(); // working storage alone
    gatherArrays();
    connectCommands();
    setDefaultCommand(ui->SSCommand2);
    refresh(tender.state());
    tender.Form_Load();
}

void Xcharge1::closeAsked()
{
    if (ui)
        ui->SSCommand1->click(); // "Cancel"; nothing while it is disabled
}

/// The copy holds the card as long as the fields do, and no longer.
void Xcharge1::keepShown(const TenderFields &fields)
{
    const bool first = !shown;
    if (first)
        shown.emplace();
    for (std::string *text : cardTexts(*shown))
        first ? platform::keepSecret(*text) : platform::wipe(*text);
    *shown = fields;
}

void Xcharge1::refresh(const TenderFields &fields)
{
    if (shown == fields)
        return;
    keepShown(fields);
    showTender(fields);
    showCard(fields);
    showState(fields);
    showPanels(fields);
    showCommands(fields);
    showOptions(fields);
}

void Xcharge1::showTender(const TenderFields &fields)
{
    put(*ui->Text4, fields.Text4.empty() ? std::string() : shownAmount(fields.Text4));
    const int amountWidth = ui->Text4->fontMetrics().horizontalAdvance(ui->Text4->text());
    ui->Text4->setMinimumWidth(qMin(amountWidth + kBoxMargins, kWidestAmount));
    for (const std::size_t item : {4U, 5U, 6U, 9U, 10U, 12U})
        putValue(*Label3[item], fields.Label3[item]);
    putValue(*ui->Label9, fields.Label9);
    ui->Label13_3->setText(toQt(fields.Label13_3));
    if (!app.values.StationName.empty())
        ui->station->setText(toQt("Station " + app.values.StationName));
    ui->Label13_3->setToolTip(toQt(fields.versionToolTip));
}

void Xcharge1::showCard(const TenderFields &fields)
{
    putValue(*Label3[0], shownCardNumber(fields.Label3[0]));
    for (const std::size_t item : {1U, 2U, 3U})
        putValue(*Label3[item], fields.Label3[item]);
    put(*ui->Text2, fields.Text2);
    put(*ui->Text5, fields.Text5);
    putVisible(*ui->swipeRow, !fields.boxesLocked);
    ui->Text2->setReadOnly(fields.boxesLocked);
    ui->Text5->setReadOnly(fields.boxesLocked);
}

void Xcharge1::showState(const TenderFields &fields)
{
    const StateWords state = stateWords(fields);
    putLook(*ui->stateCard, "card", lookOf(state.colour));
    putLook(*ui->stateEdge, "edge", lookOf(state.colour));
    putLook(*ui->stateWord, "state", lookOf(state.colour));
    ui->stateWord->setText(toQt(state.word));
    ui->stateHint->setText(toQt(state.hint));
    putVisible(*ui->stateHint, !state.hint.empty());
    putValue(*ui->partApproved, fields.partApproved);
    putValue(*ui->stillOwed, fields.stillOwed);
    putVisible(*ui->partialRow, fields.partial);
    ui->stateCard->setAccessibleName(toQt("State: " + std::string(state.word)));
    put(*ui->Text3, fields.Text3);
    putVisible(*ui->Text3, !fields.Text3.empty());
    putLook(*ui->Text3, "state", fields.Text3Red ? "declined" : "");
    put(*ui->Text1, fields.Text1);
    ui->Text1->setEchoMode(fields.Text1Masked ? QLineEdit::Password : QLineEdit::Normal);
    ui->resultCaption->setText(fields.result ? QStringLiteral("Result") : QStringLiteral("Card"));
    putVisible(*ui->resultRow, !fields.Text1.empty());
    putValue(*ui->Label4, fields.Label4);
    putValue(*ui->Label7, fields.Label7);
    ui->waitBar->setValue(ui->Label7->text().toInt());
    putVisible(*ui->waitBar, !fields.result);
    putVisible(*ui->countRow, fields.Label7Visible);
}

void Xcharge1::showPanels(const TenderFields &fields)
{
    const std::string band = bandNotice(fields);
    putVisible(*ui->SSPanel2, !band.empty());
    ui->SSPanel2_text->setText(toQt(band));
    putVisible(*ui->warningBand, fields.SSPanel4Visible);
    ui->SSPanel4->setText(toQt(fields.SSPanel4));
    putLook(*ui->SSPanel4, "state", fields.SSPanel4Red ? "declined" : "");
    putVisible(*ui->SSRibbon1, fields.SSRibbonsVisible);
    putVisible(*ui->SSRibbon2, fields.SSRibbonsVisible);
    putVisible(*ui->SSPanel5, fields.SSPanel5Visible);
    putVisible(*ui->stateCard, !fields.SSPanel5Visible);
    putVisible(*ui->detailsCard, !fields.SSPanel5Visible);
    putVisible(*ui->slipsCard, !fields.SSPanel5Visible);
}

void Xcharge1::showCommands(const TenderFields &fields)
{
    put(*ui->SSCommand1, fields.SSCommand1);
    put(*ui->SSCommand2, fields.SSCommand2);
    put(*ui->SSCommand3, fields.SSCommand3);
    put(*ui->SSCommand4, fields.SSCommand4);
    put(*ui->SSCommand5, fields.SSCommand5);
    put(*ui->SSCommand6, fields.SSCommand6);
    put(*ui->Command3, fields.Command3);
}

void Xcharge1::showOptions(const TenderFields &fields)
{
    ui->SSCommand7->setText(toQt(fields.SSCommand7Caption));
    ui->SSCommand7->setAccessibleDescription(ui->SSCommand7->text());
    const QSignalBlocker quiet(ui->SSCheck1); // what is only shown is no choice of anybody
    ui->SSCheck1->setChecked(fields.SSCheck1);
    ui->SSCheck1->setEnabled(fields.SSCheck1Enabled);
    for (const std::size_t item : {8U, 13U, 14U, 15U})
        putValue(*Label3[item], fields.Label3[item]);
    putValue(*ui->Label12, fields.Label12);
    putValue(*ui->Label14, fields.Label14);
}

void Xcharge1::paintNow()
{
    Screen::paintNow();
}

void Xcharge1::focus(TenderBox box)
{
    refresh(tender.state()); // a command takes the keyboard only once it is enabled
    // A box that takes no swipe leaves the keyboard to the state, where Enter presses nothing.
    QWidget *locked = tender.state().boxesLocked ? ui->stateCard : nullptr;
    switch (box) {
    case TenderBox::Text2: (locked ? locked : ui->Text2)->setFocus(); break;
    case TenderBox::Text5: (locked ? locked : ui->Text5)->setFocus(); break;
    case TenderBox::SSCommand1: ui->SSCommand1->setFocus(); break;
    case TenderBox::SSCommand9: ui->SSCommand9->setFocus(); break;
    }
}

void Xcharge1::setTopMost(bool on)
{
    SetTopMostWindow(on);
}

void Xcharge1::hideScreen()
{
    hide();
}

void Xcharge1::showServerBusy()
{
    xcharge3 busy(app, [this] { tender.deleteBatchMarker(); });
    busy.runModal();
}

std::optional<TypedCard> Xcharge1::askCard()
{
    Xcharge2 entry(app);
    entry.runModal();
    return entry.typedCard();
}

void Xcharge1::askManager(const std::string &what, const std::string &amount)
{
    ManagerApproval approval(app, {what, amount});
    approval.runModal();
}

void Xcharge1::showSetup()
{
    if (onSetup)
        onSetup();
    else
        app.dialogs.message("CONFIG", "The card setup is not part of this version yet.");
}

void Xcharge1::removePaymentApplication()
{
    if (onRemoval)
        onRemoval();
    else
        app.dialogs.message("REMOVE XCHARGE", "The removal is not part of this version yet. "
                                              "Nothing was removed.");
}

} // namespace tender
