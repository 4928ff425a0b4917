#include "tender/notices.h"

#include "printing/unprinted.h"
#include "records/trace.h"

namespace tender {

using namespace records;

namespace {

/// A card that the local payment server approved has no amount but the tab's.
std::string approvedAmount(const CardRecord &CCdata)
{
    const Money approved = CCdata.value(CCApprovedAmt);
    return Currency(approved.isZero() ? CCdata.value(CCTabAmt) : approved);
}

} // namespace

void tellUnprinted(App &app, const std::vector<printing::Unprinted> &unprinted)
{
    if (unprinted.empty())
        return;
    const TraceLines lines = printing::unprintedLines(unprinted);
    traceProcess(app, lines);
    traceLog(app, lines);
    const CardRecord &CCdata = app.values.CCdata;
    app.dialogs.notice({"NOT PRINTED",
                        printing::unprintedWords(unprinted) +
                            " The card is approved: do not run it again. Reprint from the "
                            "manager's list.",
                        {{"Receipt", CCdata.text(CCReceipt)},
                         {"Amount", approvedAmount(CCdata)},
                         {"Approval code", CCdata.text(CApprovalCode)}},
                        {}});
}

} // namespace tender
