// The wait for the payment application's result: what its counts set off, and when the application
// is started again. How a wait ends is told in tender_stories_test.cpp.
#include "support/tender_story.h"
#include "tender/wait_rules.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using support::TenderStory;

TEST(Wait, ReachesEachCountOnTimeAndStartsThePaymentApplicationExactlyTwice)
{
    const std::map<std::string, std::uint64_t> expected[] = {
        {{"cancel", 8000},
         {"panel", 8000},
         {"cleared", 9600},
         {"red", 49 * 960},
         {"second", 50 * 960},
         {"problems", 51 * 960}},
        {{"cancel", 14400}, {"panel", 20000}}}; // the payment server's
    for (const bool local : {false, true}) {
        TenderStory story;
        story.paymentKeepsSilent();
        story.reply = std::nullopt;
        if (local) {
            story.takeCardsHere();
            story.swipe();
        }
        story.station.time.maxStep = 10;
        std::map<std::string, std::uint64_t> first; // ms of the wait, when something first held
        std::uint64_t began = 0;
        story.view.onRefresh = [&](const tender::TenderFields &fields) {
            const std::size_t started = story.station.system.started.size();
            if (local ? !fields.Label7Visible : started == 0)
                return;
            const std::uint64_t now = story.station.time.milliseconds();
            began = began == 0 ? now : began;
            for (const auto &[what, holds] :
                 {std::pair("cancel", fields.SSCommand1.enabled),
                  {"panel", fields.SSPanel2Visible},
                  {"cleared", fields.Text3.empty() && fields.Label7 == "10"},
                  {"red", fields.SSPanel4Visible && fields.SSPanel4Red && fields.SSRibbonsVisible},
                  {"second", started == 2},
                  {"problems", fields.Text3 == "Connection Problems Press Cancel"}})
                if (holds)
                    first.try_emplace(what, now - began);
        };
        story.run(200'000);
        EXPECT_TRUE(story.stillWaiting) << "the wait has no end of its own";
        for (const auto &[what, when] : expected[local ? 1 : 0])
            EXPECT_NEAR(static_cast<double>(first[what]), static_cast<double>(when), 20.0) << what;
        EXPECT_EQ(story.station.system.started.size(), local ? 0U : 2U);
        EXPECT_EQ(story.tender.state().SSPanel4, "INTERNET or Phone Line may be DOWN");
        EXPECT_FALSE(story.tender.state().SSPanel5Visible) << "the offline panel stays off";
        EXPECT_FALSE(story.answered());
    }
    EXPECT_EQ(tender::countSince(4'294'967'000U, 664), 1) << "296 ms before the clock wraps";
}

} // namespace
