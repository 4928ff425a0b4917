// Rewrites of the pending file: no stop, failure or tender of another station costs a record.
#include "pending/completing.h"
#include "pending/pending_story.h"

#include <set>

namespace {

using namespace pending;
using platform::Outcome;
using Slots = std::multiset<std::string>;

constexpr const char *kRewrites[] = {"Finish", "Mark Completed", "DELETE RED'S", "Move_Completed"};

std::string evening()
{
    std::string three = slotOf("CCReceipt=3;CCDate=01/14/25");
    return slotOf("CCReceipt=1;CCAdjStatus=Completed") + slotOf("CCReceipt=2;CCstatus=Declined") +
           slotOf("empty") + three.replace(490, 10, "behind it ") +
           slotOf("CCReceipt=4;CCAdjStatus= Not");
}

struct Evening : Story {
    explicit Evening(const Story *earlier = nullptr) : Story(earlier)
    {
        station.dialogs.typed = "01/14/2025";
        if (earlier == nullptr)
            station.put(kPending, evening());
    }
};

Slots slots(const std::string &bytes)
{
    Slots found;
    for (std::size_t at = 0; at < bytes.size(); at += 500)
        found.insert(bytes.substr(at, 500));
    return found;
}

Slots everySlot(const Story &story)
{
    return slots(story.get(Story::kPending) + story.get(Story::kMonth) +
                 story.get(Story::kDeleted));
}

/// Nobody is lost, each record is byte for byte as it was or as it should be, and the live file is
/// the old one or, certainly where the screen says so, the new one.
void expectNobodyLost(const Story &story, const Story &whole, const std::string &where)
{
    const std::string live = story.get(Story::kPending);
    const bool old = live == evening() && story.panel != "Operation is completed";
    EXPECT_TRUE(old || live == whole.get(Story::kPending)) << where;
    Slots known = everySlot(whole);
    known.merge(slots(evening()));
    std::string receipts;
    for (const std::string &slot : everySlot(story)) {
        EXPECT_TRUE(known.contains(slot)) << "torn" << where;
        receipts += slot.substr(310, 1);
    }
    for (const char receipt : {'1', '2', '3', '4'})
        EXPECT_NE(receipts.find(receipt), std::string::npos) << receipt << where;
}

TEST(Rewrites, LoseNobodyWhereverTheyStopAndWhateverFails)
{
    for (const std::string name : kRewrites) {
        Evening whole;
        whole.press(name);
        EXPECT_EQ(whole.get(Story::kPending).find("behind it ") == std::string::npos,
                  name == "Mark Completed");
        const std::size_t operations = whole.station.disk.operations();
        for (std::size_t n = 2; n <= 2 * operations + 1; ++n) {
            Evening story;
            if (n % 2 == 0)
                story.station.disk.stopAt(
                    n / 2, [&] { story.station.run.end(); }, true);
            else
                story.station.disk.failAt(n / 2, Outcome::NoRoom, true);
            story.press(name);
            const std::string where = " " + name + (n % 2 == 0 ? " stopped at " : " failed at ") +
                                      story.station.disk.operationLog()[n / 2 - 1];
            expectNobodyLost(story, whole, where);
            if (n % 6 != 0)
                continue;
            Evening next(&story); // another night on the same files
            next.press(name);
            EXPECT_EQ(next.get(Story::kPending), whole.get(Story::kPending)) << where;
            expectNobodyLost(next, whole, where);
        }
    }
}

/// Not every system can replace a file that somebody has open: it copies over it.
bool systemCopiesOver()
{
    Evening story;
    platform::SlotFile live(story.station.files, Story::kPending, records::kCardSlotLength);
    live.open(platform::SlotUse::Read);
    story.station.files.replaceWhole(Story::kPending, "");
    return live.isStillThere();
}

/// Another station comes right before operation N: with a tender, which insists where errors are
/// ignored. False behind the last operation.
bool tenderIsKept(const std::string &name, std::size_t n, bool insists, bool copiesOver)
{
    Evening story;
    Evening other(&story);
    story.station.disk.copiesOver = copiesOver;
    if (n % 2 == 0) // half an append, torn by a power cut
        story.station.put(Story::kPending, evening() + std::string(250, '\0'));
    bool came = false;
    bool stored = false;
    bool inTheCopy = false; // there, and only there, it may be lost
    story.station.disk.before = [&](std::size_t now) {
        if (now != n)
            return;
        came = true;
        inTheCopy = copiesOver && story.station.disk.operationLog().back().ends_with(
                                      " to f/Lumbrio/CCPending.dat");
        std::optional<platform::ErrorsIgnored> ignored;
        if (insists)
            ignored.emplace(other.station.run);
        stored = addRecord(other.app, Story::kPending, recordOf("CCReceipt=new")).stored();
    };
    story.press(name);
    EXPECT_TRUE(stored || !came || !insists);
    const Slots live = slots(story.get(Story::kPending));
    EXPECT_EQ(std::count_if(live.begin(), live.end(),
                            [](const auto &slot) { return slot.find("new ") == 310; }),
              stored && !inTheCopy ? 1 : 0)
        << n << story.station.disk.logText();
    return came;
}

TEST(Rewrites, KeepTheTenderThatComesAtAnyMomentOrItWasRefused)
{
    const bool copiesOver = systemCopiesOver();
    for (const std::string name : kRewrites) {
        SCOPED_TRACE(name);
        for (std::size_t n = 1; tenderIsKept(name, n, true, copiesOver); ++n)
            if (n % 5 == 0)
                tenderIsKept(name, n, false, copiesOver);
    }
    for (std::size_t n = 1; tenderIsKept("DELETE RED'S", n, true, true);)
        ++n;
}

TEST(Finish, WithoutTheLockLeavesAFileAloneThatAnotherHasReplacedMeanwhile)
{
    if (systemCopiesOver())
        GTEST_SKIP() << "it is the same file then, and nobody can tell";
    Evening late;
    Evening faster(&late);
    late.station.disk.before = [&](std::size_t n) {
        if (late.station.disk.operationLog()[n - 1].ends_with("flush f/Lumbrio/CCPending.Tmp"))
            faster.app.files.replaceWhole(Story::kPending, slotOf("CCReceipt=77"));
    };
    late.list.SSCommand5_Click();
    EXPECT_EQ(late.get(Story::kPending), slotOf("CCReceipt=77"));
}

} // namespace
