#include "tender/outcomes.h"

#include "printing/printer_choice.h"
#include "records/card_files.h"
#include "records/card_helpers.h"
#include "records/status_words.h"
#include "records/trace.h"
#include "tender/request.h"
#include "tender/set_data.h"

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

Outcomes::Outcomes(App &theApp, printing::Printer &thePrinter, Display &theDisplay,
                   TenderEnd &theEnd, XchargePayment &thePayment)
    : app(theApp), printer(thePrinter), display(theDisplay), end(theEnd), payment(thePayment)
{
}

void Outcomes::nameMonthFiles()
{
    const platform::DateTime now = app.clock.now();
    sales = records::monthFile(app.values, now);
    declines = deletedFile(app.values, now);
}

void Outcomes::approved()
{
    TenderRecord record(app, end.notices);
    record.store(chooseCardFile());
    printSlips(app, printer, display, slips(record));
    record.confirm();
    end.answerTraced(answerBlock(app.values.TndrRESULT, app.values.CCdata));
    noteDealtWith(record);
    finish();
}

void Outcomes::partiallyApproved()
{
    CardRecord &CCdata = app.values.CCdata;
    fields.partial = true;
    fields.partApproved = Currency(CCdata.raw(CCApprovedAmt));
    fields.stillOwed = Currency(CCdata.raw(CCaditionalFUNDS));
    CCdata.set(CCAdjStatus, kAdjusted);
    CCdata.set(CCAdjAmt, CCdata.raw(CCApprovedAmt));
    TenderRecord record(app, end.notices);
    record.store(chooseCardFile());
    printPartialSlips(app, printer, display, slips(record));
    record.confirm();
    end.answerTraced(answerPartial(CCdata));
    noteDealtWith(record);
    finish();
}

void Outcomes::declined()
{
    TenderRecord record(app, end.notices);
    record.store(app.values.TndrNOpreAUTH != 0 ? declines : pendingFile(app.values));
    end.answerTraced(answerDeclined(app.values.TndrRESULT, app.values.CCdata));
    noteDealtWith(record);
    app.files.removeIfThere(auditFile(app.values));
    fields.cancel = {true, true};
    fields.finish.enabled = false;
    display.status("Please Click Cancel");
    if (Left(app.values.CCdata.raw(CResponse), 1) == "T")
        end.leaveToOperator();
    else
        end.close();
}

void Outcomes::answeredByServer(ServerExchange &server)
{
    TenderRecord record(app, end.notices);
    record.store(pendingFile(app.values));
    record.writeAgain();
    if (!record.unlocked())
        removeServersFiles(server, record);
    app.files.removeIfThere(auditFile(app.values));
    traceProcess(app, {"Approved or Declined " + app.values.TndrRESULT});
    if (fields.approved) {
        traceProcess(app, {"SetPrinter " + printer.selectedName()});
        printSlips(app, printer, display, slips(record));
    }
    record.confirm();
    if (record.unlocked())
        removeServersFiles(server, record);
    end.answerTraced(answerBlock(app.values.TndrRESULT, app.values.CCdata));
    finish();
}

void Outcomes::approvedOffline()
{
    const platform::ErrorsIgnored ignored(app.run);
    end.begin();
    Set_Data(app, fields);
    markApprovedOffline();
    TenderRecord record(app, end.notices);
    record.store(pendingFile(app.values));
    if (!record.safe()) {
        offlineNotStored();
        return;
    }
    printing::Set_Printer(app, printer);
    printing::Print_Merch(app, printer, slips(record));
    printing::Print_Cust(app, printer, slips(record));
    traceProcess(app, offlineTrace());
    traceLog(app, offlineTrace());
    record.confirm();
    end.answer(answerBlock(kApproved, app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    end.close();
}

void Outcomes::markApprovedOffline()
{
    CardRecord &CCdata = app.values.CCdata;
    CCdata.set(CCApprovedAmt, fields.amount);
    CCdata.set(CResponse, "YOFFLINE ");
    CCdata.set(CApprovalCode, "OFFLINE ");
    CCdata.set(CCstatus, kApproved);
    CCdata.set(CCTroutID, "OFFLINE ");
    app.values.TndrRESULT = kApproved;
    fields.result = true;
    fields.approved = true;
}

/// The card is not charged yet, and without a record nobody would charge it later.
void Outcomes::offlineNotStored()
{
    end.notices.clear();
    app.dialogs.message("CCPending.dat",
                        "The record of this card cannot be stored, so it was not approved.");
    app.values.TndrRESULT = kDeclined;
    end.answer(answerBlock(kDeclined, app.values.CCdata));
    app.files.removeIfThere(auditFile(app.values));
    end.close();
}

/// Charged at once, a sale is settled and belongs to the month; otherwise it waits for its tip.
std::string Outcomes::chooseCardFile()
{
    if (app.values.TndrNOpreAUTH == 0)
        return pendingFile(app.values);
    app.values.CCdata.set(CCAdjStatus, kCompleted);
    return sales;
}

printing::SlipContext Outcomes::slips(const TenderRecord &record) const
{
    return slipContext(fields, record.slot());
}

/// The next tender deletes a result whose record and answer are on the disk.
void Outcomes::noteDealtWith(const TenderRecord &record)
{
    if (end.answerFlushed() && record.safe() && !app.ending())
        payment.noteDealtWith();
}

/// The server's answer stays as evidence of an approval that has no record.
void Outcomes::removeServersFiles(ServerExchange &server, const TenderRecord &record)
{
    server.withdraw();
    if (record.safe() || !fields.approved)
        server.removeAnswer(app.values.CCdata.raw(CResponse));
}

void Outcomes::finish()
{
    app.files.removeIfThere(auditFile(app.values));
    fields.cancel.visible = false;
    display.status("Please Click Finish Tender");
    end.close();
}

} // namespace tender
