// The exchange with the point of sale: what a request means, and the answers to the byte.
#include "support/test_files.h"
#include "tender/request.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using namespace tender;

std::string values(const std::string &content)
{
    const TenderRequest request = parseRequest(content);
    return request.table + "|" + request.receipt + "|" + request.server + "|" + request.amount;
}

TEST(Request, IsReadHoweverThePointOfSaleQuotesAndEndsItsLines)
{
    const std::pair<std::string, const char *> cases[] = {
        {"\"12\",\"1043\",\"7\",\"48.50\"\r\n", "12|1043|7|48.50"},
        {"12,1043,7,48.50", "12|1043|7|48.50"},
        {"12\r\n1043\r\n7\r\n48.50\r\n", "12|1043|7|48.50"},
        {"12\n1043\n7\n48.50\n", "12|1043|7|48.50"},
        {"12\r1043\r7\r48.50\r", "12|1043|7|48.50"},
        {"  12,  \"1043\",7,   48.50 ,99\r\n", "12|1043|7|48.50 "},
        {"\"Bar, left\",\" 10,43\",\"7\",\"1,048.50\"", "Bar, left| 10,43|7|1,048.50"},
        {"\"12\",,\"\",\"48.50\"", "12|||48.50"},
        {"\"12\",\"1043", "12|1043||"},
        {"\"open to the end\r\n1043,7,5", "open to the end|1043|7|5"},
        {support::testFile("broken/tender/request_of_two_values.req"), "12|10||"},
        {"", "|||"},
        {"\r\n", "|||"},
        {",,,", "|||"},
        {"no number at all,x,y,z", "no number at all|x|y|z"},
    };
    for (const auto &[content, read] : cases)
        EXPECT_EQ(values(content), read) << content;
}

CardRecord answered()
{
    CardRecord CCdata;
    Clear_CCdata(CCdata);
    CCdata.set(CCTabAmt, "12.5");
    CCdata.set(CApprovalCode, "A12345");
    CCdata.set(CCReceipt, "1043");
    CCdata.set(HiddenNumb, "XXXX XXXX XXXX 1234");
    CCdata.set(CCServer, "7");
    CCdata.set(CCTable, "12");
    CCdata.set(CCName, "ROSA \"ROSE\" TEST");
    CCdata.set(CResponse, "SUCCESS");
    CCdata.set(CCApprovedAmt, "1000");
    CCdata.set(CCaditionalFUNDS, "18.5");
    return CCdata;
}

TEST(Answer, HasItsGoldenBytes)
{
    CardRecord blank; // NUL where nothing was ever assigned
    Clear_CCdata(blank);
    const std::pair<const char *, std::string> cases[] = {
        {"approved.ans", answerBlock("Approved", answered())},
        {"declined.ans", answerDeclined("Declined", answered())},
        {"partial.ans", answerPartial(answered())},
        {"request_missing.ans", answerBlock("File Not Found", blank)},
    };
    for (const auto &[golden, bytes] : cases)
        EXPECT_EQ(bytes, support::testFile(std::string("golden/tender/") + golden)) << golden;
}

TEST(Audit, ComparesValuesOfTwoDecimals)
{
    struct Case {
        const char *audit, *amount;
        bool agree;
    };
    const Case cases[] = {
        {"12.5", "12.50", true},   {" 12.50 ", "12.5", true},  {"$1,234.50", "1234.5", true},
        {"12.504", "12.50", true}, {"12.505", "12.50", false}, {"12.51", "12.50", false},
        {"-12.5", "12.5", false},  {"", "12.50", false},       {"twelve", "12.50", false},
        {"0", "", true},
    };
    for (const Case &c : cases)
        EXPECT_EQ(amountsAgree(c.audit, c.amount), c.agree) << c.audit << " and " << c.amount;
    EXPECT_EQ(auditQuestion("1048.5", true),
              "The amount you are attempting to process does not match the amount the system has "
              "calculated.The system has a purchase amount of $1,048.50  if this amount is in fact "
              "Correct then press OK otherwise press CANCEL");
}

TEST(Request, KnowsTheDeletionOfAPrepaymentByNineLetters)
{
    for (const auto &[table, deletes] : {std::pair("DelPrePay", true),
                                         {"DelPrePay 7", true},
                                         {"DelPrePa", false},
                                         {"delprepay", false},
                                         {" DelPrePay", false},
                                         {"", false}})
        EXPECT_EQ(isDeletedPrepayment(table), deletes) << table;
}

} // namespace
