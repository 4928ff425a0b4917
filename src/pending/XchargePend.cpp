#include "pending/XchargePend.h"

#include "details/PrinterChoice.h"
#include "platform/qt/controls.h"
#include "platform/qt/qt_text.h"
#include "ui_XchargePend.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace pending {

using platform::fromQt;
using platform::MListColumn;
using platform::putCommand;
using platform::putLook;
using platform::putValue;
using platform::putVisible;
using platform::toQt;

namespace {

using Look = MListColumn::Look;

std::vector<MListColumn> columns()
{
    const auto column = [](const char *heading, const char *widest, Look look = Look::Text) {
        return MListColumn{toQt(heading), toQt(widest), look};
    };
    MListColumn status = column("Status", "Adjusted - Pending");
    status.yields = true;
    return {column("Receipt", "00000"),
            column("Server", "000"),
            column("Tab", "0000.00", Look::Amount),
            column("Approved", "0000.00", Look::Amount),
            column("Tip", "000.00", Look::Amount),
            column("Total", "00000.00", Look::Total),
            status,
            column("Auth", "000000"),
            column("Result", "Approved"),
            column("Date", "00/00/00"),
            column("Time", "00:00 PM"),
            column("Terminal", "FRONT-BAR")};
}

QRgb colourOf(reports::RowColour colour)
{
    switch (colour) {
    case reports::RowColour::White: return 0xffffffff;
    case reports::RowColour::LightGreen: return 0xff80ff80;
    case reports::RowColour::Red: return 0xffff0000;
    case reports::RowColour::ButtonFace: break;
    }
    return 0xffdfe5eb; // darker than the usual one: in daylight it must not look white
}

} // namespace

XchargePend::XchargePend(records::App &theApp, printing::Printer &printer, EntryWindow theEntry,
                         PendingRoutes routes)
    : Screen(theApp), app(theApp), entry(std::move(theEntry)),
      ui(std::make_unique<Ui::XchargePend>()), list(theApp, printer, *this, std::move(routes))
{
    ui->setupUi(this);
    gatherArrays();
    ui->MList1->setColumns(columns());
    connectCommands();
    refresh(list.state());
}

XchargePend::~XchargePend() = default;

void XchargePend::gatherArrays()
{
    SSCommand = {ui->SSCommand1,  ui->SSCommand2,  ui->SSCommand3,  ui->SSCommand4,
                 ui->SSCommand5,  ui->SScommand6,  ui->SSCommand7,  ui->SSCommand8,
                 ui->SSCommand9,  ui->SSCommand10, ui->SSCommand11, ui->SSCommand12,
                 ui->SSCommand13, ui->SSCommand14, ui->SSCommand15};
    SSOption1 = {ui->SSOption1_0, ui->SSOption1_1, ui->SSOption1_2, ui->SSOption1_3,
                 ui->SSOption1_4, ui->SSOption1_5, ui->SSOption1_6};
    Label5 = {ui->Label5_0, ui->Label5_1, ui->Label5_2};
    usualHint = ui->hint->text();
}

void XchargePend::connectCommands()
{
    onClick(ui->SSCommand1, list, &Pending::leave);                 // "Done"
    onClick(ui->SSCommand2, list, &Pending::process);               // "Process"
    onClick(ui->SSCommand3, list, &Pending::refresh);               // "Refresh"
    onClick(ui->SSCommand4, list, &Pending::print);                 // "Print"
    onClick(ui->SSCommand5, list, &Pending::finish);                // "Finish"
    onClick(ui->SScommand6, list, &Pending::showArchive);           // "Archive"
    onClick(ui->SSCommand7, list, &Pending::showTotalsByServer);    // "Totals by Servers"
    onClick(ui->SSCommand10, list, &Pending::showTotalsByTerminal); // "Totals by Terminal"
    onClick(ui->SSCommand11, list, &Pending::forceAllNoTip);        // "Force ALL NO TIP"
    onClick(ui->SSCommand12, list, &Pending::showTotalsByType);     // "Totals by CC Type"
    onClick(ui->SSCommand13, list, &Pending::markDayCompleted);     // "Mark Completed"
    onClick(ui->SSCommand14, list, &Pending::deleteDeclines);       // "DELETE RED'S"
    onClick(ui->SSCommand15, list, &Pending::markAllCompleted);     // "Mark all completed"
    onClick(ui->Image1, list, &Pending::markAllCompletedByPicture); // the picture in the corner
    for (std::size_t option = 0; option < SSOption1.size(); ++option)
        connect(SSOption1[option], &QAbstractButton::toggled, this, [this, option](bool on) {
            if (on)
                list.sortBy(static_cast<int>(option));
        });
    connectRows();
    ui->SSCommand11->installEventFilter(this);
}

void XchargePend::connectRows()
{
    using platform::MList;
    connect(ui->MList1, &MList::rowTapped, this, [this](long row) { list.openRow(row); });
    connect(ui->MList1, &MList::entered, this, [this](long row) { list.enterReceipt(row); });
    connect(ui->MList1, &MList::moved, this, [this] { list.dropReceipt(); });
    connect(ui->MList1, &MList::typed, this,
            [this](const QString &text) { list.typeReceipt(fromQt(text)); });
    connect(ui->MList1, &MList::backspaced, this, [this] { list.backspaceReceipt(); });
}

void XchargePend::Form_Load()
{
    formLoaded = true;
    showHeading();
    ui->MList1->setFocus();
    list.Form_Load();
    if (fillAtLoad)
        list.refresh();
}

void XchargePend::showHeading()
{
    const records::ProcessValues &values = app.values;
    if (values.lookOnly)
        ui->Label2->setText(QStringLiteral("Looking only"));
    ui->business->setText(
        toQt(values.lookOnly ? values.inUseBy : values.config.text(records::kBusinessName)));
}

void XchargePend::fillList()
{
    if (formLoaded)
        list.refresh();
    else
        fillAtLoad = true;
}

/// The focus goes back to the rows: on "Done" an Enter would leave the list.
details::EntryCallbacks XchargePend::entryCallbacks()
{
    details::EntryCallbacks callbacks = list.entryCallbacks();
    callbacks.closed = [this] {
        ui->MList1->setFocus();
        activateWindow();
    };
    return callbacks;
}

void XchargePend::closeAsked()
{
    ui->SSCommand1->click(); // "Done"; nothing while it is disabled
}

/// Leaving moves the settled records, too much for a key pressed by mistake. So Escape only goes
/// back to the rows.
void XchargePend::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        return Screen::keyPressEvent(event);
    ui->MList1->setFocus();
    list.dropReceipt();
}

bool XchargePend::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave)
        list.hintForceAllNoTip(event->type() == QEvent::Enter);
    return Screen::eventFilter(watched, event);
}

void XchargePend::refresh(const PendingFields &fields)
{
    showOptions(fields); // a click has changed one already
    if (shown == fields)
        return;
    shown = fields;
    showTotals(fields);
    showState(fields);
    showCommands(fields);
}

void XchargePend::showTotals(const PendingFields &fields)
{
    putValue(*Label5[0], fields.totals.tabs);
    putValue(*Label5[1], fields.totals.tips);
    putValue(*Label5[2], fields.totals.grand);
    putValue(*ui->Label16, fields.fromDate);
    putValue(*ui->Label17, fields.toDate);
    putValue(*ui->Label18, fields.swipes);
    putValue(*ui->Label19, fields.recordRead);
    ui->Label18->setToolTip(toQt(fields.file));
}

void XchargePend::showState(const PendingFields &fields)
{
    putValue(*ui->Label20, fields.connection);
    putLook(*ui->Label20, "state",
            fields.connection.empty() ? "" : (fields.connected ? "connected" : "offline"));
    const bool missing = fields.toAdjust > 0;
    const bool empty = ui->MList1->rows().rowCount() == 0;
    const std::string some = fields.notAdjusted > 0
                                 ? std::to_string(fields.notAdjusted) + " to adjust"
                                 : "Some to look at";
    putValue(*ui->Label7, empty ? "" : missing ? some : "All adjusted");
    putLook(*ui->Label7, "state", empty ? "" : missing ? "attention" : "approved");
    ui->SSPanel1_0_text->setText(toQt(fields.notice));
    const bool types = !fields.receiptHint.empty();
    ui->hint->setText(types ? toQt(fields.receiptHint) : usualHint);
    putLook(*ui->hint, "part", types ? "strong" : "label");
    // Notice and hint share one place, so that the rows do not jump under a finger.
    ui->noticePlace->setCurrentWidget(fields.noticeVisible && !types ? ui->SSPanel1_0
                                                                     : ui->hintBand);
    putVisible(*ui->SSPanel2, fields.batchQuestionVisible);
    putVisible(*ui->MList1, !fields.batchQuestionVisible);
}

void XchargePend::showCommands(const PendingFields &fields)
{
    for (std::size_t item = 0; item < SSCommand.size(); ++item) {
        QAbstractButton &command = *SSCommand[item];
        const CommandState &state = fields.commands.values[item];
        // Else Qt gives the focus to the next command, and a second Enter presses it; also while
        // another window is in front.
        if (focusWidget() == &command && !(state.enabled && state.visible))
            ui->MList1->setFocus();
        putCommand(command, state);
    }
    ui->Image1->setEnabled(fields.commands[Command::MarkAllCompleted].enabled); // the same command
}

void XchargePend::showOptions(const PendingFields &fields)
{
    for (std::size_t option = 0; option < SSOption1.size(); ++option) {
        QRadioButton &button = *SSOption1[option];
        const QSignalBlocker quiet(&button); // the list sets it here, nobody has chosen it
        button.setAutoExclusive(false);      // else one would always stay chosen
        button.setChecked(static_cast<int>(option) == fields.sortedBy);
        button.setAutoExclusive(true);
    }
}

void XchargePend::showRows(const reports::ListRows &rows)
{
    constexpr std::size_t kUsualRow = 160; // bytes
    platform::MListRows copies;
    copies.reserve(rows.size(), rows.size() * kUsualRow);
    for (const reports::ListRow &row : rows)
        copies.add(row.text, std::to_string(row.slot), colourOf(row.colour));
    ui->MList1->setRows(std::move(copies));
}

void XchargePend::rowsColoured()
{
    ui->MList1->recolour(
        [&rows = list.rows()](std::size_t row) { return colourOf(rows[row].colour); });
}

void XchargePend::selectRow(long index)
{
    ui->MList1->goToRow(index);
}

void XchargePend::showEntry(const std::string &file, long slot)
{
    entry.open(file, slot);
}

bool XchargePend::closeEntry()
{
    return entry.close();
}

std::optional<std::string> XchargePend::choosePrinter(const std::vector<std::string> &names,
                                                      const std::string &proposed)
{
    return details::PrinterChoice(app, names, proposed).ask();
}

} // namespace pending
