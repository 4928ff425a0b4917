#include "tender/request.h"

#include "records/delimited.h"
#include "records/exchange_file.h"

#include <array>

namespace tender {

using namespace records;

namespace {

// Characters; "DelPrePay" and what follows it is longer than the record's table.
constexpr std::size_t kLongestTable = 50;

std::string commonFields(const CardRecord &CCdata)
{
    constexpr std::array kOrder = {CCTabAmt, CApprovalCode, CCReceipt, HiddenNumb, CCServer,
                                   CCTable,  CCTroutID,     CCName,    CResponse};
    std::string text;
    for (const CardField &field : kOrder)
        text += quotedLine(CCdata.raw(field));
    return text;
}

} // namespace

TenderRequest parseRequest(std::string_view content)
{
    DelimitedReader reader(content);
    TenderRequest request;
    request.table = reader.next();
    request.receipt = reader.next();
    request.server = reader.next();
    request.amount = reader.next();
    return request;
}

Sent readRequest(App &app, TenderRequest &request)
{
    const std::string path = requestFile(app.values);
    if (!app.files.exists(path))
        return Sent::Missing;
    const ExchangeFile file = readExchange(app, path);
    if (!done(file.outcome))
        return Sent::Unreadable;
    const TenderRequest sent = parseRequest(file.text);
    request.table = boundedValue(app, sent.table, kLongestTable, "TABLE");
    request.receipt = boundedValue(app, sent.receipt, CCReceipt.length, "RECEIPT");
    request.amount = boundedValue(app, sent.amount, CCSaleAmt.length, "AMOUNT");
    request.server = boundedValue(app, sent.server, CCServer.length, "SERVER");
    app.values.EmployeeNumber = request.server;
    return Sent::Read;
}

std::string requestFile(const ProcessValues &values)
{
    return values.Maindir + "Xsend.req";
}

std::string auditFile(const ProcessValues &values)
{
    return values.Maindir + "XAudit.DAT";
}

std::string answerFile(const ProcessValues &values)
{
    return values.Maindir + "Xsend.ans";
}

std::string auditAmount(std::string_view content)
{
    return DelimitedReader(content).next();
}

bool amountsAgree(std::string_view audit, std::string_view amount)
{
    constexpr std::string_view kMask = "#######.##";
    return Val(Format(audit, kMask)) == Val(Format(amount, kMask));
}

std::string auditQuestion(std::string_view amount, bool localPath)
{
    std::string text = "The amount you are attempting to process does not match the amount the "
                       "system has calculated.The system has a purchase amount of ";
    text += Currency(amount);
    text += "  if this amount is in fact Correct then press OK otherwise press CANCEL";
    if (!localPath)
        text += " - This station may need a Re-Boot";
    return text;
}

std::string answerBlock(std::string_view word, const CardRecord &CCdata)
{
    return quotedLine(word) + commonFields(CCdata);
}

std::string answerDeclined(std::string_view word, const CardRecord &CCdata)
{
    return quotedLine(word) + answerBlock(word, CCdata);
}

std::string answerPartial(const CardRecord &CCdata)
{
    std::string text = answerBlock("DECLINE but PARTAIL APPROVAL", CCdata);
    text += quotedLine("PARTAIL APPROVAL");
    text += quotedLine(" APPROVAL AMOUNT - " + Currency(CCdata.raw(CCApprovedAmt)));
    text += quotedLine(" BALANCE STILL OWING - " + Currency(CCdata.raw(CCaditionalFUNDS)));
    return text;
}

bool isDeletedPrepayment(std::string_view table)
{
    return startsWith(table, "DelPrePay");
}

} // namespace tender
