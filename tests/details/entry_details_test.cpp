// One entry on the manager's screen: what each command leaves in the card files, on the screen and
// on paper, told in golden tables; and that no stop or failure loses a record.
#include "records/card_files.h"
#include "support/card_text.h"
#include "support/golden_table.h"
#include "support/manager_stage.h"

namespace {

using namespace records;

const std::map<std::string, std::string> kFiles = {
    {"PEND", "F:\\Lumbrio\\CCPending.dat"},
    {"ARCH", "F:\\Lumbrio\\data\\CCFinal0125.dat"},
    {"DELE", "F:\\Lumbrio\\data\\0125CCdeleted.dat"},
    {"DELE of December", "F:\\Lumbrio\\data\\1224CCdeleted.dat"}};

/// A sale as an approved tender leaves it, some fields still NUL.
CardRecord saleOf(const std::string &receipt, const std::string &changes = {})
{
    return support::recordOf(
        "CCEncoded=1;CCName=JOHN Q PUBLIC;CCXcTranID=A 12 34;CCTabAmt=48.50;CCtype=Visa;CCExpDate=;"
        "CCStation=BAR1;CCaditionalFUNDS=0;HiddenNumb=XXXX XXXX XXXX 2222;CCServer=;CCSaleAmt=;"
        "CCTable=;CCApprovedAmt=;CResponse=;CApprovalCode=;CCVerify=;CCSwiped=;GCbalance=;"
        "CCReceipt=" +
        receipt + ";" + changes);
}

std::string slotOf(const std::string &receipt, const std::string &changes = {})
{
    return std::string(saleOf(receipt, changes).view()) + "0123456789";
}

const std::string kEmpty(kCardSlotLength, '\0');

/// An entry of one of the card files; its script says what the manager does.
struct EntryStage : support::ManagerStage {
    /// The file of `source` has three slots: another record, the one of the row, and one that was
    /// never filled. "no files": there are none.
    explicit EntryStage(const std::string &sale, const std::string &theSource = "PEND")
        : ManagerStage(nullptr, false,
                       {[this] { reload("list"); },
                        [this] { reload("archive"); },
                        [this] { say("bulk"); },
                        {},
                        {}}),
          source(theSource)
    {
        app.values.CCdata.set(CCReceipt, "of another");
        for (const auto &[of, name] : kFiles)
            if (sale != "no files")
                placed[name] =
                    of != source ? slotOf("7") : slotOf("1") + slotOf("1043", sale) + kEmpty;
        for (const auto &[name, bytes] : placed)
            station.put(name, bytes);
        word("open slot",
             [this](Words slot) { entry.open(file(), wholeNumber(slot), source.substr(0, 4)); });
        word("the list rewrites", [this](Words) { entry.closeForRewrite(); });
        word("fill", [this](Words) { entry.Fill_data(); });
        word("the file is shorter now", [this](Words) { station.put(file(), slotOf("1")); });
        word("a server adds a tip of", [this](Words tip) {
            station.put(file(), slotOf("1") + slotOf("1043", "CCTip=" + tip) + kEmpty);
        });
    }

    std::string play(const story::Lines &script)
    {
        story::Lines lines = script;
        lines.insert(lines.begin(), "open slot 2");
        const story::Told told = perform({}, lines);
        for (const std::string &complaint : told.complaints)
            ADD_FAILURE() << complaint;
        std::string text;
        for (const std::vector<story::Section> &step : told.steps)
            for (const story::Section &section : step)
                for (const std::string &line : section.lines)
                    text += (text.empty() ? "" : ", ") + line;
        return text;
    }
    void press(Words caption, bool thoughDisabled) override
    {
        Stage::press(caption + " of the entry", thoughDisabled);
    }
    const std::string &file() const { return kFiles.at(source); }

    /// Each file that is no longer as at the beginning.
    std::string disk() const
    {
        std::string text;
        for (const auto &[of, name] : kFiles) {
            const auto before = placed.find(name);
            const std::string bytes = before == placed.end() ? "" : before->second;
            if (station.getIfThere(name) != bytes)
                text += of + recordsOf(name, bytes).substr(name.size()) + ". ";
        }
        return text;
    }
    std::string screen() const
    {
        using enum details::Box;
        const details::EntryFields &f = entry.state();
        EXPECT_TRUE(f == shown || !entryOpen) << "the screen was not brought up to date";
        std::string text = std::to_string(f.slot) + " " + f.ofRecords + " ";
        text += f.previousEnabled ? "<" : "-";
        text += f.nextEnabled ? "> " : "- ";
        text += (f.numberRevealed ? f.boxes[Number] : f.maskedNumber) + ", tip " + f.tip + " of " +
                f.tab + ", " + f.total + ", " + f.boxes[NewTotal] + ", " + f.boxes[TipStatus] +
                "," + f.boxes[Brand];
        const std::pair<bool, std::string> marks[] = {
            {f.cardNoticeVisible, f.cardNotice},
            {f.fundsNoticesVisible, f.boxes[FundsNeeded] + " needed"},
            {f.tipLocked, "locked"},
            {!f.quickTipsVisible, "no quick tips"},
            {f.deleteAndPrintVisible, "Delete and Print"},
            {f.undeleteVisible, "UnDelete"},
            {f.trackLineRevealed, "track line"},
            {busy != 0, "busy"}};
        for (const auto &[on, mark] : marks)
            text += on ? ", " + mark : "";
        for (const std::string &tip : f.quickTips)
            text += tip.empty() ? "" : " [" + tip + "]";
        return entryOpen ? text : "closed";
    }
    std::string slips() const
    {
        std::string text;
        for (const auto &[name, job] : station.printers.collected) {
            text += " [" + name;
            for (const platform::PrintOperation &operation : job.operations)
                for (const char *part : {"Picture", "Card:", "REPRINT", "VOIDED", "require", "$"})
                    if (operation.text.find(part) != std::string::npos)
                        text += " " + Trim(operation.text);
            text += "]";
        }
        return text;
    }
    /// Another program does, if it gets the lock: the first record lies where this one was.
    void moveTwoToTheEnd()
    {
        support::TestStation another(&station);
        App program{another.services};
        program.values.Remotedir = app.values.Remotedir;
        another.run.reportFailure = [](const std::string &) {};
        for (int moved = 0; moved < 2; ++moved) {
            CardRecord first;
            readRecord(program, file(), 1, first);
            if (addRecord(program, file(), first).stored())
                removeRecord(program, file(), 1, first);
        }
    }
    /// While a list reads its file the manager presses whatever there is.
    void reload(const char *which)
    {
        say(which);
        for (const auto &press : pressedOfEntry)
            press();
        entry.takeQuickTip(2);
        entry.typeTip("8");
        entry.open(file(), 1, "PEND");
    }

    std::string source;
};

TEST(Entry, LeavesOnDiskScreenAndPaperWhatTheGoldenTableSays)
{
    support::expectTable("details/commands.txt", [](const std::string &row) {
        SCOPED_TRACE(row);
        const std::size_t colon = row.find(": ");
        const std::size_t at = std::min(row.find('@'), colon);
        EntryStage stage(Trim(row.substr(0, at)),
                         at < colon ? row.substr(at + 1, colon - at - 1) : "PEND");
        story::Lines script;
        for (std::string rest = row.substr(colon + 2); !rest.empty();)
            script.push_back(story::takeUntil(rest, "; "));
        const std::string told = stage.play(script);
        EXPECT_EQ(stage.app.values.CCdata.text(CCReceipt), "of another");
        EXPECT_EQ(stage.printer.selectedName(), "Receipt TM-88");
        return std::vector{stage.disk(), stage.screen(), told + stage.slips()};
    });
}

TEST(Entry, StoresNoPartOfAnAmountThatWasMistyped)
{
    for (const char *typed : {"tip -5", "tip 1e3", "tip 12345678", "box 4 = 1.234",
                              "box 7 = 48,500", "box 8 = $5", "box 12 = 5 50", "box 22 = 9.9.9"})
        for (const char *command : {"press Done", "press Save"}) {
            EntryStage stage("CCTip=3");
            const std::string told = stage.play({"tip 5", typed, "answer Ok", command});
            EXPECT_EQ(stage.disk(), "") << typed << command;
            EXPECT_EQ(told.rfind("[NOT AN AMOUNT] The ", 0), 0U) << told;
            EXPECT_NE(stage.screen(), "closed");
        }
    EntryStage stage("CCTip=");
    stage.play({"tip 5x", "answer Cancel", "the list rewrites"});
    EXPECT_NE(stage.screen(), "closed") << "not before somebody has been asked";
}

TEST(Entry, StoresNoControlCharacterThatWasPastedAndLeavesThoseOfTheFile)
{
    EntryStage stage("CCName=JANE\tROE");
    stage.play({"box 2 = JANE\tR\x1BOE 2", "box 5 = A\tB", "box 6 = 7\x7F\n1", "press Done"});
    EXPECT_EQ(stage.disk(), "PEND: 1 (1043 CCName=JANE\tR OE 2 CCDescription= CCServer=A B "
                            "CCTable=7  1) -. ");
}

// A record is one of its receipt and name; what a command changes may be torn by a power cut.
TEST(Entry, IsNeverLostWhereverACommandStopsAndWhateverFails)
{
    for (const auto &[command, source] : {std::pair("Done", "PEND"),
                                          {"Save", "PEND"},
                                          {"Undo", "ARCH"},
                                          {"Delete", "PEND"},
                                          {"Delete and Print", "ARCH"},
                                          {"Delete", "DELE"},
                                          {"UnDelete", "DELE of December"},
                                          {"Force ALL to Adjusted", "PEND"}}) {
        std::size_t operations = 0;
        for (std::size_t n = 0; n < 3 * (operations + 1); ++n) {
            EntryStage story("", source);
            support::FaultyDisk &disk = story.station.disk;
            story.station.run.reportFailure = [](const std::string &) {};
            story.entry.open(story.file(), 2, story.source.substr(0, 4));
            const std::size_t before = disk.operations();
            const std::size_t at = before + n / 3; // the first three: never
            if (n % 3 == 0)
                disk.stopAt(
                    at, [&] { story.station.run.end(); }, true);
            if (n % 3 == 1)
                disk.failAt(at, platform::Outcome::NoRoom);
            if (n % 3 == 2)
                disk.before = [&](std::size_t now) {
                    now == at ? story.moveTwoToTheEnd() : void();
                };
            story.press(command, false);
            EXPECT_TRUE(at <= before || at > before + operations || disk.operations() >= at);
            if (n == 0)
                operations = disk.operations() - before;
            std::string all;
            for (const auto &[of, name] : kFiles)
                for (const CardRecord &record : support::recordsIn(story.station.getIfThere(name)))
                    all += record.text(CCReceipt) + " " + record.text(CCName) + ",";
            for (const char *record :
                 {"1 JOHN Q PUBLIC,", "7 JOHN Q PUBLIC,", "1043 JOHN Q PUBLIC,"})
                EXPECT_NE(all.find(record), all.npos) << command << n << all << disk.logText();
            // An append does not need the size: without it the record lands in its slot all the
            // same.
            const bool goesOn = n % 3 == 1 && at > before && at <= disk.operations() &&
                                disk.operationLog()[at - 1].find("size f/Lumbrio/CCPending.dat") !=
                                    std::string::npos &&
                                std::string_view(command) == "UnDelete";
            EXPECT_EQ(story.station.run.ending(), n > 2 && n % 3 < 2 && !goesOn) << command << n;
            EXPECT_EQ(story.screen().find("busy"), std::string::npos) << command << n;
        }
        EXPECT_GE(operations, 5U) << command;
    }
}

TEST(Entry, OfEveryByteKeepsTheScreenAliveAndItsNeighboursWhole)
{
    for (const std::string command : {"Done", "Save", "Undo", "Delete", "UnDelete", "Customer"})
        for (int seed = 0; seed < 256; seed += 51) {
            EntryStage story("");
            std::string file = story.station.get(story.file());
            for (std::size_t i = 0; i < CardRecord::kSize; ++i)
                file[kCardSlotLength + i] = static_cast<char>((i * 7 + i / 9) * 31 + seed);
            story.station.put(story.file(), file);
            story.station.dialogs.person = [](const std::string &, const story::Lines &captions) {
                return captions.empty() ? "with Office Laser" : captions.front();
            };
            story.entry.open(story.file(), 2, "PEND");
            story.press("the tab", false);
            story.press(command, false);
            EXPECT_FALSE(story.station.run.failed()) << command << seed;
            const std::string now = story.station.get(story.file());
            EXPECT_EQ(now.substr(0, 500), file.substr(0, 500)) << command << seed;
            EXPECT_EQ(now.size(), command == "Delete" ? 1000 : 1500) << command << seed;
        }
}

} // namespace
