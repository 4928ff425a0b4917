#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/status_words.h"
#include "records/trace.h"
#include "tender/audit.h"
#include "tender/last_look.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/set_data.h"
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

/// Blank values get the defaults of the request in the record too.
LocalRequest fillRequest(App &app, const TenderFields &fields, const std::string &track)
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
    request.cardText = request.typed ? fields.expiry : track;
    request.verify = CCdata.text(CCVerify);
    CCdata.set(CCstatus, "Dialing");
    CCdata.set(CCServer, request.server);
    CCdata.set(CCReceipt, request.receipt);
    CCdata.set(CCTable, orDefault(fields.table, "999"));
    return request;
}

} // namespace

void Tender::Approval_Engine()
{
    outcomes.nameMonthFiles();
    const platform::ErrorsIgnored ignored(app.run);
    closeCapture();
    printing::Set_Printer(app, printer);
    Set_Data(app, fields);
    wait.startTimer(kWaitTimer);
    if (amountRefused(true))
        return;
    if (sendRequest() && waitForAnswer() && readAnswer())
        outcomes.answeredByServer(server);
}

void Tender::closeCapture()
{
    fields.cardTaken = true;
    app.values.StopWaiting = 0;
    fields.cancel.enabled = false;
    fields.boxesLocked = true;
    for (CommandState *command : {&fields.enterManually, &fields.clear, &fields.view})
        command->enabled = false;
    display.view.focus(TenderBox::FirstTrack);
}

/// False when the request is not there; then nothing was charged and the tender has ended.
bool Tender::sendRequest()
{
    const LocalRequest request = fillRequest(app, fields, capture.track());
    fields.requestAtServer = true;
    if (const platform::Outcome placed = server.place(request); !done(placed)) {
        requestNotPlaced(placed);
        return false;
    }
    traceLocalRequest(request);
    app.values.CCdata.set(CCName, fields.firstName + " " + fields.lastName);
    printing::warmUp(app, printer); // the server has to be waited for anyway
    return true;
}

void Tender::requestNotPlaced(platform::Outcome outcome)
{
    traceProcess(app, {"  REQUEST NOT WRITTEN - " + std::string(platform::textOf(outcome)) + " - " +
                       server.requestFile()});
    app.values.TndrRESULT = kDeclined;
    end.answerTraced(answerBlock(kDeclined, app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    app.dialogs.message("Request File",
                        "The request for this card cannot be written to the Xcharge folder, so "
                        "this card was not charged. Please try again, or check the connection to "
                        "the Xcharge computer.");
    end.close();
}

/// The number appears with its last digits only, and the verification digits not at all.
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
    wait.startTimer(kWaitTimer); // again: the audit's question may have taken a while
    for (;;) {
        const WaitEnd ended = wait.untilThere([this](platform::Outcome) {
            if (wholeNumber(fields.waitCount) >= kCancelFrom)
                fields.cancel.enabled = true;
        });
        if (ended != WaitEnd::Stopped || noAnswer())
            return ended == WaitEnd::Answered;
    }
}

/// False when the answer has come after all.
bool Tender::noAnswer()
{
    const LastLook last = lookLast(app, server, wait);
    if (last.there)
        return false;
    traceProcess(app, {"Unable to Connect - Internet may be down ",
                       "Actual Seconds waited for Response  " + fields.waitCount});
    if (last.unknown != nullptr) {
        end.unknown(server.answerFile(), last.unknown, last.reason, unknownAnswer());
        return true;
    }
    app.values.TndrRESULT = kDeclined;
    end.answerTraced(answerBlock(kDeclined, app.values.CCdata));
    server.putLateAnswerAside();
    app.files.removeIfThere(auditFile(app.values));
    end.close();
    return true;
}

/// False when the answer cannot be read; it stays where it is, as evidence, and the tender has
/// ended.
bool Tender::readAnswer()
{
    wait.end();
    const ServerAnswer read = server.readAnswer();
    if (read.unreadable()) {
        traceProcess(app, {std::string("  ANSWER NOT READ - ") + read.reason() + " - " +
                           server.answerFile()});
        server.withdraw();
        end.unknown(server.answerFile(), kNotRead, read.reason(), unknownAnswer());
        return false;
    }
    takeAnswer(read.text);
    return true;
}

void Tender::takeAnswer(const std::string &text)
{
    CardRecord &CCdata = app.values.CCdata;
    CCdata.set(CResponse, text);
    traceProcess(app, {"Actual Response From Xcharge " + text,
                       "Actual Seconds for Response  " + fields.waitCount});
    const std::string word = outcomeWord(text);
    end.begin();
    app.values.TndrRESULT = word;
    CCdata.set(CCstatus, word);
    CCdata.set(CApprovalCode, text.substr(std::min<std::size_t>(text.size(), 1)));
    const std::string code = CCdata.text(CApprovalCode);
    fields.result = true;
    fields.approved = word == kApproved;
    fields.cancel.enabled = !fields.approved;
    display.status(word + "\r\n" + code);
    display.statusPainted(word + " - " + code);
}

void Tender::startPaymentServer()
{
    app.system.start(app.values.paymentDirectory + "Xchrgsrv.exe / T",
                     platform::WindowStyle::Normal);
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace tender
