#include "tender/xcharge_payment.h"

#include "printing/slip.h"
#include "records/card_helpers.h"
#include "records/kept_records.h"
#include "records/trace.h"
#include "tender/evidence.h"
#include "tender/notices.h"

#include <algorithm>
#include <limits>

namespace tender {

using namespace records;

namespace {

constexpr std::chrono::milliseconds kKillPause(500);
constexpr int kSecondStart = 50; // count of the wait
constexpr int kNoStart = std::numeric_limits<int>::max();

TraceLines requestTrace(const std::string &commandLine, const std::vector<std::string> &parts)
{
    TraceLines lines = {std::string(54, '*'), std::string(54, '*'),
                        "***********  X CHARGE REQUEST INFO  ******************"};
    lines.insert(lines.end(), parts.begin(), parts.end());
    lines.emplace_back(54, '-');
    lines.emplace_back(kXchargeProgram);
    lines.push_back(commandLine.substr(std::string(kXchargeProgram).size() + 1));
    lines.emplace_back("Calling Set Data");
    return lines;
}

std::string argument(App &app, const std::string &value, const char *name)
{
    const std::string cut = argumentValue(value);
    if (cut.size() < value.size())
        traceProcess(app, {std::string("  ") + name + " CUT ON THE COMMAND LINE - " + cut});
    return cut;
}

} // namespace

void endLeftOverProgram(App &app, printing::Printer &printer)
{
    app.system.killImage(kXchargeImage);
    const std::uint32_t before = app.clock.tick();
    printing::warmUp(app, printer);
    const std::chrono::milliseconds used(app.clock.tick() - before);
    Pause(app, std::max(kKillPause - used, std::chrono::milliseconds(0)));
}

PaymentCall paymentCall(App &app, TenderFields &fields)
{
    if (isBlank(fields.server))
        fields.server = "9999";
    PaymentCall call;
    call.purchase = app.values.TndrNOpreAUTH != 0;
    call.partialSupport = app.values.NoPartialSupport == 0;
    call.amount = argument(app, Trim(fields.amount), "AMOUNT");
    call.receipt = argument(app, fields.receipt, "RECEIPT");
    call.clerk = argument(app, fields.server, "CLERK");
    call.userId = app.installation.xchargeUserId;
    call.password = app.installation.xchargePassword;
    return call;
}

void XchargePayment::prepare(const PaymentCall &call, const std::string &theReceipt,
                             const std::string &theAmount)
{
    receipt = theReceipt;
    amount = theAmount;
    nextStart = 0;
    openBefore.clear();
    resultMark.clear();
    line = commandLine(call);
    traceProcess(app, requestTrace(line, commandLineParts(call)));
}

bool XchargePayment::oldResultRemains()
{
    platform::Found found = platform::Found::Nothing;
    if (done(app.files.look(kResultFile, found)) && found == platform::Found::Nothing)
        return false;
    traceProcess(app, {std::string("  OLD RESULT CANNOT BE DELETED - ") + kResultFile});
    return true;
}

void XchargePayment::startAt(int count)
{
    if (nextStart != 0 && count != nextStart)
        return;
    app.run.consequence = kMayBeCharged;
    if (nextStart == 0)
        noteStart();
    app.system.start(line, platform::WindowStyle::Normal);
    nextStart = nextStart == 0 ? kSecondStart : kNoStart;
}

void XchargePayment::noteStart()
{
    openBefore = openPayments(app);
    for (const AskedPayment &open : openBefore)
        traceProcess(app, {"  A PAYMENT BEFORE THIS ONE HAS NOT ANSWERED - receipt " +
                           open.receipt + ", amount " + open.amount + " - " + open.stamp});
    asked = {stampOf(app.clock.now()), receipt, amount};
    noteAsked(app, asked);
}

ReadResult XchargePayment::readResult()
{
    app.values.CCdata.set(CResponse, " ");
    app.values.CCdata.set(CCaditionalFUNDS, "0");
    ReadResult read = readResultFile(app, kDefaultResultFile);
    resultMark = read.mark;
    return read;
}

bool XchargePayment::isOfEarlierPayment() const
{
    const CardRecord &CCdata = app.values.CCdata;
    return !openBefore.empty() && Left(CCdata.raw(CResponse), 1) == "S" &&
           isForAnotherAmount(CCdata, amount);
}

void XchargePayment::noteDealtWith()
{
    noteTaken(app, resultMark);
    if (!resultMark.empty())
        noteAnswered(app, asked);
}

} // namespace tender
