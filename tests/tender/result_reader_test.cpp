// The result of the payment application: which line sets which field, and that no file, however
// broken, sets a wrong one.
#include "support/test_files.h"
#include "support/test_station.h"
#include "tender/result_reader.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace records;
using namespace tender;
using platform::Outcome;
using support::TestStation;

TEST(ResultLine, SetsTheFieldOfItsKey)
{
    struct Case {
        std::string line;
        CardField field;
        std::string text; // without the padding
    };
    const Case cases[] = {
        {"RESULT=SUCCESS", CResponse, "SUCCESS"},
        {"   RESULT=SUCCESS   ", CResponse, "SUCCESS"},
        {"RESULT= SUCCESS", CResponse, " SUCCESS"},
        {"RESULT=", CResponse, ""},
        {"APPROVALCODE=012345", CApprovalCode, "012345"},
        {"SWIPED=False", CCSwiped, "False"},
        {"NAME=", CCName, ""},
        {"CLERK=42", CCServer, "42"},
        {"XCACCOUNTID=" + std::string(30, '8') + "9", CCNumb, std::string(30, '8')},
        {"XCTRANSACTIONID=00002154", CCXcTranID, "00002154"},
        {"ACCOUNT=XXXX1234", HiddenNumb, "XXXX1234"},
        {"ACCOUNTTYPE=AMERICAN EXPRESS", CCtype, "AMERICAN E"},
        {"EXPIRATION=0928", CCExpDate, "0928"},
        {"APPROVEDAMOUNT=30.00", CCApprovedAmt, "30.00"},
        {"APPROVEDAMOUNT:30.00", CCApprovedAmt, "30.00"},
        {"APPROVEDAMOUNT", CCApprovedAmt, ""},
        {"ADDITIONALFUNDSREQUIRED=12.34", CCaditionalFUNDS, "12.34"},
        {"ADDITIONALFUNDSREQUIRED=0.00", CCGiftFlag, "GS"},
        {"ADDITIONALFU", CCGiftFlag, "GS"},
        {"BALANCE=25.00", GCbalance, "25.00"},
        {"BALANCE=", GCbalance, ""},
        {"<RESULT_SUCCESS>T</RESULT_SUCCESS>", CResponse, "Approved"},
        {"<RESULT_SUCCESS>F", CResponse, "Declined"},
        // One more than the key is dropped, so the first letter of the value is lost.
        {"<RESULT_DESCRIPTION>Card expired", CCDescription, "ard expired"},
        {"<RESULT_DESCRIPTION>", CCDescription, ""},
        {"<RESULT_APPROVALCODE>0123456789", CApprovalCode, "012345"},
        {"<RESULT_XCACCOUNTID>12345678901234", CCNumb, "1234567890123"},
        {"<RESULT_XCTRANSACTIONID>123456789", CCXcTranID, "12345678"},
        {"<RESULT_XACCOUNT>12345678901234567", HiddenNumb, "1234567890123456"},
        {"<RESULT_ACCOUNTTYPE>Visa</RES", CCtype, "Visa</RES"},
        {"<RESULT_EXPIRATION>0928</", CCExpDate, "0928"},
        {"<RESULT_APPROVEDAMOUNT>30.00</RESULT", CCApprovedAmt, "30.00</RES"},
    };
    for (const Case &c : cases) {
        CardRecord expected;
        std::fill(expected.data().begin(), expected.data().end(), 'x');
        CardRecord CCdata = expected;
        expected.set(c.field, c.text);
        if (c.line.find("ADDITIONALFU") != std::string::npos) {
            expected.set(CCGiftFlag, "GS");
            if (c.line.find('=') != std::string::npos)
                expected.set(CCaditionalFUNDS, c.line.substr(24));
        }
        applyResultLine(c.line, CCdata);
        EXPECT_EQ(CCdata, expected) << c.line << " gave [" << CCdata.raw(c.field) << "]";
    }
}

TEST(ResultLine, OfNoKeyChangesNothing)
{
    for (const std::string line :
         {"", "    ", "result=SUCCESS", "RESULT", "RESULTS=SUCCESS", "XRESULT=SUCCESS",
          "<RESULT_SUCCESS>", "<RESULT_SUCCESS>t", "<RESULT_ITEMNO>123456789012", "ACCOUNTS=1",
          "additionalfunds=1", "TYPE=PreAuth", "\tRESULT=SUCCESS"}) {
        CardRecord CCdata;
        applyResultLine(line, CCdata);
        EXPECT_EQ(CCdata, CardRecord()) << line;
    }
}

class ResultFile : public testing::Test {
protected:
    /// The record after reading a file of these bytes.
    CardRecord &read(const std::string &content)
    {
        station.put(kDefaultResultFile, content);
        app.values.CCdata = {};
        app.values.CCdata.set(GCbalance, "7.00");
        lines = readResultFile(app, kDefaultResultFile);
        return app.values.CCdata;
    }

    TestStation station;
    App app{station.services};
    std::vector<std::string> lines;
};

std::string withLineEnds(std::string text, const std::string &end)
{
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += end.size())
        text.replace(at, 1, end);
    return text;
}

TEST_F(ResultFile, IsReadTheSameWithEveryLineEndAndWithNoLastOne)
{
    const std::string plain = support::testFile("golden/tender/plain_result.txt");
    const CardRecord expected = read(plain);
    EXPECT_EQ(expected.text(CResponse), "SUCCESS");
    EXPECT_EQ(expected.text(CCNumb), "XAW8731791549");
    EXPECT_EQ(expected.text(GCbalance), "25.00");
    for (const char *end : {"\r\n", "\r"}) {
        EXPECT_EQ(read(withLineEnds(plain, end)), expected);
        EXPECT_EQ(lines.size(), 15U) << "an empty line is a line too";
    }
    EXPECT_EQ(read(plain.substr(0, plain.size() - 1)), expected);
}

TEST_F(ResultFile, IsCopiedTracedAndWrittenOutForSupportAndNeverDeleted)
{
    const std::string plain = support::testFile("golden/tender/plain_result.txt");
    app.values.CCdata.set(CCReceipt, "1043");
    station.put(kDefaultResultFile, plain);
    readResultFile(app, kDefaultResultFile);
    EXPECT_EQ(station.get("C:\\Lumbrio\\ResponseBACKUP.txt"), plain);
    EXPECT_EQ(station.get("C:\\Lumbrio\\CCLastProcess.dat"),
              support::testFile("golden/tender/response_trace.txt"));
    EXPECT_EQ(station.get("C:\\Lumbrio\\XLMread.txt"),
              support::testFile("golden/tender/XLMread.txt"));
    EXPECT_EQ(station.get(kDefaultResultFile), plain);
}

TEST_F(ResultFile, ThatSaysNothingLeavesTheResponseAndABalanceOfZero)
{
    CardRecord nothing;
    nothing.set(GCbalance, "0");
    for (const std::string &content :
         {std::string(), std::string("\r\n\r\n"), std::string(4096, '\0'),
          support::testFile("broken/tender/result_of_every_byte.txt")})
        EXPECT_EQ(read(content), nothing) << content.size() << " bytes";
    station.erase(kDefaultResultFile);
    readResultFile(app, kDefaultResultFile);
    EXPECT_EQ(app.values.CCdata, nothing);
    EXPECT_FALSE(station.run.ending());
}

TEST_F(ResultFile, OfTenMegabytesIsReadToItsLimitButNeverIntoHalfALine)
{
    const std::string head = "RESULT=SUCCESS\r\n";
    const std::string amount = "APPROVEDAMOUNT=1234.50\r\n";
    // The limit falls behind "APPROVEDAMOUNT=12".
    const std::string filler(kResultLimit - head.size() - 2 - 17, 'x');
    CardRecord &CCdata = read(head + filler + "\r\n" + amount + std::string(10U << 20U, 'y'));
    EXPECT_EQ(CCdata.text(CResponse), "SUCCESS");
    EXPECT_TRUE(CCdata.isEmpty(CCApprovedAmt)) << CCdata.text(CCApprovedAmt);
    EXPECT_TRUE(read(std::string(10U << 20U, '=')).isEmpty(CResponse));
    EXPECT_LT(station.get("C:\\Lumbrio\\CCLastProcess.dat").size(), 2 * kResultLimit);
}

} // namespace
