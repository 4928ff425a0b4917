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

void beginEvening(Story &story)
{
    story.station.put(Story::kPending, slotOf("CCReceipt=1;CCAdjStatus=Completed") +
                                           slotOf("CCReceipt=2;CCstatus=Declined") +
                                           slotOf("empty") + slotOf("CCReceipt=3;CCDate=01/14/25") +
                                           slotOf("CCReceipt=4"));
    story.station.run.reportFailure = [](const std::string &) {};
}

std::multiset<std::string> receipts(const Story &story, const char *path)
{
    std::multiset<std::string> found;
    for (const CardRecord &record : story.records(path))
        found.insert(record.text(CCReceipt));
    return found;
}

/// Nobody is lost, and the live file is whole: as before, or as it should be.
void expectNobodyLost(const Story &story, std::size_t after, const std::string &where)
{
    std::multiset<std::string> everywhere;
    for (const char *path : {Story::kPending, Story::kMonth, Story::kDeleted})
        everywhere.merge(receipts(story, path));
    for (const char *receipt : {"1", "2", "3", "4"})
        EXPECT_TRUE(everywhere.contains(receipt)) << receipt << where;
    const std::size_t size = story.get(Story::kPending).size();
    EXPECT_TRUE(size == 2500 || size == after * 500) << size << where;
}

TEST(Rewrites, LoseNobodyWhereverTheyStopAndWhateverFails)
{
    for (const auto &[name, rewrite] : kRewrites) {
        Story whole;
        beginEvening(whole);
        EXPECT_TRUE(done(rewrite(whole.app))) << name;
        const std::size_t after = whole.records(Story::kPending).size();
        const std::size_t operations = whole.station.disk.operations();
        EXPECT_GT(operations, 15U) << name;
        for (std::size_t n = 2; n <= 2 * operations + 1; ++n) {
            Story story;
            beginEvening(story);
            if (n % 2 == 0)
                story.station.disk.stopAt(n / 2, [&] { story.station.run.end(); });
            else
                story.station.disk.failAt(n / 2, Outcome::NoRoom, true);
            rewrite(story.app);
            const std::string where = " " + name + (n % 2 == 0 ? " stopped at " : " failed at ") +
                                      story.station.disk.operationLog()[n / 2 - 1];
            expectNobodyLost(story, after, where);
            if (n % 6 != 0)
                continue;
            Story next(&story); // another night on the same files
            EXPECT_TRUE(done(rewrite(next.app))) << where;
            expectNobodyLost(next, after, where);
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
    EXPECT_EQ(receipts(story, Story::kPending).count("new"), stored && !inTheCopy ? 1U : 0U)
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
    EXPECT_EQ(receipts(late, Story::kPending), std::multiset<std::string>{"77"});
}

} // namespace
