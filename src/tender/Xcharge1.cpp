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

using platform::putCommand;
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
    onClick(ui->SSCommand1, tender, &Tender::cancel);        // "Cancel"
    onClick(ui->SSCommand2, tender, &Tender::finishTender);  // "Finish Tender"
    onClick(ui->SSCommand3, tender, &Tender::enterManually); // "Enter Manually"
    onClick(ui->SSCommand4, tender, &Tender::clearSwipe);    // "Clear"
    onClick(ui->SSCommand5, tender, &Tender::openSetup);     // "CONFIG"
    onClick(ui->SSCommand6, tender, &Tender::showDigits);    // "View"
    onClick(ui->SSCommand7, tender,
            &Tender::switchGratuitySlip); // "NO" / "YES", slip with gratuity
    onClick(ui->SSCommand8, tender, &Tender::askForOfflineApproval); // "YES", approve offline
    onClick(ui->SSCommand9, tender, &Tender::keepWaiting);           // "NO", go on waiting
    onClick(ui->SSPanel4, tender, &Tender::offerRemoval);            // the warning
    onClick(ui->Command3, tender, &Tender::startPaymentServer);      // "Start Xcharge"
    const auto typed = [this](QLineEdit *box, void (Tender::*handler)(const std::string &)) {
        connect(box, &QLineEdit::textEdited, this, [this, handler](const QString &text) {
            std::string bytes = platform::fromQt(text);
            (tender.*handler)(bytes);
            platform::wipe(bytes);
        });
    };
    typed(ui->Text2, &Tender::takeFirstTrack);
    typed(ui->Text5, &Tender::takeSecondTrack);
    connect(ui->SSCheck1, &QAbstractButton::toggled, this, // "Do not print a RECEIPT for Customer"
            [this](bool checked) { tender.setNoReceipt(checked); });
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
    ui->countRow->setUsualWait(kUsualWait);
    ui->Label4->hide(); // working storage only
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
    put(*ui->Text4, fields.amount.empty() ? std::string() : shownAmount(fields.amount));
    const int amountWidth = ui->Text4->fontMetrics().horizontalAdvance(ui->Text4->text());
    ui->Text4->setMinimumWidth(qMin(amountWidth + kBoxMargins, kWidestAmount));
    putValue(*Label3[4], fields.server);
    putValue(*Label3[5], fields.table);
    putValue(*Label3[6], fields.receipt);
    putValue(*Label3[9], fields.totalWithGratuity);
    putValue(*Label3[10], fields.gratuityPercent);
    putValue(*Label3[12], fields.serverName);
    putValue(*ui->Label9, fields.auditAmount);
    ui->Label13_3->setText(toQt(fields.versionLine));
    if (!app.values.StationName.empty())
        ui->station->setText(toQt("Station " + app.values.StationName));
    ui->Label13_3->setToolTip(toQt(fields.versionToolTip));
}

void Xcharge1::showCard(const TenderFields &fields)
{
    putValue(*Label3[0], shownCardNumber(fields.cardNumber));
    putValue(*Label3[1], fields.expiry);
    putValue(*Label3[2], fields.firstName);
    putValue(*Label3[3], fields.lastName);
    put(*ui->Text2, fields.firstTrack);
    put(*ui->Text5, fields.secondTrack);
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
    put(*ui->Text3, fields.status);
    putVisible(*ui->Text3, !fields.status.empty());
    putLook(*ui->Text3, "state", fields.statusRed ? "declined" : "");
    put(*ui->Text1, fields.cardOrResult);
    ui->Text1->setEchoMode(fields.cardMasked ? QLineEdit::Password : QLineEdit::Normal);
    ui->resultCaption->setText(fields.result ? QStringLiteral("Result") : QStringLiteral("Card"));
    putVisible(*ui->resultRow, !fields.cardOrResult.empty());
    putValue(*ui->Label4, fields.sharedCount);
    ui->countRow->putWaited(fields.waitCount);
    ui->countRow->putRunning(!fields.result);
    putVisible(*ui->countRow, fields.waitCountVisible);
}

void Xcharge1::showPanels(const TenderFields &fields)
{
    const std::string band = bandNotice(fields);
    putVisible(*ui->SSPanel2, !band.empty());
    ui->SSPanel2_text->setText(toQt(band));
    putVisible(*ui->warningBand, fields.warningVisible);
    ui->SSPanel4->setText(toQt(fields.warning));
    putLook(*ui->SSPanel4, "state", fields.warningRed ? "declined" : "");
    putVisible(*ui->SSRibbon1, fields.ribbonsVisible);
    putVisible(*ui->SSRibbon2, fields.ribbonsVisible);
    putVisible(*ui->SSPanel5, fields.offlinePanelVisible);
    putVisible(*ui->stateCard, !fields.offlinePanelVisible);
    putVisible(*ui->detailsCard, !fields.offlinePanelVisible);
    putVisible(*ui->slipsCard, !fields.offlinePanelVisible);
}

void Xcharge1::showCommands(const TenderFields &fields)
{
    putCommand(*ui->SSCommand1, fields.cancel);
    putCommand(*ui->SSCommand2, fields.finish);
    putCommand(*ui->SSCommand3, fields.enterManually);
    putCommand(*ui->SSCommand4, fields.clear);
    putCommand(*ui->SSCommand5, fields.setup);
    putCommand(*ui->SSCommand6, fields.view);
    putCommand(*ui->Command3, fields.startServer);
}

void Xcharge1::showOptions(const TenderFields &fields)
{
    ui->SSCommand7->setText(toQt(fields.gratuitySlip));
    ui->SSCommand7->setAccessibleDescription(ui->SSCommand7->text());
    const QSignalBlocker quiet(ui->SSCheck1); // set by the program, not chosen by a person
    ui->SSCheck1->setChecked(fields.noReceipt);
    ui->SSCheck1->setEnabled(fields.noReceiptEnabled);
    putValue(*Label3[8], fields.version);
    putValue(*Label3[13], fields.commandLineMode);
    putValue(*Label3[14], fields.partialSupport);
    putValue(*Label3[15], fields.saleKind);
    putValue(*ui->Label12, fields.tipLine);
    putValue(*ui->Label14, fields.cutBetweenCopies);
}

void Xcharge1::focus(TenderBox box)
{
    refresh(tender.state()); // a command takes the keyboard only once it is enabled
    // A box that takes no swipe leaves the keyboard to the state, where Enter presses nothing.
    QWidget *locked = tender.state().boxesLocked ? ui->stateCard : nullptr;
    switch (box) {
    case TenderBox::FirstTrack: (locked ? locked : ui->Text2)->setFocus(); break;
    case TenderBox::SecondTrack: (locked ? locked : ui->Text5)->setFocus(); break;
    case TenderBox::Cancel: ui->SSCommand1->setFocus(); break;
    case TenderBox::KeepWaiting: ui->SSCommand9->setFocus(); break;
    }
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
