// The command line of the payment application, to the byte.
#include "support/test_files.h"
#include "tender/command_line.h"

#include <gtest/gtest.h>

namespace {

using namespace tender;

PaymentCall payment(bool purchase = false, bool partialSupport = true)
{
    PaymentCall call;
    call.purchase = purchase;
    call.partialSupport = partialSupport;
    call.amount = "48.50";
    call.receipt = "1043";
    call.clerk = "7";
    call.userId = "pos";
    call.password = "trelva";
    return call;
}

TEST(CommandLineText, IsTheGoldenOneInEachMode)
{
    std::string lines;
    for (const bool purchase : {false, true}) {
        for (const bool partialSupport : {true, false})
            lines += commandLine(payment(purchase, partialSupport)) + "\n";
    }
    EXPECT_EQ(lines, support::testFile("golden/tender/command_lines.txt"));
}

TEST(CommandLineText, TakesItsValuesAsTheyAre)
{
    PaymentCall call = payment();
    call.receipt.clear();
    call.clerk = "\"7 8\" ";
    call.password = "a b";
    const std::string line = commandLine(call);
    EXPECT_NE(line.find(" /LOCKAMOUNT /RECEIPT: /LOCKRECEIPT /CLERK:\"7 8\"  /LOCKCLERK "),
              std::string::npos);
    EXPECT_NE(line.find(" /PASSWORD:a b /STAYONTOP "), std::string::npos);

    // The trace lists the same options, one a line.
    std::string joined = kXchargeProgram;
    for (const std::string &part : commandLineParts(call))
        joined += " " + part;
    EXPECT_EQ(joined, line);
}

} // namespace
