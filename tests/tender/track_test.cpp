// Tracks as readers really type them, and the exchange with the payment server.
#include "support/golden_table.h"
#include "tender/local_request.h"
#include "tender/track.h"

namespace {

using namespace tender;

TEST(Track, GivesNumberNameAndExpiryAsTheGoldenTableSays)
{
    support::expectTable("tender/tracks.txt", [](const std::string &track) {
        const auto card = parseTrack(track);
        return card ? std::vector{card->number, card->firstName, card->lastName, card->expiry}
                    : std::vector<std::string>{"bad swipe"};
    });
    EXPECT_EQ(Remove_Swipe(" ;4111=2809? "), "4111=2809");
    EXPECT_EQ(Remove_Swipe(";;41=="), ";41=");
    EXPECT_EQ(Remove_Swipe("?"), "");
}

TEST(Expiry, IsGoodToTheEndOfItsMonth)
{
    const platform::DateTime today{2025, 1, 31, 23, 0, 0, 0};
    EXPECT_FALSE(isExpired("2501", today) || isExpired("2601", today));
    EXPECT_TRUE(isExpired("2412", today) && isExpired("0905", today));
    EXPECT_TRUE(isExpired("2505", {2025, 6, 1, 0, 0, 0, 0}));
}

TEST(LocalRequest, FillsWhatIsBlankAndSendsTheDigitsOfATypedCardAlone)
{
    const std::string plain = "\"7\",\"1043\",\"4111111111111111\",\"2809\",\"12.\",\"99999\"";
    EXPECT_EQ(requestLine({}),
              "\"C1\",\"9999\",\"999\",\"99999999999999\",\"9999\",\"1.00\",\"99999\"\r\n");
    LocalRequest request{true, "7", "1043", "4111111111111111", "2809", "12.", "123", true};
    EXPECT_EQ(requestLine(request), "\"C6\"," + plain + ",\"123\"\r\n");
    for (const auto &[verify, typed] : {std::pair("000", true), {"  ", true}, {"123", false}}) {
        request.verify = verify;
        request.typed = typed;
        EXPECT_EQ(requestLine(request), "\"C6\"," + plain + "\r\n") << verify;
    }
}

TEST(LocalRequest, NamesItsFilesByStationAndSecondAndItsAmountByTheMask)
{
    records::ProcessValues values;
    values.paymentDirectory = "c:\\Program Files\\X-Charge\\";
    values.StationName = "BAR-2";
    EXPECT_EQ(localFiles(values, {2025, 1, 15, 13, 5, 9, 0}).request,
              "c:\\Program Files\\X-Charge\\LocalTran\\BAR-2011525130509.req");
    EXPECT_EQ(localAmount("48.50"), "48.5");
    EXPECT_EQ(localAmount("0"), "1.00");
    EXPECT_EQ(localAmount(""), "1.00");
    EXPECT_EQ(outcomeWord("Y012345"), "Approved");
    for (const char *answer : {"y012345", "NDECLINED", "", "D"})
        EXPECT_EQ(outcomeWord(answer), "Declined") << answer;
}

} // namespace
