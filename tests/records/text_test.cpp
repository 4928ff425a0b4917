// Texts, numbers and money: what a mask, a list or a slip makes of an amount. A digit lost here is
// lost on every receipt.
#include "records/text.h"
#include "records/typed_amount.h"
#include "support/golden_table.h"

namespace {

using namespace records;
using platform::DateTime;

TEST(MoneyTest, AddsExactlyNeverWrapsAndRoundsHalfAwayFromZero)
{
    support::expectTable("records/money.txt", [](const std::string &sum) {
        const std::size_t blank = sum.find(' ');
        const Money left = Val(sum.substr(0, blank));
        const Money right = Val(sum.substr(blank + 3));
        const std::map<char, Money> results = {{'+', left + right},
                                               {'-', left - right},
                                               {'*', left * right},
                                               {'/', left / right},
                                               {'~', left.rounded(wholeNumber(plainText(right)))}};
        return std::vector{std::to_string(results.at(sum[blank + 1]).tenThousandths())};
    });
    EXPECT_EQ(wholeNumber("-1.9"), -1);
    EXPECT_EQ(wholeNumber("99999999999999"), 999999999);
}

TEST(Amounts, AreReadAndPrintedInEveryMask)
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

TEST(Amounts, AreTakenAsTypedOrNotAtAll)
{
    for (const auto &[typed, taken] :
         {std::pair("  ", ""), {"5,50", "5.50"}, {".5", ".5"}, {"9999999.99", "9999999.99"}})
        EXPECT_EQ(typedAmount(typed), taken) << typed;
    for (const char *typed :
         {"-5", "1e3", "5.5.5", "5 50", "5.505", "1,234", "12345678", ".", ",50", "5,"})
        EXPECT_EQ(typedAmount(typed), std::nullopt) << typed;
}

TEST(Dates, ArePrintedInEveryMaskAndReadAsDaysOrAsNone)
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
    support::expectTable("records/days.txt", [](const std::string &text) {
        return std::vector{std::to_string(dayOf(text))};
    });
}

} // namespace
