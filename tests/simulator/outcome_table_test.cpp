// The stand-in for the payment application must answer what its table says, and never surprise a
// demo with a decline of an everyday amount.
#include "simulator/outcome_table.h"

#include "platform/files.h"
#include "simulator/server_table.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <tuple>

using namespace simulator;

namespace {

PaymentRequest request(const std::string &amount, bool partialSupport = true)
{
    PaymentRequest result;
    result.transactionType = "PreAuth";
    result.amount = amount;
    result.receipt = "1043";
    result.clerk = "7";
    result.partialSupport = partialSupport;
    return result;
}

// What follows "KEY=" on its line; "(none)" without such a line.
std::string valueOf(const std::string &content, const std::string &key)
{
    for (const std::string &line : platform::splitLines(content))
        if (line.starts_with(key + "="))
            return line.substr(key.size() + 1);
    return "(none)";
}

std::string resultOf(const std::string &amount, bool partialSupport = true)
{
    return valueOf(decide(request(amount, partialSupport)).content, "RESULT");
}

} // namespace

TEST(PaymentRequest, ReadsTheCommandLineOfATender)
{
    const PaymentRequest read = parsePaymentRequest(
        "/TRANSACTIONTYPE:Purchase /LOCKTRANTYPE /AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:A 10/43 "
        "/LOCKRECEIPT /CLERK: /LOCKCLERK /RESULTFILE:C:/lumbrio/xResultFile.txt /AUTOCLOSE "
        "/PartialApprovalSupport:T /USERID:pos /TITLE:Lumbrio-Credit_Card_Processing ");
    EXPECT_EQ(read.transactionType, "Purchase");
    EXPECT_EQ(read.amount, "48.50");
    EXPECT_EQ(read.receipt, "A 10/43") << "a slash inside a value does not begin an option";
    EXPECT_EQ(read.clerk, "");
    EXPECT_EQ(read.resultFile, "C:/lumbrio/xResultFile.txt");
    EXPECT_EQ(read.title, "Lumbrio-Credit_Card_Processing");
    EXPECT_TRUE(read.partialSupport);
    EXPECT_FALSE(parsePaymentRequest("/AMOUNT:48.50 /RECEIPT:1").partialSupport);
    EXPECT_EQ(parsePaymentRequest("").resultFile, "");
}

TEST(OutcomeTable, EverydayAmountsApprove)
{
    for (int whole = 1; whole < 200; ++whole)
        EXPECT_EQ(resultOf(std::to_string(whole)), "SUCCESS") << whole;
    for (const char *cents :
         {".05", ".10", ".15", ".20", ".25", ".49", ".5", ".50", ".75", ".95", ".99", "."})
        EXPECT_EQ(resultOf("48" + std::string(cents)), "SUCCESS") << cents;
}

TEST(OutcomeTable, AmountsThatAreNoneAreDeclined)
{
    for (const char *amount : {"", "0", "0.00", "-5.00", "abc"})
        EXPECT_EQ(resultOf(amount), "DECLINED") << amount;
}

TEST(OutcomeTable, AnApprovalNamesTheCardAndTheWholeAmount)
{
    const std::string content = decide(request("48.50")).content;
    EXPECT_EQ(valueOf(content, "APPROVEDAMOUNT"), "48.50");
    EXPECT_EQ(valueOf(content, "CLERK"), "7");
    EXPECT_EQ(valueOf(content, "XCACCOUNTID").size(), 13U);
    EXPECT_EQ(valueOf(content, "ACCOUNT").size(), 16U);
    EXPECT_EQ(content.find("ADDITIONALFU"), std::string::npos)
        << "such a line, whatever it says, marks a gift card";
    EXPECT_EQ(content, decide(request("48.50")).content) << "the same tender, the same card";
    EXPECT_NE(valueOf(decide(request("48.51")).content, "XCACCOUNTID"),
              valueOf(content, "XCACCOUNTID"));
}

TEST(OutcomeTable, APartialApprovalLeavesTheRestAndNeedsSupport)
{
    struct Case {
        const char *amount, *approved, *owed;
    };
    for (const Case &each : {Case{"80.03", "40.01", "40.02"}, Case{"0.03", "0.01", "0.02"},
                             Case{"101.03", "50.51", "50.52"}}) {
        const std::string content = decide(request(each.amount)).content;
        EXPECT_EQ(valueOf(content, "RESULT"), "SUCCESS");
        EXPECT_EQ(valueOf(content, "APPROVEDAMOUNT"), each.approved);
        EXPECT_EQ(valueOf(content, "ADDITIONALFUNDSREQUIRED"), each.owed);
    }
    EXPECT_EQ(resultOf("80.03", false), "DECLINED");
}

TEST(OutcomeTable, SpecialAmountsEndAsTheirRowsSay)
{
    EXPECT_EQ(resultOf("31.01"), "DECLINED");
    EXPECT_EQ(decide(request("31.02")).content, "RESULT=DECLINED\r\n");
    EXPECT_EQ(valueOf(decide(request("22.04")).content, "BALANCE"), "25.00");
    EXPECT_EQ(resultOf("22.06").front(), 'T');
    EXPECT_EQ(decide(request("22.07")).delivery, Delivery::None);
    EXPECT_TRUE(decide(request("22.09")).content.empty());
    EXPECT_EQ(decide(request("22.12")).waitSeconds, 12);
    EXPECT_EQ(decide(request("22.61")).waitSeconds, 1);
    EXPECT_EQ(decide(request("22.69")).waitSeconds, 9);
    EXPECT_EQ(decide(request("22.70")).waitSeconds, 0);
    EXPECT_GE(decide(request("22.17")).content.size(), 10U << 20U);
    for (const char *amount : {"22.10", "22.15", "22.16", "22.17", "22.18", "22.61"})
        EXPECT_EQ(resultOf(amount), "SUCCESS") << amount;
    EXPECT_EQ(decide(request("22.10")).content.find('\r'), std::string::npos);
    EXPECT_EQ(decide(request("22.15")).content.find('\n'), std::string::npos);
}

// Cut before the result word, a reader cannot tell the outcome; cut in the token, it can.
TEST(OutcomeTable, HalfWrittenFilesAreCutWhereItHurts)
{
    const PaymentOutcome later = decide(request("22.16"));
    EXPECT_EQ(later.delivery, Delivery::FirstPartThenAll);
    EXPECT_EQ(later.content.substr(0, later.firstPart), "RES");
    const PaymentOutcome never = decide(request("22.11"));
    EXPECT_EQ(never.delivery, Delivery::FirstPart);
    const std::string seen = never.content.substr(0, never.firstPart);
    EXPECT_EQ(valueOf(seen, "RESULT"), "SUCCESS");
    EXPECT_EQ(valueOf(seen, "XCACCOUNTID").size(), 4U);
}

// Who plays a demo looks there for the amount to type.
TEST(OutcomeTable, IsToldInItsDocument)
{
    std::ifstream file(PROJECT_DIR "/docs/simulator.md");
    const std::string document{std::istreambuf_iterator<char>(file), {}};
    const std::size_t servers = document.find("## The payment server");
    for (const auto &[rows, from, to] : {std::tuple(outcomeRows(), std::size_t{0}, servers),
                                         std::tuple(serverRows(), servers, document.size())})
        for (const OutcomeRow &row : rows) {
            std::string cells = row.firstCents < 10 ? "| .0" : "| .";
            cells.append(std::to_string(row.firstCents));
            if (row.lastCents != row.firstCents)
                cells.append(" to .").append(std::to_string(row.lastCents));
            cells.append(" | ").append(row.name).append(" |");
            EXPECT_LT(document.find(cells, from), to) << cells;
        }
}
