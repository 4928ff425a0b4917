// Scrambled references, brands, masks and the two time helpers.
#include "records/app.h"
#include "records/card_helpers.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace records;
using support::TestStation;

TEST(StrEncodeTest, ShiftsTheFirstByTheLengthAndTheOthersByTheirPosition)
{
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"7", "8"},
        {"12", "34"},
        {"4111111111111111", "D3456789:;<=>?@A"},
        {"7401234567890", "D63579;=?ACE="},
        {"\xFF\xFE\xFD", std::string("\x02\x00\x00", 3)}, // codes wrap at 256
        {"\x80 z", "\x83\"}"},
    };
    for (const auto &[plain, scrambled] : cases) {
        EXPECT_EQ(StrEncode(plain), scrambled);
        EXPECT_EQ(StrDecode(scrambled), plain);
    }
    std::string everyCode;
    for (int code = 0; code < 300; ++code)
        everyCode += static_cast<char>(code);
    EXPECT_EQ(StrDecode(StrEncode(everyCode)), everyCode);
}

TEST(CreditCardTypeTest, TakesTheFirstRuleThatGivesAName)
{
    struct Case {
        const char *name;
        int type;
        const char *prefixes; // each filled up with zeros to 14 digits
    };
    const Case cases[] = {
        {"American Express", 3, "34 37"},   {"Diners Club", 5, "36"},
        {"Carte Blanche", 6, "38"},         {"MasterCard", 2, "51 55"},
        {"Discover", 4, "60 6011"},         {"JCB", 8, "2131 1800 306 35 39"},
        {"EnRoute", 7, "2014 2149"},        {"American Diners Club", 9, "300 305"},
        {"Visa", 2, "4 4111-1111-1111-11"}, {"Unknown", 9, "50 56 2132 1 0 4x XXXXXXXXXXXX1234"},
    };
    for (const Case &c : cases) {
        std::istringstream prefixes(c.prefixes);
        for (std::string number; prefixes >> number;) {
            number.resize(std::max<std::size_t>(number.size(), 14), '0');
            EXPECT_EQ(CreditCardType(number).name, c.name) << number;
            EXPECT_EQ(CreditCardType(number).type, c.type) << number;
        }
    }
    EXPECT_EQ(CreditCardType(" 4111 1111 1111 11 ").name, "Visa");
    for (const char *tooShort : {"4111111111111", "4111 1111-1111 1", ""})
        EXPECT_EQ(CreditCardType(tooShort).name, "Unknown") << tooShort;
}

TEST(CardTexts, HideANumberAndTurnAnExpiry)
{
    EXPECT_EQ(maskedNumber(" 4111111111112345 "), "XXXX XXXX XXXX 2345");
    EXPECT_EQ(maskedNumber("12"), "XXXX XXXX XXXX 12");
    EXPECT_EQ(maskedNumber(""), "XXXX XXXX XXXX ");
    EXPECT_EQ(turnedExpiry("2809"), "0928");
    EXPECT_EQ(turnedExpiry("928"), "928");
    EXPECT_EQ(turnedExpiry(""), "");
}

TEST(MinToHrTest, HasTwoDigitsEach)
{
    EXPECT_EQ(MinToHr(5, true), "00:05:00");
    EXPECT_EQ(MinToHr(5), "00:05");
    EXPECT_EQ(MinToHr(600), "10:00");
    EXPECT_EQ(MinToHr(6059), "100:59");
}

/// How long a pause takes that begins at a time of day.
std::uint64_t pauseFrom(int hour, int minute, int second, int millisecond, int length)
{
    TestStation station({2025, 1, 15, hour, minute, second, millisecond});
    station.time.limit = std::uint64_t(50) * 60 * 60 * 1000;
    station.time.maxStep = 50;
    App app(station.services);
    Pause(app, std::chrono::milliseconds(length));
    return station.time.milliseconds();
}

TEST(PauseTest, WaitsOnTheClockOfTheDayAndEndsAlsoAcrossMidnight)
{
    constexpr std::uint64_t kDay = std::uint64_t(24) * 60 * 60 * 1000;
    EXPECT_EQ(pauseFrom(13, 5, 0, 0, 500), 500U);
    EXPECT_EQ(pauseFrom(13, 5, 0, 0, 0), 0U);
    EXPECT_EQ(pauseFrom(23, 59, 59, 0, 500), 500U);
    EXPECT_EQ(pauseFrom(23, 59, 59, 800, 500), kDay) << "until the clock is back at its start";
}

TEST(PauseTest, IsCutShortByTheEnd)
{
    TestStation station;
    App app(station.services);
    station.time.after(200, [&] { station.run.end(); });
    Pause(app, std::chrono::seconds(30));
    EXPECT_EQ(station.time.milliseconds(), 200U);
}

} // namespace
