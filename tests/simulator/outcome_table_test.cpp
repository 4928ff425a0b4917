// The stand-in for the payment application must answer what its table says, and never surprise a
// demo with a decline of an everyday amount.
#include "simulator/outcome_table.h"

#include "support/golden_table.h"

using namespace simulator;

namespace {

PaymentOutcome outcomeOf(const std::string &amount, bool partialSupport = true)
{
    return decide({"PreAuth", amount, "1043", "7", {}, {}, partialSupport});
}

} // namespace

TEST(PaymentRequest, ReadsTheCommandLineOfATender)
{
    const PaymentRequest read = parsePaymentRequest(
        "/TRANSACTIONTYPE:Purchase /LOCKTRANTYPE /AMOUNT:48.50 /RECEIPT:A 10/43 /LOCKRECEIPT "
        "/CLERK: /RESULTFILE:C:/lumbrio/xResultFile.txt /PartialApprovalSupport:T /TITLE:Lumbrio ");
    EXPECT_EQ(read.transactionType + "|" + read.amount + "|" + read.receipt + "|" + read.clerk +
                  "|" + read.resultFile + "|" + read.title,
              "Purchase|48.50|A 10/43||C:/lumbrio/xResultFile.txt|Lumbrio")
        << "a slash inside a value does not begin an option";
    EXPECT_TRUE(read.partialSupport);
    EXPECT_FALSE(parsePaymentRequest("/AMOUNT:48.50 /RECEIPT:1").partialSupport);
}

TEST(OutcomeTable, ApprovesEverydayAmountsAndEndsTheOthersByTheirCents)
{
    for (int whole = 1; whole < 200; ++whole)
        for (const char *cents : {"", ".", ".05", ".10", ".25", ".49", ".5", ".75", ".95", ".99"})
            EXPECT_TRUE(outcomeOf(std::to_string(whole) + cents).content.starts_with("RESULT=S"))
                << whole << cents;
    // Cut before the result word, a reader cannot tell the outcome; cut in the token, it can.
    support::expectTable("simulator/outcomes.txt", [](const std::string &amount) {
        const PaymentOutcome outcome = outcomeOf(amount, amount.find(" whole") == amount.npos);
        const std::string &content = outcome.content;
        return std::vector{std::string(outcome.name), std::to_string(outcome.waitSeconds) + " s",
                           std::to_string(int(outcome.delivery)),
                           content.substr(0, outcome.firstPart),
                           content.size() < 5000 ? content : std::to_string(content.size())};
    });
}
