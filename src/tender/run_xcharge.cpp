#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/exchange_file.h"
#include "records/trace.h"
#include "tender/command_line.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/tender.h"

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kWaitTimer = 8000; // ms

} // namespace

void Tender::Run_Xcharge()
{
    nameMonthFiles();
    app.files.createIfMissing(target);
    if (app.ending() || app.values.Nextform5 == "IndTips")
        return;
    const platform::ErrorsIgnored ignored(app.run);
    endLeftOverProgram(app, printer);
    if (app.ending() || paymentProgramMissing())
        return;
    clearResult(app, kResultFile);
    if (auditRefused(false)) {
        if (!app.ending())
            declined();
        return;
    }
    payment.prepare(paymentCall(app, fields), fields.receipt, fields.amount);
    Set_Data();
    startWait();
    if (oldResultRemains() || !waitForResult())
        return;
    const ReadResult read = readResult();
    if (payment.isOfEarlierPayment())
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

void Tender::startWait()
{
    // Kept: the wording has outlived the value.
    traceProcess(app, {std::string(15, ' '), "  Setting a 20 second timer to wait for response"});
    wait.startTimer(kWaitTimer);
    clearResult(app, kResultFile);
    fields.cancel.enabled = false;
    wait.start(kResultFile);
}

/// Nothing is charged then.
bool Tender::oldResultRemains()
{
    if (!payment.oldResultRemains())
        return false;
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
bool Tender::waitForResult()
{
    const WaitEnd end = wait.untilThere([&](platform::Outcome looked) {
        fields.sharedCount = fields.waitCount;
        if (done(looked)) // or the card may be charged already, and would be once more
            payment.startAt(wholeNumber(fields.waitCount));
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

ReadResult Tender::readResult()
{
    wait.end();
    display.status("");
    fields.sharedCount = "10";
    traceProcess(app,
                 {"  Got the answer file",
                  " Total seconds it took for " + fields.serverName + " swipe and Xcharge response",
                  "  SECONDS = " + fields.waitCount, "  Calling Xcharge Reader"});
    return payment.readResult();
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
    if (letter == "T")
        wait.countOn();
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
