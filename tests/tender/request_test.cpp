// The exchange with the point of sale: what a request means, and the answers to the byte.
#include "support/golden_table.h"
#include "tender/request.h"

namespace {

using namespace records;
using namespace tender;

TEST(Request, IsReadHoweverThePointOfSaleQuotesAndEndsItsLinesAsTheGoldenTableSays)
{
    support::expectTable("tender/requests.txt", [](const std::string &content) {
        const TenderRequest request = parseRequest(content);
        return std::vector{request.table, request.receipt, request.server, request.amount,
                           std::string(isDeletedPrepayment(request.table) ? "deletes" : "")};
    });
}

TEST(Answer, HasItsGoldenBytes)
{
    CardRecord blank; // NUL where nothing was ever assigned
    Clear_CCdata(blank);
    CardRecord CCdata = blank;
    const std::pair<CardField, const char *> values[] = {
        {CCTabAmt, "12.5"},      {CApprovalCode, "A12345"},
        {CCReceipt, "1043"},     {HiddenNumb, "XXXX XXXX XXXX 1234"},
        {CCServer, "7"},         {CCTable, "12"},
        {CResponse, "SUCCESS"},  {CCName, "ROSA \"ROSE\" TEST"},
        {CCApprovedAmt, "1000"}, {CCaditionalFUNDS, "18.5"}};
    for (const auto &[field, text] : values)
        CCdata.set(field, text);
    EXPECT_EQ(answerBlock("Approved", CCdata), support::testFile("golden/tender/approved.ans"));
    EXPECT_EQ(answerDeclined("Declined", CCdata), support::testFile("golden/tender/declined.ans"));
    EXPECT_EQ(answerPartial(CCdata), support::testFile("golden/tender/partial.ans"));
    EXPECT_EQ(answerBlock("File Not Found", blank),
              support::testFile("golden/tender/request_missing.ans"));
}

TEST(Audit, ComparesValuesOfTwoDecimals)
{
    support::expectTable("tender/audits.txt", [](const std::string &audit) {
        std::vector<std::string> agree;
        for (const char *amount : {"12.50", "12.5", "1234.5", ""})
            agree.emplace_back(amountsAgree(audit, amount) ? "agree" : "");
        return agree;
    });
    const std::string question =
        "The amount you are attempting to process does not match the amount the system has "
        "calculated.The system has a purchase amount of $1,048.50  if this amount is in fact "
        "Correct then press OK otherwise press CANCEL";
    EXPECT_EQ(auditQuestion("1048.5", true), question);
    EXPECT_EQ(auditQuestion("1048.5", false), question + " - This station may need a Re-Boot");
}

} // namespace
