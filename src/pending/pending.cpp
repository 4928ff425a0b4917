#include "pending/pending.h"

#include "pending/pending_working.h"
#include "printing/unprinted.h"
#include "records/card_files.h"
#include "records/delimited.h"
#include "records/flag_files.h"
#include "records/trace.h"
#include "reports/printed_list.h"

#include <algorithm>
#include <utility>

namespace pending {

using namespace records;

namespace {

constexpr std::uint64_t kConnectionLasts = 30'000; // ms
constexpr std::uint32_t kConnectionLook = 100;     // ms

/// Whether the command changes files. "Done" does too, but it stays enabled as the way out.
bool changes(Command command)
{
    constexpr std::array kChanging = {Command::Process,         Command::Finish,
                                      Command::Continue,        Command::ForceAllNoTip,
                                      Command::MarkCompleted,   Command::DeleteDeclines,
                                      Command::MarkAllCompleted};
    return std::find(kChanging.begin(), kChanging.end(), command) != kChanging.end();
}

} // namespace

Pending::Pending(App &theApp, printing::Printer &thePrinter, PendingView &theView,
                 PendingRoutes theRoutes)
    : app(theApp), printer(thePrinter), view(theView), routes(std::move(theRoutes)),
      exitTimer(app.clock, [this] { exitExpired(); }),
      connectionTimer(app.clock, [this] { showConnection(); }), progress(app.clock)
{
    fields.commands[Command::Finish].visible = false;
    enable(Command::Continue, false);
    for (const Command command : {Command::Archive, Command::TotalsByServer,
                                  Command::TotalsByTerminal, Command::TotalsByType})
        enable(command, true);
}

void Pending::Form_Load()
{
    if (toLower(app.system.executableName()) == "tndrcc")
        return;
    if (app.values.Remotedir.empty())
        app.values.Remotedir = "C:\\Lumbrio\\";
    fields.sortedBy = -1;
    enable(Command::Process, false);
    enable(Command::Refresh, true);
    for (const Command command : {Command::Finish, Command::ForceAllNoTip, Command::MarkCompleted,
                                  Command::DeleteDeclines, Command::MarkAllCompleted})
        enable(command, true);
    if (!app.values.lookOnly)
        app.files.write(batchMarker(app.values), quotedLine(""));
    show();
}

void Pending::entrySaved()
{
    loadAgain = true;
    // Loads the list at its end; within another command that one does.
    const Working here(*this);
}

details::EntryCallbacks Pending::entryCallbacks()
{
    details::EntryCallbacks callbacks;
    callbacks.reloadPending = [this] { entrySaved(); };
    callbacks.forceAllNoTip = [this] { forceAllNoTip(); };
    callbacks.listWorks = [this] { return working; };
    return callbacks;
}

void Pending::enable(Command command, bool on)
{
    const bool served = (command != Command::Archive || routes.archive) &&
                        (command != Command::TotalsByServer || routes.totalsByServer) &&
                        (command != Command::TotalsByTerminal || routes.totalsByTerminal) &&
                        (command != Command::TotalsByType || routes.totalsByType);
    const bool allowed = !(app.values.lookOnly && changes(command));
    fields.commands[command].enabled = on && served && allowed;
}

/// Every save reloads the list, and must not wait while the line is down: the last answer stays
/// until the next one comes.
void Pending::check_Connection()
{
    const std::uint64_t now = app.clock.milliseconds();
    if (connectionBegun && now - *connectionBegun <= kConnectionLasts)
        return;
    connectionBegun = now;
    app.system.startConnectionTest();
    connectionTimer.setInterval(kConnectionLook);
    showConnection();
}

void Pending::showConnection()
{
    const std::optional<bool> tested = app.system.connectionTested();
    if (!tested)
        return;
    connectionTimer.setInterval(0);
    fields.connected = *tested;
    fields.connection =
        fields.connected ? "Internet connection detected!!" : "No internet connection detected...";
    enable(Command::Continue, fields.connected);
    show();
}

void Pending::Make_Sound()
{
    app.system.playSound(app.values.Maindir + "whoosh.wav");
}

void Pending::Disable_Buttons()
{
    for (const Command command :
         {Command::Done, Command::Process, Command::Refresh, Command::Print, Command::Archive,
          Command::TotalsByServer, Command::ForceAllNoTip})
        enable(command, false);
    Make_Sound();
}

void Pending::Enable_Buttons()
{
    for (const Command command :
         {Command::Done, Command::Refresh, Command::Print, Command::Archive})
        enable(command, true);
    for (const Command command : {Command::TotalsByServer, Command::TotalsByTerminal,
                                  Command::ForceAllNoTip, Command::TotalsByType})
        enable(command, !shownRows.empty());
    Make_Sound();
}

void Pending::panel(const std::string &text)
{
    receipt.clear(); // its hint would cover the notice
    fields.receiptHint.clear();
    fields.notice = text;
    fields.noticeVisible = true;
    show();
    view.paintNow();
}

void Pending::show()
{
    view.refresh(fields);
}

void Pending::showProgress(long record)
{
    fields.recordRead = std::to_string(record);
    show();
    view.paintNow();
}

void Pending::trace(const std::string &line)
{
    app.values.ManagerLogBuffer[0] = line;
    Write_Log(app);
}

void Pending::refresh()
{
    if (const Working here(*this); here)
        loadList();
}

void Pending::loadList()
{
    loadAgain = false;
    Disable_Buttons();
    check_Connection();
    ListBuilder fresh(app.clock.now());
    fields.fromDate = fresh.list.dates.oldest;
    fields.toDate = fresh.list.dates.newest;
    fields.totals = {"0", "0", "0"};
    fields.file = pendingFile(app.values);
    clearList();
    show();
    view.paintNow();
    progress.begin();
    readList(fresh);
    if (app.ending())
        return;
    takeTotals(fresh.list.totals);
    takeRows(fresh);
    traceList(fresh.list.totals.listed);
    Enable_Buttons();
    show();
}

void Pending::clearList()
{
    fields.sortedBy = -1;
    sortColumn = 0;
    enable(Command::Process, true);
    shownRows.clear();
    cardTypes.clear();
    showRows();
}

/// The file is locked only while it is read: building rows and running events come after that.
void Pending::readList(ListBuilder &fresh)
{
    const std::vector<CardRecord> records = readRecords();
    fresh.list.reserve(records.size());
    for (std::size_t i = 0; i < records.size() && !app.ending(); ++i) {
        const auto slot = static_cast<long>(i) + 1;
        if (progress.dueAt(slot))
            showProgress(slot);
        app.glance();
        fresh.add(slot, records[i]);
    }
    fields.recordRead = std::to_string(records.size());
}

std::vector<CardRecord> Pending::readRecords()
{
    std::vector<CardRecord> records;
    if (!makeIfMissing(app, fields.file))
        return records;
    platform::SlotFile file(app.files, fields.file, kCardSlotLength);
    file.open(platform::SlotUse::Read);
    file.lock();
    traceTail(app, file);
    const long count = file.count();
    // Kept: a record that cannot be read is listed as the one before it.
    const platform::ErrorsIgnored ignored(app.run);
    records.reserve(static_cast<std::size_t>(count));
    for (long slot = 1; slot <= count; ++slot) {
        records.emplace_back();
        if (!done(file.read(slot, records.back().data())) && slot > 1)
            records.back() = records[records.size() - 2];
        if (!saved && progress.dueAt(slot)) // a bulk command shows its own progress
            showProgress(slot);
    }
    return records;
}

void Pending::takeTotals(const reports::Totals &totals)
{
    fields.totals = textsOf(totals);
    fields.swipes = std::to_string(totals.listed) + " Swipes";
}

void Pending::takeRows(ListBuilder &fresh)
{
    if (fresh.sawNotAdjusted || fresh.sawDeleted)
        enable(Command::Process, false);
    fields.fromDate = fresh.list.dates.oldest;
    fields.toDate = fresh.list.dates.newest;
    colours.sawDeleted = fresh.sawDeleted;
    shownRows = std::move(fresh.list.rows);
    cardTypes = std::move(fresh.list.types);
    colourRows();
    showRows();
    // Kept: by the index of the row, so in another order it may be another record.
    if (fields.clickedRow > 0 && fields.clickedRow < static_cast<long>(shownRows.size()))
        view.selectRow(fields.clickedRow);
}

void Pending::colourRows()
{
    colours.processEnabled = fields.commands[Command::Process].enabled;
    colours.notice = fields.notice;
    colours.noticeVisible = fields.noticeVisible;
    Color_Not_Adjusted(shownRows, colours);
    Color_Declines(shownRows, colours);
    fields.toAdjust = colours.toAdjust;
    fields.notAdjusted = colours.white;
    fields.notice = colours.notice;
    fields.noticeVisible = colours.noticeVisible;
    enable(Command::Process, colours.processEnabled);
}

/// Kept: the logged count is one too low.
void Pending::traceList(long listed)
{
    const std::string rule(46, '=');
    app.values.ManagerLogBuffer = {rule,
                                   "-",
                                   "Current Credit Card File Loaded  ",
                                   "  Tab Total   " + fields.totals.tabs,
                                   "  Tip Total   " + fields.totals.tips,
                                   "  Grand Total " + fields.totals.grand,
                                   "-",
                                   "  Total List Count " + std::to_string(listed - 1),
                                   "-",
                                   rule};
    Write_Log(app);
}

void Pending::sortBy(int option)
{
    const Working here(*this);
    if (!here)
        return show();
    fields.sortedBy = option;
    Sort_Rows(sortColumnOf(option));
}

void Pending::Sort_Rows(int column)
{
    sortColumn = column;
    reports::Sort_List(shownRows, sortColumn);
    showRows();
    app.yield();
    colourRows();
    view.rowsColoured();
    show();
}

void Pending::showRows()
{
    receipt.rowsMoved();
    view.showRows(shownRows);
}

void Pending::process()
{
    if (const Working here(*this, Work::Changes); here)
        app.dialogs.message("Process",
                            "This version cannot batch out yet. Nothing has been changed.");
}

void Pending::print()
{
    const Working here(*this);
    if (!here)
        return;
    trace("     ***  USER CLICKED PRINT  ***");
    if (!choosePaper())
        return;
    reports::printList(app, printer, shownRows, fields.file, fields.totals);
    printing::showUnprinted(
        app.dialogs, printer,
        "Please see to the printer, or choose another one, and print it again.");
}

/// On a receipt roll the list could not be read: where the next job would go to one, the manager
/// chooses another printer. False for "Cancel".
bool Pending::choosePaper()
{
    if (!reports::isRoll(app.printers, printer.selectedName()))
        return true;
    const std::vector<std::string> names = app.printers.names();
    const auto page = std::find_if_not(names.begin(), names.end(), [this](const std::string &name) {
        return reports::isRoll(app.printers, name);
    });
    const std::optional<std::string> chosen =
        view.choosePrinter(names, page == names.end() ? printer.selectedName() : *page);
    if (chosen)
        printer.selectExactly(*chosen);
    return chosen.has_value();
}

void Pending::hintForceAllNoTip(bool over)
{
    if (working)
        return;
    fields.noticeVisible = over;
    if (over)
        fields.notice = kNoTipHint;
    show();
}

void Pending::showArchive()
{
    const Working here(*this);
    if (!here || !routes.archive)
        return;
    trace("     ***  USER CLICKED Archive  ***");
    routes.archive();
}

void Pending::showTotalsByServer()
{
    const Working here(*this);
    if (!here || !routes.totalsByServer)
        return;
    trace("     ***  USER CLICKED TOTALS BY SERVER  ***");
    Sort_Rows(1);
    routes.totalsByServer();
}

void Pending::showTotalsByTerminal()
{
    const Working here(*this);
    if (!here || !routes.totalsByTerminal)
        return;
    trace("     ***  USER CLICKED TOTALS BY STATION  ***");
    Sort_Rows(11);
    routes.totalsByTerminal();
}

void Pending::showTotalsByType()
{
    const Working here(*this);
    if (!here || !routes.totalsByType)
        return;
    trace("     ***  USER CLICKED TOTALS BY TYPE  ***");
    routes.totalsByType();
}

} // namespace pending
