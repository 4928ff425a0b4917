// The bulk commands: what forcing no tip and marking completed leave of each listed record, in
// which order they go, and what they leave behind.
#include "pending/pending_story.h"

namespace {

using namespace pending;
using namespace records;
using platform::Answer;
using platform::Buttons;

constexpr const char *kNoTip =
    "Are you sure, All entries will be marked no tip and be ready to finiliaze";
const std::string kCompleted =
    "Are you sure, All entries will be marked COMPLETED and be ready to ARCHIVE, they will not be "
    "batched out.";
constexpr const char *kOnlyIfBatched =
    " Only do this if you are sure these transactions have been batched out already.";

void forceNoTip(PendingStory &story, Answer answer = Answer::Ok)
{
    story.station.dialogs.expect("FORCE ALL NO TIP", kNoTip, Buttons::OkCancel, answer);
    story.list.SSCommand11_Click();
}

void markAllCompleted(PendingStory &story, Answer answer = Answer::Ok)
{
    story.station.dialogs.expect("FORCE ALL COMPLETED", kCompleted + kOnlyIfBatched,
                                 Buttons::OkCancel, answer);
    story.list.SSCommand15_Click();
}

std::string told(const CardRecord &record)
{
    std::string text;
    for (const CardField &field :
         {CCNumb, CCEncoded, CCTabAmt, CCTip, CCAdjStatus, CCAdjAmt, CCtype, CCaditionalFUNDS})
        text += (record.raw(field)[0] == '\0' ? "NUL" : record.text(field)) + "|";
    return text;
}

TEST(BulkCommands, LeaveOfEachRecordWhatASaveOfItLeaves)
{
    const struct {
        const char *record;
        std::string afterNoTip;
        std::string afterCompleted;
    } cases[] = {
        {"CCNumb=4111111111111111;CCTip=3;CCAdjAmt=23.00",
         "D3456789:;<=>?@A|1|20.00|0|Adjusted - Pending|20.00|Visa|0|",
         "D3456789:;<=>?@A|1|20.00|3|Completed|23.00|Visa|0|"},
        {"CCNumb=4111111111111111;CCEncoded=1;CCAdjAmt=~",
         "D3456789:;<=>?@A|1|20.00|0|Adjusted - Pending|NUL|Visa|0|",
         "D3456789:;<=>?@A|1|20.00|0|Completed|NUL|Visa|0|"},
        // approved for less; tip and status stay, for it is adjusted already
        {"CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=5;CCAdjStatus=Adjusted - Pending;CCtype=VISA",
         "D3456789:;<=>?@A|1|30|5|Adjusted - Pending|NUL|VISA|0|",
         "D3456789:;<=>?@A|1|30|5|Completed|NUL|VISA|0|"},
        // Kept: declined ones are marked too, and "Finish" archives them.
        {"CCstatus=Declined", "D3456789:;<=>?@A|1|20.00|0|Adjusted - Pending|NUL|Visa|0|",
         "D3456789:;<=>?@A|1|20.00|0|Completed|NUL|Visa|0|"},
        {"CCstatus=;CCTip=9", "4111111111111111|0|20.00|9|Not Adjusted|NUL|NUL|NUL|",
         "4111111111111111|0|20.00|9|Not Adjusted|NUL|NUL|NUL|"},
    };
    for (const auto &one : cases) {
        PendingStory noTip({one.record});
        noTip.list.SSCommand3_Click();
        forceNoTip(noTip);
        EXPECT_EQ(told(noTip.records(PendingStory::kPending)[0]), one.afterNoTip) << one.record;
        PendingStory completed({one.record});
        completed.list.SSCommand3_Click();
        markAllCompleted(completed);
        EXPECT_EQ(told(completed.records(PendingStory::kPending)[0]), one.afterCompleted)
            << one.record;
    }
    PendingStory archived({"CCstatus=Declined;CCReceipt=1", "CCReceipt=2"});
    archived.list.SSCommand3_Click();
    markAllCompleted(archived);
    archived.list.SSCommand5_Click();
    EXPECT_EQ(archived.fieldOf(PendingStory::kMonth, CCstatus), "Declined Approved ");
}

TEST(BulkCommands, MeetEachRecordOfASortedListOnceAndLoadOnceForEachSave)
{
    PendingStory story({"CCReceipt=3;CCTip=1", "empty", "CCReceipt=1;CCTip=2", "CCReceipt=2",
                        "CCReceipt=4;GCbalance=5;CCTip=6"});
    story.list.SSCommand3_Click();
    story.list.SSOption1_Click(0);
    EXPECT_EQ(story.slotsShown(), "3 4 1 5 ");
    const std::string loaded = story.log();
    bool asked = false;
    story.view.onRefresh = [&](const PendingFields &) {
        if (std::exchange(asked, true))
            return;
        story.list.SSCommand5_Click(); // ignored
    };
    forceNoTip(story);
    EXPECT_EQ(story.fieldOf(PendingStory::kPending, CCTip), "0  0 0 0 ");
    EXPECT_EQ(story.fieldOf(PendingStory::kPending, CCAdjStatus),
              "Adjusted - Pending  Adjusted - Pending Adjusted - Pending Adjusted - Pending ");
    std::vector<std::string> tips;
    std::istringstream log(story.log().substr(loaded.size()));
    for (std::string line; std::getline(log, line);)
        if (line.starts_with("  Tip Total") || line.starts_with("     ***"))
            tips.push_back(line.substr(0, line.size() - 1));
    EXPECT_EQ(tips, (std::vector<std::string>{"     ***  USER CLICKED FORCE ALL NO TIPS  ***",
                                              "  Tip Total   $7.00", "  Tip Total   $7.00",
                                              "  Tip Total   $6.00", "  Tip Total   $0.00"}));
    EXPECT_EQ(story.slotsShown(), "1 3 4 5 ");
    EXPECT_EQ(story.list.state().Label5[1], "$0.00");
    EXPECT_EQ(story.list.state().SSOption1, -1);
    EXPECT_TRUE(story.list.state().SSCommand[2].enabled) << "nothing waits to be adjusted";
    EXPECT_EQ(story.app.values.editMode, "DO NOT KEEP");
}

TEST(BulkCommands, PassOverATipBeyondTheBalanceWithItsMessage)
{
    PendingStory story({"CCReceipt=1", "CCReceipt=2;GCbalance=5;CCTip=6", "CCReceipt=3"});
    story.list.SSCommand3_Click();
    story.station.dialogs.expect("FORCE ALL COMPLETED", kCompleted, Buttons::OkCancel, Answer::Ok);
    story.station.dialogs.expect("YOU HAVE EXCEEDED THE CRD VALUE",
                                 "Tip Exceeeds the balance of the card. This is either a gift card "
                                 "or debit card and the maximum funds you can add to the card is "
                                 "$5.00 Please revise the TIP and try again.",
                                 Buttons::Ok, Answer::Ok);
    story.list.Image1_Click();
    EXPECT_EQ(story.fieldOf(PendingStory::kPending, CCAdjStatus),
              "Completed Not Adjusted Completed ");
    // Kept: the next entry opened from the list stays open behind its saves.
    EXPECT_EQ(story.app.values.editMode, "KEEP");
    EXPECT_EQ(story.list.rows()[2].colour, RowColour::LightGreen);
}

TEST(BulkCommands, ChangeNothingWhenTheManagerSaysNoOrTheListIsEmpty)
{
    for (const std::vector<std::string> &records :
         {std::vector<std::string>{"CCReceipt=1"}, {"empty"}}) {
        PendingStory story(records);
        story.list.SSCommand3_Click();
        const Answer answer = records[0] == "empty" ? Answer::Ok : Answer::Cancel;
        const std::size_t loaded = story.log().size();
        markAllCompleted(story, answer);
        story.app.values.editMode = "KEEP";
        forceNoTip(story, answer);
        EXPECT_EQ(story.station.get(PendingStory::kPending), PendingStory::slots(records));
        EXPECT_EQ(story.app.values.editMode, "DO NOT KEEP");
        EXPECT_EQ(story.log().substr(loaded),
                  answer == Answer::Ok ? "     ***  USER CLICKED FORCE ALL COMPLETED ***\r\n"
                                         "     ***  USER CLICKED OK DO IT  ***\r\n"
                                         "     ***  USER CLICKED FORCE ALL NO TIPS  ***\r\n"
                                       : "     ***  USER CLICKED FORCE ALL COMPLETED ***\r\n"
                                         "     ***  USER CLICKED CANCEL  ***\r\n");
    }
}

TEST(BulkCommands, EndWithTheProgramWhenARecordCannotBeWritten)
{
    PendingStory story({"CCReceipt=1", "CCReceipt=2"});
    story.list.SSCommand3_Click();
    story.station.disk.failOn("write", "CCPending.dat 490 bytes at 500", platform::Outcome::Denied);
    story.station.dialogs.expect("FORCE ALL NO TIP", kNoTip, Buttons::OkCancel, Answer::Ok);
    story.station.dialogs.expect("", "Writing failed: access denied\nF:\\Lumbrio\\CCPending.dat",
                                 Buttons::Ok, Answer::Ok);
    story.list.SSCommand11_Click();
    EXPECT_TRUE(story.station.run.failed());
    EXPECT_EQ(story.fieldOf(PendingStory::kPending, CCAdjStatus),
              "Adjusted - Pending Not Adjusted ");
}

} // namespace
