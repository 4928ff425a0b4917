#include "records/card_files.h"
#include "records/trace.h"
#include "tender/command_line.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"
#include "tender/tender.h"

#include <utility>

namespace tender {

using namespace records;

void Tender::approved()
{
    record.store(chooseTarget());
    printSlips(app, printer, display, slipContext(fields, gratuity, record.slot()));
    record.confirm();
    writeAnswer(answerBlock(app.values.TndrRESULT, app.values.CCdata));
    traceAnswer(app);
    resultDealtWith();
    finish();
}

/// The bank grants a part. The slips ask the guest for the rest, and the answer's first word
/// tells the point of sale that the tab is not paid.
void Tender::partiallyApproved()
{
    CardRecord &CCdata = app.values.CCdata;
    fields.partial = true;
    fields.partApproved = Currency(CCdata.raw(CCApprovedAmt));
    fields.stillOwed = Currency(CCdata.raw(CCaditionalFUNDS));
    CCdata.set(CCAdjStatus, "Adjusted - Pending");
    CCdata.set(CCAdjAmt, CCdata.raw(CCApprovedAmt));
    record.store(chooseTarget());
    printPartialSlips(app, printer, display, slipContext(fields, gratuity, record.slot()));
    record.confirm();
    writeAnswer(answerPartial(CCdata));
    traceAnswer(app);
    resultDealtWith();
    finish();
}

/// Kept: also after a refused audit, with an empty result word; its record is blank then.
void Tender::declined()
{
    record.store(app.values.TndrNOpreAUTH != 0 ? declineTarget : pendingFile(app.values));
    const std::string word = app.values.TndrRESULT;
    writeAnswer(answerDeclined(word, app.values.CCdata));
    traceAnswer(app);
    resultDealtWith();
    app.files.removeIfThere(auditFile(app.values));
    fields.cancel = {true, true};
    fields.finish.enabled = false;
    display.status("Please Click Cancel");
    if (Left(app.values.CCdata.raw(CResponse), 1) == "T")
        stayForOperator();
    else
        endTender();
}

void Tender::stayForOperator()
{
    answering = false;
    fields.waitCountVisible = true;
    display.show();
    showNotices();
}

/// Nobody knows what the bank has said: the card may be charged. The point of sale has
/// no word for that and hears "Declined"; no record is made, for it would read as a decline. What
/// the bank wrote stays where it is.
void Tender::outcomeUnknown(const std::string &result, const char *what, const char *reason)
{
    CardRecord &CCdata = app.values.CCdata;
    answering = true;
    fields.unknown = true;
    fields.result = true;
    app.values.TndrRESULT = "Declined";
    display.status(what);
    const std::string trace = keepUnknown(app, result, reason);
    notices.push_back(unknownNotice(CCdata, what, reason, trace.empty() ? result : trace));
    writeAnswer(server.begun() ? answerBlock("Declined", CCdata)
                               : answerDeclined("Declined", CCdata));
    traceAnswer(app);
    app.files.removeIfThere(auditFile(app.values));
    endTender();
}

/// Charged at once, a sale is settled and belongs to the month; otherwise it waits for its tip.
std::string Tender::chooseTarget()
{
    if (app.values.TndrNOpreAUTH == 0)
        return pendingFile(app.values);
    app.values.CCdata.set(CCAdjStatus, "Completed");
    return target;
}

/// Nobody has charged this card yet, and nobody would know that it was to be charged.
void Tender::offlineNotStored()
{
    notices.clear();
    app.dialogs.message("CCPending.dat",
                        "The record of this card cannot be stored, so it was not approved.");
    app.values.TndrRESULT = "Declined";
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    endTender();
}

void Tender::writeAnswer(const std::string &content)
{
    const platform::Outcome outcome = answer.write(content);
    if (!done(outcome))
        notices.push_back(notAnsweredNotice(app.values.CCdata, app.values.TndrRESULT,
                                            fields.unknown, outcome, answerFile(app.values)));
}

/// The bank's word may go once its record and the answer are on the disk. The next tender deletes
/// the result; the answer of the payment server goes at once.
void Tender::resultDealtWith()
{
    if (answer.flushed() && record.safe() && !app.ending())
        payment.noteDealtWith();
}

void Tender::finish()
{
    app.files.removeIfThere(auditFile(app.values));
    fields.cancel.visible = false;
    display.status("Please Click Finish Tender");
    endTender();
}

/// An open print job is closed, and so printed, before the end is asked for. Record and answer are
/// written by then, so that nothing waits for whoever reads the notice.
void Tender::endTender()
{
    capture.stop();
    wait.stopTimers();
    printer.closeJob();
    showNotices();
    if (answer.stands())
        app.end();
    else
        app.run.endInFailure();
}

/// Each stays until somebody presses OK.
void Tender::showNotices()
{
    display.show();
    for (const platform::Notice &notice : std::exchange(notices, {}))
        app.dialogs.notice(notice);
    tellUnprinted(app, printer.takeUnprinted());
}

void Tender::cancel()
{
    if (!fields.cancel.enabled || !fields.cancel.visible || answering || app.ending())
        return;
    const platform::ErrorsIgnored ignored(app.run); // the answer is what counts
    const LastLook last = lookLast();
    if (last.there)
        return;
    traceProcess(app, {"Cancel was pressed", "Unable to Connect - Internet may be down ",
                       "Actual Seconds waited for Response  " + fields.waitCount});
    if (last.unknown != nullptr) {
        outcomeUnknown(answerOfPayment(), last.unknown, last.reason);
        return;
    }
    writeAnswer(answerBlock("Declined", app.values.CCdata));
    server.putLateAnswerAside();
    app.files.removeIfThere(auditFile(app.values));
    deleteBatchMarker();
    endTender();
}

void Tender::finishTender()
{
    if (fields.finish.enabled && !answering)
        endTender();
}

void Tender::switchGratuitySlip()
{
    fields.gratuitySlip = fields.gratuitySlip == "NO" ? "YES" : "NO";
    display.show();
    display.view.focus(TenderBox::FirstTrack);
}

void Tender::setNoReceipt(bool checked)
{
    // Inside a wait: a box that cannot be remembered must not end a card that is being charged.
    const platform::ErrorsIgnored ignored(app.run);
    const std::string path = app.values.Maindir + "CCnoPrint.dat";
    fields.noReceipt = checked;
    if (checked)
        app.files.createIfMissing(path);
    else
        app.files.removeIfThere(path);
    display.show();
    display.view.focus(TenderBox::FirstTrack); // the next swipe must not end in the check box
}

} // namespace tender
