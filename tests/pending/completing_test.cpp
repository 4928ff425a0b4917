// Emptying the list: what each rewrite leaves in the card files; that no stop, failure or tender of
// another station costs a record; and how the manager leaves.
#include "pending/completing.h"
#include "pending/pending_story.h"
#include "support/test_files.h"

#include <set>

namespace {

using namespace pending;
using namespace records;
using platform::Answer;
using platform::Buttons;
using platform::Outcome;

const std::vector<std::string> kEvening = {
    "CCReceipt=1;CCAdjStatus=Completed;CCNumb=4111",
    "CCReceipt=2;CCAdjStatus=  Com;CCNumb=4222;CCEncoded=1;CCDate=01/14/25",
    "CCReceipt=3;CCAdjStatus=Not Adjusted;CCNumb=4333;CCEncoded=~",
    "empty",
    "CCReceipt=4;CCstatus=Declined;CCAdjStatus=Adjusted - Pending",
    "CCReceipt=5;CCstatus=Declined;CCAdjStatus=Completed;CCDate=01/14/25",
    "CCReceipt=6;CCstatus= Decl;CCAdjStatus=completed;CCNumb=4666;CCEncoded=1",
    "CCReceipt=7;CCstatus=Decx;CCAdjStatus=Co",
    "CCReceipt=8;CCstatus=;CCAdjStatus=Completed",
    "CCReceipt=9;CCstatus=;CCDate=01/14/2025"};

/// Each record of the file: receipt, number as it stands there and its flag, status and outcome.
std::string contents(const PendingStory &story, const std::string &path)
{
    std::string text = path + "\n";
    for (const CardRecord &record : story.records(path)) {
        for (const CardField &field : {CCReceipt, CCNumb, CCEncoded, CCAdjStatus, CCstatus}) {
            const std::string raw = record.raw(field);
            text += raw[0] == '\0' ? "NUL" : raw.substr(0, raw.find_last_not_of(' ') + 1);
            text += field.offset == CCstatus.offset ? "\n" : "|";
        }
    }
    return text;
}

std::string backups(const PendingStory &story)
{
    std::string text;
    for (const char *folder : {"F:\\Lumbrio\\data\\CCdata", "C:\\Lumbrio\\data\\CCdata"})
        for (const auto &file :
             std::filesystem::directory_iterator(story.station.drives.resolve(folder)))
            text += folder + std::string("\\") + file.path().filename().string() + "\n";
    return text;
}

const std::map<std::string, std::function<void(PendingStory &)>> kCommands = {
    {"Finish", [](PendingStory &story) { story.list.SSCommand5_Click(); }},
    {"Mark Completed",
     [](PendingStory &story) {
         story.station.dialogs.expectInput(" enter date ", "Enter the date of transactions to move",
                                           "01/15/2025", "01/14/25");
         story.list.SSCommand13_Click();
     }},
    {"DELETE RED'S", [](PendingStory &story) { story.list.SSCommand14_Click(); }},
    {"Move_Completed", [](PendingStory &story) { moveSettledRecords(story.app); }}};

TEST(Rewrites, LeaveInTheCardFilesWhatTheGoldenTextSays)
{
    std::string text;
    for (const auto &[name, command] : kCommands) {
        PendingStory story(kEvening);
        command(story);
        text += "== " + name + "\n" + contents(story, PendingStory::kPending) +
                contents(story, PendingStory::kMonth) + contents(story, PendingStory::kDeleted) +
                backups(story);
        for (const std::string &panel : story.view.panels)
            text += "panel: " + panel + "\n";
        EXPECT_FALSE(story.station.has("F:\\Lumbrio\\CCPending.Tmp")) << name;
        EXPECT_FALSE(story.station.has("F:\\Lumbrio\\CCPending.TMP0125.dat")) << name;
    }
    EXPECT_EQ(text, support::testFile("golden/pending/rewrites.txt"));
}

TEST(DeleteReds, CopiesTheFileBeforeAndFinishBehind)
{
    PendingStory deleting(kEvening);
    deleting.list.SSCommand14_Click();
    EXPECT_EQ(deleting.station.get("C:\\Lumbrio\\data\\CCdata\\01152025130500CCpendingBatch.dat"),
              PendingStory::slots(kEvening));
    PendingStory finishing(kEvening);
    finishing.list.SSCommand5_Click();
    EXPECT_EQ(finishing.station.get("C:\\Lumbrio\\data\\CCdata\\01152025130500CCpending.dat"),
              finishing.station.get(PendingStory::kPending));
}

/// Rewrites as routines, for a walk over their file operations.
const std::map<std::string, std::function<Outcome(App &)>> kRewrites = {
    {"Finish",
     [](App &app) {
         const platform::ErrorsIgnored ignored(app.run);
         return finishPending(app, {});
     }},
    {"Mark Completed", [](App &app) { return markCompleted(app, "01/14/2025", {}); }},
    {"Move_Completed",
     [](App &app) {
         moveSettledRecords(app);
         return Outcome::Done;
     }},
    {"DELETE RED'S", [](App &app) { return deleteDeclines(app, {}); }}};

std::set<std::string> receiptsOf(const PendingStory &story, const char *path)
{
    std::set<std::string> receipts;
    for (const CardRecord &record : story.records(path))
        receipts.insert(record.text(CCReceipt));
    return receipts;
}

/// Nobody is lost, and the live file is whole: as before, or as it should be.
void expectNobodyLost(const PendingStory &story, std::size_t slotsAfter, const std::string &where)
{
    std::set<std::string> everywhere;
    for (const char *path : {PendingStory::kPending, PendingStory::kMonth, PendingStory::kDeleted})
        everywhere.merge(receiptsOf(story, path));
    for (int receipt = 1; receipt <= 8; ++receipt)
        EXPECT_TRUE(everywhere.contains(std::to_string(receipt))) << receipt << where;
    const std::size_t size = story.station.get(PendingStory::kPending).size();
    EXPECT_TRUE(size == kEvening.size() * 500 || size == slotsAfter * 500) << size << where;
}

TEST(Rewrites, LoseNobodyWhereverTheyStopAndWhateverFails)
{
    for (const auto &[name, rewrite] : kRewrites) {
        PendingStory whole(kEvening);
        EXPECT_TRUE(done(rewrite(whole.app))) << name;
        const std::size_t after = whole.records(PendingStory::kPending).size();
        const std::size_t operations = whole.station.disk.operations();
        EXPECT_GT(operations, 15U) << name;
        for (std::size_t n = 1; n <= operations; ++n) {
            for (const bool stopped : {true, false}) {
                PendingStory story(kEvening);
                story.station.run.reportFailure = [](const std::string &) {};
                if (stopped)
                    story.station.disk.stopAt(n, [&] { story.station.run.end(); });
                else
                    story.station.disk.failAt(n, Outcome::NoRoom, true);
                rewrite(story.app);
                const std::string where = " " + name + (stopped ? " stopped at " : " failed at ") +
                                          story.station.disk.operationLog()[n - 1];
                expectNobodyLost(story, after, where);
                if (n % 6 != 0)
                    continue;
                PendingStory next(story, 0); // another night on the same files
                EXPECT_TRUE(done(rewrite(next.app))) << where;
                expectNobodyLost(next, after, where);
            }
        }
    }
}

TEST(Rewrites, KeepTheTenderThatComesAtAnyMomentOrItWasRefused)
{
    for (const auto &[name, rewrite] : kRewrites) {
        bool came = true;
        for (std::size_t n = 1; came; ++n) {
            for (const bool insists : {true, false}) {
                if (!insists && n % 4 != 0)
                    continue;
                PendingStory story(kEvening);
                PendingStory other(story, 0);
                other.station.run.reportFailure = [](const std::string &) {};
                came = false;
                bool refused = false;
                story.station.disk.before = [&](std::size_t now) {
                    if (now != n)
                        return;
                    came = true;
                    std::optional<platform::ErrorsIgnored> ignored;
                    if (insists)
                        ignored.emplace(other.station.run);
                    refused = !addRecord(other.app, PendingStory::kPending,
                                         recordOf("CCReceipt=new;CCDate=01/15/25"))
                                   .stored();
                };
                EXPECT_TRUE(done(rewrite(story.app))) << name;
                EXPECT_FALSE(refused && insists) << name << n;
                const auto receipts = story.fieldOf(PendingStory::kPending, CCReceipt);
                EXPECT_EQ(receipts.ends_with(" new "), came && !refused)
                    << name << " at " << n << receipts << story.station.disk.logText();
            }
        }
    }
}

TEST(Finish, GoesOnWithoutTheLockButNeverOverAFileThatItDidNotRead)
{
    PendingStory story(kEvening);
    support::TestStation other(&story.station);
    platform::SlotFile held(other.files, PendingStory::kPending, kCardSlotLength);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    story.list.SSCommand5_Click();
    // Kept: as told, although another has the lock.
    EXPECT_EQ(story.receipts(PendingStory::kPending), "3 4 6 7 ");
    EXPECT_FALSE(story.station.run.ending());

    for (const auto &[operation, file] : {std::pair("open", "CCPending.dat"),
                                          {"read", "CCPending.dat"},
                                          {"open", "CCFinal0125.dat"},
                                          {"append", "CCFinal0125.dat"},
                                          {"flush", "CCFinal0125.dat"},
                                          {"append", "CCPending.Tmp"},
                                          {"rename", "CCPending.dat"}}) {
        PendingStory failing(kEvening);
        failing.station.disk.failOn(operation, file, Outcome::Denied);
        failing.list.SSCommand5_Click();
        failing.station.disk.failOn(operation, file, Outcome::Done);
        EXPECT_EQ(failing.records(PendingStory::kPending).size(), kEvening.size())
            << operation << file;
        EXPECT_NE(failing.log().find("  FINISH NOT DONE - access denied - F:\\Lumbrio\\CCPend"),
                  std::string::npos);
        EXPECT_EQ(failing.view.panels.back(), "The data file could not be updated (access denied). "
                                              "No entry is lost. Please try again.");
    }

    PendingStory late(kEvening); // another has replaced the file while this one worked, unlocked
    PendingStory faster(late, 0);
    late.station.disk.before = [&](std::size_t n) {
        if (late.station.disk.operationLog()[n - 1].ends_with("flush f/Lumbrio/CCPending.Tmp"))
            faster.app.files.replaceWhole(PendingStory::kPending,
                                          PendingStory::slots({"CCReceipt=77"}));
    };
    late.list.SSCommand5_Click();
    EXPECT_EQ(late.receipts(PendingStory::kPending), "77 ");
}

TEST(MarkCompleted, EndsTheProgramForWhatIsNoDateAndTheMarkerStays)
{
    const struct {
        std::optional<std::string> typed;
        const char *lastRecord;
        const char *message;
        const char *month;
    } cases[] = {
        // Kept: a Cancel ends the program too, and every tender waits for the marker.
        {std::nullopt, "", "This is not a date: \"\"", ""},
        {"tomorrow", "", "This is not a date: \"tomorrow\"", ""},
        {"02/30/2025", "", "This is not a date: \"02/30/2025\"", ""},
        {"01/15/25", "CCDate=yesterday", "The date of a record is not a date: \"yesterday\"", "1 "},
        {"01/15/25", "CCDate=", "The date of a record is not a date: \"\"", "1 "},
        {"01/15/25", "CCstatus=;CCDate=yesterday",
         "The date of a record is not a date: \"yesterday\"", "1 "},
    };
    for (const auto &one : cases) {
        PendingStory story({"", "CCReceipt=2;CCDate=01/14/25", one.lastRecord});
        story.list.Form_Load();
        const std::string before = story.station.get(PendingStory::kPending);
        story.station.dialogs.expectInput(" enter date ", "Enter the date of transactions to move",
                                          "01/15/2025", one.typed);
        story.station.dialogs.expect("", one.message, Buttons::Ok, Answer::Ok);
        story.list.SSCommand13_Click();
        EXPECT_TRUE(story.station.run.failed());
        EXPECT_TRUE(story.station.has(PendingStory::kMarker));
        EXPECT_EQ(story.station.get(PendingStory::kPending), before);
        EXPECT_EQ(story.receipts(PendingStory::kMonth), one.month) << one.message;
    }
    PendingStory empty;
    empty.station.dialogs.expectInput(" enter date ", "Enter the date of transactions to move",
                                      "01/15/2025", std::nullopt);
    empty.list.SSCommand13_Click();
    EXPECT_EQ(empty.list.state().SSPanel1_0, "Operation is completed") << "no record, no date";
    EXPECT_TRUE(empty.station.has(PendingStory::kMonth));
}

TEST(Done, FinishesTakesTheMarkerAwayLastAndEndsTheProgram)
{
    PendingStory story(kEvening);
    story.list.Form_Load();
    story.list.SSCommand3_Click();
    const std::size_t loaded = story.log().size();
    std::uint64_t finishedAt = 0;
    story.view.onRefresh = [&](const PendingFields &fields) {
        EXPECT_TRUE(story.station.has(PendingStory::kMarker));
        if (fields.SSPanel1_0.starts_with("Backing") && finishedAt == 0)
            finishedAt = story.station.time.milliseconds();
    };
    const std::uint64_t begun = story.station.time.milliseconds();
    story.list.SSCommand1_Click();
    EXPECT_TRUE(story.station.run.ending() && !story.station.run.failed());
    EXPECT_FALSE(story.station.has(PendingStory::kMarker));
    EXPECT_GE(finishedAt - begun, 250U);
    EXPECT_GE(story.station.time.milliseconds() - finishedAt, 1500U);
    EXPECT_LT(story.station.time.milliseconds() - begun, 3000U) << "nothing to wait a minute for";
    EXPECT_EQ(story.view.panels, (std::vector<std::string>{
                                     "Updating Data - Just a Moment Please",
                                     "Updating Data File - Just a momnet Please",
                                     "Operation is completed", "Backing up Data = Please Wait"}));
    EXPECT_EQ(story.log().substr(loaded), "     ***  USER CLICKED DONE  ***\r\n")
        << "the list is not loaded again";
    EXPECT_EQ(story.receipts(PendingStory::kPending), "3 4 6 7 ");
}

} // namespace
