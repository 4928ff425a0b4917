// What comes in and goes out: tracks as readers really type them, the request of the point of sale
// and its audit, and the request to the payment server.
#include "support/golden_table.h"
#include "tender/local_request.h"
#include "tender/request.h"
#include "tender/track.h"

namespace {

using namespace tender;

constexpr platform::DateTime kLastOfJanuary{2025, 1, 31, 23, 0, 0, 0};
constexpr platform::DateTime kFirstOfJune{2025, 6, 1, 0, 0, 0, 0};

TEST(Track, GivesNumberNameAndExpiryAsTheGoldenTableSays)
{
    support::expectTable("tender/tracks.txt", [](const std::string &track) {
        std::vector<std::string> read = {Remove_Swipe(track)};
        if (const auto card = parseTrack(track)) {
            read.insert(read.end(), {card->number, card->firstName, card->lastName, card->expiry});
            for (const platform::DateTime &day : {kLastOfJanuary, kFirstOfJune})
                read.emplace_back(isExpired(card->expiry, day) ? "expired" : "good");
        }
        return read;
    });
}

TEST(Request, IsReadHoweverThePointOfSaleQuotesAndEndsItsLinesAsTheGoldenTableSays)
{
    support::expectTable("tender/requests.txt", [](const std::string &content) {
        const TenderRequest request = parseRequest(content);
        return std::vector{request.table, request.receipt, request.server, request.amount,
                           std::string(isDeletedPrepayment(request.table) ? "deletes" : "")};
    });
}

TEST(Audit, ComparesValuesOfTwoDecimals)
{
    support::expectTable("tender/audits.txt", [](const std::string &audit) {
        std::vector<std::string> agree;
        for (const char *amount : {"12.50", "12.5", "1234.5", ""})
            agree.emplace_back(amountsAgree(audit, amount) ? "agree" : "");
        return agree;
    });
}

TEST(LocalAnswer, ApprovesByACapitalYAndTellsNoCardAsTheGoldenTableSays)
{
    support::expectTable("tender/answers.txt", [](const std::string &content) {
        const std::string answer = answerText(content);
        return std::vector{answer, std::string(namesOutcome(answer) ? "whole" : ""),
                           outcomeWord(answer)};
    });
}

TEST(LocalRequest, FillsWhatIsBlankAndSendsTheDigitsOfATypedCardAlone)
{
    EXPECT_EQ(requestLine({}),
              "\"C1\",\"9999\",\"999\",\"99999999999999\",\"9999\",\"1.00\",\"99999\"\r\n");
    const LocalRequest swiped{true, "7", "1043", "4111111111111111", "2809", "12.", "123", false};
    EXPECT_EQ(requestLine(swiped),
              "\"C6\",\"7\",\"1043\",\"4111111111111111\",\"2809\",\"12.\",\"99999\"\r\n");
    EXPECT_EQ(localAmount("0") + localAmount("") + localAmount("48.50"), "1.001.0048.5");
}

} // namespace
