// The manager's list, told in golden stories: a line "> command" is done, and what happened or is
// to be shown then follows it.
#include "pending/pending_story.h"
#include "support/golden_table.h"

#include <filesystem>
#include <regex>

namespace pending {

using namespace records;

std::string Story::press(const std::string &command)
{
    const std::string word = command.substr(command.find(' ') + 1);
    const long number = wholeNumber(word);
    const std::uint64_t begun = station.time.milliseconds();
    const details::Commands commands = {
        {"file", [&] { station.put(kPending, ""); }},
        {"+ ",
         [&] { // "+ 50 * fields" for many
             const std::size_t many = word.find(" * ");
             const std::string slot = slotOf(many == word.npos ? word : word.substr(many + 3));
             std::string bytes = get(kPending);
             for (long i = many == word.npos ? 1 : number; i > 0; --i)
                 bytes += slot;
             station.put(kPending, bytes);
         }},
        {"Form_Load", [&] { list.Form_Load(); }},
        {"Done", [&] { list.leave(); }},
        {"Process", [&] { list.process(); }},
        {"Refresh", [&] { list.refresh(); }},
        {"Print", [&] { list.print(); }},
        {"Finish", [&] { list.finish(); }},
        {"Archive", [&] { list.showArchive(); }},
        {"Totals by Servers", [&] { list.showTotalsByServer(); }},
        {"Totals by Terminal", [&] { list.showTotalsByTerminal(); }},
        {"Force ALL NO TIP", [&] { list.forceAllNoTip(); }},
        {"Totals by CC Type", [&] { list.showTotalsByType(); }},
        {"Mark Completed", [&] { list.markDayCompleted(); }},
        {"DELETE RED'S", [&] { list.deleteDeclines(); }},
        {"Mark all completed", [&] { list.markAllCompleted(); }},
        {"picture", [&] { list.markAllCompletedByPicture(); }},
        {"saved", [&] { list.entrySaved(); }},
        {"Move_Completed", [&] { moveSettledRecords(app); }},
        {"option ", [&] { list.sortBy(static_cast<int>(number)); }},
        {"click ", [&] { list.openRow(number); }},
        {"mouse ", [&] { list.hintForceAllNoTip(word == "over"); }},
        {"entry ", [&] { EXPECT_TRUE(details::pressEntry(entry, word)) << word; }},
        {"OK", [&] { station.dialogs.choice = platform::Answer::Ok; }},
        {"Cancel", [&] { station.dialogs.choice = platform::Answer::Cancel; }},
        {"type ", [&] { station.dialogs.typed = word; }},
        {"at ",
         [&] {
             const std::string later = word.substr(word.find(' ') + 1);
             station.time.after(static_cast<std::uint64_t>(number),
                                [this, later] { happened += press(later); });
         }},
        {"fail ",
         [&] {
             const std::size_t blank = word.find(' ');
             station.disk.failOn(word.substr(0, blank), word.substr(blank + 1),
                                 platform::Outcome::Denied);
         }},
        {"tender ",
         [&] {
             other = other ? std::move(other) : std::make_unique<Story>(this);
             const bool stored = addRecord(other->app, kPending, recordOf(word)).stored();
             happened += stored ? "stored\n" : "refused\n";
         }},
        {"lock ",
         [&] {
             other = std::make_unique<Story>(this);
             held = std::make_unique<platform::SlotFile>(other->app.files, word, 500);
             EXPECT_TRUE(done(held->open(platform::SlotUse::Rewrite)) && done(held->lock()));
         }},
        {"erase ", [&] { station.erase(word); }},
        {"offline", [&] { station.system.connected = false; }},
        {"role ", [&] { station.system.executable = word; }},
        {"no Remotedir", [&] { app.values.Remotedir.clear(); }},
        {"printer ", [&] { printer.select(word); }},
        {"jam", [&] { station.printers.failures = {platform::Outcome::NoRoom}; }},
        {"show ", [&] { happened += show(word); }},
    };
    const std::size_t sounds = station.system.played.size();
    EXPECT_TRUE(details::doFirst(commands, command)) << command;
    // The ten lines of a load are one here; any other ten stand as they are.
    static const std::regex load("={46}\r\n-\r\nCurrent Credit Card File Loaded  \r\n"
                                 "  Tab Total   (.*)\r\n  Tip Total   (.*)\r\n"
                                 "  Grand Total (.*)\r\n-\r\n"
                                 "  Total List Count (.*)\r\n-\r\n={46}\r\n");
    const std::string log = get(kLog);
    const std::string added = std::regex_replace(log.substr(logSeen), load, "$1 $2 $3, $4\r\n");
    for (const std::string &line : platform::splitLines(added))
        happened += "log: " + line + "\n";
    logSeen = log.size();
    if (station.system.played.size() > sounds)
        happened += std::to_string(station.system.played.size() - sounds) + " x " +
                    station.system.played.back() + "\n";
    if (const std::uint64_t passed = station.time.milliseconds() - begun; passed >= 1000)
        happened += std::to_string(passed / 50 * 50) + " ms\n";
    if (station.run.ending())
        happened += station.run.failed() ? "FAILED\n" : "ended\n";
    return std::exchange(happened, "");
}

std::string Story::show(const std::string &what) const
{
    constexpr std::array kColours = {"button", "white", "green", "red"};
    const PendingFields &f = list.state();
    std::string text;
    std::string hidden;
    if (what == "totals")
        for (const std::string &part :
             {f.totals.tabs, f.totals.tips, f.totals.grand, f.file, std::to_string(f.toAdjust),
              f.fromDate, f.toDate, f.swipes, f.recordRead, f.connection})
            text += (text.empty() ? "" : " | ") + part;
    if (what == "rows")
        for (const reports::ListRow &row : list.rows())
            text += std::to_string(row.slot) + " " +
                    kColours[static_cast<std::size_t>(row.colour)] + " " + row.text + "\n";
    if (what == "colours") {
        for (const reports::ListRow &row : list.rows())
            text += kColours[static_cast<std::size_t>(row.colour)] + std::string(" ");
        text += "Label7 " + std::to_string(f.toAdjust) +
                (f.commands[Command::Process].enabled ? ", Process" : "") +
                (f.noticeVisible ? ", panel" : "");
    }
    if (what == "types")
        for (const std::string &type : list.types())
            text += type + "\n";
    if (what == "slots")
        text = "option " + std::to_string(f.sortedBy) + ":" + slots();
    if (what == "enabled") {
        for (std::size_t n = 1; n <= kCommands; ++n) {
            const CommandState &state = f.commands.values[n - 1];
            text += state.enabled ? " " + std::to_string(n) : "";
            hidden += state.visible ? "" : " " + std::to_string(n);
        }
        text += ", hidden" + hidden;
    }
    if (what == "printed")
        for (const auto &[name, job] : station.printers.collected)
            text += "on " + name + "\n" + platform::describe(job);
    if (what == "entry")
        text = entry.state().boxes[details::Box::Receipt] + ", tip " + entry.state().tip;
    if (what == "edit mode")
        text = app.values.editMode;
    if (what == "paints")
        text = std::to_string(paints);
    if (what.starts_with("CC")) { // a field of all records
        for (const CardField &field : kCardFields)
            for (const CardRecord &record : records(kPending))
                text += field.name == what ? record.text(field) + "|" : "";
    }
    if (what == "files") {
        const std::filesystem::path root = station.drives.root();
        std::map<std::string, std::uintmax_t> all; // paths and sizes
        for (const auto &file : std::filesystem::recursive_directory_iterator(root))
            if (file.is_regular_file() && file.path().string().find("MGRlog") == std::string::npos)
                all[file.path().lexically_relative(root).generic_string()] = file.file_size();
        for (const auto &[path, size] : all)
            text += path + " " + std::to_string(size) + "\n";
        for (const char *path : {kPending, kMonth, kDeleted})
            for (const CardRecord &record : records(path)) {
                text += std::string(path) + ": ";
                for (const CardField &field : {CCReceipt, CCNumb, CCEncoded, CCTabAmt, CCTip,
                                               CCAdjStatus, CCAdjAmt, CCstatus, CCtype}) {
                    const std::string raw = record.raw(field);
                    text += raw[0] == '\0' ? "NUL|"
                                           : raw.substr(0, raw.find_last_not_of(' ') + 1) + "|";
                }
                text += "\n";
            }
    }
    return text.ends_with('\n') ? text : (text.empty() ? "none" : text) + "\n";
}

TEST(Stories, OfTheListGoAsTheirGoldenFilesTell)
{
    for (const char *name : {"rows", "dates", "sorted", "colours", "list", "enabling", "busy",
                             "printed", "entry", "bulk", "emptied", "failures"}) {
        std::unique_ptr<Story> story;
        support::expectStory("pending/" + std::string(name) + ".txt",
                             [&](const std::string &command) {
                                 if (!command.starts_with("new"))
                                     return story->press(command);
                                 story.reset();
                                 story = std::make_unique<Story>(nullptr, command == "new, grey");
                                 return std::string();
                             });
    }
}

/// Forty slips at midnight do not wait for a line that is down, and its state is no guess.
TEST(InternetOfTheList, IsTriedBesideTheScreenAndNotAtEachSave)
{
    Story story;
    story.station.put(Story::kPending, slotOf("CCReceipt=1"));
    const auto label = [&] {
        return std::to_string(story.station.system.connectionTests) + ": " +
               story.list.state().connection +
               (story.list.state().commands[Command::Continue].enabled ? " Continue" : "");
    };
    const std::uint64_t begun = story.station.time.milliseconds();
    story.station.system.connected.reset();
    for (int save = 0; save < 40; ++save)
        story.list.entrySaved();
    EXPECT_LE(story.station.time.milliseconds() - begun, 40U) << "one turn for each record";
    EXPECT_EQ(story.list.state().swipes, "1 Swipes");
    EXPECT_EQ(label(), "1: ");
    story.station.system.connected = false;
    story.station.advance(100);
    EXPECT_EQ(label(), "1: No internet connection detected...");

    story.station.system.connected.reset();
    story.station.advance(29'000);
    story.list.entrySaved();
    EXPECT_EQ(label(), "1: No internet connection detected...") << "it is not old yet";
    story.station.advance(1'000);
    story.list.entrySaved();
    EXPECT_EQ(label(), "2: No internet connection detected...") << "until the next answer";
    story.station.system.connected = true;
    story.station.advance(100);
    EXPECT_EQ(label(), "2: Internet connection detected!! Continue");
}

TEST(ReceiptOfTheList, IsNotLookedForWhileACommandWorksOnTheRows)
{
    Story story;
    std::string hint;
    story.station.time.after(100, [&] {
        for (const char *digit : {"1", "0"})
            story.list.typeReceipt(digit);
        story.list.enterReceipt(-1);
        hint = story.list.state().receiptHint;
    });
    story.list.leave(); // "Done", which waits
    EXPECT_EQ(hint.substr(0, 11), "Receipt 10.") << "no digit is lost, and nothing said too early";
}

/// Beside another manager: whatever is pressed and typed, nothing on the drives changes.
TEST(LookingOnly, ChangesNoFileByAnyCommandOfTheListAndOfAnEntry)
{
    for (const bool empty : {false, true}) {
        Story story;
        story.app.values.lookOnly = true;
        story.station.dialogs.typed = "01/15/25";
        story.station.put("F:\\Lumbrio\\ServerISBatching.dat", "of the other");
        if (!empty)
            story.station.put(Story::kPending, slotOf("CCReceipt=1;CCAdjStatus=Completed") +
                                                   slotOf("CCReceipt=2;CCstatus=Declined") +
                                                   slotOf("CCReceipt=3"));
        const std::string before = story.show("files");
        for (const char *command :
             {"Form_Load", "Refresh", "Process", "Finish", "Force ALL NO TIP", "Mark Completed",
              "DELETE RED'S", "Mark all completed", "picture", "Print", "click 2"})
            story.press(command);
        EXPECT_EQ(story.list.rows().size(), empty ? 0U : 3U);
        EXPECT_EQ(story.show("enabled"),
                  empty ? " 1 3 4 6 9, hidden 5\n" : " 1 3 4 6 7 9 10, hidden 5\n");
        details::pressEverything(story.entry);
        story.entry.open(Story::kPending, 3, "PEND");
        for (const char *command : {"tip 9", "quick 3", "box 2=JANE", "Clear", "Force"})
            EXPECT_TRUE(details::pressEntry(story.entry, command));
        EXPECT_EQ(story.entry.state().tip +
                      story.entry.state().boxes[details::Box::TipStatus].substr(0, 3),
                  empty ? "0" : "0Not");
        for (const char *command :
             {"Force NO TIP", "Undo", "Delete", "Delete and Print", "Save", "Force ALL NO TIP",
              "UnDelete", "Force ALL to", "VOID", "Done"}) {
            story.entry.open(Story::kPending, 3, "PEND");
            EXPECT_TRUE(details::pressEntry(story.entry, command));
        }
        story.press("Done");
        EXPECT_TRUE(story.station.run.ending() && !story.station.run.failed());
        EXPECT_EQ(story.show("files"), before);
    }
}

} // namespace pending
