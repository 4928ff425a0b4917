// What the count of a wait sets off. The stories of whole waits stand in tender_waits_test.cpp.
#include "tender/wait_rules.h"

#include <gtest/gtest.h>

namespace {

using namespace tender;

TEST(WaitCount, IsWholeSpansOf960MillisecondsAlsoWhenTheClockWraps)
{
    EXPECT_EQ(countSince(5000, 5000), 0);
    EXPECT_EQ(countSince(5000, 5959), 0);
    EXPECT_EQ(countSince(5000, 5960), 1);
    EXPECT_EQ(countSince(0, 48'000), 50);
    EXPECT_EQ(countSince(4'294'967'000U, 664), 1); // 296 ms before the wrap, 664 after
}

/// What changed on a waiting screen, in words.
std::string seen(const TenderFields &fields)
{
    std::string text = fields.Text3;
    text += fields.SSCommand1.enabled ? " +cancel" : "";
    text += fields.SSPanel2Visible ? " +wait panel" : "";
    text += fields.SSPanel4Visible && fields.SSPanel4Red && fields.SSRibbonsVisible
                ? " +" + fields.SSPanel4
                : "";
    return text;
}

TenderFields waiting(bool X1009)
{
    TenderFields fields;
    fields.X1009 = X1009;
    fields.SSCommand1.enabled = false;
    fields.Text3 = "waiting";
    return fields;
}

TEST(WaitTimer, ClimbsItsLadderUntilTheTickThatStopsIt)
{
    struct Case {
        int count;
        const char *local;
        bool stops;
    };
    const Case cases[] = {
        {0, "waiting", false},
        {1, "Waiting For Connection", false},
        {2, "Communicating", false},
        {3, "Waiting For Response", false},
        {4, "Still Waiting For Response", false},
        {5, "Should have response shortly", false},
        {6, "Still Waiting For Response", false},
        {7, "Should not take this long", false},
        {8, "waiting +cancel +wait panel", true},
        {20, "waiting +cancel +wait panel", true},
    };
    for (const Case &c : cases) {
        TenderFields fields = waiting(false);
        std::uint16_t StopWaiting = 0;
        EXPECT_EQ(waitTimerTick(c.count, fields, StopWaiting), c.stops) << c.count;
        EXPECT_EQ(seen(fields), c.local) << c.count;
        EXPECT_EQ(fields.Label4, std::to_string(c.count + 1));
        EXPECT_EQ(StopWaiting, 0);
    }
}

} // namespace
