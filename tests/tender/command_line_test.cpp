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

} // namespace
