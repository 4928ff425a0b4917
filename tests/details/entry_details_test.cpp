// One entry on the manager's screen: what each command leaves in the card files, on the screen and
// on paper, told in golden tables; and that no stop or failure loses a record.
#include "details/entry_commands.h"
#include "records/card_files.h"
#include "support/card_text.h"
#include "support/golden_table.h"
#include "support/test_station.h"

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

/// A manager who presses commands by their names, types what is to be typed, and writes down all
/// that happens.
struct Story : details::EntryView, platform::WindowlessView {
    /// The file of `source` has three slots: another record, the one of the row, and one that was
    /// never filled. "no files": there are none.
    explicit Story(const std::string &sale, const std::string &theSource = "PEND")
        : source(theSource)
    {
        station.dialogs.noted = &happened;
        station.dialogs.typed = "Office Laser"; // also for a password
        station.folder("F:\\Lumbrio\\data");
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.Remotedir = "F:\\Lumbrio\\";
        app.values.ReceiptPrinterName = "Receipt";
        app.values.CCdata.set(CCReceipt, "of another");
        for (const auto &[of, name] : kFiles)
            if (sale != "no files")
                files[name] =
                    of != source ? slotOf("7") : slotOf("1") + slotOf("1043", sale) + kEmpty;
        for (const auto &[name, bytes] : files)
            station.put(name, bytes);
    }

    void press(const std::string &command)
    {
        const std::string word = command.substr(command.find(' ') + 1);
        const details::Commands commands = {
            {"open ", [&] { entry.open(file(), wholeNumber(word), source.substr(0, 4)); }},
            {"fill", [&] { entry.Fill_data(); }},
            {"KEEP", [&] { app.values.editMode = "KEEP"; }},
            {"shrink", [&] { station.put(file(), slotOf("1")); }},
            {"server ", // adds a tip
             [&] { station.put(file(), slotOf("1") + slotOf("1043", "CCTip=" + word) + kEmpty); }},
            {"locked ",
             [&] {
                 held = std::make_unique<platform::SlotFile>(other.files, kFiles.at(word), 500);
                 EXPECT_TRUE(done(held->open(platform::SlotUse::Rewrite)) && done(held->lock()));
             }},
            {"jam",
             [&] {
                 station.printers.failures = {2, platform::Outcome::NoRoom};
             }},
            {"refuse", [&] { station.dialogs.choice = platform::Answer::Cancel; }},
            {"wait", [&] { station.advance(500); }},
            {"type ", [&] { station.dialogs.typed = word; }},
            {"no answer", [&] { station.dialogs.typed.reset(); }},
        };
        EXPECT_TRUE(details::doFirst(commands, command) || details::pressEntry(entry, command))
            << "there is no command " << command;
    }

    const std::string &file() const { return kFiles.at(source); }

    /// Each file that is no longer as at the beginning: its receipts in order, with the fields that
    /// are not as they were in the record of that receipt.
    std::string disk() const
    {
        std::string text;
        for (const auto &[of, name] : kFiles) {
            if (station.getIfThere(name) == (files.contains(name) ? files.at(name) : ""))
                continue;
            text += of + ":";
            for (const CardRecord &record : support::recordsIn(station.getIfThere(name)))
                text += " " + toldOf(record);
            text += ". ";
        }
        return text;
    }
    std::string toldOf(const CardRecord &record) const
    {
        const std::string receipt = record.text(CCReceipt);
        const CardRecord before = receipt == "1043" ? support::recordsIn(files.at(file()))[1]
                                  : receipt.empty() ? CardRecord()
                                                    : saleOf(receipt);
        std::string text = receipt.empty() ? "-" : receipt;
        for (const CardField &field : kCardFields)
            if (record.raw(field) != before.raw(field))
                text += std::string(" ") + field.name + "=" + Trim(record.raw(field));
        return text.find(' ') == text.npos ? text : "(" + text + ")";
    }
    std::string screen() const
    {
        const details::EntryFields &f = entry.state();
        EXPECT_TRUE(f == shown || !open) << "the screen was not brought up to date";
        std::string text = std::to_string(f.slot) + " " + f.ofRecords + " ";
        text += f.previousEnabled ? "<" : "-";
        text += f.nextEnabled ? "> " : "- ";
        text += (f.numberRevealed ? f.boxes[details::Box::Number] : f.maskedNumber) + ", tip " +
                f.tip + " of " + f.tab + ", " + f.total + ", " + f.boxes[details::Box::NewTotal] +
                ", " + f.boxes[details::Box::TipStatus] + "," + f.boxes[details::Box::Brand];
        const std::pair<bool, std::string> marks[] = {
            {f.cardNoticeVisible, f.cardNotice},
            {f.fundsNoticesVisible, f.boxes[details::Box::FundsNeeded] + " needed"},
            {f.tipLocked, "locked"},
            {!f.quickTipsVisible, "no quick tips"},
            {f.deleteAndPrintVisible, "12"},
            {f.undeleteVisible, "13"},
            {f.trackLineRevealed, "track line"},
            {busy != 0, "busy"}};
        for (const auto &[on, mark] : marks)
            text += on ? ", " + mark : "";
        for (const std::string &tip : f.quickTips)
            text += tip.empty() ? "" : " [" + tip + "]";
        return open ? text : "closed";
    }
    /// What was told to the screen and the lists, and what came out of the printers.
    std::string events() const
    {
        std::string text = happened;
        for (const std::string &sound : station.system.played)
            text += sound + " ";
        for (const auto &[name, job] : station.printers.collected) {
            text += "[" + name;
            for (const platform::PrintOperation &operation : job.operations)
                for (const char *part : {"Picture", "Card:", "REPRINT", "VOIDED", "require", "$"})
                    if (operation.text.find(part) != std::string::npos)
                        text += " " + Trim(operation.text);
            text += "]";
        }
        return text;
    }

    void refresh(const details::EntryFields &fields) override
    {
        shown = fields;
        open = true;
    }
    void focusTip() override { happened += "focus "; }
    void setBusyPointer(bool on) override { busy += on ? 1 : -1; }
    void unload() override
    {
        happened += "closed ";
        open = false;
    }
    std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                             const std::string &current) override
    {
        happened += std::to_string(names.size()) + " printers, " + current + " ";
        return station.dialogs.typed;
    }
    /// Another program does, if it gets the lock: the first record lies where this one was.
    void moveTwoToTheEnd()
    {
        App program{other.services};
        program.values.Remotedir = app.values.Remotedir;
        other.run.reportFailure = [](const std::string &) {};
        for (int moved = 0; moved < 2; ++moved) {
            CardRecord first;
            readRecord(program, file(), 1, first);
            if (addRecord(program, file(), first).stored())
                removeRecord(program, file(), 1, first);
        }
    }
    /// While a list reads its file the manager presses whatever there is.
    void reload(const char *list)
    {
        happened += list;
        details::pressEverything(entry);
        entry.open(file(), 1, "PEND");
    }

    std::string happened;
    support::TestStation station;
    App app{station.services};
    printing::Printer printer{station.printers};
    std::string source;
    std::map<std::string, std::string> files; // at the beginning
    details::EntryFields shown;
    bool open = false;
    int busy = 0;
    support::TestStation other{&station};
    std::unique_ptr<platform::SlotFile> held; // by the other station
    details::EntryDetails entry{app,
                                printer,
                                *this,
                                {[this] { reload("list "); },
                                 [this] { reload("archive "); },
                                 [this] { happened += "bulk "; },
                                 {},
                                 {}}};
};

TEST(Entry, LeavesOnDiskScreenAndPaperWhatTheGoldenTableSays)
{
    support::expectTable("details/commands.txt", [](const std::string &row) {
        const std::size_t colon = row.find(": ");
        const std::size_t at = std::min(row.find('@'), colon);
        Story story(Trim(row.substr(0, at)),
                    at < colon ? row.substr(at + 1, colon - at - 1) : "PEND");
        story.press("open 2");
        for (std::size_t from = colon + 2, end = colon; end != row.npos; from = end + 2) {
            end = row.find(", ", from);
            story.press(row.substr(from, end - from));
        }
        EXPECT_EQ(story.app.values.CCdata.text(CCReceipt), "of another") << row;
        EXPECT_EQ(story.printer.selectedName(), "Receipt TM-88") << row;
        return std::vector{story.disk(), story.screen(), story.events()};
    });
}

TEST(Entry, StoresNoPartOfAnAmountThatWasMistyped)
{
    for (const char *typed : {"tip -5", "tip 1e3", "tip 12345678", "box 4=1.234", "box 7=48,500",
                              "box 8=$5", "box 12=5 50", "box 22=9.9.9"})
        for (const char *command : {"Done", "Save"}) {
            Story story("CCTip=3");
            for (const char *each : {"open 2", "tip 5", typed})
                story.press(each);
            story.press(command);
            EXPECT_EQ(story.disk(), "") << typed << command;
            EXPECT_EQ(story.happened.rfind("[NOT AN AMOUNT] The ", 0), 0U) << story.happened;
            EXPECT_TRUE(story.open);
        }
    Story story("CCTip=");
    story.station.dialogs.choice = platform::Answer::Cancel;
    story.press("open 2");
    story.press("tip 5x");
    EXPECT_FALSE(story.entry.closeForRewrite()) << "not before somebody has been asked";
}

TEST(Entry, StoresNoControlCharacterThatWasPastedAndLeavesThoseOfTheFile)
{
    Story story("CCName=JANE\tROE");
    for (const char *each :
         {"open 2", "box 2=JANE\tR\x1BOE 2", "box 5=A\tB", "box 13=77\x7F\n1", "Done"})
        story.press(each);
    EXPECT_EQ(story.disk(), "PEND: 1 (77  1 CCName=JANE\tR OE 2 CCDescription= CCServer=A B) -. ");
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
                                          {"Force ALL to", "PEND"}}) {
        std::size_t operations = 0;
        for (std::size_t n = 0; n < 3 * (operations + 1); ++n) {
            Story story("", source);
            story.press("open 2");
            support::FaultyDisk &disk = story.station.disk;
            story.station.run.reportFailure = [](const std::string &) {};
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
            story.press(command);
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
            EXPECT_EQ(story.busy, 0) << command << n;
        }
        EXPECT_GE(operations, 5U) << command;
    }
}

TEST(Entry, OfEveryByteKeepsTheScreenAliveAndItsNeighboursWhole)
{
    for (const std::string command : {"Done", "Save", "Undo", "Delete", "UnDelete", "Customer"})
        for (int seed = 0; seed < 256; seed += 51) {
            Story story("");
            std::string &file = story.files[story.file()];
            for (std::size_t i = 0; i < CardRecord::kSize; ++i)
                file[kCardSlotLength + i] = static_cast<char>((i * 7 + i / 9) * 31 + seed);
            story.station.put(story.file(), file);
            for (const std::string &each : {std::string("open 2"), std::string("the tab"), command})
                story.press(each);
            EXPECT_FALSE(story.station.run.failed()) << story.happened;
            const std::string now = story.station.get(story.file());
            EXPECT_EQ(now.substr(0, 500), file.substr(0, 500)) << command << seed;
            EXPECT_EQ(now.size(), command == "Delete" ? 1000 : 1500) << command << seed;
        }
}

} // namespace
