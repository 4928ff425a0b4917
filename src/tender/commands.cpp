#include "records/flag_files.h"
#include "records/status_words.h"
#include "records/trace.h"
#include "tender/command_line.h"
#include "tender/last_look.h"
#include "tender/request.h"
#include "tender/tender.h"
#include "tender/wait_rules.h"

namespace tender {

using namespace records;

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

/// With the command line the payment application knows the card; otherwise it must have been read
/// here.
bool Tender::cardIsKnown() const
{
    const CardRecord &CCdata = app.values.CCdata;
    return app.values.X1009 || (!isBlank(CCdata.text(CCNumb)) && !isBlank(CCdata.text(CCExpDate)));
}

/// For the point of sale when the outcome is unknown.
std::string Tender::unknownAnswer() const
{
    const CardRecord &CCdata = app.values.CCdata;
    return server.begun() ? answerBlock(kDeclined, CCdata) : answerDeclined(kDeclined, CCdata);
}

std::string Tender::answerOfPayment() const
{
    return app.values.X1009 ? kResultFile : server.answerFile();
}

/// Without an approval the wait goes on, and so it does when the bank has answered meanwhile: the
/// stopped wait has not seen the answer yet.
void Tender::askForOfflineApproval()
{
    if (!fields.offlinePanelVisible || manager.asking() || end.begun() || app.ending())
        return;
    Hide_Offline_Panel();
    app.values.StopWaiting = kStopWaiting;
    const std::string approver = manager.ask("Approve this card OFFLINE");
    if (app.ending())
        return;
    if (approver != "NO" && cardIsKnown() && server.withdrawRequest() && !answerHasCome(wait)) {
        outcomes.approvedOffline();
        return;
    }
    Hide_Offline_Panel();
    app.values.StopWaiting = 0;
    app.values.managerRequest.clear();
}

void Tender::keepWaiting()
{
    Hide_Offline_Panel();
}

/// "CONFIG". The setup screen can end the tender, so it opens only where "Cancel" could.
void Tender::openSetup()
{
    if (!fields.setup.enabled || manager.asking() || end.begun() || app.ending())
        return;
    const std::string approver = manager.ask("Open the card setup");
    if (!app.ending() && approver != "NO" && !answerHasCome(wait))
        display.view.showSetup();
    app.values.managerRequest.clear();
}

void Tender::offerRemoval()
{
    if (!fields.warningVisible || end.begun() || app.ending())
        return;
    const platform::Answer pressed = app.dialogs.message(
        "REMOVE XCHARGE - NEVER PROCESS CREDIT CARDS AGAIN",
        "You are about to remove X-Charge from this computer. If you contine you will never be "
        "able to process credit cards on this computer again. Do not do this unless you have been "
        "instructed by Tech Support to do so. Please press CANCEL now.",
        platform::Buttons::OkCancel);
    if (pressed == platform::Answer::Ok && !answerHasCome(wait) && !app.ending())
        display.view.removePaymentApplication();
}

void Tender::cancel()
{
    if (!fields.cancel.enabled || !fields.cancel.visible || end.begun() || app.ending())
        return;
    const platform::ErrorsIgnored ignored(app.run); // the answer is what counts
    const LastLook last = lookLast(app, server, wait);
    if (last.there)
        return;
    traceProcess(app, {"Cancel was pressed", "Unable to Connect - Internet may be down ",
                       "Actual Seconds waited for Response  " + fields.waitCount});
    if (last.unknown != nullptr) {
        end.unknown(answerOfPayment(), last.unknown, last.reason, unknownAnswer());
        return;
    }
    end.answer(answerBlock(kDeclined, app.values.CCdata));
    server.putLateAnswerAside();
    app.files.removeIfThere(auditFile(app.values));
    deleteBatchMarker();
    end.close();
}

void Tender::finishTender()
{
    if (fields.finish.enabled && !end.begun())
        end.close();
}

void Tender::switchGratuitySlip()
{
    fields.gratuitySlip = fields.gratuitySlip == "NO" ? "YES" : "NO";
    display.show();
    display.view.focus(TenderBox::FirstTrack);
}

void Tender::setNoReceipt(bool checked)
{
    // A choice that cannot be remembered must not end a card that is being charged.
    const platform::ErrorsIgnored ignored(app.run);
    const std::string path = noReceiptFlag(app.values);
    fields.noReceipt = checked;
    if (checked)
        app.files.createIfMissing(path);
    else
        app.files.removeIfThere(path);
    display.show();
    display.view.focus(TenderBox::FirstTrack); // or the next swipe would go into the check box
}

} // namespace tender
