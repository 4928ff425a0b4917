#include "printing/printer_choice.h"
#include "records/card_helpers.h"
#include "records/configuration.h"
#include "records/flag_files.h"
#include "records/kept_records.h"
#include "records/left_overs.h"
#include "records/lookups.h"
#include "records/trace.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/tender.h"

namespace tender {

using namespace records;

namespace {

constexpr const char *kCutFlagFile = "c:\\Lumbrio\\data\\CCardCut.dat";
constexpr std::uint32_t kStartDelay = 100; // ms; lets the operator see the screen first

bool isTenderRole(const App &app)
{
    return toLower(app.system.executableName()) == "tndrcc";
}

bool isStationRole(const App &app)
{
    const std::string name = Left(app.system.executableName(), 5);
    return name == "TndrI" || toLower(name) == "tndri";
}

/// The old answer and the mode flag lie in the configured directory, so the configuration is read
/// before them, and failures are ignored. It is read again in its place, where a failure counts.
bool findDirectories(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    const bool locked = Get_INI(app);
    fillEmptyDirectories(app);
    return locked;
}

void readModeFlag(App &app, TenderFields &fields)
{
    app.values.X1009 = app.files.exists(commandLineFlag(app.values));
    fields.X1009 = app.values.X1009;
    fields.commandLineMode = app.values.X1009 ? "True" : "False";
}

/// Not every end of a tender writes an answer, and the answer for the guest before may say
/// "Approved". While it can be neither removed nor emptied, no card is charged.
void requireNoOldAnswer(App &app)
{
    const platform::Outcome outcome = removeOldAnswer(app);
    if (!done(outcome))
        app.run.fail("Removing the answer of an earlier tender", answerFile(app.values), outcome);
}

/// Files of tenders of this station that were killed.
void clearWhatOthersLeft(App &app)
{
    if (const TraceLines lines = clearLeftOvers(app); !lines.empty())
        traceProcess(app, lines);
    if (holdsRoleLock(app))
        clearDeadRequests(app);
}

/// The guest has to wait for this, but only after an earlier failure.
void storeKept(App &app, Display &display)
{
    const KeptRecords found = storeKeptRecords(app);
    display.fields.waitingRecords = static_cast<int>(found.waiting.size()) + found.unreadable;
    display.show();
}

void prepareForCommandLine(Display &display)
{
    display.fields.finish.enabled = false;
    display.fields.cardOrResult.clear();
    display.status("PLEASE WAIT");
    display.statusPainted("Waiting for Xcharge Interface");
}

/// A typed card changes this.
void assumeSwipe(CardRecord &CCdata)
{
    CCdata.set(CCSwiped, "True");
    CCdata.set(CCVerify, "000");
}

void showOptions(const App &app, Display &display)
{
    display.fields.tipLine = app.values.PrintTipLine ? "YES" : "NO";
    display.fields.partialSupport = app.values.NoPartialSupport == 0 ? "YES" : "NO";
    display.fields.saleKind = app.values.TndrNOpreAUTH == 0 ? "PreAuth" : "Purchase";
    display.fields.versionLine = std::string("Version ") + kProgramVersion;
    display.show();
}

void readConfiguration(App &app, Display &display, bool iniLocked)
{
    loadSetupFlags(app);
    app.values.StationName = app.system.computerName();
    Clear_CCdata(app.values.CCdata);
    Get_INI(app, iniLocked ? IniLock::WaitedFor : IniLock::AtOnce);
    display.fields.versionToolTip = versionToolTip(app.values.config);
    app.values.gratuityPercent = app.values.config.value(kGratuityPercent);
    app.values.PreApproveTip = false;
    Get_CCini(app);
    showOptions(app, display);
    assumeSwipe(app.values.CCdata);
    fillEmptyDirectories(app);
}

TraceLines requestTrace(const App &app, const TenderRequest &request)
{
    const std::string blanks(15, ' ');
    return {"Request File - " + requestFile(app.values),
            "Table Number - " + request.table,
            "Receipt Number - " + request.receipt,
            "Server (Employee) Number - " + app.values.EmployeeNumber,
            "Sale Amount - " + request.amount,
            blanks,
            std::string(58, '*'),
            "***       Waiting For card Swipe      ***",
            std::string(58, '*'),
            blanks};
}

void traceStart(App &app, const TenderRequest &request)
{
    TraceLines lines = {std::string(58, '='),
                        "Station Name " + app.values.StationName,
                        "EXE name ********* " + app.system.executableName(),
                        "Employee Name " + app.values.EmployeeFullName,
                        "Employee Number # " + app.values.EmployeeNumber,
                        std::string(34, '_'),
                        std::string(15, ' '),
                        std::string("Software Version - ") + kProgramVersion};
    if (!isStationRole(app) && app.values.X1009)
        lines.emplace_back("USING 10/2009 VERSION  ");
    if (!isStationRole(app))
        for (const std::string &line : requestTrace(app, request))
            lines.push_back(line);
    traceProcess(app, lines);
}

void fillFields(App &app, TenderFields &fields, const TenderRequest &request)
{
    fields.server = app.values.EmployeeNumber;
    Fetch_EmpName(app);
    fields.serverName = app.values.EmployeeFullName;
    fields.table = request.table;
    fields.receipt = request.receipt;
    fields.amount = request.amount;
}

void showGratuity(const Money &percent, Display &display)
{
    display.fields.gratuity = gratuityOf(display.fields.amount, percent);
    display.fields.totalWithGratuity = Currency(display.fields.gratuity.total);
    display.fields.gratuityPercent = "%" + plainText(percent);
    display.show();
}

void showFlags(App &app, TenderFields &fields)
{
    if (app.files.exists(app.values.Maindir + "XCHide.txt")) {
        fields.cardMasked = !app.values.X1009;
        fields.view = {!app.values.X1009, !app.values.X1009};
    }
    fields.noReceipt = app.files.exists(noReceiptFlag(app.values));
    fields.noReceiptEnabled = true;
}

void waitForCard(Display &display)
{
    TenderFields &fields = display.fields;
    fields.version = kProgramVersion;
    fields.cancel.enabled = true;
    fields.boxesLocked = fields.X1009;
    for (CommandState *command : {&fields.enterManually, &fields.clear, &fields.startServer})
        command->enabled = !fields.X1009;
    display.statusPainted(fields.X1009 ? "Waiting for Xcharge Interface"
                                       : "Waiting for You to Swipe the Card");
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace

Tender::Tender(App &theApp, printing::Printer &thePrinter, TenderView &theView)
    : app(theApp), printer(thePrinter), display(theView),
      wait(app, display, [this] { Show_Offline_Panel(); }), manager(app, display),
      capture(app, display, manager, [this] { Approval_Engine(); }), server(app), payment(app),
      end(app, printer, display, [this] { stopTimers(); }),
      outcomes(app, printer, display, end, payment), startTimer(app.clock, [this] { startOnce(); })
{
}

void Tender::Form_Load()
{
    fields.versionToolTip = "INTERNAL VERSION (MOST RECENT) IS " +
                            Format(app.values.config.text(kOwnerCode), "########.##");
    display.view.SetTopMostWindow(true);
    const platform::ErrorsIgnored ignored(app.run);
    fields.cutBetweenCopies = app.files.exists(kCutFlagFile) ? "YES" : "NO";
    Get_AsstMgr(app);
    startProcessTrace(app);
    Get_AsstMgr(app);
    printing::Set_Printer(app, printer);
    display.show();
    startTimer.setInterval(kStartDelay);
}

void Tender::startOnce()
{
    startTimer.setInterval(0);
    Start_Tender();
}

void Tender::stopTimers()
{
    capture.stop();
    wait.stopTimers();
}

void Tender::Start_Tender()
{
    if (isTenderRole(app))
        startAsTender();
    else
        startAsHelper();
}

void Tender::startAsTender()
{
    app.run.consequence = kNotCharged;
    TenderRequest request;
    if (!prepareStation() || !takeRequest(request))
        return;
    showRequest(request);
    if (refuseZeroAmount())
        return;
    showFlags(app, fields);
    assumeSwipe(app.values.CCdata);
    waitForCard(display);
    if (app.values.X1009)
        Run_Xcharge();
}

/// What a station needs before a card may be charged. False when none may be.
bool Tender::prepareStation()
{
    const bool iniLocked = findDirectories(app);
    if (anotherTenderLives())
        return false;
    requireNoOldAnswer(app);
    // Without its settings the station would pay with another login and print elsewhere.
    if (!app.installation.unreadable.empty())
        app.run.fail(app.installation.unreadable);
    configure(iniLocked);
    requireNoOldAnswer(app); // once more: only now the directory is certain
    if (!app.ending())
        clearWhatOthersLeft(app);
    if (app.ending() || serverIsBatching())
        return false;
    storeKept(app, display);
    return true;
}

/// Another role needs the filled fields only; a request may be missing.
void Tender::startAsHelper()
{
    const platform::ErrorsIgnored ignored(app.run);
    configure(findDirectories(app));
    TenderRequest request;
    if (!app.ending() && readRequest(app, request) != Sent::Unreadable)
        showRequest(request);
}

void Tender::configure(bool iniLocked)
{
    readModeFlag(app, fields);
    if (app.values.X1009)
        prepareForCommandLine(display);
    readConfiguration(app, display, iniLocked);
}

/// False when there is no request; then the tender has ended.
bool Tender::takeRequest(TenderRequest &request)
{
    const Sent sent = readRequest(app, request);
    if (sent == Sent::Missing)
        requestMissing();
    return sent == Sent::Read;
}

void Tender::showRequest(const TenderRequest &request)
{
    traceStart(app, request);
    fillFields(app, fields, request);
    showGratuity(app.values.gratuityPercent, display);
}

/// A command pressed twice starts two tenders of one check: the second would charge the card again,
/// and answer in place of the first. When the lock fails for another reason, the tender goes on.
bool Tender::anotherTenderLives()
{
    if (takeRoleLock(app) != platform::Outcome::Locked)
        return false;
    app.dialogs.notice({"A CARD IS BEING TAKEN",
                        "Another card window is open at this station. Finish the card in that one. "
                        "Nothing was charged here. If there is no other card window, restart this "
                        "station.",
                        {},
                        {}});
    end.close();
    return true;
}

bool Tender::serverIsBatching()
{
    if (!app.files.exists(batchMarker(app.values)))
        return false;
    display.view.hide();
    display.view.showServerBusy();
    return true;
}

void Tender::deleteBatchMarker()
{
    app.files.removeIfThere(batchMarker(app.values));
}

/// The answer is written before the message waits for the operator.
void Tender::requestMissing()
{
    end.answer(answerBlock("File Not Found", app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Data File Not Found",
                        "The Lumbrio Transaction File for this transaction was Not Found. Pless OK "
                        "to continue and  Go back to the Tender screen and try again.");
    end.close();
}

bool Tender::refuseZeroAmount()
{
    if (!Val(fields.amount).isZero())
        return false;
    fields.amount = "0.00";
    display.show();
    app.dialogs.message("ZERO AMOUNT", "The system was not able to obtain the amount of this TAB. "
                                       "Please Press Cancel and try again.");
    end.close();
    return true;
}

} // namespace tender
