#include "printing/printer_choice.h"
#include "records/card_helpers.h"
#include "records/configuration.h"
#include "records/exchange_file.h"
#include "records/kept_records.h"
#include "records/left_overs.h"
#include "records/lookups.h"
#include "records/trace.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/tender.h"

#include <optional>

namespace tender {

using namespace records;

namespace {

constexpr const char *kCutFlagFile = "c:\\Lumbrio\\data\\CCardCut.dat";
// Characters; "DelPrePay" and what follows it is longer than the record's table.
constexpr std::size_t kLongestTable = 50;
constexpr std::uint32_t kStartDelay = 100; // ms; lets the operator see the screen first

std::string batchMarker(const ProcessValues &values)
{
    return values.Remotedir + "ServerISBatching.dat";
}

} // namespace

Tender::Tender(App &theApp, printing::Printer &thePrinter, TenderView &theView)
    : app(theApp), printer(thePrinter), display(theView),
      wait(app, display, [this] { Show_Offline_Panel(); }),
      capture(app, display, manager, [this] { Approval_Engine(); }),
      startTimer(app.clock, [this] { startOnce(); })
{
}

void Tender::Form_Load()
{
    fields.versionToolTip = "INTERNAL VERSION (MOST RECENT) IS " +
                            Format(app.values.config.text(kOwnerCode), "########.##");
    display.view.setTopMost(true);
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

bool Tender::isTenderRole() const
{
    return toLower(app.system.executableName()) == "tndrcc";
}

bool Tender::isStationRole() const
{
    const std::string name = Left(app.system.executableName(), 5);
    return name == "TndrI" || toLower(name) == "tndri";
}

void Tender::Start_Tender()
{
    std::optional<platform::ErrorsIgnored> asHelper;
    if (!isTenderRole())
        asHelper.emplace(app.run);
    if (isTenderRole())
        app.run.consequence = kNotCharged;
    const bool iniLocked = findDirectories();
    if (isTenderRole() && anotherTenderLives())
        return;
    if (isTenderRole())
        freeAnswer();
    // An unknown login must not pay, nor another printer print.
    if (isTenderRole() && !app.installation.unreadable.empty())
        app.run.fail(app.installation.unreadable);
    readModeFlag();
    if (app.values.X1009)
        prepareForCommandLine();
    readConfiguration(iniLocked);
    if (isTenderRole()) // in the directory that is known for certain now
        freeAnswer();
    if (isTenderRole() && !app.ending())
        clearWhatOthersLeft();
    if (app.ending() || (isTenderRole() && serverIsBatching()))
        return;
    if (isTenderRole())
        storeKept();
    if (!readRequest())
        return;
    traceStart();
    fillFields();
    showGratuity();
    // As a helper of another role the filled fields are all that is wanted.
    if (!isTenderRole() || refuseZeroAmount())
        return;
    showFlags();
    assumeSwipe();
    waitForCard();
    if (app.values.X1009)
        Run_Xcharge();
}

/// The old answer and the mode flag lie in the configured directory, so that the configuration is
/// read ahead of them, silently; the reading that may fail follows in its place.
bool Tender::findDirectories()
{
    const platform::ErrorsIgnored ignored(app.run);
    const bool locked = Get_INI(app);
    fillEmptyDirectories(app);
    return locked;
}

void Tender::readModeFlag()
{
    app.values.X1009 = app.files.exists(app.values.Maindir + "X1009Version.dat");
    fields.X1009 = app.values.X1009;
    fields.commandLineMode = app.values.X1009 ? "True" : "False";
}

/// A command pressed twice starts two tenders of one check: the second would charge the card again,
/// and answer in place of the first. A lock that cannot be had for another reason is not in the
/// way.
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
    endTender();
    return true;
}

/// Not every end of a tender writes an answer, and the one of the guest before may say "Approved".
/// No card is charged beside one that can neither be removed nor emptied.
void Tender::freeAnswer()
{
    const platform::Outcome outcome = removeOldAnswer(app);
    if (!done(outcome))
        app.run.fail("Removing the answer of an earlier tender", answerFile(app.values), outcome);
}

/// Of tenders of this station that did not come to their end.
void Tender::clearWhatOthersLeft()
{
    if (const TraceLines lines = clearLeftOvers(app); !lines.empty())
        traceProcess(app, lines);
    if (holdsRoleLock(app))
        clearDeadRequests(app);
}

/// Not while the back office batches. The guest waits, but seldom: it needs a failure before.
void Tender::storeKept()
{
    const KeptRecords found = storeKeptRecords(app);
    fields.waitingRecords = static_cast<int>(found.waiting.size()) + found.unreadable;
    display.show();
}

void Tender::prepareForCommandLine()
{
    fields.finish.enabled = false;
    fields.cardOrResult.clear();
    display.status("PLEASE WAIT");
    display.statusPainted("Waiting for Xcharge Interface");
}

void Tender::readConfiguration(bool iniLocked)
{
    loadSetupFlags(app);
    app.values.StationName = app.system.computerName();
    Clear_CCdata(app.values.CCdata);
    Get_INI(app, iniLocked ? IniLock::WaitedFor : IniLock::AtOnce);
    fields.versionToolTip = versionToolTip(app.values.config);
    app.values.gratuityPercent = app.values.config.value(kGratuityPercent);
    app.values.PreApproveTip = false;
    Get_CCini(app);
    showOptions();
    assumeSwipe();
    fillEmptyDirectories(app);
}

void Tender::showOptions()
{
    fields.tipLine = app.values.PrintTipLine ? "YES" : "NO";
    fields.partialSupport = app.values.NoPartialSupport == 0 ? "YES" : "NO";
    fields.saleKind = app.values.TndrNOpreAUTH == 0 ? "PreAuth" : "Purchase";
    fields.versionLine = std::string("Version ") + kProgramVersion;
    display.show();
}

/// Until a typed card says otherwise.
void Tender::assumeSwipe()
{
    app.values.CCdata.set(CCSwiped, "True");
    app.values.CCdata.set(CCVerify, "000");
}

bool Tender::serverIsBatching()
{
    if (!app.files.exists(batchMarker(app.values)))
        return false;
    display.view.hideScreen();
    display.view.showServerBusy();
    return true;
}

void Tender::deleteBatchMarker()
{
    app.files.removeIfThere(batchMarker(app.values));
}

bool Tender::readRequest()
{
    const std::string path = requestFile(app.values);
    if (!app.files.exists(path)) {
        if (!isTenderRole())
            return true; // a helper fills the fields with what there is
        requestMissing();
        return false;
    }
    const ExchangeFile file = readExchange(app, path);
    if (!done(file.outcome))
        return false;
    const TenderRequest request = parseRequest(file.text);
    sentTable = boundedValue(app, request.table, kLongestTable, "TABLE");
    sentReceipt = boundedValue(app, request.receipt, CCReceipt.length, "RECEIPT");
    sentAmount = boundedValue(app, request.amount, CCSaleAmt.length, "AMOUNT");
    app.values.EmployeeNumber = boundedValue(app, request.server, CCServer.length, "SERVER");
    return true;
}

/// The point of sale gets its answer before anybody has to press a button.
void Tender::requestMissing()
{
    writeAnswer(answerBlock("File Not Found", app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Data File Not Found",
                        "The Lumbrio Transaction File for this transaction was Not Found. Pless OK "
                        "to continue and  Go back to the Tender screen and try again.");
    endTender();
}

void Tender::traceStart()
{
    const std::string blanks(15, ' ');
    TraceLines lines = {std::string(58, '='),
                        "Station Name " + app.values.StationName,
                        "EXE name ********* " + app.system.executableName(),
                        "Employee Name " + app.values.EmployeeFullName,
                        "Employee Number # " + app.values.EmployeeNumber,
                        std::string(34, '_'),
                        blanks,
                        std::string("Software Version - ") + kProgramVersion};
    if (!isStationRole()) {
        if (app.values.X1009)
            lines.emplace_back("USING 10/2009 VERSION  ");
        for (const std::string &line :
             {"Request File - " + requestFile(app.values), "Table Number - " + sentTable,
              "Receipt Number - " + sentReceipt,
              "Server (Employee) Number - " + app.values.EmployeeNumber,
              "Sale Amount - " + sentAmount, blanks, std::string(58, '*'),
              std::string("***       Waiting For card Swipe      ***"), std::string(58, '*'),
              blanks})
            lines.push_back(line);
    }
    traceProcess(app, lines);
}

void Tender::fillFields()
{
    fields.server = app.values.EmployeeNumber;
    Fetch_EmpName(app);
    fields.serverName = app.values.EmployeeFullName;
    fields.table = sentTable;
    fields.receipt = sentReceipt;
    fields.amount = sentAmount;
}

void Tender::showGratuity()
{
    const Money percent = app.values.gratuityPercent;
    gratuity = gratuityOf(fields.amount, percent);
    fields.totalWithGratuity = Currency(gratuity.total);
    fields.gratuityPercent = "%" + plainText(percent);
    display.show();
}

bool Tender::refuseZeroAmount()
{
    if (!Val(fields.amount).isZero())
        return false;
    fields.amount = "0.00";
    display.show();
    app.dialogs.message("ZERO AMOUNT", "The system was not able to obtain the amount of this TAB. "
                                       "Please Press Cancel and try again.");
    endTender();
    return true;
}

void Tender::showFlags()
{
    if (app.files.exists(app.values.Maindir + "XCHide.txt")) {
        fields.cardMasked = !app.values.X1009;
        fields.viewCaption = "View";
        fields.view = {!app.values.X1009, !app.values.X1009};
    }
    fields.noReceipt = app.files.exists(app.values.Maindir + "CCnoPrint.dat");
    fields.noReceiptEnabled = true;
}

void Tender::waitForCard()
{
    fields.version = kProgramVersion;
    fields.cancel.enabled = true;
    fields.boxesLocked = app.values.X1009;
    for (CommandState *command : {&fields.enterManually, &fields.clear, &fields.startServer})
        command->enabled = !app.values.X1009;
    display.statusPainted(app.values.X1009 ? "Waiting for Xcharge Interface"
                                           : "Waiting for You to Swipe the Card");
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace tender
