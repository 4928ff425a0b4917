// Texts that the tender screen shows otherwise than they are kept.
#include "tender/tender_words.h"

#include <gtest/gtest.h>

namespace {

TEST(TenderWords, AnAmountIsShownAsCurrencyUnlessThatWouldShowAnotherAmount)
{
    EXPECT_EQ(tender::shownAmount("48.5"), "$48.50");
    EXPECT_EQ(tender::shownAmount("1234.5"), "$1,234.50");
    EXPECT_EQ(tender::shownAmount("48.50 plus tip"), "48.50 plus tip");
}

TEST(TenderWords, OfACardNumberOnlyTheLastFourDigitsAreShown)
{
    EXPECT_EQ(tender::shownCardNumber("4111111111111234"), "************1234");
    EXPECT_EQ(tender::shownCardNumber(" 1234 "), "1234");
    EXPECT_EQ(tender::shownCardNumber(""), "");
}

} // namespace
