// The stand-in for the payment server must answer only whole requests and never show a card number.
#include "simulator/payment_server.h"
#include "support/test_station.h"
#include "tender/local_request.h"

using namespace simulator;

TEST(PaymentServer, AnswersOnlyWholeLinesAndReportsNoCard)
{
    const std::string kFolder = "c:\\Program Files\\X-charge\\LocalTran\\";
    const std::string line = tender::requestLine(
        {true, "7", "1043", "4111111111111111", "1232", "48.50", "98765", true});
    for (const bool whole : {true, false}) {
        support::TestStation station;
        std::string told;
        PaymentServer server(station.files, station.run, kFolder,
                             [&](auto &text) { told += text; });
        station.put(kFolder + "BAR.req", whole ? line : line.substr(0, line.size() - 2));
        for (const std::uint64_t now : {1U, 401U, 60000U})
            server.turn(now);
        EXPECT_EQ(station.has(kFolder + "BAR.ans"), whole);
        EXPECT_EQ(station.has(kFolder + "BAR.req"), !whole);
        for (const char *secret : {"4111", "98765"})
            EXPECT_EQ(told.find(secret), std::string::npos) << told;
    }
}
