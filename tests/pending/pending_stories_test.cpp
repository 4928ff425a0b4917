// The manager's list: what it shows of its records, as a table, and what its commands do, as
// stories.
#include "story/stories.h"
#include "support/card_text.h"
#include "support/golden_table.h"
#include "support/manager_stage.h"

namespace {

using support::ManagerStage;

/// The notice of a command that the mouse is on is shown before, and so is seen to go.
ManagerStage &listOf(ManagerStage &stage, const std::string &cards)
{
    std::string bytes;
    for (std::string rest = cards; !rest.empty();)
        bytes += support::slotOf(story::takeUntil(rest, ", "));
    stage.station.put(ManagerStage::kPending, bytes);
    stage.list.hintForceAllNoTip(true);
    stage.list.refresh();
    return stage;
}

TEST(List, ShowsEachRecordAsTheTableSays)
{
    support::expectTable("pending/rows.txt", [](const std::string &card) {
        ManagerStage stage;
        const pending::Pending &list = listOf(stage, card).list;
        return list.rows().empty() ? std::vector<std::string>{"not listed", ""}
                                   : std::vector{list.rows()[0].text, list.types()[0]};
    });
}

TEST(List, IsSortedColouredAndDatedAsTheTableSays)
{
    support::expectTable("pending/lists.txt", [](const std::string &row) {
        ManagerStage stage;
        const std::size_t colon = row.find(": ");
        listOf(stage, row.substr(colon + 2));
        if (colon > 0)
            stage.list.sortBy(std::atoi(row.c_str()));
        std::string rows;
        for (const reports::ListRow &each : stage.list.rows())
            rows += std::to_string(each.slot) + "bwgr"[static_cast<int>(each.colour)] + " ";
        const pending::PendingFields &fields = stage.list.state();
        const bool process = fields.commands[pending::Command::Process].enabled;
        return std::vector{rows,
                           std::to_string(fields.toAdjust) + (process ? " Process" : "") +
                               (fields.noticeVisible ? " notice" : ""),
                           fields.fromDate + " to " + fields.toDate};
    });
}

TEST(List, GreysTheCommandsThatLeadNowhereYet)
{
    using enum pending::Command;
    ManagerStage grey(nullptr, true);
    const pending::PendingFields &fields = listOf(grey, "CCReceipt=1").list.state();
    for (const pending::Command command : {Archive, TotalsByServer, TotalsByTerminal, TotalsByType})
        EXPECT_FALSE(fields.commands[command].enabled);
    for (const auto press :
         {&pending::Pending::showArchive, &pending::Pending::showTotalsByServer,
          &pending::Pending::showTotalsByTerminal, &pending::Pending::showTotalsByType})
        (grey.list.*press)();
}

TEST(Stories, OfTheListTellWhatTheyShow)
{
    story::expectStories<ManagerStage>("pending");
}

} // namespace
