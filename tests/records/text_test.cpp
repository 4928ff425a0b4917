// Texts, numbers and money: what a mask, a list or a slip makes of an amount. A digit lost here is
// lost on every receipt.
#include "records/text.h"
#include "support/golden_table.h"

#include <limits>

namespace {

using namespace records;
using platform::DateTime;

Money units(std::int64_t tenThousandths)
{
    return Money::fromTenThousandths(tenThousandths);
}

TEST(MoneyTest, AddsWithoutABinaryFractionNeverWrapsAndRoundsHalfAwayFromZero)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t kLeast = std::numeric_limits<std::int64_t>::min();
    const std::pair<Money, Money> cases[] = {
        {Val("0.1") + Val("0.2"), Val("0.3")},
        {units(kMost) + units(1), units(kMost)},
        {-units(kMost) - units(2), units(kLeast)},
        {units(kMost) * Money::fromWhole(-2), units(kLeast)},
        {Val("0.0001") * Val("0.5"), units(1)},
        {Val("-0.0001") * Val("0.5"), units(-1)},
        {Val("0.0001") * Val("0.4999"), Money()},
        {Money::fromWhole(2) / Money::fromWhole(3), units(6667)},
        {Money::fromWhole(2) / Money::fromWhole(-3), units(-6667)},
        {Money::fromWhole(5) / Money(), Money()},
        {Val("-1.005").rounded(2), Val("-1.01")},
        {Val("-0.5").rounded(0), Money::fromWhole(-1)},
        {Val("\t5"), Money()},
        {Val(std::string(10, '\0')), Money()},
    };
    for (const auto &[result, expected] : cases)
        EXPECT_EQ(result, expected) << plainText(result);
    EXPECT_EQ(wholeNumber("-1.9"), -1);
    EXPECT_EQ(wholeNumber("99999999999999"), 999999999);
}

TEST(Amounts, AreReadAndPrintedInEveryMaskAsTheGoldenTableSays)
{
    support::expectTable("records/amounts.txt", [](const std::string &text) {
        return std::vector{std::to_string(Val(text).tenThousandths()),
                           Format(text, "######.##"),
                           Format(text, "##########"),
                           Format(text, "00"),
                           Currency(text),
                           Format_Money(Val(text)),
                           plainText(Val(text))};
    });
}

TEST(Dates, ArePrintedInEveryMaskAsTheGoldenTableSays)
{
    support::expectTable("records/dates.txt", [](const std::string &mask) {
        std::vector<std::string> texts;
        for (const DateTime &when : {DateTime{2025, 1, 15, 13, 5, 9, 0},
                                     {2024, 2, 29, 0, 59, 0, 0},
                                     {1999, 12, 31, 12, 0, 59, 0},
                                     {2025, 11, 3, 11, 5, 0, 0}})
            texts.push_back(Format(when, mask));
        return texts;
    });
}

TEST(Dates, AreReadAsDaysOrAsNone)
{
    support::expectTable("records/days.txt", [](const std::string &text) {
        return std::vector{std::to_string(dayOf(text))};
    });
}

TEST(TrimTest, CutsBlanksAloneAndTakesAnUnassignedFieldForEmpty)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(Trim(std::string(" \0 \0", 4)), "");
    EXPECT_EQ(Trim(std::string("ab\0 ", 4)), std::string("ab\0", 3));
}

} // namespace
