// Scrambled references, brands, masks and the two time helpers.
#include "records/app.h"
#include "records/card_helpers.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

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
        const char *number, *name;
        int type;
    };
    const Case cases[] = {
        {"34000000000000", "American Express", 3},
        {"37000000000000", "American Express", 3},
        {"36000000000000", "Diners Club", 5},
        {"38000000000000", "Carte Blanche", 6},
        {"51000000000000", "MasterCard", 2},
        {"55999999999999", "MasterCard", 2},
        {"50000000000000", "Unknown", 9},
        {"56000000000000", "Unknown", 9},
        {"60110000000000", "Discover", 4},
        {"60000000000000", "Discover", 4},
        {"21310000000000", "JCB", 8},
        {"18000000000000", "JCB", 8},
        {"21320000000000", "Unknown", 9},
        {"20140000000000", "EnRoute", 7},
        {"21490000000000", "EnRoute", 7},
        {"30000000000000", "American Diners Club", 9},
        {"30599999999999", "American Diners Club", 9},
        {"30600000000000", "JCB", 8},
        {"35000000000000", "JCB", 8},
        {"40000000000000", "Visa", 2},
        {" 4111-1111 1111-11 ", "Visa", 2},
        {"4111111111111", "Unknown", 9}, // 13 digits
        {"4111 1111 1111 1", "Unknown", 9},
        {"4111111111111a", "Unknown", 9},
        {"XXXXXXXXXXXX1234", "Unknown", 9},
        {"", "Unknown", 9},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(CreditCardType(c.number).name, c.name) << c.number;
        EXPECT_EQ(CreditCardType(c.number).type, c.type) << c.number;
    }
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
