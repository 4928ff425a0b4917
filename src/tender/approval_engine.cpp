#include "platform/hardening.h"
#include "platform/patience.h"
#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/delimited.h"
#include "records/exchange_file.h"
#include "records/trace.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/tender.h"

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kWaitTimer = 20000; // ms
constexpr int kCancelFrom = 15;             // count of the wait
constexpr const char *kPreApprovedShare = "0.2";

bool isSwiped(const CardRecord &CCdata)
{
    return CCdata.text(CCSwiped) == "True";
}

} // namespace

void Tender::Approval_Engine()
{
    nameMonthFiles();
    const platform::ErrorsIgnored ignored(app.run);
    fields.cardTaken = true;
    app.values.StopWaiting = 0;
    fields.cancel.enabled = false;
    fields.boxesLocked = true;
    for (CommandState *command : {&fields.enterManually, &fields.clear, &fields.view})
        command->enabled = false;
    display.view.focus(TenderBox::FirstTrack);
    printing::Set_Printer(app, printer);
    Set_Data();
    wait.startTimer(kWaitTimer);
    if (auditRefused(true)) {
        if (!app.ending())
            declined();
        return;
    }
    const LocalRequest request = fillRequest();
    if (!placeRequest(request))
        return;
    traceLocalRequest(request);
    app.values.CCdata.set(CCName, fields.firstName + " " + fields.lastName);
    printing::warmUp(app, printer); // the server has to be waited for anyway
    if (!waitForAnswer())
        return;
    if (readAnswer())
        judgeAnswer();
}

/// Blank values enter the record with the defaults that the request sends for them.
LocalRequest Tender::fillRequest()
{
    CardRecord &CCdata = app.values.CCdata;
    LocalRequest request;
    request.amount = localAmount(fields.amount);
    if (app.values.PreApproveTip) {
        const Money amount = Val(request.amount);
        request.amount = Format(amount + amount * Val(kPreApprovedShare), "#######.##");
        CCdata.set(CCApprovedAmt, request.amount);
        CCdata.set(CCSaleAmt, request.amount);
    }
    request.charge = app.values.TndrNOpreAUTH != 0;
    request.typed = !isSwiped(CCdata);
    request.server = orDefault(fields.server, "9999");
    request.receipt = orDefault(fields.receipt, "999");
    request.number = fields.cardNumber;
    request.cardText = request.typed ? fields.expiry : capture.track();
    request.verify = CCdata.text(CCVerify);
    CCdata.set(CCstatus, "Dialing");
    CCdata.set(CCServer, request.server);
    CCdata.set(CCReceipt, request.receipt);
    CCdata.set(CCTable, orDefault(fields.table, "999"));
    return request;
}

/// Written under a name that the payment server does not look at, then copied: the request appears
/// whole. False when it does not appear at all; then nothing was charged.
bool Tender::placeRequest(const LocalRequest &request)
{
    local = localFiles(app.values, app.clock.now());
    fields.requestAtServer = true;
    // An earlier card's, of a clock that was set back.
    clearResult(app, local.answer);
    platform::Found found = platform::Found::Nothing;
    if (const platform::Outcome looked = app.files.look(local.answer, found);
        !done(looked) || found != platform::Found::Nothing) {
        requestNotPlaced(done(looked) ? platform::Outcome::Denied : looked);
        return false;
    }
    std::string line = requestLine(request);
    platform::Outcome outcome = app.files.write(local.work, line);
    platform::wipe(line);
    bool there = false;
    if (done(outcome)) {
        app.run.consequence = kMayBeCharged;
        outcome = app.files.copy(local.work, local.request);
        // One of which nobody knows may be charged: its answer is waited for.
        there = !done(app.files.exists(local.request, there)) || there;
    }
    app.files.removeIfThere(local.work);
    if (there)
        return true;
    requestNotPlaced(outcome);
    return false;
}

void Tender::requestNotPlaced(platform::Outcome outcome)
{
    traceProcess(app, {"  REQUEST NOT WRITTEN - " + std::string(platform::textOf(outcome)) + " - " +
                       local.request});
    app.values.TndrRESULT = "Declined";
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    traceAnswer(app);
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Request File",
                        "The request for this card cannot be written to the Xcharge folder, so "
                        "this card was not charged. Please try again, or check the connection to "
                        "the Xcharge computer.");
    endTender();
}

/// The number appears with its last digits alone, and the verification digits not at all.
void Tender::traceLocalRequest(const LocalRequest &request)
{
    traceProcess(app, {"First Name - " + fields.firstName, "Last Name - " + fields.lastName,
                       "Card Number Ready - " + app.values.CCdata.text(HiddenNumb),
                       "Card Expires on - " + fields.expiry, "Amount Sent - " + request.amount,
                       "New Request File name " + local.request});
}

/// Until the answer file exists. False when the wait was stopped or the program is ending.
bool Tender::waitForAnswer()
{
    wait.start(local.answer);
    wait.startTimer(kWaitTimer); // anew: the audit's question may have taken its time
    for (;;) {
        const WaitEnd end = wait.untilThere([this](platform::Outcome) {
            if (wholeNumber(fields.waitCount) >= kCancelFrom)
                fields.cancel.enabled = true;
        });
        if (end != WaitEnd::Stopped || noAnswer())
            return end == WaitEnd::Answered;
    }
}

/// False when the answer has come after all.
bool Tender::noAnswer()
{
    const LastLook last = lookLast();
    if (last.there)
        return false;
    traceProcess(app, {"Unable to Connect - Internet may be down ",
                       "Actual Seconds waited for Response  " + fields.waitCount});
    if (last.unknown != nullptr) {
        outcomeUnknown(local.answer, last.unknown, last.reason);
        return true;
    }
    app.values.TndrRESULT = "Declined";
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    traceAnswer(app);
    clearLateAnswer();
    app.files.removeIfThere(auditFile(app.values));
    endTender();
    return true;
}

/// False when there is an answer that cannot be read; it stays where it is, as the evidence, and
/// the tender has ended.
bool Tender::readAnswer()
{
    wait.end();
    ExchangeFile file;
    platform::patiently(app.run, platform::Wait::Result, [&] {
        file = readExchange(app, local.answer);
        // One that says nothing may be half of one.
        return done(file.outcome) && !namesOutcome(answerText(file.text))
                   ? platform::Outcome::NotThere
                   : file.outcome;
    });
    const std::string text = answerText(file.text);
    if (!done(file.outcome) || (file.longer && !namesOutcome(text))) {
        const char *const reason =
            file.longer ? "longer than an answer can be" : platform::textOf(file.outcome);
        traceProcess(app, {std::string("  ANSWER NOT READ - ") + reason + " - " + local.answer});
        withdrawFromServer();
        outcomeUnknown(local.answer, kNotRead, reason);
        return false;
    }
    app.values.CCdata.set(CResponse, text);
    traceProcess(app, {"Actual Response From Xcharge " + text,
                       "Actual Seconds for Response  " + fields.waitCount});
    const std::string word = outcomeWord(text);
    answering = true;
    app.values.TndrRESULT = word;
    app.values.CCdata.set(CCstatus, word);
    app.values.CCdata.set(CApprovalCode, text.substr(std::min<std::size_t>(text.size(), 1)));
    const std::string code = app.values.CCdata.text(CApprovalCode);
    fields.result = true;
    fields.approved = word == "Approved";
    fields.cancel.enabled = !fields.approved;
    display.status(word + "\r\n" + code);
    display.statusPainted(word + " - " + code);
    return true;
}

/// Kept: in this path a declined card is filed among the pending ones too, charged at once or not.
void Tender::judgeAnswer()
{
    if (app.values.CCdata.text(CCEncoded) != "1")
        encodeCardNumber(app.values.CCdata);
    record.store(pendingFile(app.values));
    record.writeAgain();
    if (!record.unlocked())
        answerDealtWith();
    app.files.removeIfThere(auditFile(app.values));
    traceProcess(app, {"Approved or Declined " + app.values.TndrRESULT});
    if (fields.approved) {
        traceProcess(app, {"SetPrinter " + printer.selectedName()});
        printSlips(app, printer, display, slipContext(fields, gratuity, record.slot()));
    }
    record.confirm();
    if (record.unlocked())
        answerDealtWith();
    writeAnswer(answerBlock(app.values.TndrRESULT, app.values.CCdata));
    traceAnswer(app);
    finish();
}

/// The server's answer, once it is in a record. One that says neither yes nor no may be half of
/// one, and is put aside.
void Tender::answerDealtWith()
{
    withdrawFromServer();
    if (!record.safe() && fields.approved)
        return;
    if (namesOutcome(app.values.CCdata.raw(CResponse)))
        stillThere(local.answer, app.files.removeIfThere(local.answer));
    else
        clearResult(app, local.answer);
}

/// One that the server has written since the last look is nobody's decline: it is put aside.
void Tender::clearLateAnswer()
{
    if (local.set())
        clearResult(app, local.answer);
}

/// What a server that is slow to look has not taken yet: it must not charge a card whose tender is
/// over. False when it may still be there.
bool Tender::withdrawFromServer()
{
    const platform::ErrorsIgnored ignored(app.run);
    bool withdrawn = true;
    if (local.set())
        for (const std::string &own : {local.request, local.work})
            withdrawn = !stillThere(own, app.files.removeIfThere(own)) && withdrawn;
    return withdrawn;
}

/// Whether a file that had to go still lies there, or may lie there; the trace tells.
bool Tender::stillThere(const std::string &file, platform::Outcome removed)
{
    bool there = true;
    if (done(removed) || (done(app.files.exists(file, there)) && !there))
        return false;
    traceProcess(app, {"  NOT DELETED - " + std::string(platform::textOf(removed)) + " - " + file});
    return true;
}

void Tender::startPaymentServer()
{
    app.system.start(app.values.paymentDirectory + "Xchrgsrv.exe / T",
                     platform::WindowStyle::Normal);
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace tender
