// Rewrites of the pending file: no stop, failure or tender of another station costs a record.
#include "pending/completing.h"
#include "pending/pending_story.h"

#include <set>

namespace {

using namespace pending;
using namespace records;
using platform::Outcome;

const std::map<std::string, std::function<Outcome(App &)>> kRewrites = {
    {"Finish",
     [](App &app) {
         const platform::ErrorsIgnored ignored(app.run);
         return finishPending(app, {});
     }},
    {"Mark Completed", [](App &app) { return markCompleted(app, "01/14/2025", {}); }},
    {"DELETE RED'S", [](App &app) { return deleteDeclines(app, {}); }},
    {"moving settled records", [](App &app) {
         moveSettledRecords(app);
         return app.ending() ? Outcome::Broken : Outcome::Done;
     }}};

std::string evening()
{
    std::string three = slotOf("CCReceipt=3;CCDate=01/14/25");
    return slotOf("CCReceipt=1;CCAdjStatus=Completed") + slotOf("CCReceipt=2;CCstatus=Declined") +
           slotOf("empty") + three.replace(490, 10, "behind it ") +
           slotOf("CCReceipt=4;CCAdjStatus= Not");
}

void beginEvening(Story &story)
{
    story.station.put(Story::kPending, evening());
    story.station.run.reportFailure = [](const std::string &) {};
}

std::multiset<std::string> slots(const std::string &bytes)
{
    std::multiset<std::string> found;
    for (std::size_t at = 0; at < bytes.size(); at += 500)
        found.insert(bytes.substr(at, 500));
    return found;
}

std::multiset<std::string> everySlot(const Story &story)
{
    return slots(story.get(Story::kPending) + story.get(Story::kMonth) +
                 story.get(Story::kDeleted));
}

/// Nobody is lost, each record is byte for byte as it was or as it should be, and the live file is
/// the old one or the new one.
void expectNobodyLost(const Story &story, const Story &whole, const std::string &where)
{
    const std::string live = story.get(Story::kPending);
    EXPECT_TRUE(live == evening() || live == whole.get(Story::kPending)) << where;
    std::multiset<std::string> known = everySlot(whole);
    known.merge(slots(evening()));
    const std::multiset<std::string> found = everySlot(story);
    std::string receipts;
    for (const std::string &slot : found) {
        EXPECT_TRUE(known.contains(slot)) << "torn" << where;
        receipts += slot.substr(310, 1);
    }
    for (const char receipt : {'1', '2', '3', '4'})
        EXPECT_NE(receipts.find(receipt), std::string::npos) << receipt << where;
}

TEST(Rewrites, LoseNobodyWhereverTheyStopAndWhateverFails)
{
    for (const auto &[name, rewrite] : kRewrites) {
        Story whole;
        beginEvening(whole);
        EXPECT_TRUE(done(rewrite(whole.app))) << name;
        EXPECT_EQ(whole.get(Story::kPending).find("behind it ") == std::string::npos,
                  name == "Mark Completed");
        const std::size_t operations = whole.station.disk.operations();
        EXPECT_GT(operations, 15U) << name;
        for (std::size_t n = 2; n <= 2 * operations + 1; ++n) {
            Story story;
            beginEvening(story);
            if (n % 2 == 0)
                story.station.disk.stopAt(
                    n / 2, [&] { story.station.run.end(); }, true);
            else
                story.station.disk.failAt(n / 2, Outcome::NoRoom, true);
            rewrite(story.app);
            const std::string where = " " + name + (n % 2 == 0 ? " stopped at " : " failed at ") +
                                      story.station.disk.operationLog()[n / 2 - 1];
            expectNobodyLost(story, whole, where);
            if (n % 6 != 0)
                continue;
            Story next(&story); // another night on the same files
            EXPECT_TRUE(done(rewrite(next.app))) << where;
            expectNobodyLost(next, whole, where);
        }
    }
}

/// Another station comes right before operation N: with a tender, which insists where errors are
/// ignored. False behind the last operation.
bool tenderIsKept(const std::function<Outcome(App &)> &rewrite, std::size_t n, bool insists,
                  bool copiesOver)
{
    Story story;
    beginEvening(story);
    Story other(&story);
    other.station.run.reportFailure = [](const std::string &) {};
    story.station.disk.copiesOver = copiesOver;
    bool came = false;
    bool stored = false;
    story.station.disk.before = [&](std::size_t now) {
        if (now != n)
            return;
        came = true;
        std::optional<platform::ErrorsIgnored> ignored;
        if (insists)
            ignored.emplace(other.station.run);
        stored = addRecord(other.app, Story::kPending, recordOf("CCReceipt=new")).stored();
    };
    EXPECT_TRUE(done(rewrite(story.app)));
    const bool inTheCopy =
        copiesOver && came && // there, and only there, it may be lost
        story.station.disk.operationLog()[n - 1].find(" rename ") != std::string::npos;
    EXPECT_TRUE(stored || !came || !insists);
    const std::multiset<std::string> live = slots(story.get(Story::kPending));
    EXPECT_EQ(std::count_if(live.begin(), live.end(),
                            [](const auto &slot) { return slot.substr(310, 3) == "new"; }),
              stored && !inTheCopy ? 1 : 0)
        << n << story.station.disk.logText();
    return came;
}

TEST(Rewrites, KeepTheTenderThatComesAtAnyMomentOrItWasRefused)
{
    for (const auto &[name, rewrite] : kRewrites) {
        SCOPED_TRACE(name);
        for (std::size_t n = 1; tenderIsKept(rewrite, n, true, false); ++n)
            if (n % 5 == 0)
                tenderIsKept(rewrite, n, false, false);
    }
    for (std::size_t n = 1; tenderIsKept(kRewrites.at("DELETE RED'S"), n, true, true);)
        ++n;
}

TEST(Finish, WithoutTheLockLeavesAFileAloneThatAnotherHasReplacedMeanwhile)
{
    Story late;
    beginEvening(late);
    Story faster(&late);
    late.station.disk.before = [&](std::size_t n) {
        if (late.station.disk.operationLog()[n - 1].ends_with("flush f/Lumbrio/CCPending.Tmp"))
            faster.app.files.replaceWhole(Story::kPending, slotOf("CCReceipt=77"));
    };
    late.list.SSCommand5_Click();
    EXPECT_EQ(late.get(Story::kPending), slotOf("CCReceipt=77"));
}

} // namespace
