#include "details/XchargeEntryDetals.h"

#include "details/PrinterChoice.h"
#include "platform/qt/controls.h"
#include "platform/qt/fitting_edit.h"
#include "platform/qt/qt_text.h"
#include "records/status_words.h"
#include "records/typed_amount.h"
#include "ui_XchargeEntryDetals.h"

#include <QKeyEvent>

#include <utility>

namespace details {

using platform::FittingEdit;
using platform::fromQt;
using platform::putLook;
using platform::putVisible;
using platform::toQt;

namespace {

void put(FittingEdit &box, const std::string &value)
{
    box.put(toQt(value));
}

const char *stateOf(const std::string &status)
{
    return records::beginsDeclined(status) ? "declined" : "";
}

} // namespace

XchargeEntryDetals::XchargeEntryDetals(records::App &theApp, printing::Printer &printer,
                                       EntryCallbacks callbacks)
    : Screen(theApp), app(theApp), ui(std::make_unique<Ui::XchargeEntryDetals>()),
      entry(theApp, printer, *this, std::move(callbacks))
{
    ui->setupUi(this);
    gatherArrays();
    connectCommands();
    connectTip();
    setDefaultCommand(ui->SSCommand1);
    if (app.values.lookOnly)
        disableChanges();
    refresh(entry.state());
}

XchargeEntryDetals::~XchargeEntryDetals() = default;

void XchargeEntryDetals::gatherArrays()
{
    Text1 = {ui->Text1_0,  ui->Text1_1,  ui->Text1_2,  ui->Text1_3,  ui->Text1_4,
             ui->Text1_5,  ui->Text1_6,  ui->Text1_7,  ui->Text1_8,  ui->Text1_9,
             ui->Text1_10, ui->Text1_11, ui->Text1_12, ui->Text1_13, ui->Text1_14,
             ui->Text1_15, ui->Text1_16, ui->Text1_17, ui->Text1_18, ui->Text1_19,
             ui->Text1_20, ui->Text1_21, ui->Text1_22, ui->Text1_23, ui->Text1_24};
    SSCommand6 = {ui->SSCommand6_0,  ui->SSCommand6_1,  ui->SSCommand6_2,  ui->SSCommand6_3,
                  ui->SSCommand6_4,  ui->SSCommand6_5,  ui->SSCommand6_6,  ui->SSCommand6_7,
                  ui->SSCommand6_8,  ui->SSCommand6_9,  ui->SSCommand6_10, ui->SSCommand6_11,
                  ui->SSCommand6_12, ui->SSCommand6_13, ui->SSCommand6_14};
    for (std::size_t item = 0; item < SSCommand6.size(); ++item)
        quickNames[item] = SSCommand6[item]->accessibleName();
    amounts = {ui->field_Text1_4, ui->field_Text1_7, ui->field_Text1_8, ui->field_Text1_12,
               ui->field_Text1_22};
    ui->tipFault->setText(QStringLiteral("Not an amount. ") + toQt(records::kAmountRule));
}

void XchargeEntryDetals::connectCommands()
{
    onClick(ui->SSCommand1, entry, &EntryDetails::saveAndClose);    // "Done"
    onClick(ui->SSCommand2, entry, &EntryDetails::forceNoTip);      // "Force NO TIP"
    onClick(ui->SSCommand3, entry, &EntryDetails::cancel);          // "Cancel"
    onClick(ui->SSCommand4, entry, &EntryDetails::undoTip);         // "Undo TIP Adjustment"
    onClick(ui->SSCommand5, entry, &EntryDetails::deleteEntry);     // "Delete This Entry "
    onClick(ui->SSCommand7, entry, &EntryDetails::reprintCustomer); // "Customer"
    onClick(ui->SSCommand8, entry, &EntryDetails::reprintMerchant); // "Merchant"
    onClick(ui->SSCommand10, entry, &EntryDetails::save);           // "Save"
    onClick(ui->SSCommand11, entry, &EntryDetails::forceAllNoTip);  // "Force ALL NO TIP"
    onClick(ui->SSCommand12, entry, &EntryDetails::deleteAndPrint); // "Delete and Print a Receipt"
    onClick(ui->SSCommand13, entry, &EntryDetails::undelete); // "UnDelete - Move to Pending List"
    onClick(ui->SSCommand14, entry, &EntryDetails::forceAdjusted); // "Force"
    onClick(ui->SSCommand15, entry, &EntryDetails::voidEntry);     // "VOID"
    onClick(ui->SSCommand16, entry,
            &EntryDetails::forceAllAdjusted);                 // "Force ALL to Adjusted - Pending"
    onClick(ui->SSCommand17, entry, &EntryDetails::clearTip); // "Clear Tip Amount"
    onClick(ui->Label3_0, entry, &EntryDetails::offerQuickTips); // the tab
    onClick(ui->Command1, entry,
            &EntryDetails::revealTrackLine);                   // "The Track Read Line has been ..."
    onClick(ui->Command2, entry, &EntryDetails::revealNumber); // "View Card #"
    const auto arrow = [this](QAbstractButton *command, long by) {
        connect(command, &QAbstractButton::clicked, this, [this, by] {
            entry.step(by);
            selectTip();
        });
    };
    arrow(ui->SSCommand9_0, -1); // previous
    arrow(ui->SSCommand9_1, 1);  // next
    for (std::size_t item = 0; item < Text1.size(); ++item)
        connect(Text1[item], &QLineEdit::textChanged, this, [this, item](const QString &text) {
            entry.typeBox(static_cast<Box>(item), fromQt(text));
        });
}

/// Looking, printing and closing by "Done" or "Cancel" stay possible.
void XchargeEntryDetals::disableChanges()
{
    for (QWidget *command : std::initializer_list<QWidget *>{
             ui->SSCommand2, ui->SSCommand4, ui->SSCommand5, ui->SSCommand10, ui->SSCommand11,
             ui->SSCommand12, ui->SSCommand13, ui->SSCommand14, ui->SSCommand15, ui->SSCommand16,
             ui->SSCommand17})
        command->setEnabled(false);
    for (QLineEdit *box : Text1)
        box->setReadOnly(true);
    ui->HeaderBar->setTitle(QStringLiteral("Entry Details - looking only"));
}

void XchargeEntryDetals::connectTip()
{
    connect(ui->Text4, &QLineEdit::textChanged, this,
            [this](const QString &text) { entry.typeTip(fromQt(text)); });
    for (std::size_t item = 0; item < SSCommand6.size(); ++item)
        connect(SSCommand6[item], &QAbstractButton::clicked, this, [this, item] {
            entry.takeQuickTip(item); // "Quick Tip Buttons"
            selectTip();
        });
    ui->keypad->typeInto(*ui->Text4);
}

void XchargeEntryDetals::open(const std::string &file, long slot, const std::string &source)
{
    entry.open(file, slot, source);
    if (app.ending())
        return;
    openWhole();
    focusTip();
    selectTip();
}

/// The next digit begins a new tip instead of making the old one longer.
void XchargeEntryDetals::selectTip()
{
    if (!ui->Text4->isReadOnly())
        ui->Text4->selectAll();
}

void XchargeEntryDetals::closeAsked()
{
    entry.cancel();
}

void XchargeEntryDetals::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp: ui->SSCommand9_0->click(); break;
    case Qt::Key_PageDown: ui->SSCommand9_1->click(); break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (dangerFocused())
            break;
        [[fallthrough]];
    default: Screen::keyPressEvent(event);
    }
}

/// An Enter too many must not delete or void anything: those commands take touch, mouse or the
/// space bar.
bool XchargeEntryDetals::dangerFocused() const
{
    const QWidget *focused = focusWidget();
    return focused != nullptr && focused->property("command") == QLatin1String("danger");
}

void XchargeEntryDetals::refresh(const EntryFields &fields)
{
    showEntry(fields);
    showTip(fields);
    showCardData(fields);
    showNotices(fields);
    showCommands(fields);
}

void XchargeEntryDetals::showEntry(const EntryFields &fields)
{
    for (std::size_t item = 1; item < Text1.size(); ++item)
        put(*Text1[item], fields.boxes.values[item]);
    putLook(*ui->Text1_11, "state", stateOf(fields.boxes[Box::Status]));
    ui->Label1_1->setText(QString::number(fields.slot));
    ui->Label4_3->setText(toQt(fields.ofRecords));
    ui->Label8->setText(toQt(fields.file));
    ui->Label10->setText(toQt(fields.openedFrom));
    showAmounts(fields);
}

void XchargeEntryDetals::showAmounts(const EntryFields &fields)
{
    for (std::size_t item = 0; item < amounts.size(); ++item)
        amounts[item]->putFault(
            fields.wrong[kAmountBoxes[item].first] ? QStringLiteral("Not an amount") : QString(),
            ui->tipFault->text());
}

void XchargeEntryDetals::showTip(const EntryFields &fields)
{
    put(*ui->Text4, fields.tip);
    ui->Text4->setReadOnly(fields.tipLocked);
    putLook(*ui->Text4, "state", fields.tipWrong ? "wrong" : (fields.tipLocked ? "locked" : ""));
    ui->Text4->setAccessibleDescription(fields.tipWrong ? ui->tipFault->text() : QString());
    putVisible(*ui->tipFault, fields.tipWrong);
    putVisible(*ui->Label3_1, !fields.tipWrong);
    ui->keypad->setDisabled(fields.tipLocked);
    ui->Label3_0->setText(toQt(fields.tab));
    ui->Label3_0->setAccessibleName(toQt("Tab: " + fields.tab));
    ui->Label3_1->setText(toQt(fields.total));
    ui->Label3_1->setAccessibleName(toQt("New Total: " + fields.total));
    putVisible(*ui->SSPanel2, fields.quickTipsVisible);
    putVisible(*ui->lockedHint, !fields.quickTipsVisible);
    for (std::size_t item = 0; item < SSCommand6.size(); ++item) {
        const QString tip = toQt(fields.quickTips[item]);
        SSCommand6[item]->setText(tip);
        putLook(*SSCommand6[item], "part", tip.isEmpty() ? "empty" : "quick");
        SSCommand6[item]->setAccessibleName(
            tip.isEmpty() ? quickNames[item] : quickNames[item] + QStringLiteral(": ") + tip);
    }
}

/// A hidden box is emptied: a screen reader would find its text.
void XchargeEntryDetals::showCardData(const EntryFields &fields)
{
    put(*ui->Text1_0, fields.numberRevealed ? fields.boxes[Box::Number] : std::string());
    put(*ui->Text2, fields.maskedNumber);
    put(*ui->Text3, fields.slipNumber);
    putVisible(*ui->Text2, !fields.numberRevealed);
    putVisible(*ui->Text1_0, fields.numberRevealed);
    ui->Command2->setDisabled(fields.numberRevealed);
    ui->Text1_3->setEchoMode(fields.trackLineRevealed ? QLineEdit::Normal : QLineEdit::Password);
    ui->Text1_3->setReadOnly(!fields.trackLineRevealed || app.values.lookOnly);
    ui->Command1->setDisabled(fields.trackLineRevealed);
}

void XchargeEntryDetals::showNotices(const EntryFields &fields)
{
    const bool funds = fields.fundsNoticesVisible;
    putVisible(*ui->noticeBand, fields.cardNoticeVisible || funds);
    ui->Label12->setText(toQt(fields.cardNotice));
    putVisible(*ui->Label12, fields.cardNoticeVisible);
    for (QWidget *notice : std::initializer_list<QWidget *>{ui->Label4_26, ui->Text1_23,
                                                            ui->Label4_27, ui->fundsNotice})
        putVisible(*notice, funds);
}

void XchargeEntryDetals::showCommands(const EntryFields &fields)
{
    ui->SSCommand9_0->setEnabled(fields.previousEnabled);
    ui->SSCommand9_1->setEnabled(fields.nextEnabled);
    putVisible(*ui->SSCommand12, fields.deleteAndPrintVisible);
    putVisible(*ui->SSCommand13, fields.undeleteVisible);
}

void XchargeEntryDetals::focusTip()
{
    ui->Text4->setFocus();
}

std::optional<std::string> XchargeEntryDetals::choosePrinter(const std::vector<std::string> &names,
                                                             const std::string &current)
{
    return PrinterChoice(app, names, current).ask();
}

/// Clears what a password has revealed at once, not only when the object is destroyed.
void XchargeEntryDetals::unload()
{
    Screen::unload();
    refresh({});
}

} // namespace details
