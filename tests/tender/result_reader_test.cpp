// The result of the payment application: which line sets which field, and that no file, however
// broken, sets a wrong one.
#include "records/exchange_file.h"
#include "support/golden_table.h"
#include "support/test_station.h"
#include "tender/result_reader.h"

namespace {

using namespace records;
using namespace tender;

TEST(ResultLine, SetsTheFieldOfItsKeyAndNoOtherAsTheGoldenTableSays)
{
    support::expectTable("tender/result_lines.txt", [](const std::string &line) {
        CardRecord CCdata;
        std::fill(CCdata.data().begin(), CCdata.data().end(), '#');
        applyResultLine(line, CCdata);
        std::vector<std::string> changed;
        for (const CardField &field : kCardFields)
            if (CCdata.raw(field) != std::string(field.length, '#'))
                changed.push_back(field.name + std::string("=") + CCdata.raw(field));
        return changed;
    });
}

struct ResultFile : testing::Test {
    /// The record after reading a file of these bytes.
    const CardRecord &read(const std::string &content)
    {
        station.put(kDefaultResultFile, content);
        app.values.CCdata = {};
        app.values.CCdata.set(CCReceipt, "1043");
        app.values.CCdata.set(GCbalance, "7.00");
        readResultFile(app, kDefaultResultFile);
        return app.values.CCdata;
    }
    std::string left(const std::string &name) const { return station.get("C:\\Lumbrio\\" + name); }

    support::TestStation station;
    App app{station.services};
};

TEST_F(ResultFile, IsReadCopiedAndTracedTheSameWithEveryLineEndAndNeverDeleted)
{
    const std::string plain = support::testFile("golden/tender/plain_result.txt");
    for (const char *end : {"\n", "\r\n", "\r"}) {
        const std::string content = support::replaced(plain, "\n", end);
        for (const std::string &file : {content, content.substr(0, content.size() - 1)}) {
            station.put("C:\\Lumbrio\\CCLastProcess.dat", "");
            read(file);
            EXPECT_EQ(left("xResultFile.Txt"), file);
            EXPECT_EQ(left("ResponseBACKUP.txt"), file);
            EXPECT_EQ(left("XLMread.txt"), support::testFile("golden/tender/XLMread.txt"));
            EXPECT_NE(left("CCLastProcess.dat")
                          .find("-\r\n" + support::replaced(plain, "\n", "\r\n") + "End File Data"),
                      std::string::npos);
        }
    }
}

TEST_F(ResultFile, OfTenMegabytesIsReadToItsLimitButNeverIntoHalfALine)
{
    const std::string head = "RESULT=SUCCESS\r\n";
    const std::string amount = "APPROVEDAMOUNT=1234.50\r\n";
    // The limit falls behind "APPROVEDAMOUNT=12".
    const std::string filler(kExchangeLimit - head.size() - 2 - 17, 'x');
    const CardRecord CCdata = read(head + filler + "\r\n" + amount + std::string(10U << 20U, 'y'));
    EXPECT_EQ(CCdata.text(CResponse), "SUCCESS");
    EXPECT_TRUE(CCdata.isEmpty(CCApprovedAmt)) << CCdata.text(CCApprovedAmt);
    EXPECT_LT(left("CCLastProcess.dat").size(), 2 * kExchangeLimit);
}

} // namespace
