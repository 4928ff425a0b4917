#include "support/manager_stage.h"

#include "records/card_files.h"
#include "support/card_text.h"
#include "support/test_files.h"

#include <filesystem>
#include <regex>

namespace support {

using namespace records;
using details::EntryDetails;
using pending::Command;
using pending::Pending;
using story::Lines;
using story::takeUntil;

namespace {

constexpr const char *kLogs = "C:\\Lumbrio\\Data\\CCmgrLOGS\\";

const struct {
    const char *caption;
    Command command;
    void (Pending::*press)();
} kOfTheList[] = {{"Done", Command::Done, &Pending::leave},
                  {"Process", Command::Process, &Pending::process},
                  {"Refresh", Command::Refresh, &Pending::refresh},
                  {"Print", Command::Print, &Pending::print},
                  {"Finish", Command::Finish, &Pending::finish},
                  {"Archive", Command::Archive, &Pending::showArchive},
                  {"Totals by Servers", Command::TotalsByServer, &Pending::showTotalsByServer},
                  {"Continue", Command::Continue, nullptr},
                  {"Totals by Terminal", Command::TotalsByTerminal, &Pending::showTotalsByTerminal},
                  {"Force ALL NO TIP", Command::ForceAllNoTip, &Pending::forceAllNoTip},
                  {"Totals by CC Type", Command::TotalsByType, &Pending::showTotalsByType},
                  {"Mark Completed", Command::MarkCompleted, &Pending::markDayCompleted},
                  {"DELETE RED'S", Command::DeleteDeclines, &Pending::deleteDeclines},
                  {"Mark all completed", Command::MarkAllCompleted, &Pending::markAllCompleted},
                  {"picture", Command::MarkAllCompleted, &Pending::markAllCompletedByPicture}};

const std::pair<const char *, void (EntryDetails::*)()> kOfTheEntry[] = {
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

std::string joined(const Lines &lines, const char *between)
{
    std::string text;
    for (const std::string &line : lines)
        text += (text.empty() || line.empty() ? "" : between) + line;
    return text;
}

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

/// The same on both drives in one line.
Lines withoutTwins(const Lines &paths)
{
    Lines lines;
    for (const std::string &path : paths) {
        const auto twin = std::find(lines.begin(), lines.end(), "c" + path.substr(1));
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

} // namespace

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
    addListWords();
    addEntryWords();
}

std::string ManagerStage::evening()
{
    std::string yesterday = slotOf("CCReceipt=3;CCDate=01/14/25");
    return slotOf("CCReceipt=1;CCAdjStatus=Completed") + slotOf("CCReceipt=2;CCstatus=Declined") +
           slotOf("empty") + yesterday.replace(490, 10, "behind it ") +
           slotOf("CCReceipt=4;CCAdjStatus= Not");
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
            gather(text);
        };
    };
    return {way("archive"), way("totals by server"), way("totals by terminal"),
            way("totals by type")};
}

void ManagerStage::place(Words bytes)
{
    station.put(kPending, bytes);
    placed[kPending] = bytes;
}

void ManagerStage::addCardWords()
{
    word("card", [this](std::string cards) {
        while (!cards.empty())
            place(placed[kPending] + slotOf(takeUntil(cards, ", ")));
    });
    word("cards", [this](std::string rest) {
        std::string bytes;
        for (int n = wholeNumber(takeUntil(rest, ": ")); n > 0; --n)
            bytes += slotOf(rest);
        place(bytes);
    });
    word("no cards", [this](Words) { place(""); });
    word("Move_Completed", [this](Words) { moveSettledRecords(app); });
    word("another station stores", [this](Words fields) {
        other = std::make_unique<ManagerStage>(&station);
        say(addRecord(other->app, kPending, recordOf(fields)).stored() ? "stored" : "refused");
    });
    word("kept record", [this](Words fields) {
        station.put("C:\\Lumbrio\\Data\\KeptRecord-20250115-130500.dat",
                    platform::textLine(kPending) + slotOf(fields));
    });
}

void ManagerStage::addStationWords()
{
    word("a new station", [this](Words) { // has no folders
        for (const char *folder : {"F:\\Lumbrio\\data", "C:\\Lumbrio\\data"})
            station.erase(folder);
        std::erase_if(atFirst, [](const std::string &path) { return path.ends_with('/'); });
    });
    word("start the program", [this](Words) { start.Form_Load(); });
    const auto mayChoose = [this] { return start.state().choicesEnabled; };
    command(
        "NEXT", [this] { start.startAfterHours(); }, mayChoose);
    command(
        "QUIT", [this] { start.quit(); }, mayChoose);
    word("pass", [this](std::string time) {
        station.advance(story::takeTime(time));
        lineBegan = station.time.milliseconds();
    });
    word("another manager works", [this](Words) {
        other = std::make_unique<ManagerStage>(&station);
        other->start.Form_Load();
        say(other->app.values.lookOnly ? "and may only look" : "and may change all");
    });
    word("the other manager ends", [this](Words) { other.reset(); });
    word("looking only", [this](Words) { app.values.lookOnly = true; });
    word("no Remotedir", [this](Words) { app.values.Remotedir.clear(); });
    word("edit mode", [this](Words mode) { app.values.editMode = mode; });
    word("printer", [this](Words name) { printer.select(name); });
    word("connection", [this](Words state) {
        station.system.connected = state == "unknown" ? std::nullopt : std::optional(state == "up");
    });
    word("dated", [this](std::string files) { // at noon of that day
        while (!files.empty()) {
            std::string path = takeUntil(files, ", ");
            const int day = wholeNumber(takeUntil(path, " "));
            station.put(path, "");
            const std::chrono::sys_days date =
                std::chrono::year(day / 10000) / (day / 100 % 100) / (day % 100);
            last_write_time(std::filesystem::path(station.drives.resolve(path)),
                            std::chrono::file_clock::from_sys(date + std::chrono::seconds(43200)));
        }
    });
}

void ManagerStage::addListWords()
{
    for (const auto &[caption, of, does] : kOfTheList)
        if (does != nullptr)
            command(
                caption, [this, does = does] { (list.*does)(); },
                [this, of = of] { return list.state().commands[of].enabled; });
    word("press everything of the list", [this](Words) {
        for (const auto &[caption, of, does] : kOfTheList)
            if (does != nullptr && of != Command::Done)
                (list.*does)();
    });
    word("load the list", [this](Words) { list.Form_Load(); });
    word("the list is open", [this](Words) { // the log of its first load is not told
        list.refresh();
        logSeen = logNow().size();
        soundsHeard = station.system.played.size();
    });
    word("sort by option", [this](Words option) { list.sortBy(wholeNumber(option)); });
    word("tap row", [this](Words row) { list.openRow(wholeNumber(row) - 1); });
    word("mouse on Force ALL NO TIP", [this](Words) { list.hintForceAllNoTip(true); });
    word("receipt", [this](Words digits) {
        list.typeReceipt(digits);
        list.enterReceipt(-1);
        say(list.state().receiptHint);
    });
    word("saved", [this](Words times) {
        for (int n = std::max(wholeNumber(times), 1); n > 0; --n)
            list.entrySaved();
    });
    word("look at", [this](Words what) { look(what); });
}

void ManagerStage::addEntryWords()
{
    const auto add = [this](const char *caption, const std::function<void()> &does) {
        command(std::string(caption) + " of the entry", does, [this] { return entryOpen; });
        pressedOfEntry.push_back(does);
    };
    for (const auto &[caption, does] : kOfTheEntry)
        add(caption, [this, does = does] { (entry.*does)(); });
    add("previous", [this] { entry.step(-1); });
    add("next", [this] { entry.step(1); });
    word("press everything of the entry", [this](Words) {
        for (const auto &does : pressedOfEntry) {
            entry.open(kPending, 3, "PEND");
            does();
        }
    });
    word("open slot", [this](Words slot) { showEntry(kPending, wholeNumber(slot)); });
    word("tip", [this](Words text) { entry.typeTip(text); });
    word("quick tip",
         [this](Words index) { entry.takeQuickTip(static_cast<std::size_t>(wholeNumber(index))); });
    word("box", [this](std::string rest) {
        const int number = wholeNumber(takeUntil(rest, " = "));
        entry.typeBox(static_cast<details::Box>(number), rest);
    });
    word("status", [this](Words text) { entry.setStatus(text); });
}

void ManagerStage::refresh(const pending::PendingFields &fields)
{
    if (fields.noticeVisible && notice != fields.notice)
        gather("notice: " + fields.notice);
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
        gather("status: " + now);
    status = now;
}

void ManagerStage::showEntry(const std::string &file, long slot)
{
    say("entry " + file + " " + std::to_string(slot));
    entry.open(file, slot, "PEND");
}

void ManagerStage::unload()
{
    gather("entry closed");
    entryOpen = false;
}

std::optional<std::string> ManagerStage::choosePrinter(const std::vector<std::string> &names,
                                                       const std::string &proposed)
{
    const std::string chosen = station.dialogs.person(
        "[print on] one of " + std::to_string(names.size()) + " (" + proposed + ")", {});
    return chosen.starts_with("with ") ? std::optional(chosen.substr(5)) : std::nullopt;
}

/// What follows each other on the screen stands in one line.
void ManagerStage::gather(Words what)
{
    gathered += (gathered.empty() ? "" : " > ") + what;
}

void ManagerStage::say(Words line)
{
    for (const std::string &each : {std::exchange(gathered, ""), line})
        if (!each.empty())
            tell(each);
}

/// Its paragraphs in one line.
void ManagerStage::boxShown(Words box)
{
    say(std::regex_replace(box, std::regex("\n+"), " / "));
}

std::string ManagerStage::logNow() const
{
    return station.getIfThere(kLogs + Format(station.time.now(), "MMYYYY") + "MGRlog.txt");
}

/// In the log the ten lines of a load, and the five of a start, are one here.
void ManagerStage::lineDone()
{
    static const std::regex load("={46}\r\n-\r\nCurrent Credit Card File Loaded  \r\n"
                                 "  Tab Total   (.*)\r\n  Tip Total   (.*)\r\n"
                                 "  Grand Total (.*)\r\n-\r\n"
                                 "  Total List Count (.*)\r\n-\r\n={46}\r\n");
    static const std::regex begin("={39}\r\nProgram Startup on  (.*)\r\n"
                                  " +AT  (.*)\r\n.*\r\n \r\n");
    say("");
    std::string log = logNow();
    std::string added = log.substr(std::min(logSeen, log.size()));
    logSeen = log.size();
    added = std::regex_replace(added, load, "loaded: $1 + $2 = $3, count $4\r\n");
    Lines lines =
        counted(platform::splitLines(std::regex_replace(added, begin, "started: $1 $2\r\n")));
    const std::vector<std::string> &sounds = station.system.played;
    if (sounds.size() > soundsHeard)
        lines.push_back(std::to_string(sounds.size() - soundsHeard) + " x " + sounds.back());
    soundsHeard = sounds.size();
    say(lines.empty() ? "" : "log: " + joined(lines, " | "));
    const std::uint64_t now = station.time.milliseconds();
    if (now - lineBegan >= 1000)
        say(std::to_string((now - lineBegan) / 50 * 50) + " ms");
    lineBegan = now;
    if (station.run.ending() && !std::exchange(endTold, true))
        say(station.run.failed() ? "the program fails" : "the program ends");
}

void ManagerStage::look(Words what)
{
    constexpr std::array kColours = {"button", "white", "green", "red"};
    const pending::PendingFields &f = list.state();
    const details::EntryFields &e = entry.state();
    Lines lines;
    if (what == "rows")
        for (const reports::ListRow &row : list.rows())
            lines.push_back(std::to_string(row.slot) + " " +
                            kColours[static_cast<std::size_t>(row.colour)] + " " + row.text);
    else if (what == "commands")
        for (const auto &[caption, of, does] : kOfTheList)
            lines.push_back(f.commands[of].enabled && f.commands[of].visible
                                ? ""
                                : caption + std::string(f.commands[of].enabled ? "" : " grey") +
                                      (f.commands[of].visible ? "" : " hidden"));
    else if (what == "order")
        for (const reports::ListRow &row : list.rows())
            lines.push_back(std::to_string(row.slot));
    else if (what == "files")
        lines = withoutTwins(files());
    const std::map<std::string, std::string> inOneLine = {
        {"totals", f.totals.tabs + " + " + f.totals.tips + " = " + f.totals.grand + ", " +
                       f.swipes + ", from " + f.fromDate + " to " + f.toDate + ", record " +
                       f.recordRead + " of " + f.file + ", " + std::to_string(f.toAdjust) +
                       " to adjust, " + f.connection},
        {"commands", joined(lines, ", ")},
        {"order", "option " + std::to_string(f.sortedBy) + ": " + joined(lines, " ")},
        {"entry", e.boxes[details::Box::Receipt] + ", tip " + e.tip + ", " +
                      e.boxes[details::Box::TipStatus]},
        {"paints", std::to_string(paints)},
        {"edit mode", app.values.editMode}};
    if (const auto found = inOneLine.find(what); found != inOneLine.end())
        say(found->second);
    else
        tellChanges(what, lines);
}

Lines ManagerStage::files() const
{
    std::set<std::string> cards; // told by their records
    for (const char *path : {kPending, kMonth, kDeleted})
        cards.insert(station.drives.resolve(path));
    Lines lines;
    const std::filesystem::path root = station.drives.root();
    for (const auto &file : std::filesystem::recursive_directory_iterator(root)) {
        const std::filesystem::path below = file.path().lexically_relative(root);
        const std::string path =
            toLower(below.parent_path().generic_string()) + "/" + below.filename().string();
        if (file.is_regular_file() && !cards.contains(file.path().string()) &&
            path.find("MGRlog") == std::string::npos && !path.ends_with(".lock"))
            lines.push_back(path + " " + std::to_string(file.file_size()));
        else if (file.is_directory() && is_empty(file.path()))
            lines.push_back(toLower(path) + "/");
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
    known.emplace_back();
    Lines told = {path + ":"};
    for (const CardRecord &record : recordsIn(station.getIfThere(path)))
        told.push_back(changes(
            record, *std::find_if(known.begin(), known.end() - 1, [&](const CardRecord &one) {
                return one.raw(CCReceipt) == record.raw(CCReceipt);
            })));
    return joined(counted(told), " ");
}

std::vector<story::Section> ManagerStage::leftBehind()
{
    Lines left = withoutTwins(files());
    for (const char *path : {kPending, kMonth, kDeleted})
        if (station.getIfThere(path) != placed[path])
            left.push_back(recordsOf(path, placed[path]));
    std::vector<story::Section> parts = {{"left", left, false}};
    static const std::regex font("(font .*)\n(line|tabs) ");
    for (const auto &[name, job] : station.printers.collected)
        parts.push_back({"printed on " + name,
                         counted(platform::splitLines(
                             std::regex_replace(platform::describe(job), font, "$1, $2 "))),
                         false});
    std::erase_if(parts, [](const story::Section &part) { return part.lines.empty(); });
    return parts;
}

} // namespace support
