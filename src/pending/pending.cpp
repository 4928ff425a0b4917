#include "pending/pending.h"

#include "pending/pending_working.h"
#include "pending/printed_list.h"
#include "printing/unprinted.h"
#include "records/card_files.h"
#include "records/delimited.h"
#include "records/trace.h"

#include <algorithm>
#include <utility>

namespace pending {

using namespace records;

namespace {

constexpr std::uint64_t kPaintEvery = 50;          // ms
constexpr std::uint64_t kConnectionLasts = 30'000; // ms
constexpr std::uint32_t kConnectionLook = 100;     // ms
constexpr long kLookEvery = 16; // records; a look at the clock costs as much as a fifth of one

/// Whether the command changes files. "Done" finishes too, but remains the way out.
bool changes(int number)
{
    constexpr std::array kChanging = {2, 5, 8, 11, 13, 14, 15};
    return std::find(kChanging.begin(), kChanging.end(), number) != kChanging.end();
}

} // namespace

Pending::Pending(App &theApp, printing::Printer &thePrinter, PendingView &theView,
                 PendingRoutes theRoutes)
    : app(theApp), printer(thePrinter), view(theView), routes(std::move(theRoutes)),
      Timer3(app.clock, [this] { Timer3_Timer(); }),
      connectionTimer(app.clock, [this] { showConnection(); })
{
    fields.SSCommand[5].visible = false;
    enable(8, false);
    for (const int number : {6, 7, 10, 12})
        enable(number, true);
}

void Pending::Form_Load()
{
    if (toLower(app.system.executableName()) == "tndrcc")
        return;
    if (app.values.Remotedir.empty())
        app.values.Remotedir = "C:\\Lumbrio\\";
    fields.SSOption1 = -1;
    enable(2, false);
    enable(3, true);
    for (const int number : {5, 11, 13, 14, 15})
        enable(number, true);
    if (!app.values.lookOnly)
        app.files.write(markerFile(), quotedLine(""));
    show();
}

void Pending::entrySaved()
{
    loadAgain = true;
    const Working here(*this); // loads when it is the outermost; else the command under way does
}

details::EntryCallbacks Pending::entryCallbacks()
{
    details::EntryCallbacks callbacks;
    callbacks.reloadPending = [this] { entrySaved(); };
    callbacks.forceAllNoTip = [this] { SSCommand11_Click(); };
    callbacks.listWorks = [this] { return working; };
    return callbacks;
}

void Pending::enable(int number, bool on)
{
    const bool served = (number != 6 || routes.archive) && (number != 7 || routes.totalsByServer) &&
                        (number != 10 || routes.totalsByTerminal) &&
                        (number != 12 || routes.totalsByType);
    const bool allowed = !(app.values.lookOnly && changes(number));
    fields.SSCommand[static_cast<std::size_t>(number)].enabled = on && served && allowed;
}

/// Every save reloads the list, and none may wait for a line that is down: the last answer stays
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
    fields.Label20 =
        fields.connected ? "Internet connection detected!!" : "No internet connection detected...";
    enable(8, fields.connected);
    show();
}

void Pending::Make_Sound()
{
    app.system.playSound(app.values.Maindir + "whoosh.wav");
}

void Pending::Disable_Buttons()
{
    for (const int number : {1, 2, 3, 4, 6, 7, 11})
        enable(number, false);
    Make_Sound();
}

void Pending::Enable_Buttons()
{
    for (const int number : {1, 3, 4, 6})
        enable(number, true);
    for (const int number : {7, 10, 11, 12})
        enable(number, !MList1.empty());
    Make_Sound();
}

void Pending::panel(const std::string &text)
{
    receipt.clear(); // or it would hide the panel
    fields.receiptHint.clear();
    fields.SSPanel1_0 = text;
    fields.SSPanel1_0Visible = true;
    show();
    view.paintNow();
}

void Pending::show()
{
    view.refresh(fields);
}

void Pending::showProgress(long record)
{
    const std::uint64_t now = app.clock.milliseconds();
    if (now - paintedAt < kPaintEvery)
        return;
    paintedAt = now;
    fields.Label4 = fields.Label19 = std::to_string(record);
    show();
    view.paintNow();
}

void Pending::trace(const std::string &line)
{
    app.values.ManagerLogBuffer[0] = line;
    Write_Log(app);
}

void Pending::SSCommand3_Click()
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
    fields.Label16 = fresh.oldest;
    fields.Label17 = fresh.newest;
    std::fill_n(fields.Label5.begin(), 3, "0");
    fields.Label4Visible = true;
    fields.Label6 = pendingFile(app.values);
    clearList();
    show();
    view.paintNow();
    paintedAt = app.clock.milliseconds();
    readList(fresh, [this] { app.glance(); });
    if (app.ending())
        return;
    takeTotals(fresh.listed, fresh.tabs, fresh.tips);
    takeRows(fresh);
    traceList(fresh.listed);
    Enable_Buttons();
    show();
}

void Pending::clearList()
{
    fields.SSOption1 = -1;
    sortColumn = 0;
    enable(2, true);
    MList1.clear();
    MList2.clear();
    showRows();
}

/// The lock lasts as long as the reading: what takes its time, rows and events, comes behind it.
void Pending::readList(ListBuilder &fresh, const std::function<void()> &atEachRecord)
{
    const std::vector<CardRecord> records = readRecords();
    fresh.reserve(records.size());
    for (std::size_t i = 0; i < records.size() && !app.ending(); ++i) {
        const auto slot = static_cast<long>(i) + 1;
        if (slot % kLookEvery == 0)
            showProgress(slot);
        atEachRecord();
        fresh.add(slot, records[i]);
    }
    fields.Label4 = fields.Label19 = std::to_string(records.size());
}

std::vector<CardRecord> Pending::readRecords()
{
    std::vector<CardRecord> records;
    if (!makeIfMissing(app, fields.Label6))
        return records;
    platform::SlotFile file(app.files, fields.Label6, kCardSlotLength);
    file.open(platform::SlotUse::Read);
    file.lock();
    traceTail(app, file);
    const long count = file.count();
    // Kept: a record that cannot be read shows as the one before it.
    const platform::ErrorsIgnored ignored(app.run);
    records.reserve(static_cast<std::size_t>(count));
    for (long slot = 1; slot <= count; ++slot) {
        records.emplace_back();
        if (!done(file.read(slot, records.back().data())) && slot > 1)
            records.back() = records[records.size() - 2];
        if (!saved && slot % kLookEvery == 0) // a bulk command tells its own
            showProgress(slot);
    }
    return records;
}

void Pending::takeTotals(long listed, Money tabs, Money tips)
{
    fields.Label5[0] = Currency(tabs);
    fields.Label5[1] = Currency(tips);
    fields.Label5[2] = Currency(tabs + tips);
    fields.Label18 = std::to_string(listed) + " Swipes";
}

void Pending::takeRows(ListBuilder &fresh)
{
    if (fresh.sawNotAdjusted || fresh.sawDeleted)
        enable(2, false);
    fields.Label16 = fresh.oldest;
    fields.Label17 = fresh.newest;
    colours.sawDeleted = fresh.sawDeleted;
    MList1 = std::move(fresh.rows);
    MList2 = std::move(fresh.types);
    colourRows();
    showRows();
    // Kept: the index of a row, so that after another order it may be another record.
    if (fields.Label8 > 0 && fields.Label8 < static_cast<long>(MList1.size()))
        view.selectRow(fields.Label8);
}

void Pending::colourRows()
{
    colours.processEnabled = fields.SSCommand[2].enabled;
    colours.notice = fields.SSPanel1_0;
    colours.noticeVisible = fields.SSPanel1_0Visible;
    Color_Not_Adjusted(MList1, colours);
    Color_Declines(MList1, colours);
    fields.Label7 = std::to_string(colours.Label7);
    fields.notAdjusted = colours.white;
    fields.SSPanel1_0 = colours.notice;
    fields.SSPanel1_0Visible = colours.noticeVisible;
    enable(2, colours.processEnabled);
}

/// Kept: the count is that of the highest index, one short.
void Pending::traceList(long listed)
{
    const std::string rule(46, '=');
    app.values.ManagerLogBuffer = {rule,
                                   "-",
                                   "Current Credit Card File Loaded  ",
                                   "  Tab Total   " + fields.Label5[0],
                                   "  Tip Total   " + fields.Label5[1],
                                   "  Grand Total " + fields.Label5[2],
                                   "-",
                                   "  Total List Count " + std::to_string(listed - 1),
                                   "-",
                                   rule};
    Write_Log(app);
}

void Pending::SSOption1_Click(int option)
{
    const Working here(*this);
    if (!here)
        return show();
    fields.SSOption1 = option;
    Sort_Rows(sortColumnOf(option));
}

void Pending::Sort_Rows(int column)
{
    sortColumn = column;
    Sort_List(MList1, sortColumn);
    showRows();
    app.yield();
    colourRows();
    view.rowsColoured();
    show();
}

void Pending::showRows()
{
    receipt.rowsMoved();
    view.showRows(MList1);
}

void Pending::SSCommand2_Click()
{
    if (const Working here(*this, Work::Changes); here)
        app.dialogs.message("Process",
                            "This version cannot batch out yet. Nothing has been changed.");
}

void Pending::SSCommand4_Click()
{
    const Working here(*this);
    if (!here)
        return;
    trace("     ***  USER CLICKED PRINT  ***");
    if (!choosePaper())
        return;
    printList(app, printer, MList1, fields);
    printing::tellUnprinted(
        app.dialogs, printer,
        "Please see to the printer, or choose another one, and print it again.");
}

/// Nobody could read the list on a receipt roll: where the next job would go to one, the manager
/// chooses. False for "Cancel".
bool Pending::choosePaper()
{
    if (!isRoll(app.printers, printer.selectedName()))
        return true;
    const std::vector<std::string> names = app.printers.names();
    const auto page = std::find_if_not(names.begin(), names.end(), [this](const std::string &name) {
        return isRoll(app.printers, name);
    });
    const std::optional<std::string> chosen =
        view.choosePrinter(names, page == names.end() ? printer.selectedName() : *page);
    if (chosen)
        printer.selectExactly(*chosen);
    return chosen.has_value();
}

void Pending::SSCommand11_Mouse(bool over)
{
    if (working)
        return;
    fields.SSPanel1_0Visible = over;
    if (over)
        fields.SSPanel1_0 = kNoTipHint;
    show();
}

void Pending::SScommand6_Click()
{
    const Working here(*this);
    if (!here || !routes.archive)
        return;
    trace("     ***  USER CLICKED Archive  ***");
    routes.archive();
}

void Pending::SSCommand7_Click()
{
    const Working here(*this);
    if (!here || !routes.totalsByServer)
        return;
    trace("     ***  USER CLICKED TOTALS BY SERVER  ***");
    Sort_Rows(1);
    routes.totalsByServer();
}

void Pending::SSCommand10_Click()
{
    const Working here(*this);
    if (!here || !routes.totalsByTerminal)
        return;
    trace("     ***  USER CLICKED TOTALS BY STATION  ***");
    Sort_Rows(11);
    routes.totalsByTerminal();
}

void Pending::SSCommand12_Click()
{
    const Working here(*this);
    if (!here || !routes.totalsByType)
        return;
    trace("     ***  USER CLICKED TOTALS BY TYPE  ***");
    routes.totalsByType();
}

} // namespace pending
