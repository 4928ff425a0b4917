#include "tender/asked_payments.h"

#include "records/delimited.h"
#include "records/exchange_file.h"
#include "records/kept_records.h"

namespace tender {

using namespace records;

namespace {

std::string pathOf(const ProcessValues &values)
{
    return values.Maindir + "Data\\PaymentsAsked.dat";
}

std::string lineOf(const AskedPayment &payment)
{
    return quotedValues({payment.stamp, payment.receipt, payment.amount});
}

} // namespace

std::vector<AskedPayment> openPayments(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    std::string content;
    std::vector<AskedPayment> payments;
    if (!app.files.exists(pathOf(app.values)))
        return payments;
    app.files.read(pathOf(app.values), content, kExchangeLimit);
    const std::string today = Format(app.clock.now(), "YYYYMMDD");
    for (const std::string &line : platform::splitLines(content)) {
        DelimitedReader reader(line);
        AskedPayment payment;
        for (std::string *value : {&payment.stamp, &payment.receipt, &payment.amount})
            *value = reader.next();
        if (startsWith(payment.stamp, today))
            payments.push_back(payment);
    }
    return payments;
}

void noteAsked(App &app, const AskedPayment &payment)
{
    const platform::ErrorsIgnored ignored(app.run);
    stationDataFolder(app);
    app.files.append(pathOf(app.values), lineOf(payment));
}

void noteAnswered(App &app, const AskedPayment &payment)
{
    const platform::ErrorsIgnored ignored(app.run);
    std::string content;
    for (const AskedPayment &open : openPayments(app))
        if (!(open == payment))
            content += lineOf(open);
    if (content.empty())
        app.files.removeIfThere(pathOf(app.values));
    else
        app.files.write(pathOf(app.values), content);
}

bool isForAnotherAmount(const CardRecord &CCdata, std::string_view amount)
{
    if (CCdata.isEmpty(CCApprovedAmt))
        return false;
    return CCdata.value(CCApprovedAmt) + CCdata.value(CCaditionalFUNDS) != Val(amount);
}

} // namespace tender
