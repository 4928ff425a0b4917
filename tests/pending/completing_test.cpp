// Rewrites of the pending file: no tender of another station costs a record. Every operation on a
// file fails or stops in tests/faults/.
#include "records/card_files.h"
#include "support/card_text.h"
#include "support/manager_stage.h"

#include <set>

namespace {

using support::ManagerStage;
using support::recordOf;
using support::slotOf;
using Slots = std::multiset<std::string>;

constexpr const char *kRewrites[] = {"Finish", "Mark Completed", "DELETE RED'S", "Move_Completed"};

struct Evening : ManagerStage {
    explicit Evening(const support::TestStation *earlier = nullptr) : ManagerStage(earlier)
    {
        if (earlier == nullptr)
            station.put(kPending, evening());
    }
    void press(const std::string &command)
    {
        story::Lines script = {command == "Move_Completed" ? command : "press " + command};
        if (command == "Mark Completed")
            script.insert(script.begin(), "answer with 01/14/2025");
        EXPECT_EQ(perform({}, script).complaints, story::Lines());
    }
};

Slots slots(const std::string &bytes)
{
    Slots found;
    for (std::size_t at = 0; at < bytes.size(); at += 500)
        found.insert(bytes.substr(at, 500));
    return found;
}

/// Not every system can replace a file that somebody has open: it copies over it.
bool systemCopiesOver()
{
    Evening story;
    platform::SlotFile live(story.station.files, ManagerStage::kPending, records::kCardSlotLength);
    live.open(platform::SlotUse::Read);
    story.station.files.replaceWhole(ManagerStage::kPending, "");
    return live.isStillThere();
}

/// Another station comes right before operation N: with a tender, which insists where errors are
/// ignored. False behind the last operation.
bool tenderIsKept(const std::string &name, std::size_t n, bool insists, bool copiesOver)
{
    Evening story;
    Evening other(&story.station);
    story.station.disk.copiesOver = copiesOver;
    if (n % 2 == 0) // half an append, torn by a power cut
        story.station.put(ManagerStage::kPending, ManagerStage::evening() + std::string(250, '\0'));
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
        stored = addRecord(other.app, ManagerStage::kPending, recordOf("CCReceipt=new")).stored();
    };
    story.press(name);
    EXPECT_TRUE(stored || !came || !insists);
    const Slots live = slots(story.station.getIfThere(ManagerStage::kPending));
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
    Evening faster(&late.station);
    late.station.disk.before = [&](std::size_t n) {
        if (late.station.disk.operationLog()[n - 1].ends_with("flush f/Lumbrio/CCPending.Tmp"))
            faster.app.files.replaceWhole(ManagerStage::kPending, slotOf("CCReceipt=77"));
    };
    late.list.finish();
    EXPECT_EQ(late.station.getIfThere(ManagerStage::kPending), slotOf("CCReceipt=77"));
}

} // namespace
