#include "tender/tender_end.h"

#include "records/status_words.h"
#include "tender/evidence.h"
#include "tender/notices.h"
#include "tender/request.h"

#include <utility>

namespace tender {

TenderEnd::TenderEnd(records::App &theApp, printing::Printer &thePrinter, Display &theDisplay,
                     std::function<void()> theStopTimers)
    : app(theApp), printer(thePrinter), display(theDisplay), stopTimers(std::move(theStopTimers)),
      file(theApp)
{
}

void TenderEnd::answer(const std::string &content)
{
    const platform::Outcome outcome = file.write(content);
    if (!done(outcome))
        notices.push_back(notAnsweredNotice(app.values.CCdata, app.values.TndrRESULT,
                                            display.fields.unknown, outcome,
                                            answerFile(app.values)));
}

void TenderEnd::answerTraced(const std::string &content)
{
    answer(content);
    traceAnswer(app);
}

void TenderEnd::unknown(const std::string &result, const char *what, const char *reason,
                        const std::string &declined)
{
    begin();
    display.fields.unknown = true;
    display.fields.result = true;
    app.values.TndrRESULT = records::kDeclined;
    display.status(what);
    const std::string trace = keepUnknown(app, result, reason);
    notices.push_back(
        unknownNotice(app.values.CCdata, what, reason, trace.empty() ? result : trace));
    answerTraced(declined);
    app.files.removeIfThere(auditFile(app.values));
    close();
}

void TenderEnd::leaveToOperator()
{
    isBegun = false;
    display.fields.waitCountVisible = true;
    display.show();
    showNotices();
}

void TenderEnd::close()
{
    stopTimers();
    printer.closeJob();
    showNotices();
    if (file.stands())
        app.end();
    else
        app.run.endInFailure();
}

void TenderEnd::showNotices()
{
    display.show();
    for (const platform::Notice &notice : std::exchange(notices, {}))
        app.dialogs.notice(notice);
    tellUnprinted(app, printer.takeUnprinted());
}

} // namespace tender
