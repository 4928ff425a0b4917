#include "tender/result_reader.h"

#include "platform/patience.h"
#include "records/exchange_file.h"
#include "records/status_words.h"
#include "tender/evidence.h"

#include <algorithm>
#include <array>

namespace tender {

using namespace records;

namespace {

constexpr std::size_t kRest = std::string_view::npos;

/// A line that starts with `key` puts `length` characters, from position `from` on (counted from
/// 0), into a field.
struct ResultRow {
    std::string_view key;
    std::size_t from;
    std::size_t length;
    CardField field;
};

constexpr ResultRow rest(std::string_view key, const CardField &field)
{
    return {key, key.size(), kRest, field};
}

// In this order. The lines that set other words than their own are in applyResultLine.
constexpr std::array kRows = {
    rest("RESULT=", CResponse),
    // Kept: one character more than the key is dropped, so the description loses its first.
    ResultRow{"<RESULT_DESCRIPTION>", 21, kRest, CCDescription},
    rest("APPROVALCODE=", CApprovalCode),
    ResultRow{"<RESULT_APPROVALCODE>", 21, 6, CApprovalCode},
    rest("SWIPED=", CCSwiped),
    rest("NAME=", CCName),
    rest("CLERK=", CCServer),
    rest("XCACCOUNTID=", CCNumb),
    ResultRow{"<RESULT_XCACCOUNTID>", 20, 13, CCNumb},
    ResultRow{"<RESULT_XCTRANSACTIONID>", 24, 8, CCXcTranID},
    rest("XCTRANSACTIONID=", CCXcTranID),
    ResultRow{"<RESULT_XACCOUNT>", 17, 16, HiddenNumb},
    rest("ACCOUNT=", HiddenNumb),
    ResultRow{"<RESULT_ACCOUNTTYPE>", 20, 12, CCtype},
    rest("ACCOUNTTYPE=", CCtype),
    ResultRow{"<RESULT_EXPIRATION>", 19, 4, CCExpDate},
    rest("EXPIRATION=", CCExpDate),
    ResultRow{"APPROVEDAMOUNT", 15, kRest, CCApprovedAmt},
    ResultRow{"<RESULT_APPROVEDAMOUNT>", 23, 10, CCApprovedAmt},
    rest("ADDITIONALFUNDSREQUIRED=", CCaditionalFUNDS),
    rest("BALANCE=", GCbalance),
};

void applySuccessTag(std::string_view line, CardRecord &CCdata)
{
    constexpr std::string_view kTag = "<RESULT_SUCCESS>";
    const std::string_view letter = startsWith(line, kTag) ? line.substr(kTag.size(), 1) : "";
    if (letter == "T")
        CCdata.set(CResponse, kApproved);
    if (letter == "F")
        CCdata.set(CResponse, kDeclined);
}

bool namesOutcome(std::string_view line)
{
    const std::string trimmed = Trim(line);
    return startsWith(trimmed, "RESULT=") || startsWith(trimmed, "<RESULT_SUCCESS>T") ||
           startsWith(trimmed, "<RESULT_SUCCESS>F");
}

bool saysAnything(std::string_view text)
{
    const std::vector<std::string> lines = platform::splitLines(text);
    return std::any_of(lines.begin(), lines.end(),
                       [](const std::string &line) { return namesOutcome(line); });
}

void traceResponse(App &app, const std::string &name, const std::vector<std::string> &lines)
{
    TraceLines trace = {std::string(54, '-'),
                        "***********  X CHARGE RESPONSE INFO  ******************",
                        "Response File Name " + name, std::string(54, '-')};
    trace.insert(trace.end(), lines.begin(), lines.end());
    trace.push_back("End File Data " + name);
    trace.emplace_back(54, '*');
    trace.emplace_back(54, '-');
    traceProcess(app, trace);
}

ExchangeFile readPatiently(App &app, const std::string &name)
{
    ExchangeFile file;
    platform::patiently(app.run, platform::Wait::Result, [&] {
        file = readExchange(app, name);
        // A result that says nothing may be half written.
        return done(file.outcome) && !saysAnything(file.text) ? platform::Outcome::NotThere
                                                              : file.outcome;
    });
    return file;
}

} // namespace

void applyResultLine(std::string_view line, CardRecord &CCdata)
{
    const std::string trimmed = Trim(line);
    if (trimmed.empty())
        return;
    applySuccessTag(trimmed, CCdata);
    for (const ResultRow &row : kRows) {
        if (!startsWith(trimmed, row.key))
            continue;
        const std::size_t from = std::min(row.from, trimmed.size());
        CCdata.set(row.field, std::string_view(trimmed).substr(from, row.length));
    }
    if (startsWith(trimmed, "ADDITIONALFU"))
        CCdata.set(CCGiftFlag, "GS   ");
}

ReadResult readResultFile(App &app, const std::string &name)
{
    const platform::ErrorsIgnored ignored(app.run);
    const ExchangeFile file = readPatiently(app, name);
    if (done(file.outcome))
        app.files.replaceWhole("C:\\Lumbrio\\ResponseBACKUP.txt", file.content);
    else
        traceProcess(app, {std::string("  RESULT NOT READ - ") + platform::textOf(file.outcome)});
    app.values.CCdata.set(GCbalance, "0");
    ReadResult read{file.outcome, file.longer, saysAnything(file.text),
                    platform::splitLines(file.text), resultMark(file.content, file.modified)};
    for (const std::string &line : read.lines)
        applyResultLine(line, app.values.CCdata);
    traceResponse(app, name, read.lines);
    app.files.write("c:\\Lumbrio\\XLMread.txt", resultDebugFile(app.values.CCdata));
    return read;
}

std::string resultDebugFile(const CardRecord &CCdata)
{
    constexpr std::array kOrder = {
        CResponse, CApprovalCode, CCName,      CCApprovedAmt, CCaditionalFUNDS, CCExpDate,
        CCNumb,    CCReceipt,     CCServer,    CCstatus,      CCTable,          CCTabAmt,
        CCStation, CCTime,        CCAdjStatus, CCTip,         CCXcTranID,       CResponse,
        GCbalance, HiddenNumb,    GCbalance,   CCDescription};
    std::string text;
    for (const CardField &field : kOrder)
        text += platform::textLine(CCdata.raw(field));
    return text;
}

} // namespace tender
