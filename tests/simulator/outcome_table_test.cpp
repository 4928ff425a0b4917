// The stand-in for the payment application must understand a tender, and never surprise a demo with
// a decline of an everyday amount. What it makes of the others is told by the end-to-end tests.
#include "simulator/outcome_table.h"

#include <gtest/gtest.h>

using namespace simulator;

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

TEST(OutcomeTable, ApprovesEverydayAmounts)
{
    for (const char *cents : {"", ".", ".05", ".10", ".25", ".49", ".5", ".75", ".95", ".99"})
        EXPECT_TRUE(decide({"PreAuth", std::string("148") + cents, "1043", "7", {}, {}, true})
                        .content.starts_with("RESULT=S"))
            << cents;
}
