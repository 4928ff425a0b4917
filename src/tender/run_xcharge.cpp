#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/status_words.h"
#include "records/trace.h"
#include "tender/audit.h"
#include "tender/command_line.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/set_data.h"
#include "tender/tender.h"

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kWaitTimer = 8000; // ms

} // namespace

void Tender::Run_Xcharge()
{
    outcomes.nameMonthFiles();
    app.files.createIfMissing(outcomes.monthFile());
    if (app.ending() || app.values.Nextform5 == "IndTips")
        return;
    const platform::ErrorsIgnored ignored(app.run);
    endLeftOverProgram(app, printer);
    if (app.ending() || paymentProgramMissing())
        return;
    clearResult(app, kResultFile);
    if (amountRefused(false))
        return;
    payment.prepare(paymentCall(app, fields), fields.receipt, fields.amount);
    Set_Data(app, fields);
    startWait();
    if (!oldResultRemains() && waitForResult())
        judgeResult(readResult());
}

/// By the audit. True when the tender has ended, filed as declined.
bool Tender::amountRefused(bool localPath)
{
    if (!auditRefused(app, display, localPath))
        return false;
    if (!app.ending())
        outcomes.declined();
    return true;
}

bool Tender::paymentProgramMissing()
{
    if (app.files.exists(kXchargeProgram))
        return false;
    app.dialogs.message("Data File Not Found",
                        "The Xcharge Program was not found on this computer. Xcharge must first be "
                        "installed on this computer before you can process a credit card. Pless "
                        "contact Tech Support at 555-010-0199.");
    end.close();
    return true;
}

void Tender::startWait()
{
    // Kept: the trace says 20 seconds; the timer has 8.
    traceProcess(app, {std::string(15, ' '), "  Setting a 20 second timer to wait for response"});
    wait.startTimer(kWaitTimer);
    clearResult(app, kResultFile);
    fields.cancel.enabled = false;
    wait.start(kResultFile);
}

/// True when the tender has ended, without a charge.
bool Tender::oldResultRemains()
{
    if (!payment.oldResultRemains())
        return false;
    app.values.TndrRESULT = kDeclined;
    end.answer(answerBlock(kDeclined, app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Result File",
                        "The result of an earlier card cannot be removed from this computer, so "
                        "this card was not charged. Please try again, or restart this station.");
    end.close();
    return true;
}

/// Until the result file exists. False when the wait was stopped or the program is ending.
bool Tender::waitForResult()
{
    const WaitEnd ended = wait.untilThere([&](platform::Outcome looked) {
        fields.sharedCount = fields.waitCount;
        if (done(looked)) // else the card may be charged already
            payment.startAt(wholeNumber(fields.waitCount));
    });
    if (ended == WaitEnd::Stopped)
        waitStopped();
    return ended == WaitEnd::Answered;
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

void Tender::judgeResult(const ReadResult &read)
{
    if (payment.isOfEarlierPayment())
        end.unknown(kResultFile, "The payment answered for another amount",
                    "a payment before this one is still open", unknownAnswer());
    else if (read.unreadable())
        end.unknown(kResultFile, kNotRead, read.reason(), unknownAnswer());
    else
        takeResult();
}

/// Kept: on the first letter of the response only; "Sorry" would approve.
void Tender::takeResult()
{
    CardRecord &CCdata = app.values.CCdata;
    const std::string letter = Left(CCdata.raw(CResponse), 1);
    showResult(letter == "S");
    if (letter == "T")
        wait.countOn();
    CCdata.set(CCstatus, app.values.TndrRESULT);
    display.status(app.values.TndrRESULT);
    encodeCardNumber(CCdata);
    if (!fields.approved)
        outcomes.declined();
    else if (CCdata.value(CCaditionalFUNDS) > Money())
        outcomes.partiallyApproved();
    else
        outcomes.approved();
}

void Tender::showResult(bool approved)
{
    fields.cancel.enabled = true;
    display.view.focus(TenderBox::Cancel);
    end.begin();
    fields.finish.enabled = approved;
    app.values.TndrRESULT = approved ? kApproved : kDeclined;
    fields.cardOrResult = app.values.TndrRESULT;
    fields.result = true;
    fields.approved = approved;
}

} // namespace tender
