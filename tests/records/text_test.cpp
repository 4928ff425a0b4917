// Texts, numbers and money: what a mask, a list or a slip makes of an amount. A digit lost here is
// lost on every receipt.
#include "records/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace records;
using platform::DateTime;

constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();

Money tenThousandths(std::int64_t units)
{
    return Money::fromTenThousandths(units);
}

TEST(MoneyTest, AddsWithoutABinaryFractionAndNeverWraps)
{
    EXPECT_EQ(Currency(Val("20.10") + Val("3.05")), "$23.15");
    EXPECT_EQ(Format_Money(Val("0.1") + Val("0.2")), ".30");
    EXPECT_EQ(Format_Money(Val("100") - Val("99.99")), ".01");
    EXPECT_EQ(tenThousandths(kMost) + tenThousandths(1), tenThousandths(kMost));
    EXPECT_EQ(-tenThousandths(kMost) - tenThousandths(2),
              tenThousandths(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(tenThousandths(kMost) * Money::fromWhole(-2),
              tenThousandths(std::numeric_limits<std::int64_t>::min()));
    EXPECT_EQ(Money::fromWhole(kMost), tenThousandths(kMost));
    EXPECT_EQ(Val("99999999999999999999999999"), tenThousandths(kMost));
    EXPECT_EQ(Currency("-99999999999999999999"), "($922,337,203,685,477.58)");
}

TEST(MoneyTest, RoundsHalfAwayFromZeroOnBothSides)
{
    EXPECT_EQ(Val("0.0001") * Val("0.5"), tenThousandths(1));
    EXPECT_EQ(Val("-0.0001") * Val("0.5"), tenThousandths(-1));
    EXPECT_EQ(Val("0.0001") * Val("0.4999"), Money());
    EXPECT_EQ(Money::fromWhole(2) / Money::fromWhole(3), tenThousandths(6667));
    EXPECT_EQ(Money::fromWhole(-2) / Money::fromWhole(3), tenThousandths(-6667));
    EXPECT_EQ(Money::fromWhole(2) / Money::fromWhole(-3), tenThousandths(-6667));
    EXPECT_EQ(Money::fromWhole(5) / Money(), Money());
    EXPECT_EQ(Val("1.005").rounded(2), Val("1.01"));
    EXPECT_EQ(Val("-1.005").rounded(2), Val("-1.01"));
    EXPECT_EQ(Val("-1.0049").rounded(2), Val("-1"));
    EXPECT_EQ(Val("-0.5").rounded(0), Money::fromWhole(-1));
}

TEST(ValTest, ReadsTheNumberThatATextBeginsWith)
{
    const std::pair<std::string, std::int64_t> cases[] = {{"", 0},
                                                          {std::string(10, '\0'), 0},
                                                          {"   12.5   ", 125000},
                                                          {"12.5.3", 125000},
                                                          {"1,234.50", 10000},
                                                          {"$5", 0},
                                                          {"-.5", -5000},
                                                          {"+7", 70000},
                                                          {"- 7", 0},
                                                          {"--7", 0},
                                                          {"1e3", 10000},
                                                          {"&H10", 0},
                                                          {"12 5", 120000},
                                                          {".", 0},
                                                          {"-", 0},
                                                          {"007", 70000},
                                                          {"5-", 50000},
                                                          {"0.00009", 0},
                                                          {"1.23456", 12345},
                                                          {"\t5", 0},
                                                          {"abc", 0}};
    for (const auto &[text, units] : cases)
        EXPECT_EQ(Val(text).tenThousandths(), units) << '"' << text << '"';
    EXPECT_EQ(wholeNumber("-1.9"), -1);
    EXPECT_EQ(wholeNumber("99999999999999"), 999999999);
}

TEST(MaskTest, PrintsAmountsAsTheFilesHoldThem)
{
    const std::pair<const char *, const char *> cases[] = {
        {"0", "."},           {"0.5", ".5"},           {"0.05", ".05"},    {"0.004", "."},
        {"0.005", ".01"},     {"12", "12."},           {"12.5", "12.5"},   {"12.50", "12.5"},
        {"1.005", "1.01"},    {"1234.567", "1234.57"}, {"99.995", "100."}, {"-12.5", "-12.5"},
        {"-0.5", "-.5"},      {"-0.004", "."},         {"-0.005", "-.01"}, {"$1,234.50", "1234.5"},
        {"($5.00)", "-5."},   {"-$5", "-5."},          {"", ""},           {"    ", "    "},
        {"abc", "abc"},       {"12abc", "12abc"},      {"$", "$"},         {"()", "()"},
        {"12.5.3", "12.5.3"}, {"12.5  ", "12.5"},
    };
    // The digits of the mask never cut: all three widths give the same.
    for (const char *mask : {"######.##", "#######.##", "########.##"}) {
        for (const auto &[text, shown] : cases)
            EXPECT_EQ(Format(text, mask), shown) << '"' << text << "\" in " << mask;
        EXPECT_EQ(Format("12345678901.9", mask), "12345678901.9");
    }
    for (const auto &[text, shown] :
         {std::pair("0", ""), {"100.4", "100"}, {"0.5", "1"}, {"-0.4", ""}, {"abc", "abc"}})
        EXPECT_EQ(Format(text, "##########"), shown) << text;
    EXPECT_EQ(Format("7", "00"), "07");
    EXPECT_EQ(Format("1.5", "0.00"), "1.50");
}

TEST(MaskTest, PrintsMoneyForSlipsListsAndPlainText)
{
    struct Case {
        const char *text, *currency, *formatMoney, *plain;
    };
    const Case cases[] = {
        {"0", "$0.00", ".00", "0"},
        {"0.5", "$0.50", ".50", "0.5"},
        {"12", "$12.00", "12.00", "12"},
        {"12.5", "$12.50", "12.50", "12.5"},
        {"32.50", "$32.50", "32.50", "32.5"},
        {"1234.567", "$1,234.57", "1234.57", "1234.567"},
        {"1234567.891", "$1,234,567.89", "1234567.89", "1234567.891"},
        {"-12.5", "($12.50)", "-12.50", "-12.5"},
        {"-0.001", "$0.00", ".00", "-0.001"},
        {"0.995", "$1.00", "1.00", "0.995"},
        {"", "$0.00", ".00", "0"},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(Currency(c.text), c.currency) << c.text;
        EXPECT_EQ(Format_Money(Val(c.text)), c.formatMoney) << c.text;
        EXPECT_EQ(plainText(Val(c.text)), c.plain) << c.text;
    }
    EXPECT_EQ(Currency(std::string(10, '\0')), "$0.00");
    EXPECT_EQ(Currency("$1,234.50"), "$1,234.50");
    EXPECT_EQ(Currency("12.5 and more"), "$12.50");
}

TEST(DateMaskTest, PrintsDatesAndTimesInEveryMaskInUse)
{
    const DateTime afternoon{2025, 1, 15, 13, 5, 9, 0};
    const std::pair<const char *, const char *> cases[] = {
        {"DDDD MM/DD/YYYY", "Wednesday 01/15/2025"},
        {"MM/DD/YY", "01/15/25"},
        {"MM/DD/YYYY", "01/15/2025"},
        {"DD/MM/YYYY", "15/01/2025"},
        {"MMYY", "0125"},
        {"MMYYYY", "012025"},
        {"MMDDYYYY", "01152025"},
        {"HH:MM ampm", "01:05 PM"},
        {"HH:MM ampm ", "01:05 PM "},
        {"HH:MM", "13:05"},
        {"HHMMSS", "130509"},
        {"HH:NN:SS MM/DD", "13:05:09 01/15"},
        {"hh:mm AMPM", "01:05 PM"},
    };
    for (const auto &[mask, text] : cases)
        EXPECT_EQ(Format(afternoon, mask), text) << mask;
    for (const auto &[hour, text] :
         {std::pair(0, "12:05 AM"), {11, "11:05 AM"}, {12, "12:05 PM"}, {23, "11:05 PM"}})
        EXPECT_EQ(Format(DateTime{2025, 1, 15, hour, 5, 0, 0}, "HH:MM ampm"), text);
    EXPECT_EQ(Format(DateTime{2024, 2, 29, 0, 0, 0, 0}, "DDDD"), "Thursday");
}

TEST(TrimTest, CutsBlanksAloneAndTakesAnUnassignedFieldForEmpty)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
    EXPECT_EQ(Trim(std::string(" \0 \0", 4)), "");
    EXPECT_EQ(Trim(std::string("ab\0 ", 4)), std::string("ab\0", 3));
    EXPECT_TRUE(isBlank(std::string(3, '\0')));
    EXPECT_FALSE(isBlank("\xA0"));
}

} // namespace
