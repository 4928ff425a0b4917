#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/delimited.h"
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
    fields.requestAtServer = true;
    if (const platform::Outcome placed = server.place(request); !done(placed)) {
        requestNotPlaced(placed);
        return;
    }
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

void Tender::requestNotPlaced(platform::Outcome outcome)
{
    traceProcess(app, {"  REQUEST NOT WRITTEN - " + std::string(platform::textOf(outcome)) + " - " +
                       server.requestFile()});
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
                       "New Request File name " + server.requestFile()});
}

/// Until the answer file exists. False when the wait was stopped or the program is ending.
bool Tender::waitForAnswer()
{
    wait.start(server.answerFile());
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
        outcomeUnknown(server.answerFile(), last.unknown, last.reason);
        return true;
    }
    app.values.TndrRESULT = "Declined";
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    traceAnswer(app);
    server.putLateAnswerAside();
    app.files.removeIfThere(auditFile(app.values));
    endTender();
    return true;
}

/// False when there is an answer that cannot be read; it stays where it is, as the evidence, and
/// the tender has ended.
bool Tender::readAnswer()
{
    wait.end();
    const ServerAnswer read = server.readAnswer();
    if (read.unreadable()) {
        traceProcess(app, {std::string("  ANSWER NOT READ - ") + read.reason() + " - " +
                           server.answerFile()});
        server.withdraw();
        outcomeUnknown(server.answerFile(), kNotRead, read.reason());
        return false;
    }
    const std::string &text = read.text;
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

/// An approval that no record tells of leaves the server's answer where it is, as the evidence.
void Tender::answerDealtWith()
{
    server.withdraw();
    if (record.safe() || !fields.approved)
        server.removeAnswer(app.values.CCdata.raw(CResponse));
}

void Tender::startPaymentServer()
{
    app.system.start(app.values.paymentDirectory + "Xchrgsrv.exe / T",
                     platform::WindowStyle::Normal);
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace tender
