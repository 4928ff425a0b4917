// Scrambled references, brands, masks and lengths of time.
#include "records/card_helpers.h"
#include "support/golden_table.h"

namespace {

using namespace records;

TEST(StrEncodeTest, ShiftsTheFirstByTheLengthAndTheOthersByTheirPosition)
{
    EXPECT_EQ(StrEncode("7"), "8");
    EXPECT_EQ(StrEncode("7401234567890"), "D63579;=?ACE=");
    EXPECT_EQ(StrEncode("\xFF\xFE\xFD"), std::string("\x02\x00\x00", 3)) << "codes wrap at 256";
    std::string everyCode;
    for (int code = 0; code < 300; ++code)
        everyCode += static_cast<char>(code);
    for (const std::string &text : {everyCode, std::string()})
        EXPECT_EQ(StrDecode(StrEncode(text)), text);
}

TEST(CardTexts, NameTheBrandHideANumberAndTurnAnExpiry)
{
    support::expectTable("records/brands.txt", [](const std::string &number) {
        const CardBrand brand = CreditCardType(number);
        return std::vector{std::string(brand.name), std::to_string(brand.type)};
    });
    EXPECT_EQ(maskedNumber(" 4111111111112345 "), "XXXX XXXX XXXX 2345");
    EXPECT_EQ(maskedNumber("12"), "XXXX XXXX XXXX 12");
    EXPECT_EQ(turnedExpiry("2809"), "0928");
    EXPECT_EQ(turnedExpiry("928"), "928");
    EXPECT_EQ(MinToHr(5, true), "00:05:00");
    EXPECT_EQ(MinToHr(6059), "100:59");
}

} // namespace
