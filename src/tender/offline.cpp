#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/card_files.h"
#include "records/trace.h"
#include "tender/command_line.h"
#include "tender/request.h"
#include "tender/tender.h"
#include "tender/wait_rules.h"

namespace tender {

using namespace records;

namespace {

TraceLines offlineTrace()
{
    const std::string rule(33, '=');
    return {"",
            " !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!1",
            "",
            "   CREDIT CARD APPROVED OFFLINE",
            "",
            rule,
            " OFFLINE   OFFLINE   OFFLINE",
            " ",
            "MANAGER APPROVED OFFLINE - INTERNET",
            "MAY BE DOWN OR XCHARGE HAS ENCOUNTERED AN ERROR",
            "MANAGER CARD WAS SWIPED FOR APPROVAL",
            " ",
            " OFFLINE   OFFLINE   OFFLINE",
            rule,
            " "};
}

} // namespace

void Tender::Show_Offline_Panel() {}

void Tender::showOfflinePanel()
{
    fields.offlinePanelVisible = true;
    display.show();
    display.view.focus(TenderBox::KeepWaiting); // or Enter would press "Cancel"
}

void Tender::Hide_Offline_Panel()
{
    fields.offlinePanelVisible = false;
    display.show();
    display.view.focus(TenderBox::FirstTrack);
}

/// The payment application knows the card of a command-line tender; a local one must have read it.
bool Tender::cardIsKnown() const
{
    const CardRecord &CCdata = app.values.CCdata;
    return app.values.X1009 || (!isBlank(CCdata.text(CCNumb)) && !isBlank(CCdata.text(CCExpDate)));
}

/// The bank's word lies there, or may lie there, and the wait has not looked since.
bool Tender::answerHasCome()
{
    bool there = false;
    return !done(wait.lookOnceMore(there)) || there;
}

/// The request is taken back first: from then on nobody takes it any more.
Tender::LastLook Tender::lookLast()
{
    const platform::ErrorsIgnored ignored(app.run);
    const bool withdrawn = server.withdraw();
    LastLook last;
    const platform::Outcome looked = wait.lookOnceMore(last.there);
    if (!done(looked)) {
        last.unknown = "Nobody can see whether the payment has answered";
        last.reason = textOf(looked);
    } else if (!withdrawn) {
        last.unknown = "The request cannot be taken back from the payment server";
        last.reason = "it may still be charged";
    }
    return last;
}

std::string Tender::answerOfPayment() const
{
    return app.values.X1009 ? kResultFile : server.answerFile();
}

/// "YES". A card that was answered while the manager made up his mind takes the normal way on, and
/// so does one that nobody approves: the wait that was told to stop has not seen it yet.
void Tender::askForOfflineApproval()
{
    if (!fields.offlinePanelVisible || manager.asking() || answering || app.ending())
        return;
    Hide_Offline_Panel();
    app.values.StopWaiting = kStopWaiting;
    const std::string approver = manager.ask("Approve this card OFFLINE");
    if (app.ending())
        return;
    if (approver != "NO" && cardIsKnown() && server.withdrawRequest() && !answerHasCome()) {
        approveOffline();
        return;
    }
    Hide_Offline_Panel();
    app.values.StopWaiting = 0;
    app.values.managerRequest.clear();
}

/// Kept: a sale that would be charged at once is filed as pending too; nobody has charged it yet.
void Tender::approveOffline()
{
    const platform::ErrorsIgnored ignored(app.run);
    answering = true;
    Set_Data();
    CardRecord &CCdata = app.values.CCdata;
    CCdata.set(CCApprovedAmt, fields.amount);
    CCdata.set(CResponse, "YOFFLINE ");
    CCdata.set(CApprovalCode, "OFFLINE ");
    CCdata.set(CCstatus, "Approved");
    CCdata.set(CCTroutID, "OFFLINE ");
    app.values.TndrRESULT = "Approved";
    fields.result = true;
    fields.approved = true;
    record.store(pendingFile(app.values));
    if (!record.safe()) {
        offlineNotStored();
        return;
    }
    printing::Set_Printer(app, printer);
    const printing::SlipContext context = slipContext(fields, gratuity, record.slot());
    printing::Print_Merch(app, printer, context);
    printing::Print_Cust(app, printer, context);
    traceProcess(app, offlineTrace());
    traceLog(app, offlineTrace());
    record.confirm();
    writeAnswer(answerBlock("Approved", CCdata));
    app.files.removeIfThere(auditFile(app.values));
    endTender();
}

void Tender::keepWaiting()
{
    Hide_Offline_Panel();
}

/// "CONFIG". The setup screen can end the tender, so it opens only where "Cancel" could.
void Tender::openSetup()
{
    if (!fields.setup.enabled || manager.asking() || answering || app.ending())
        return;
    const std::string approver = manager.ask("Open the card setup");
    if (!app.ending() && approver != "NO" && !answerHasCome())
        display.view.showSetup();
    app.values.managerRequest.clear();
}

void Tender::offerRemoval()
{
    if (!fields.warningVisible || answering || app.ending())
        return;
    const platform::Answer pressed = app.dialogs.message(
        "REMOVE XCHARGE - NEVER PROCESS CREDIT CARDS AGAIN",
        "You are about to remove X-Charge from this computer. If you contine you will never be "
        "able to process credit cards on this computer again. Do not do this unless you have been "
        "instructed by Tech Support to do so. Please press CANCEL now.",
        platform::Buttons::OkCancel);
    if (pressed == platform::Answer::Ok && !answerHasCome() && !app.ending())
        display.view.removePaymentApplication();
}

} // namespace tender
