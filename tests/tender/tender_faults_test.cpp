// A tender whose file operations fail or stop, one after the other: whatever happens, nobody
// else's record is touched, and the point of sale is told nothing that is not on the disk.
#include "support/tender_story.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Outcome;
using support::TenderStory;

std::string earlierRecords()
{
    std::string bytes;
    for (const char letter : {'a', 'b', 'c'})
        bytes += std::string(kCardSlotLength, letter);
    return bytes;
}

/// A whole answer of the tender's own; anything else was not written by one step.
bool isWholeAnswer(const std::string &answer)
{
    return answer == "old answer" || std::count(answer.begin(), answer.end(), '\n') >= 10;
}

struct Ends {
    std::string messages;
    bool stored = false;
    bool approved = false;
};

/// What must hold on the drives afterwards, whatever failed.
Ends lookAt(TenderStory &story, const std::string &where)
{
    Ends ends;
    const std::string pending = story.station.get(TenderStory::kPending);
    EXPECT_EQ(pending.substr(0, 1500), earlierRecords()) << where;
    EXPECT_TRUE(pending.size() == 1500 || pending.size() == 2000) << where << pending.size();
    ends.stored = pending.size() == 2000;
    if (ends.stored) {
        EXPECT_EQ(story.pending()[3].text(CCReceipt), "1043") << where;
    }
    const std::string answer = story.answer();
    EXPECT_TRUE(isWholeAnswer(answer)) << where << answer;
    ends.approved = answer.starts_with("\"Approved\"");
    return ends;
}

/// Another tender on the same station, when all is well again.
void expectNextTenderWorks(TenderStory &story, bool stored, const std::string &where)
{
    TenderStory next(story, 0);
    next.run();
    EXPECT_EQ(next.answer().substr(0, 10), "\"Approved\"") << where;
    EXPECT_EQ(next.pending().size(), stored ? 5U : 4U) << where;
    EXPECT_EQ(story.station.get(TenderStory::kPending).substr(0, 1500), earlierRecords()) << where;
}

void prepare(TenderStory &story)
{
    story.station.put(TenderStory::kPending, earlierRecords());
    story.station.put("C:\\Lumbrio\\Xsend.ans", "old answer");
}

std::size_t operationsOfATender()
{
    TenderStory story;
    prepare(story);
    story.run();
    EXPECT_TRUE(lookAt(story, "undisturbed").approved);
    return story.station.disk.operations();
}

TEST(StoppedTender, NeverTellsOfARecordThatIsNotThereAndTouchesNobodyElses)
{
    const std::size_t total = operationsOfATender();
    ASSERT_GT(total, 40U);
    bool sawStoredUnanswered = false;
    for (std::size_t n = 1; n <= total; ++n) {
        TenderStory story;
        prepare(story);
        story.station.disk.stopAt(n, [&] { story.station.run.end(); });
        story.run();
        const std::string where = "stopped at " + story.station.disk.operationLog()[n - 1] + "\n";
        const Ends ends = lookAt(story, where);
        EXPECT_TRUE(!ends.approved || ends.stored) << where;
        sawStoredUnanswered |= ends.stored && !ends.approved;
        if (n % 8 == 0)
            expectNextTenderWorks(story, ends.stored, where);
    }
    EXPECT_TRUE(sawStoredUnanswered) << "the record is on the disk before anybody is told";
}

TEST(FailingTender, EitherEndsOrSaysInItsTraceThatARecordIsMissing)
{
    const std::size_t total = operationsOfATender();
    for (const Outcome outcome : {Outcome::NoRoom, Outcome::Denied, Outcome::Locked}) {
        for (std::size_t n = 1; n <= total; ++n) {
            TenderStory story;
            prepare(story);
            story.station.run.reportFailure = [](const std::string &) {};
            story.station.disk.failAt(n, outcome);
            story.run();
            const std::string where = std::string(textOf(outcome)) + " at " +
                                      story.station.disk.operationLog()[n - 1] + "\n";
            const Ends ends = lookAt(story, where);
            EXPECT_TRUE(story.station.run.ending()) << where;
            EXPECT_FALSE(story.stillWaiting) << where;
            if (ends.approved && !ends.stored) {
                EXPECT_NE(story.processTrace().find("  RECORD NOT STORED - "), std::string::npos)
                    << where;
            }
        }
    }
}

TEST(OldAnswer, NeverStandsForADeclinedCard)
{
    for (const char *refused : {"rename", "open"}) {
        TenderStory story;
        story.station.put("C:\\Lumbrio\\Xsend.ans", "\"Approved\"\r\n");
        story.station.disk.failOn(refused, refused[0] == 'r' ? "Xsend.ans" : ".new",
                                  Outcome::Denied);
        story.paymentAnswers("RESULT=DECLINED\r\n");
        story.run();
        EXPECT_EQ(story.answer().substr(0, 10), "\"Declined\"") << refused;
    }
    TenderStory story;
    story.station.put("C:\\Lumbrio\\Xsend.ans", "\"Approved\"\r\n");
    for (const char *operation : {"rename", "open", "write"})
        story.station.disk.failOn(operation, "Xsend.ans", Outcome::Denied);
    story.paymentAnswers("RESULT=DECLINED\r\n");
    story.run();
    EXPECT_FALSE(story.answered()) << "better none than a wrong one";
    EXPECT_NE(story.processTrace().find("  ANSWER NOT WRITTEN - "), std::string::npos);
}

TEST(OldResult, ThatCannotBeDeletedChargesNothingAndApprovesNothing)
{
    TenderStory story;
    story.station.put(TenderStory::kResult, support::approvedResult());
    story.station.disk.failOn("remove", "xResultFile.txt", Outcome::Denied);
    story.station.dialogs.expect(
        "Result File",
        "The result of an earlier card cannot be removed from this computer, so this card was not "
        "charged. Please try again, or restart this station.",
        platform::Buttons::Ok, platform::Answer::Ok);
    story.run();
    EXPECT_TRUE(story.station.system.started.empty());
    EXPECT_EQ(story.answer().substr(0, 23), "\"Declined\"\r\n\"48.50     ");
    EXPECT_TRUE(story.pending().empty());
}

TEST(Commands, NeitherAnswerBeforeTheirFolderIsKnownNorEndACardThatIsCharged)
{
    TenderStory story;
    story.tender.Form_Load();
    story.tender.SSCommand1_Click();
    EXPECT_FALSE(story.station.run.ending());
    story.station.disk.failOn("open", "CCnoPrint.dat", Outcome::Denied);
    story.station.time.at(2000, [&] { story.tender.SSCheck1_Click(true); });
    story.run();
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
    EXPECT_FALSE(story.station.has("C:\\Xsend.ans"));
}

TEST(FullDisk, IsPassedOverButNeverInSilence)
{
    TenderStory story;
    prepare(story);
    story.station.disk.failOn("append", "CCPending.dat", Outcome::NoRoom);
    story.run();
    EXPECT_FALSE(lookAt(story, "full disk").stored);
    const std::string line =
        "  RECORD NOT STORED - no room on the disk - F:\\Lumbrio\\CCPending.dat\r\n";
    EXPECT_NE(story.processTrace().find(line), std::string::npos);
    EXPECT_NE(story.traceLog().find(line), std::string::npos);
}

TEST(LockedPendingFile, IsAppendedToAllTheSame)
{
    TenderStory story;
    prepare(story);
    TenderStory manager(story, 0);
    platform::SlotFile held(manager.station.files, TenderStory::kPending, kCardSlotLength);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Rewrite)) && done(held.lock()));
    story.run();
    EXPECT_TRUE(lookAt(story, "locked").stored);
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
}

TEST(LockedConfiguration, EndsTheTenderWithTheSystemsMessage)
{
    TenderStory story;
    TenderStory other(story, 0);
    platform::SlotFile held(other.station.files, "C:\\Lumbrio\\LumbrioINI.dat", 2300);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    story.station.dialogs.expect("",
                                 "Locking failed: locked by another\nC:\\Lumbrio\\LumbrioINI.dat",
                                 platform::Buttons::Ok, platform::Answer::Ok);
    story.run();
    EXPECT_TRUE(story.station.run.failed());
    EXPECT_FALSE(story.answered());
}

TEST(MissingPrinter, TouchesNothingOfAnApprovedPayment)
{
    TenderStory story;
    story.station.printers.installed.clear();
    story.run();
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
    EXPECT_EQ(story.pending().size(), 1U);
}

} // namespace
