// The moments in which a card could be charged twice, or be charged and answered as declined: the
// request that is taken at once, and the end of a tender while the operator still reads a notice.
#include "support/tender_story.h"

namespace {

using platform::Outcome;
using support::TenderStory;

/// Before the tender has looked whether it lies there: the guest is charged.
TEST(Request, IsWaitedForWhenTheServerTakesItAtOnce)
{
    TenderStory story;
    story.takeCardsHere();
    story.swipe();
    const std::string request = TenderStory::kLocalTran + std::string("FRONT-BAR011525130502.req");
    story.station.disk.looksCount = true;
    story.station.disk.before = [&](std::size_t) {
        if (!story.station.has(request))
            return;
        story.requests.push_back(request);
        story.station.erase(request);
        story.station.time.after(2000, [&] {
            story.station.put(request.substr(0, request.size() - 3) + "ans", *story.reply);
        });
    };
    story.run();
    EXPECT_EQ(story.requests.size(), 1U);
    EXPECT_EQ(story.answer().substr(1, 8), "Approved");
}

TEST(Audit, ThatIsRefusedStartsNoPayment)
{
    TenderStory story;
    story.station.put("C:\\Lumbrio\\XAudit.DAT", "50.00\r\n");
    story.station.dialogs.person = [](const auto &, const auto &) { return "Cancel"; };
    story.run();
    EXPECT_TRUE(story.station.system.started.empty());
}

TEST(Failure, SaysThatTheCardMayBeChargedOnceThePaymentIsAsked)
{
    for (const bool local : {false, true}) {
        TenderStory story;
        if (local)
            story.takeCardsHere();
        story.swipe();
        story.reply = std::nullopt;
        story.paymentKeepsSilent();
        story.station.time.at(10'000, [&] { story.station.run.fail("Trouble"); });
        std::string boxes;
        story.station.dialogs.noteIn(boxes);
        story.run();
        EXPECT_NE(boxes.find("may be charged"), std::string::npos);
    }
}

/// Which flushes it once more.
TEST(LocalRecord, IsWrittenASecondTimeIntoItsSlot)
{
    TenderStory story;
    story.takeCardsHere();
    story.swipe();
    story.run();
    std::string log;
    for (const std::string &line : story.station.disk.operationLog())
        log += line + "\n";
    EXPECT_NE(log.find("write f/Lumbrio/CCPending.dat 490 bytes at 0"), std::string::npos);
}

/// The guest would have a slip, and the point of sale a decline or no answer.
TEST(Notice, IsHurriedAwayByNoCommandAfterAnApproval)
{
    for (const bool offline : {false, true}) {
        TenderStory story;
        story.station.printers.failures = {Outcome::Broken, Outcome::Broken};
        story.tender.offlinePanel = offline;
        story.view.onManager = [&] { story.app.values.managerResult = "Rosalind"; };
        if (offline)
            story.paymentKeepsSilent();
        story.station.time.at(50'000, [&] { story.tender.askForOfflineApproval(); });
        bool ended = false;
        story.station.dialogs.person = [&](const auto &, const auto &) {
            story.station.run.yield();
            story.tender.cancel();
            story.tender.finishTender();
            ended = story.station.run.ending();
            return "Ok";
        };
        story.run(100'000);
        EXPECT_FALSE(ended);
        EXPECT_EQ(story.answer().substr(1, 8), "Approved");
    }
}

/// It would be charged while the operator reads that the answer cannot be written.
TEST(Cancel, EndsASwipeThatIsNotReadYet)
{
    TenderStory story;
    story.takeCardsHere();
    for (const char *operation : {"rename", "write"})
        story.station.disk.failOn(operation, "Xsend.ans", Outcome::NoRoom);
    story.swipe(TenderStory::kTrack1, "");
    story.station.time.at(1000, [&] { story.tender.cancel(); });
    story.station.dialogs.person = [&](const auto &, const auto &) {
        story.pass(5000);
        return "Ok";
    };
    story.run();
    EXPECT_TRUE(story.requests.empty());
}

} // namespace
