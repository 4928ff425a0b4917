// The stand-in for the payment server must answer only whole requests, as its table says, and never
// show a card number.
#include "records/delimited.h"
#include "simulator/payment_server.h"
#include "support/golden_table.h"
#include "support/test_station.h"
#include "tender/local_request.h"

using namespace simulator;

const std::string kFolder = "c:\\Program Files\\X-charge\\LocalTran\\";

// A row is an amount and a receipt, or a whole line; what a tender makes of the answer then.
TEST(PaymentServer, AnswersOnlyWholeLinesAndReportsNoCard)
{
    support::expectTable("simulator/server.txt", [](const std::string &input) {
        support::TestStation station;
        std::string told;
        PaymentServer server(station.files, station.run, kFolder,
                             [&](auto &text) { told += text; });
        const std::size_t blank = input.find(' ');
        station.put(
            kFolder + "BAR.req",
            input.starts_with('"')
                ? input
                : tender::requestLine({true, "7", input.substr(blank + 1), "4111111111111111",
                                       "1232", input.substr(0, blank), "98765", true}));
        std::vector<std::string> words;
        for (const std::uint64_t now : {1U, 400U, 401U, 8000U, 8001U, 12000U, 12001U, 60000U}) {
            server.turn(now);
            const std::string answer = kFolder + "BAR.ans";
            words.push_back(!station.has(answer)
                                ? ""
                                : tender::outcomeWord(tender::answerText(station.get(answer))));
        }
        words.emplace_back(station.has(kFolder + "BAR.req") ? "not taken" : "taken");
        for (const char *secret : {"4111", "98765"})
            EXPECT_EQ(told.find(secret), std::string::npos) << told;
        return words;
    });
}
