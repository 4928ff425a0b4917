#include "tender/audit.h"

#include "records/exchange_file.h"
#include "tender/request.h"

namespace tender {

using namespace records;

bool auditRefused(App &app, Display &display, bool localPath)
{
    const std::string path = auditFile(app.values);
    bool there = false;
    if (done(app.files.exists(path, there)) && !there)
        return false;
    const std::string audit = auditAmount(readExchange(app, path).text);
    display.fields.auditAmount = Currency(audit);
    display.show();
    if (amountsAgree(audit, display.fields.amount))
        return false;
    const platform::Answer pressed =
        app.dialogs.message("AUDIT FAILED", auditQuestion(display.fields.amount, localPath),
                            platform::Buttons::OkCancel);
    if (pressed == platform::Answer::Ok)
        return false;
    display.fields.cardOrResult = "Wrong Amount";
    app.values.TndrRESULT.clear();
    return true;
}

} // namespace tender
