// Outcomes: what a tender does after the bank or a manager has decided. Each outcome stores the
// record first, flushed to the disk, then prints the slips, answers the point of sale and ends.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "tender/display.h"
#include "tender/server_exchange.h"
#include "tender/tender_end.h"
#include "tender/tender_record.h"
#include "tender/tender_slips.h"
#include "tender/xcharge_payment.h"

#include <string>

namespace tender {

/// For routines that ignore errors.
class Outcomes {
public:
    Outcomes(records::App &theApp, printing::Printer &thePrinter, Display &theDisplay,
             TenderEnd &theEnd, XchargePayment &thePayment);

    /// Names the files of this month for sales that are charged at once and for declines. They stay
    /// the same when the tender lasts over midnight.
    void nameMonthFiles();
    const std::string &monthFile() const { return sales; }

    // After the payment application's result, which is in `CCdata`.

    void approved();
    /// The bank has granted a part. The slips ask the guest for the rest, and the answer's first
    /// word tells the point of sale that the tab is not paid.
    void partiallyApproved();
    /// A time-out ("T") stays on screen for the operator. Kept: a refused audit is filed here too,
    /// with an empty result word.
    void declined();

    /// After the payment server's answer, which is in the fields and in `CCdata`. Kept: a declined
    /// card is filed among the pending ones too, charged at once or not.
    void answeredByServer(ServerExchange &server);

    /// After a manager has approved without the bank. Kept: a sale that would be charged at once is
    /// filed as pending too; nobody has charged it yet.
    void approvedOffline();

private:
    std::string chooseCardFile();
    printing::SlipContext slips(const TenderRecord &record) const;
    void noteDealtWith(const TenderRecord &record);
    void removeServersFiles(ServerExchange &server, const TenderRecord &record);
    void markApprovedOffline();
    void offlineNotStored();
    void finish();

    records::App &app;
    printing::Printer &printer;
    Display &display;
    TenderFields &fields = display.fields;
    TenderEnd &end;
    XchargePayment &payment;
    std::string sales;
    std::string declines;
};

} // namespace tender
