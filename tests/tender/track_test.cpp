// Tracks as readers really type them, and the exchange with the payment server.
#include "tender/local_request.h"
#include "tender/track.h"

#include <gtest/gtest.h>

namespace {

using namespace tender;

TEST(Track, OfAnyUsualCardGivesNumberNameAndExpiry)
{
    struct Case {
        const char *track;
        const char *number;
        const char *first;
        const char *last;
        const char *expiry;
    };
    for (const Case &c :
         {Case{"%B4111111111111111^OAK/ROSALIND^28091010000?", "4111111111111111", "ROSALIND",
               "OAK", "2809"},
          Case{"%B4111111111111111^OAK/ROSALIND MRS          ^2809101?;4111111111111111=2809101?",
               "4111111111111111", "ROSALIND MRS          ", "OAK", "2809"},
          Case{"%B371449635398431^VAN DEN OAK/R^28091/^?", "371449635398431", "R", "VAN DEN OAK",
               "2809"},
          Case{"%B6011000000000004^GIFT CARD^9912?", "6011000000000004", " ", "GIFT CARD", "9912"},
          Case{"%B1^^0509", "1", " ", "", "0509"}}) {
        const auto card = parseTrack(c.track);
        ASSERT_TRUE(card) << c.track;
        EXPECT_EQ(card->number, c.number);
        EXPECT_EQ(card->firstName, c.first) << c.track;
        EXPECT_EQ(card->lastName, c.last) << c.track;
        EXPECT_EQ(card->expiry, c.expiry) << c.track;
    }
    for (const char *bad : {"", "%", "^", "%B411^", ";4111111111111111=2809101?", "%B411^OAK/R",
                            "%B411^OAK/R^28", "%B411^OAK/R^28x9?"})
        EXPECT_FALSE(parseTrack(bad)) << bad;
}

TEST(Expiry, IsGoodToTheEndOfItsMonth)
{
    const platform::DateTime today{2025, 1, 31, 23, 0, 0, 0};
    EXPECT_FALSE(isExpired("2501", today));
    EXPECT_FALSE(isExpired("2601", today));
    EXPECT_TRUE(isExpired("2412", today));
    EXPECT_TRUE(isExpired("0905", today));
    EXPECT_TRUE(isExpired("2505", {2025, 6, 1, 0, 0, 0, 0}));
}

TEST(RemoveSwipe, TakesOneSentinelOffEachEnd)
{
    EXPECT_EQ(Remove_Swipe(" ;4111=2809? "), "4111=2809");
    EXPECT_EQ(Remove_Swipe(";;41=="), ";41=");
    EXPECT_EQ(Remove_Swipe("?"), "");
}

TEST(LocalRequest, FillsWhatIsBlankAndSendsTheDigitsOfATypedCardAlone)
{
    LocalRequest request;
    EXPECT_EQ(requestLine(request),
              "\"C1\",\"9999\",\"999\",\"99999999999999\",\"9999\",\"1.00\",\"99999\"\r\n");
    request = {true, "7", "1043", "4111111111111111", "2809", "12.", "123", true};
    EXPECT_EQ(requestLine(request),
              "\"C6\",\"7\",\"1043\",\"4111111111111111\",\"2809\",\"12.\",\"99999\",\"123\"\r\n");
    for (const char *none : {"000", "  ", ""}) {
        request.verify = none;
        EXPECT_EQ(requestLine(request).find("\"99999\"\r\n") == std::string::npos, false) << none;
    }
    request.verify = "123";
    request.typed = false;
    EXPECT_EQ(requestLine(request).find("123\"\r\n"), std::string::npos);
}

TEST(LocalRequest, NamesItsFilesByStationAndSecondAndItsAmountByTheMask)
{
    records::ProcessValues values;
    values.paymentDirectory = "c:\\Program Files\\X-Charge\\";
    values.StationName = "BAR-2";
    const LocalFiles files = localFiles(values, {2025, 1, 15, 13, 5, 9, 0});
    EXPECT_EQ(files.request, "c:\\Program Files\\X-Charge\\LocalTran\\BAR-2011525130509.req");
    for (const auto &[amount, sent] : {std::pair("48.50", "48.5"),
                                       {"12", "12."},
                                       {"0", "1.00"},
                                       {"", "1.00"},
                                       {"1.005", "1.01"}})
        EXPECT_EQ(localAmount(amount), sent);
    for (const auto &[answer, word] : {std::pair("Y012345", "Approved"),
                                       {"y012345", "Declined"},
                                       {"NDECLINED", "Declined"},
                                       {"", "Declined"},
                                       {"D", "Declined"}})
        EXPECT_EQ(outcomeWord(answer), word) << answer;
}

} // namespace
