#include "tender/notices.h"

#include "printing/unprinted.h"
#include "records/trace.h"

namespace tender {

using namespace records;

namespace {

void tellOperator(App &app, const std::string &title, const std::string &text)
{
    app.dialogs.message(title, text);
}

} // namespace

void tellUnprinted(App &app, const std::vector<printing::Unprinted> &unprinted)
{
    if (unprinted.empty())
        return;
    const TraceLines lines = printing::unprintedLines(unprinted);
    traceProcess(app, lines);
    traceLog(app, lines);
    tellOperator(app, "NOT PRINTED",
                 printing::unprintedWords(unprinted) +
                     " The card is approved: do not run it again. Reprint from the manager's list "
                     "(receipt " +
                     app.values.CCdata.text(CCReceipt) + ").");
}

} // namespace tender
