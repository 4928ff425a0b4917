#include "support/manager_stage.h"

#include "records/card_files.h"
#include "support/card_text.h"
#include "support/test_files.h"

#include <filesystem>
#include <regex>
#include <set>

namespace support {

using namespace records;
using pending::Command;
using story::Lines;
using story::takeUntil;

namespace {

constexpr const char *kLogs = "C:\\Lumbrio\\Data\\CCmgrLOGS\\";
constexpr const char *kOfTheEntry = " of the entry";

const std::pair<const char *, Command> kListCommands[] = {
    {"Done", Command::Done},
    {"Process", Command::Process},
    {"Refresh", Command::Refresh},
    {"Print", Command::Print},
    {"Finish", Command::Finish},
    {"Archive", Command::Archive},
    {"Totals by Servers", Command::TotalsByServer},
    {"Continue", Command::Continue},
    {"Wait", Command::Wait},
    {"Totals by Terminal", Command::TotalsByTerminal},
    {"Force ALL NO TIP", Command::ForceAllNoTip},
    {"Totals by CC Type", Command::TotalsByType},
    {"Mark Completed", Command::MarkCompleted},
    {"DELETE RED'S", Command::DeleteDeclines},
    {"Mark all completed", Command::MarkAllCompleted}};

const char *const kOptions[] = {"Receipt Number", "Server Number", "Table Number", "Tab Amount",
                                "Time",           "Terminal",      "Status"};

/// Lines that stand several times in a row, once.
Lines counted(const Lines &lines)
{
    Lines once;
    for (std::size_t i = 0, n = 0; i < lines.size(); i += n) {
        for (n = 1; i + n < lines.size() && lines[i + n] == lines[i];)
            ++n;
        once.push_back(lines[i] + (n > 1 ? " (" + std::to_string(n) + " times)" : ""));
    }
    return once;
}

} // namespace

/// The same on both drives in one line.
Lines withoutTwins(const Lines &paths)
{
    Lines lines;
    for (const std::string &path : paths) {
        const auto twin = std::find_if(lines.begin(), lines.end(), [&](const std::string &one) {
            return toLower(one.substr(1)) == toLower(path.substr(1));
        });
        if (twin == lines.end())
            lines.push_back(path);
        else
            twin->insert(0, "f and ");
    }
    return lines;
}

std::string changes(const CardRecord &record, const CardRecord &before)
{
    const std::string receipt = record.text(CCReceipt);
    std::string text = receipt.empty() ? "-" : receipt;
    for (const CardField &field : kCardFields)
        if (record.raw(field) != before.raw(field))
            text += std::string(" ") + field.name + "=" + Trim(record.raw(field));
    return text.find(' ') == text.npos ? text : "(" + text + ")";
}

ManagerStage::ManagerStage(const TestStation *share, bool grey,
                           const details::EntryCallbacks &callbacks)
    : HasStation(share), Stage(HasStation::station),
      list(app, printer, *this, grey ? pending::PendingRoutes() : routes()),
      entry(app, printer, *this, callbacks.reloadPending ? callbacks : list.entryCallbacks()),
      start(app, *this, {[this] {
                say(app.values.X1009 ? "the list opens, by command line" : "the list opens");
            }})
{
    station.system.executable = "TndrMGR";
    app.values.Maindir = "C:\\Lumbrio\\";
    app.values.Remotedir = "F:\\Lumbrio\\";
    app.values.ReceiptPrinterName = "Receipt";
    app.values.config.set(kBusinessName, "The Harbour Table");
    if (share == nullptr)
        furnish();
    addCardWords();
    addStationWords();
    addListCommands();
    addRowWords();
    addEntryCommands();
    addEntryWords();
    word("look at", [this](Words what) { look(what); });
}

void ManagerStage::furnish()
{
    for (const char *folder :
         {"F:\\Lumbrio\\data\\CCdata", kLogs, "C:\\Lumbrio\\data\\CCdata", "C:\\Pay"})
        station.folder(folder);
    LumbrioConfig stored;
    stored.set(kMaindir, app.values.Maindir);
    stored.set(kRemotedir, app.values.Remotedir);
    station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(stored.view()));
    station.put("C:\\Lumbrio\\CCard.dat", "\"x\"\r\n\"C:\\Pay\"\r\n");
    for (const std::string &file : files())
        atFirst.insert(file);
}

pending::PendingRoutes ManagerStage::routes()
{
    const auto way = [this](const char *to) {
        return [this, to] {
            std::string text = std::string("to ") + to;
            for (const reports::ListRow &row : list.rows())
                text += " " + std::to_string(row.slot);
            say(text);
        };
    };
    return {way("archive"), way("totals by server"), way("totals by terminal"),
            way("totals by type")};
}

void ManagerStage::place(Words path, Words bytes)
{
    station.put(path, bytes);
    placed[path] = bytes;
}

void ManagerStage::addCardWords()
{
    word("card", [this](Words fields) { place(kPending, placed[kPending] + slotOf(fields)); });
    word("cards", [this](std::string rest) {
        const std::string number = takeUntil(rest, ": ");
        for (int n = wholeNumber(number); n > 0; --n)
            placed[kPending] += slotOf(rest);
        place(kPending, placed[kPending]);
    });
    word("no cards", [this](Words) { place(kPending, ""); });
    word("Move_Completed", [this](Words) { moveSettledRecords(app); });
    word("another station stores", [this](Words fields) {
        if (!other)
            other = std::make_unique<ManagerStage>(&station);
        say(addRecord(other->app, kPending, recordOf(fields)).stored() ? "stored" : "refused");
    });
}

void ManagerStage::addStationWords()
{
    word("pass", [this](std::string time) {
        station.advance(story::takeTime(time));
        lineBegan = station.time.milliseconds();
    });
    word("start the program", [this](Words) { start.Form_Load(); });
    word("another manager works", [this](Words) {
        other = std::make_unique<ManagerStage>(&station);
        other->start.Form_Load();
        say(other->app.values.lookOnly ? "and may only look" : "and may change all");
    });
    word("the other manager ends", [this](Words) { other.reset(); });
    word("kept record", [this](Words fields) {
        station.put("C:\\Lumbrio\\Data\\KeptRecord-20250115-130500.dat",
                    platform::textLine(kPending) + slotOf(fields));
    });
    command(
        "NEXT", [this] { start.startAfterHours(); },
        [this] { return start.state().choicesEnabled; });
    command(
        "QUIT", [this] { start.quit(); }, [this] { return start.state().choicesEnabled; });
    word("looking only", [this](Words) { app.values.lookOnly = true; });
    word("no Remotedir", [this](Words) { app.values.Remotedir.clear(); });
    word("printer", [this](Words name) { printer.select(name); });
    word("connection", [this](Words state) {
        station.system.connected = state == "unknown" ? std::nullopt : std::optional(state == "up");
    });
    word("dated", [this](std::string rest) { // at noon
        const int day = wholeNumber(takeUntil(rest, " "));
        station.put(rest, "");
        const std::chrono::sys_days date =
            std::chrono::year(day / 10000) / (day / 100 % 100) / (day % 100);
        last_write_time(std::filesystem::path(station.drives.resolve(rest)),
                        std::chrono::file_clock::from_sys(date + std::chrono::seconds(43200)));
    });
}

void ManagerStage::addListCommands()
{
    word("load the list", [this](Words) { list.Form_Load(); });
    word("the list is open", [this](Words) { // the log of its first load is not told
        list.refresh();
        logSeen = logNow().size();
    });
    const auto add = [this](const char *caption, Command of, void (pending::Pending::*does)()) {
        command(
            caption, [this, does] { (list.*does)(); },
            [this, of] { return list.state().commands[of].enabled; });
    };
    using pending::Pending;
    void (Pending::*const kPressed[])() = {&Pending::leave,
                                           &Pending::process,
                                           &Pending::refresh,
                                           &Pending::print,
                                           &Pending::finish,
                                           &Pending::showArchive,
                                           &Pending::showTotalsByServer,
                                           nullptr,
                                           nullptr,
                                           &Pending::showTotalsByTerminal,
                                           &Pending::forceAllNoTip,
                                           &Pending::showTotalsByType,
                                           &Pending::markDayCompleted,
                                           &Pending::deleteDeclines,
                                           &Pending::markAllCompleted};
    for (const auto &[caption, of] : kListCommands)
        if (kPressed[static_cast<std::size_t>(of)] != nullptr)
            add(caption, of, kPressed[static_cast<std::size_t>(of)]);
    add("picture", Command::MarkAllCompleted, &Pending::markAllCompletedByPicture);
    word("press everything of the list", [this, kPressed](Words) {
        for (const auto does : kPressed)
            if (does != nullptr && does != &Pending::leave)
                (list.*does)();
    });
}

void ManagerStage::addRowWords()
{
    word("sort by", [this](Words name) {
        const auto *found = std::find(std::begin(kOptions), std::end(kOptions), name);
        list.sortBy(static_cast<int>(found - std::begin(kOptions)));
    });
    word("open slot", [this](Words slot) { showEntry(kPending, wholeNumber(slot)); });
    word("tap row", [this](Words row) { list.openRow(wholeNumber(row) - 1); });
    word("receipt", [this](Words digits) {
        list.typeReceipt(digits);
        list.enterReceipt(-1);
        say(list.state().receiptHint);
    });
    word("mouse on Force ALL NO TIP", [this](Words) { list.hintForceAllNoTip(true); });
    word("mouse off", [this](Words) { list.hintForceAllNoTip(false); });
    word("saved", [this](Words times) {
        for (int n = std::max(wholeNumber(times), 1); n > 0; --n)
            list.entrySaved();
    });
}

void ManagerStage::addEntryCommands()
{
    using details::EntryDetails;
    const auto add = [this](const char *caption, const std::function<void()> &does) {
        command(std::string(caption) + kOfTheEntry, does, [this] { return entryOpen; });
        pressedOfEntry.push_back(does);
    };
    const std::pair<const char *, void (EntryDetails::*)()> kPressed[] = {
        {"Done", &EntryDetails::saveAndClose},
        {"Force NO TIP", &EntryDetails::forceNoTip},
        {"Cancel", &EntryDetails::cancel},
        {"Undo", &EntryDetails::undoTip},
        {"Delete", &EntryDetails::deleteEntry},
        {"Customer", &EntryDetails::reprintCustomer},
        {"Merchant", &EntryDetails::reprintMerchant},
        {"Save", &EntryDetails::save},
        {"Force ALL NO TIP", &EntryDetails::forceAllNoTip},
        {"Delete and Print", &EntryDetails::deleteAndPrint},
        {"UnDelete", &EntryDetails::undelete},
        {"Force", &EntryDetails::forceAdjusted},
        {"VOID", &EntryDetails::voidEntry},
        {"Force ALL to Adjusted", &EntryDetails::forceAllAdjusted},
        {"Clear", &EntryDetails::clearTip},
        {"the tab", &EntryDetails::offerQuickTips},
        {"View Track", &EntryDetails::revealTrackLine},
        {"View Card", &EntryDetails::revealNumber}};
    for (const auto &[caption, does] : kPressed)
        add(caption, [this, does = does] { (entry.*does)(); });
    add("previous", [this] { entry.step(-1); });
    add("next", [this] { entry.step(1); });
    word("press everything of the entry", [this](Words) {
        for (const auto &does : pressedOfEntry) {
            entry.open(kPending, 3, "PEND");
            does();
        }
    });
}

void ManagerStage::addEntryWords()
{
    word("tip", [this](Words text) { entry.typeTip(text); });
    word("quick tip",
         [this](Words index) { entry.takeQuickTip(static_cast<std::size_t>(wholeNumber(index))); });
    word("box", [this](std::string rest) {
        const int number = wholeNumber(takeUntil(rest, " = "));
        entry.typeBox(static_cast<details::Box>(number), story::bytesOf(rest));
    });
    word("edit mode", [this](Words mode) { app.values.editMode = mode; });
    word("status", [this](Words text) { entry.setStatus(text); });
}

void ManagerStage::refresh(const pending::PendingFields &fields)
{
    if (fields.noticeVisible && notice != fields.notice)
        notices += (notices.empty() ? "notice: " : " > ") + fields.notice;
    notice = fields.noticeVisible ? fields.notice : "";
}

void ManagerStage::refresh(const details::EntryFields &fields)
{
    shown = fields;
    entryOpen = true;
}

void ManagerStage::refresh(const manager::ManagerStartFields &fields)
{
    const std::string now = fields.status + (fields.choicesEnabled ? "" : " (busy)");
    if (now != status)
        statuses += (statuses.empty() ? "status: " : " > ") + now;
    status = now;
}

void ManagerStage::showEntry(const std::string &file, long slot)
{
    say("entry " + file + " " + std::to_string(slot));
    entry.open(file, slot, "PEND");
}

void ManagerStage::unload()
{
    say("entry closed");
    entryOpen = false;
}

std::optional<std::string> ManagerStage::choosePrinter(const std::vector<std::string> &names,
                                                       const std::string &proposed)
{
    const std::string said = station.dialogs.person(
        "[print on] one of " + std::to_string(names.size()) + " (" + proposed + ")", {});
    return said.starts_with("with ") ? std::optional(said.substr(5)) : std::nullopt;
}

std::string ManagerStage::logNow() const
{
    return station.getIfThere(kLogs + Format(station.time.now(), "MMYYYY") + "MGRlog.txt");
}

/// The ten lines of a load, and the five of a start, are one here; others stand as they are.
void ManagerStage::tellLog()
{
    static const std::regex load("={46}\r\n-\r\nCurrent Credit Card File Loaded  \r\n"
                                 "  Tab Total   (.*)\r\n  Tip Total   (.*)\r\n"
                                 "  Grand Total (.*)\r\n-\r\n"
                                 "  Total List Count (.*)\r\n-\r\n={46}\r\n");
    const std::string log = logNow();
    static const std::regex begin("={39}\r\nProgram Startup on  (.*)\r\n +AT  (.*)\r\n.*\r\n \r\n");
    std::string added = log.substr(std::min(logSeen, log.size()));
    added = std::regex_replace(added, load, "loaded: $1 + $2 = $3, count $4\r\n");
    added = std::regex_replace(added, begin, "started: $1 $2\r\n");
    Lines told;
    for (const std::string &line : counted(platform::splitLines(added)))
        told.push_back(Trim(line));
    const std::vector<std::string> &sounds = station.system.played;
    if (sounds.size() > soundsHeard)
        told.push_back(std::to_string(sounds.size() - soundsHeard) + " x " + sounds.back());
    soundsHeard = sounds.size();
    std::string text;
    for (const std::string &one : told)
        text += (text.empty() ? "log: " : " | ") + one;
    if (!text.empty())
        say(text);
    logSeen = log.size();
}

/// Notices and states that follow each other stand in one line.
void ManagerStage::say(Words line)
{
    for (std::string *gathered : {&notices, &statuses})
        if (!gathered->empty())
            tell(std::exchange(*gathered, ""));
    if (!line.empty())
        tell(line);
}

/// Its paragraphs in one line.
void ManagerStage::boxShown(Words box)
{
    say(std::regex_replace(box, std::regex("\n+"), " / "));
}

void ManagerStage::lineDone()
{
    say("");
    tellLog();
    const std::uint64_t now = station.time.milliseconds();
    if (now - lineBegan >= 1000)
        say(std::to_string((now - lineBegan) / 50 * 50) + " ms");
    lineBegan = now;
    if (station.run.ending() && !std::exchange(endTold, true))
        say(station.run.failed() ? "the program fails" : "the program ends");
}

Lines ManagerStage::listed() const
{
    constexpr std::array kColours = {"button", "white", "green", "red"};
    Lines lines;
    for (const reports::ListRow &row : list.rows())
        lines.push_back(std::to_string(row.slot) + " " +
                        kColours[static_cast<std::size_t>(row.colour)] + " " + row.text);
    return lines;
}

std::string ManagerStage::statesOf() const
{
    std::string text;
    for (const auto &[caption, of] : kListCommands) {
        const pending::CommandState &state = list.state().commands[of];
        if (!state.enabled || !state.visible)
            text += (text.empty() ? "" : ", ") + std::string(caption) +
                    (state.enabled ? "" : " grey") + (state.visible ? "" : " hidden");
    }
    return text;
}

void ManagerStage::look(Words what)
{
    const pending::PendingFields &f = list.state();
    Lines lines;
    if (what == "totals")
        lines = {f.totals.tabs + " + " + f.totals.tips + " = " + f.totals.grand + ", " + f.swipes +
                 ", from " + f.fromDate + " to " + f.toDate + ", record " + f.recordRead + " of " +
                 f.file + ", " + std::to_string(f.toAdjust) + " to adjust, " + f.connection};
    else if (what == "rows")
        lines = listed();
    else if (what == "types")
        lines = counted(list.types());
    else if (what == "commands")
        lines = {statesOf()};
    else if (what == "order") {
        lines = {f.sortedBy < 0 ? "as in the file:" : std::string(kOptions[f.sortedBy]) + ":"};
        for (const reports::ListRow &row : list.rows())
            lines[0] += " " + std::to_string(row.slot);
    } else if (what == "entry")
        lines = {entry.state().boxes[details::Box::Receipt] + ", tip " + entry.state().tip + ", " +
                 entry.state().boxes[details::Box::TipStatus]};
    else if (what == "paints")
        lines = {std::to_string(paints)};
    else if (what == "edit mode")
        lines = {app.values.editMode};
    else if (what == "files")
        lines = withoutTwins(files());
    else
        complain("there is nothing to look at");
    if (lines.size() == 1)
        say(lines[0]);
    else
        tellChanges(what, lines);
}

Lines ManagerStage::files() const
{
    Lines lines;
    const std::filesystem::path root = station.drives.root();
    std::set<std::string> cards; // told by their records
    for (const char *path : {kPending, kMonth, kDeleted})
        cards.insert(station.drives.resolve(path));
    for (const auto &file : std::filesystem::recursive_directory_iterator(root)) {
        const std::filesystem::path below = file.path().lexically_relative(root);
        const std::string path =
            toLower(below.parent_path().generic_string()) + "/" + below.filename().string();
        if (file.is_regular_file() && !cards.contains(file.path().string()) &&
            path.find("MGRlog") == std::string::npos)
            lines.push_back(path + " " + std::to_string(file.file_size()));
        else if (file.is_directory() && is_empty(file.path()))
            lines.push_back(path + "/");
    }
    std::erase_if(lines, [this](const std::string &line) { return atFirst.contains(line); });
    std::sort(lines.begin(), lines.end());
    return lines;
}

std::string ManagerStage::recordsOf(Words path, Words before) const
{
    std::vector<CardRecord> known = recordsIn(before);
    for (const auto &[file, bytes] : placed)
        for (const CardRecord &record : recordsIn(bytes))
            known.push_back(record);
    Lines told;
    for (const CardRecord &record : recordsIn(station.getIfThere(path))) {
        const auto same = std::find_if(known.begin(), known.end(), [&](const CardRecord &one) {
            return one.raw(CCReceipt) == record.raw(CCReceipt);
        });
        told.push_back(changes(record, same == known.end() ? CardRecord() : *same));
    }
    std::string text = path + ":";
    for (const std::string &one : counted(told))
        text += " " + one;
    return text;
}

std::vector<story::Section> ManagerStage::leftBehind()
{
    Lines left = withoutTwins(files());
    for (const char *path : {kPending, kMonth, kDeleted})
        if (station.getIfThere(path) != placed[path])
            left.push_back(recordsOf(path, placed[path]));
    std::vector<story::Section> parts = {{"left", left, false}};
    for (const auto &[name, job] : station.printers.collected)
        parts.push_back(
            {"printed on " + name, counted(platform::splitLines(platform::describe(job))), false});
    std::erase_if(parts, [](const story::Section &part) { return part.lines.empty(); });
    return parts;
}

} // namespace support
