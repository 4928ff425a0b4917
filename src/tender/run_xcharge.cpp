#include "printing/slip.h"
#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/exchange_file.h"
#include "records/trace.h"
#include "tender/command_line.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/result_reader.h"
#include "tender/tender.h"

#include <algorithm>
#include <limits>

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kWaitTimer = 8000; // ms
constexpr std::chrono::milliseconds kKillPause(500);
constexpr int kSecondStart = 50; // count of the wait
constexpr int kNoStart = std::numeric_limits<int>::max();

TraceLines requestTrace(const std::string &commandLine, const std::vector<std::string> &parts)
{
    TraceLines lines = {std::string(54, '*'), std::string(54, '*'),
                        "***********  X CHARGE REQUEST INFO  ******************"};
    lines.insert(lines.end(), parts.begin(), parts.end());
    lines.emplace_back(54, '-');
    lines.emplace_back(kXchargeProgram);
    lines.push_back(commandLine.substr(std::string(kXchargeProgram).size() + 1));
    lines.emplace_back("Calling Set Data");
    return lines;
}

} // namespace

void Tender::Run_Xcharge()
{
    nameMonthFiles();
    app.files.createIfMissing(target);
    if (app.ending() || app.values.Nextform5 == "IndTips")
        return;
    const platform::ErrorsIgnored ignored(app.run);
    endLeftOverProgram();
    if (app.ending() || paymentProgramMissing())
        return;
    clearResult(app, kResultFile);
    if (auditRefused(false)) {
        if (!app.ending())
            declined();
        return;
    }
    const std::string commandLine = buildCommandLine();
    Set_Data();
    startWait();
    if (oldResultRemains() || !waitForResult(commandLine))
        return;
    const ReadResult read = readResult();
    resultTaken = read.mark;
    if (isAnEarlierPayments())
        outcomeUnknown(kResultFile, "The payment answered for another amount",
                       "a payment before this one is still open");
    else if (read.unreadable())
        outcomeUnknown(kResultFile, kNotRead,
                       read.longer ? "longer than a result can be"
                                   : platform::textOf(read.outcome));
    else
        judgeResult();
}

void Tender::nameMonthFiles()
{
    const platform::DateTime now = app.clock.now();
    target = monthFile(app.values, now);
    declineTarget = deletedFile(app.values, now);
}

/// Fonts and printers are warmed up within the pause, which stands anyway.
void Tender::endLeftOverProgram()
{
    app.system.killImage(kXchargeImage);
    const std::uint32_t before = app.clock.tick();
    printing::warmUp(app, printer);
    const std::chrono::milliseconds used(app.clock.tick() - before);
    Pause(app, std::max(kKillPause - used, std::chrono::milliseconds(0)));
}

bool Tender::paymentProgramMissing()
{
    if (app.files.exists(kXchargeProgram))
        return false;
    app.dialogs.message("Data File Not Found",
                        "The Xcharge Program was not found on this computer. Xcharge must first be "
                        "installed on this computer before you can process a credit card. Pless "
                        "contact Tech Support at 555-010-0199.");
    endTender();
    return true;
}

/// True when the amount is not what the point of sale calculated and the operator pressed Cancel.
bool Tender::auditRefused(bool localPath)
{
    const std::string path = auditFile(app.values);
    bool there = false;
    if (done(app.files.exists(path, there)) && !there)
        return false;
    // One that cannot be read agrees with no amount.
    const std::string audit = auditAmount(readExchange(app, path).text);
    fields.auditAmount = Currency(audit);
    display.show();
    if (amountsAgree(audit, fields.amount))
        return false;
    const platform::Answer pressed = app.dialogs.message(
        "AUDIT FAILED", auditQuestion(fields.amount, localPath), platform::Buttons::OkCancel);
    if (pressed == platform::Answer::Ok)
        return false;
    fields.cardOrResult = "Wrong Amount";
    app.values.TndrRESULT.clear();
    return true;
}

std::string Tender::buildCommandLine()
{
    if (isBlank(fields.server))
        fields.server = "9999";
    PaymentCall call;
    call.purchase = app.values.TndrNOpreAUTH != 0;
    call.partialSupport = app.values.NoPartialSupport == 0;
    call.amount = argument(Trim(fields.amount), "AMOUNT");
    call.receipt = argument(fields.receipt, "RECEIPT");
    call.clerk = argument(fields.server, "CLERK");
    call.userId = app.installation.xchargeUserId;
    call.password = app.installation.xchargePassword;
    const std::string line = commandLine(call);
    traceProcess(app, requestTrace(line, commandLineParts(call)));
    return line;
}

/// A value of the request must not become another option of the payment application.
std::string Tender::argument(const std::string &value, const char *name)
{
    const std::string cut = argumentValue(value);
    if (cut.size() < value.size())
        traceProcess(app, {std::string("  ") + name + " CUT ON THE COMMAND LINE - " + cut});
    return cut;
}

void Tender::startWait()
{
    // Kept: the wording has outlived the value.
    traceProcess(app, {std::string(15, ' '), "  Setting a 20 second timer to wait for response"});
    wait.startTimer(kWaitTimer);
    clearResult(app, kResultFile);
    fields.cancel.enabled = false;
    wait.start(kResultFile);
}

/// An old result that cannot be deleted would be taken for this card's: nothing is charged then.
bool Tender::oldResultRemains()
{
    platform::Found found = platform::Found::Nothing;
    if (done(app.files.look(kResultFile, found)) && found == platform::Found::Nothing)
        return false;
    traceProcess(app, {std::string("  OLD RESULT CANNOT BE DELETED - ") + kResultFile});
    app.values.TndrRESULT = "Declined";
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Result File",
                        "The result of an earlier card cannot be removed from this computer, so "
                        "this card was not charged. Please try again, or restart this station.");
    endTender();
    return true;
}

/// Until the result file exists. False when the wait was stopped or the program is ending.
bool Tender::waitForResult(const std::string &commandLine)
{
    int shellAt = 0;
    const WaitEnd end = wait.untilThere([&](platform::Outcome looked) {
        fields.sharedCount = fields.waitCount;
        if (done(looked)) // or the card may be charged already, and would be once more
            startPaymentAt(commandLine, shellAt);
    });
    if (end == WaitEnd::Stopped)
        waitStopped();
    return end == WaitEnd::Answered;
}

void Tender::waitStopped()
{
    traceProcess(app, {"Unable to Connect - Internet may be down ",
                       "Actual Seconds waited for Response  " + fields.waitCount});
    wait.giveUp();
    fields.waitCountVisible = false;
    fields.cancel.enabled = true; // the operator's way out
    display.show();
}

/// On the first pass, and once more at count 50: that revives a stalled payment application.
void Tender::startPaymentAt(const std::string &commandLine, int &shellAt)
{
    if (shellAt != 0 && fields.sharedCount != std::to_string(shellAt))
        return;
    app.run.consequence = kMayBeCharged;
    if (shellAt == 0)
        notePayment();
    app.system.start(commandLine, platform::WindowStyle::Normal);
    shellAt = shellAt == 0 ? kSecondStart : kNoStart;
}

void Tender::notePayment()
{
    openBefore = openPayments(app);
    for (const AskedPayment &open : openBefore)
        traceProcess(app, {"  A PAYMENT BEFORE THIS ONE HAS NOT ANSWERED - receipt " +
                           open.receipt + ", amount " + open.amount + " - " + open.stamp});
    asked = {stampOf(app.clock.now()), fields.receipt, fields.amount};
    noteAsked(app, asked);
}

/// A payment application that a tender has given up goes on, and may answer the next one. Its
/// approval must not pay for another guest.
bool Tender::isAnEarlierPayments() const
{
    const CardRecord &CCdata = app.values.CCdata;
    return !openBefore.empty() && Left(CCdata.raw(CResponse), 1) == "S" &&
           isForAnotherAmount(CCdata, fields.amount);
}

ReadResult Tender::readResult()
{
    wait.end();
    display.status("");
    fields.sharedCount = "10";
    traceProcess(app,
                 {"  Got the answer file",
                  " Total seconds it took for " + fields.serverName + " swipe and Xcharge response",
                  "  SECONDS = " + fields.waitCount, "  Calling Xcharge Reader"});
    app.values.CCdata.set(CResponse, " ");
    app.values.CCdata.set(CCaditionalFUNDS, "0");
    return readResultFile(app, kDefaultResultFile);
}

/// Kept: on the first letter of the response alone; "Sorry" would approve.
void Tender::judgeResult()
{
    CardRecord &CCdata = app.values.CCdata;
    const std::string letter = Left(CCdata.raw(CResponse), 1);
    fields.cancel.enabled = true;
    display.view.focus(TenderBox::Cancel);
    answering = true;
    const bool success = letter == "S";
    fields.finish.enabled = success;
    if (letter == "T") {
        wait.countOn();
    }
    app.values.TndrRESULT = success ? "Approved" : "Declined";
    fields.cardOrResult = app.values.TndrRESULT;
    fields.result = true;
    fields.approved = success;
    CCdata.set(CCstatus, app.values.TndrRESULT);
    display.status(app.values.TndrRESULT);
    encodeCardNumber(CCdata);
    if (!success)
        declined();
    else if (CCdata.value(CCaditionalFUNDS) > Money())
        partiallyApproved();
    else
        approved();
}

} // namespace tender
