// XchargePayment: one payment of the payment application, from its command line to its result. A
// payment that an earlier tender has given up is recognised by its amount.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "tender/asked_payments.h"
#include "tender/command_line.h"
#include "tender/result_reader.h"
#include "tender/tender_fields.h"

#include <string>
#include <vector>

namespace tender {

/// Ends a payment application that is left over, and pauses 500 ms. Fonts and printers are warmed
/// up during the pause.
void endLeftOverProgram(records::App &app, printing::Printer &printer);

/// What the fields and the options ask for. A blank server number becomes "9999" in the fields too.
/// A value that would become another option is cut, and the trace gets a line.
PaymentCall paymentCall(records::App &app, TenderFields &fields);

/// For routines that ignore errors.
class XchargePayment {
public:
    explicit XchargePayment(records::App &theApp) : app(theApp) {}

    /// Makes the command line of a payment for this receipt, and traces it.
    void prepare(const PaymentCall &call, const std::string &theReceipt,
                 const std::string &theAmount);
    /// True when an old result could not be deleted: it would be taken for this card's. The trace
    /// gets a line.
    bool oldResultRemains();
    /// Starts the payment application at the first call, and once more at count 50 of the wait:
    /// that revives a stalled one. Notes the payment as asked before the first start.
    void startAt(int count);
    /// Reads the result into `CCdata`, see readResultFile().
    ReadResult readResult();
    /// True for an approval of another amount while an earlier payment is open. A payment that its
    /// tender has given up goes on and may answer the next tender; it must not pay for another
    /// guest.
    bool isOfEarlierPayment() const;
    /// Notes that record and answer are on the disk. Does nothing before the result was read.
    void noteDealtWith();

private:
    void noteStart();

    records::App &app;
    std::string line;
    std::string receipt;
    std::string amount;
    int nextStart = 0; // count of the wait
    AskedPayment asked;
    std::vector<AskedPayment> openBefore; // when it was asked
    std::string resultMark;               // of what was read
};

} // namespace tender
