// The wait for the payment application, through the production yield() in virtual time: when the
// operator may cancel, when help is offered, when the application is started again.
#include "support/tender_story.h"
#include "tender/request.h"

#include <gtest/gtest.h>

#include <map>

namespace {

using support::TenderStory;

/// When something of the screen first became true, in ms after the payment application's start.
class Moments {
public:
    explicit Moments(TenderStory &story)
    {
        story.view.onRefresh = [this, &story](const tender::TenderFields &fields) {
            if (!story.station.system.started.empty() && began == 0)
                began = story.station.time.milliseconds();
            const std::uint64_t now = story.station.time.milliseconds() - began;
            note("panel", fields.SSPanel2Visible, now);
            note("red", fields.SSPanel4Visible && fields.SSPanel4Red, now);
            note("problems", fields.Text3 == "Connection Problems Press Cancel", now);
            note("second", story.station.system.started.size() == 2, now);
            if (began != 0)
                note("cancel", fields.SSCommand1.enabled, now);
            const bool cleared = began != 0 && fields.Text3.empty() && fields.Label7 == "10";
            note("cleared", cleared, now);
        };
    }
    std::map<std::string, std::uint64_t> at;

private:
    void note(const std::string &what, bool holds, std::uint64_t now)
    {
        if (holds)
            at.try_emplace(what, now);
    }
    std::uint64_t began = 0;
};

TEST(Wait, ReachesEachCountOnTimeAndStartsThePaymentApplicationExactlyTwice)
{
    TenderStory story;
    story.paymentKeepsSilent();
    story.station.time.maxStep = 10;
    Moments moments(story);
    story.run(200'000);
    EXPECT_TRUE(story.stillWaiting) << "the wait has no end of its own";
    const std::map<std::string, std::uint64_t> expected = {
        {"cancel", 8000},  {"panel", 8000},   {"cleared", 9600},
        {"red", 49 * 960}, {"second", 48000}, {"problems", 51 * 960}};
    for (const auto &[what, when] : expected) {
        ASSERT_TRUE(moments.at.contains(what)) << what;
        EXPECT_NEAR(static_cast<double>(moments.at[what]), static_cast<double>(when), 20.0) << what;
    }
    EXPECT_EQ(story.station.system.started.size(), 2U);
    EXPECT_EQ(story.station.system.started[0].commandLine,
              story.station.system.started[1].commandLine);
    EXPECT_EQ(story.tender.state().SSPanel4, "INTERNET or Phone Line may be DOWN");
    EXPECT_FALSE(story.tender.state().SSPanel5Visible) << "the offline panel stays off";
    EXPECT_FALSE(story.answered());
}

TEST(Wait, CannotBeCancelledBeforeCountEightAndLeavesAFilledAnswerButNoRecordAfterIt)
{
    TenderStory story;
    story.paymentKeepsSilent();
    story.station.put(TenderStory::kAudit, "48.50");
    story.station.put("F:\\Lumbrio\\CCPending.dat", "");
    story.station.time.at(7000, [&] {
        story.tender.SSCommand1_Click();
        EXPECT_FALSE(story.station.run.ending()) << "not yet enabled";
    });
    story.station.time.at(12'000, [&] {
        story.station.put(TenderStory::kMarker, "");
        story.tender.SSCommand1_Click();
    });
    story.run();
    EXPECT_TRUE(story.station.run.ending());
    const std::string answer = story.answer();
    EXPECT_EQ(answer.substr(0, 23), "\"Declined\"\r\n\"48.50     ");
    EXPECT_EQ(std::count(answer.begin(), answer.end(), '\n'), 10);
    EXPECT_NE(answer.find("\"1043  "), std::string::npos) << "the fields are filled";
    EXPECT_TRUE(story.pending().empty());
    EXPECT_FALSE(story.station.has(TenderStory::kAudit));
    EXPECT_FALSE(story.station.has(TenderStory::kMarker));
    EXPECT_NE(story.processTrace().find("Cancel was pressed\r\nUnable to Connect - Internet may be "
                                        "down \r\nActual Seconds waited for Response  11\r\n"),
              std::string::npos)
        << story.processTrace();
}

TEST(Wait, CancelledInTheTurnInWhichTheResultArrivesStaysCancelled)
{
    TenderStory story;
    story.paymentAnswers(support::approvedResult(), 11'000);
    story.station.time.at(11'600, [&] {
        story.station.put(TenderStory::kResult, support::approvedResult());
        story.tender.SSCommand1_Click();
    });
    story.run();
    EXPECT_EQ(story.answer().substr(0, 10), "\"Declined\"");
    EXPECT_TRUE(story.pending().empty());
    EXPECT_EQ(story.slips(), "");
}

TEST(Wait, StoppedFromOutsideLeavesTheScreenForTheOperatorsCancel)
{
    TenderStory story;
    story.paymentKeepsSilent();
    story.station.time.at(20'000, [&] { story.app.values.StopWaiting = 65535; });
    story.run(30'000);
    EXPECT_FALSE(story.station.run.ending());
    EXPECT_FALSE(story.tender.state().Label7Visible);
    EXPECT_FALSE(story.answered());
    story.tender.SSCommand1_Click();
    EXPECT_EQ(story.answer().substr(0, 10), "\"Declined\"");
}

TEST(Wait, TakesNoResultOfAnEarlierRunForItsOwn)
{
    TenderStory story;
    story.station.put(TenderStory::kResult, support::approvedResult());
    // The left-over application writes its late result while it is being ended.
    story.station.system.onKill = [&](const std::string &image) {
        EXPECT_EQ(image, "X-Charge.exe");
        story.station.put(TenderStory::kResult, support::approvedResult());
    };
    // It was not ended at all, and writes another one while the operator is asked.
    story.station.put(TenderStory::kAudit, "50.00");
    story.station.dialogs.expect(
        "AUDIT FAILED", tender::auditQuestion("48.50", false), platform::Buttons::OkCancel,
        platform::Answer::Ok,
        [&] { story.station.put(TenderStory::kResult, support::approvedResult()); });
    story.paymentAnswers("RESULT=DECLINED\r\n", 5000);
    story.run();
    EXPECT_EQ(story.answer().substr(0, 10), "\"Declined\"");
    EXPECT_EQ(story.processTrace().find("SECONDS = 0"), std::string::npos);
}

TEST(Wait, ReadsAResultThatComesLongAfterTheSecondStart)
{
    TenderStory story;
    story.station.system.onStart = [&](const support::FakeSystem::Started &) {
        if (story.station.system.started.size() == 2)
            story.station.time.after(
                2500, [&] { story.station.put(TenderStory::kResult, support::approvedResult()); });
    };
    story.run(120'000);
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
    EXPECT_NE(story.processTrace().find("  SECONDS = 52\r\n"), std::string::npos)
        << story.processTrace();
    EXPECT_EQ(story.pending().size(), 1U);
}

TEST(Wait, KeepsTheMonthOfItsBeginningOverMidnight)
{
    TenderStory story;
    story.station.time.setNow({2025, 1, 31, 23, 59, 58, 0});
    story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
    story.paymentAnswers(support::approvedResult(), 4000);
    story.run();
    ASSERT_EQ(story.month().size(), 1U);
    EXPECT_FALSE(story.station.has("F:\\Lumbrio\\data\\CCFinal0225.dat"));
    EXPECT_EQ(story.month()[0].text(records::CCDate), "01/31/25");
}

} // namespace
