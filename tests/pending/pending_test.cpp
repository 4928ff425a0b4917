// The manager's list as it is loaded, sorted, clicked and printed; what is enabled when; and what
// is ignored while it works.
#include "pending/pending_story.h"
#include "support/test_files.h"

namespace {

using namespace pending;
using platform::Answer;
using platform::Buttons;

const std::string kAdjusted = "CCAdjStatus=Adjusted - Pending";

std::string told(const PendingStory &story)
{
    constexpr std::array kColours = {"button", "white", "green", "red"};
    const PendingFields &fields = story.list.state();
    std::string text;
    for (const std::string &line :
         {"Label5 " + fields.Label5[0] + " " + fields.Label5[1] + " " + fields.Label5[2],
          "Label6 " + fields.Label6, "Label7 " + fields.Label7, "Label16 " + fields.Label16,
          "Label17 " + fields.Label17, "Label18 " + fields.Label18, "Label19 " + fields.Label19,
          "Label20 " + fields.Label20})
        text += line + "\n";
    for (const ListRow &row : story.list.rows())
        text += std::to_string(row.slot) + " " + kColours[static_cast<std::size_t>(row.colour)] +
                " " + row.text + "\n";
    for (const std::string &type : story.list.types())
        text += type + "\n";
    return text + story.log();
}

TEST(List, ShowsTheFileItsTotalsAndItsTraceAndLeavesTheFileAsItIs)
{
    PendingStory story({"CCReceipt=12;CCTabAmt=40.00;CCApprovedAmt=30.00;" + kAdjusted, "empty",
                        "CCReceipt=3;CCstatus=;CCTabAmt=1000",
                        "CCReceipt=44;CCTip=4.50;CCDate=01/14/25;CCNumb=5500;CCEncoded=1",
                        "CCReceipt=5;CCstatus=Declined;CCAdjStatus=Completed",
                        // a tip of 20 % was approved beforehand
                        "CCReceipt=6;CCTabAmt=10.00;CCApprovedAmt=12.00;CCAdjStatus=Completed"});
    const std::string before = story.station.get(PendingStory::kPending);
    story.list.Form_Load();
    EXPECT_EQ(story.station.get(PendingStory::kMarker), "\"\"\r\n");
    story.list.SSCommand3_Click();
    EXPECT_EQ(told(story), support::testFile("golden/pending/loaded.txt"));
    // Kept: the tabs of 40.00 and 10.00 stay on the disk, and the bank will be sent those.
    EXPECT_EQ(story.station.get(PendingStory::kPending), before);
    EXPECT_EQ(story.station.system.played, std::vector<std::string>(2, "C:\\Lumbrio\\whoosh.wav"));
}

TEST(List, OfAMissingFileIsEmptyAndCreatesIt)
{
    PendingStory story;
    story.app.values.Remotedir.clear();
    story.station.system.connected = false;
    story.list.Form_Load();
    story.list.SSCommand3_Click();
    EXPECT_EQ(story.station.get("C:\\Lumbrio\\CCPending.dat"), "");
    EXPECT_EQ(story.list.state().Label18, "0 Swipes");
    EXPECT_NE(story.log().find("  Total List Count -1\r\n"), std::string::npos);
    EXPECT_EQ(story.list.state().Label20, "No internet connection detected...");
    EXPECT_FALSE(story.list.state().SSCommand[8].enabled);
}

TEST(List, InTheCardRoleLoadsNothingAndSetsNoMarker)
{
    PendingStory story;
    story.station.system.executable = "TNDRcc";
    story.list.Form_Load();
    EXPECT_FALSE(story.station.has(PendingStory::kMarker));
}

TEST(List, EndsTheProgramWhenTheFileIsLockedAndShowsAnUnreadableRecordAsTheOneBefore)
{
    PendingStory story({"CCReceipt=1", "CCReceipt=2"});
    support::TestStation other(&story.station);
    {
        platform::SlotFile held(other.files, PendingStory::kPending, records::kCardSlotLength);
        ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
        story.station.dialogs.expect(
            "", "Locking failed: locked by another\nF:\\Lumbrio\\CCPending.dat", Buttons::Ok,
            Answer::Ok);
        story.list.SSCommand3_Click();
        EXPECT_TRUE(story.station.run.failed());
    }
    std::vector<std::string> records; // more than are read at once
    for (int receipt = 1; receipt <= 133; ++receipt)
        records.push_back("CCReceipt=" + std::to_string(receipt));
    PendingStory broken(records);
    broken.station.disk.before = [&](std::size_t n) {
        if (broken.station.disk.operationLog()[n - 1].ends_with(" at 65500"))
            broken.station.disk.failAt(n, platform::Outcome::Broken);
    };
    broken.list.SSCommand3_Click();
    std::string receipts;
    for (const std::size_t row : {130U, 131U, 132U})
        receipts += columnOf(broken.list.rows()[row].text, 0);
    EXPECT_EQ(receipts, "131131133");
}

/// The commands enabled at each moment of an evening, and those that are hidden.
class Moments {
public:
    explicit Moments(PendingStory &theStory) : story(theStory) {}
    void add(const std::string &moment)
    {
        std::string enabled;
        std::string hidden;
        for (std::size_t n = 1; n < story.list.state().SSCommand.size(); ++n) {
            const CommandState &command = story.list.state().SSCommand[n];
            enabled += command.enabled ? " " + std::to_string(n) : "";
            hidden += command.visible ? "" : " " + std::to_string(n);
        }
        text += moment + " |" + enabled + " | hidden" + hidden + "\n";
    }
    /// Loads the list of these records.
    void load(const std::string &moment, const std::vector<std::string> &records)
    {
        story.station.put(PendingStory::kPending, PendingStory::slots(records));
        story.list.SSCommand3_Click();
        add(moment);
    }
    std::string text;

private:
    PendingStory &story;
};

TEST(Commands, AreEnabledFromMomentToMomentAsTheGoldenTableSays)
{
    const auto way = [] {};
    PendingStory story({}, {way, way, way, way});
    Moments moments(story);
    story.list.Form_Load();
    moments.add("Form_Load");
    bool seen = false;
    story.view.onRefresh = [&](const PendingFields &fields) {
        if (!std::exchange(seen, true) && !fields.SSCommand[3].enabled)
            moments.add("while it loads");
    };
    moments.load("nothing on it", {"empty"});
    story.view.onRefresh = {};
    moments.load("one to adjust", {kAdjusted, kAdjusted, "CCReceipt=3"});
    moments.load("one adjusted", {kAdjusted});
    moments.load("two adjusted", {kAdjusted, kAdjusted});
    moments.load("one declined", {kAdjusted, kAdjusted + ";CCstatus=Declined"});
    moments.load("one deleted", {kAdjusted, kAdjusted + ";CCstatus=Deleted"});
    moments.load("two adjusted again", {kAdjusted, kAdjusted});
    story.list.MList1_Click(1);
    moments.add("a row clicked");
    story.station.dialogs.expect("FORCE ALL COMPLETED",
                                 "Are you sure, All entries will be marked COMPLETED and be ready "
                                 "to ARCHIVE, they will not be batched out.",
                                 Buttons::OkCancel, Answer::Cancel,
                                 [&] { moments.add("all completed?"); });
    story.list.Image1_Click();
    moments.add("no, but Finish stays");
    story.list.SSCommand5_Click();
    moments.add("finished");
    story.station.dialogs.expectInput(" enter date ", "Enter the date of transactions to move",
                                      "01/15/2025", "01/14/2025");
    seen = false;
    story.view.onRefresh = [&](const PendingFields &fields) {
        if (std::exchange(seen, true))
            return;
        EXPECT_FALSE(fields.SSCommand[5].visible || fields.SSCommand[2].visible);
    };
    story.list.SSCommand13_Click();
    moments.add("a day marked completed");
    EXPECT_EQ(moments.text, support::testFile("golden/pending/enabling.txt"));
}

TEST(Commands, WithoutTheirScreensAreGreyAndTheOthersLeaveTheirTrace)
{
    PendingStory grey({kAdjusted, kAdjusted});
    grey.list.SSCommand3_Click();
    const std::string before = grey.log();
    for (const std::size_t number : {6U, 7U, 10U, 12U})
        EXPECT_FALSE(grey.list.state().SSCommand[number].enabled) << number;
    grey.station.dialogs.expect("Process",
                                "This version cannot batch out yet. Nothing has been changed.",
                                Buttons::Ok, Answer::Ok);
    grey.list.SSCommand2_Click();
    EXPECT_EQ(grey.log(), before);

    PendingStory *open = nullptr;
    std::string gone;
    const auto way = [&] { gone += open->slotsShown(); };
    PendingStory story({"CCServer=8", "CCServer=12;CCStation=BAR", "CCServer=8;CCStation=BAR"},
                       {way, way, way, way});
    open = &story;
    story.list.SSCommand3_Click();
    const std::size_t loaded = story.log().size();
    story.list.SScommand6_Click();
    story.list.SSCommand7_Click();
    story.list.SSCommand10_Click();
    story.list.SSCommand12_Click();
    EXPECT_EQ(gone, "1 2 3 2 1 3 2 3 1 2 3 1 ") << "sorted by server, then by terminal";
    EXPECT_EQ(story.log().substr(loaded), "     ***  USER CLICKED Archive  ***\r\n"
                                          "     ***  USER CLICKED TOTALS BY SERVER  ***\r\n"
                                          "     ***  USER CLICKED TOTALS BY STATION  ***\r\n"
                                          "     ***  USER CLICKED TOTALS BY TYPE  ***\r\n");
}

TEST(Row, OpensItsRecordAndKeepsThePlaceNotTheRecord)
{
    PendingStory story({"CCReceipt=3", "empty", "CCReceipt=1", "CCReceipt=2"});
    story.list.SSCommand3_Click();
    story.list.SSOption1_Click(0);
    EXPECT_EQ(story.slotsShown(), "3 4 1 ");
    EXPECT_EQ(story.list.state().SSOption1, 0);
    story.list.MList1_Click(2);
    story.list.MList1_Click(3); // there is none
    story.list.entrySaved();
    EXPECT_EQ(story.view.entries, std::vector<std::string>{"F:\\Lumbrio\\CCPending.dat 1"});
    EXPECT_EQ(story.slotsShown(), "1 3 4 ") << "a load brings the order of the file back";
    EXPECT_EQ(story.list.state().SSOption1, -1);
    EXPECT_EQ(story.view.selected, std::vector<long>{2});
    story.station.put(PendingStory::kPending, PendingStory::slots({"", ""}));
    story.list.SSCommand3_Click();
    EXPECT_EQ(story.view.selected, std::vector<long>{2}) << "no longer a row";
    story.list.MList1_Click(0);
    story.list.SSCommand3_Click();
    EXPECT_EQ(story.view.selected, std::vector<long>{2}) << "0 selects none";
}

TEST(WhileItLoads, StationsAddTendersCommandsAreIgnoredAndASaveIsNotForgotten)
{
    PendingStory story(std::vector<std::string>(200, "CCstatus=Declined"));
    support::TestStation other(&story.station);
    records::App tender(other.services);
    int turns = 0;
    for (std::uint64_t moment = 1; moment <= 150; moment += 10)
        story.station.time.at(moment, [&] {
            ++turns;
            EXPECT_TRUE(
                addRecord(tender, PendingStory::kPending, recordOf("CCReceipt=new")).stored());
            story.list.SSCommand14_Click();
            story.list.SSOption1_Click(0);
            story.list.MList1_Click(0);
            story.list.SSCommand1_Click();
        });
    story.station.time.at(100, [&] { story.list.entrySaved(); });
    story.list.SSCommand3_Click();
    EXPECT_EQ(turns, 15);
    EXPECT_EQ(story.list.rows().size(), 215U) << "loaded again behind the save";
    EXPECT_EQ(story.records(PendingStory::kPending).size(), 215U);
    EXPECT_TRUE(story.view.entries.empty());
    EXPECT_LE(story.view.read.size(), 12U) << "painted every 50 ms, not at each record";
    EXPECT_GE(story.view.read.size(), 8U);
}

TEST(Panel, TellsWhatForcingDoesWhileTheMouseIsOverIt)
{
    PendingStory story;
    story.list.SSCommand11_Mouse(true);
    EXPECT_EQ(story.list.state().SSPanel1_0,
              "All entries with no tip will be forced no tip and marked adjusted");
    EXPECT_TRUE(story.list.state().SSPanel1_0Visible);
    story.list.SSCommand11_Mouse(false);
    EXPECT_FALSE(story.list.state().SSPanel1_0Visible);
}

TEST(PrintedList, HasTheRecordsAsTheyStandInTheFileInTheOrderOfTheList)
{
    PendingStory story(
        {"CCReceipt=2;CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=5", "CCReceipt=1", "CCReceipt=3"});
    story.app.values.config.set(records::kBusinessName, "The Harbour Table");
    story.app.values.ReceiptPrinterName = "Receipt";
    story.printer.select("Office");
    story.list.SSCommand3_Click();
    story.list.SSOption1_Click(0);
    story.station.put(PendingStory::kPending,
                      PendingStory::slots({"CCReceipt=2;CCTabAmt=40.00;CCApprovedAmt=30.00;CCTip=6",
                                           "CCReceipt=1;CCStation=BAR"})); // slot 3 is gone
    story.list.SSCommand4_Click();
    story.station.erase(PendingStory::kPending);
    story.printer.select("Office");
    story.list.SSCommand4_Click(); // headings alone
    std::string paper;
    for (const auto &[name, job] : story.station.printers.collected)
        paper += "on " + name + "\n" + platform::describe(job);
    EXPECT_EQ(paper, support::testFile("golden/pending/printed.txt"));
    EXPECT_EQ(story.printer.selectedName(), "Receipt TM-88");
    story.printer.line("a slip");
    story.printer.closeJob();
    EXPECT_FALSE(story.station.printers.collected.back().job.landscape);
}

TEST(PrintedList, TurnsThePageBehindEveryFiftiethRow)
{
    for (const auto &[rows, marks] : {std::pair<std::size_t, const char *>{49, "Last Page 1 "},
                                      {50, "Page 1 (new) Last Page 2 "},
                                      {101, "Page 1 (new) Page 2 (new) Last Page 3 "}}) {
        PendingStory story(std::vector<std::string>(rows, ""));
        story.list.SSCommand3_Click();
        story.list.SSCommand4_Click();
        std::string found;
        for (const auto &operation : story.station.printers.collected.back().job.operations) {
            const std::string text = records::Trim(operation.text);
            if (text.starts_with("Page") || text.starts_with("Last Page"))
                found += text + " ";
            if (operation.kind == platform::PrintOperation::Kind::NewPage)
                found += "(new) ";
        }
        EXPECT_EQ(found, marks) << rows;
    }
}

} // namespace
