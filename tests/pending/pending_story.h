// Story: a manager's night at the list. The test says what is in the shared directory, what the
// manager presses and what other stations do, and writes down all that happens.
#pragma once

#include "details/entry_commands.h"
#include "pending/pending.h"
#include "records/card_files.h"
#include "support/test_station.h"

#include <algorithm>
#include <map>
#include <sstream>

namespace pending {

/// A record from "CCReceipt=1;CCTip=5", on top of an approved one of tonight over 20.00. "\0" is a
/// NUL, "CCTip=~" the NULs of a field never assigned; "CCEncoded=1" scrambles the number.
inline records::CardRecord recordOf(const std::string &text)
{
    records::CardRecord record;
    std::istringstream fields(
        "CCNumb=4111111111111111;CCEncoded=0;CCServer=7;CCTabAmt=20.00;CCApprovedAmt=0;CCTip=0;"
        "CCReceipt=1;CCAdjStatus=Not Adjusted;CCstatus=Approved;CApprovalCode=004711;"
        "CCDate=01/15/25;CCTime=01:05 PM;CCStation=FRONT-BAR;" +
        text + ";");
    for (std::string name, value; std::getline(fields, name, '=') && getline(fields, value, ';');) {
        if (const auto nul = value.find("\\0"); nul != value.npos)
            value.replace(nul, 2, 1, '\0');
        for (const records::CardField &field : records::kCardFields)
            if (field.name == name)
                record.set(field, value == "~" ? std::string(field.length, '\0') : value);
    }
    if (record.text(records::CCEncoded) == "1")
        records::encodeCardNumber(record);
    return record;
}

/// "empty" is a slot that was never filled.
inline std::string slotOf(const std::string &text)
{
    return text == "empty" ? std::string(500, '\0')
                           : std::string(recordOf(text).view()) + std::string(10, '\0');
}

struct Story : PendingView, details::EntryView, platform::Dialogs {
    /// With `earlier`, another process on its drives. A grey story has none of the later screens.
    explicit Story(const Story *earlier = nullptr, bool grey = false)
        : Dialogs(station.run), station(support::VirtualTime::kDefaultStart,
                                        earlier == nullptr ? nullptr : &earlier->station),
          list(app, printer, *this, grey ? PendingRoutes() : routes())
    {
        station.system.executable = "TndrMGR";
        station.run.reportFailure = [this](const std::string &text) { systemMessage(text); };
        for (const char *folder : {"F:\\Lumbrio\\data\\CCdata", "C:\\Lumbrio\\Data\\CCmgrLOGS",
                                   "C:\\Lumbrio\\data\\CCdata"})
            station.folder(folder);
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.Remotedir = "F:\\Lumbrio\\";
        app.values.ReceiptPrinterName = "Receipt";
        app.values.config.set(records::kBusinessName, "The Harbour Table");
    }
    PendingRoutes routes()
    {
        const auto way = [this](const char *to) {
            return [this, to] { happened += std::string("to ") + to + slots() + "\n"; };
        };
        return {way("archive"), way("totals by server"), way("totals by terminal"),
                way("totals by type")};
    }

    /// Does it, and tells what happened.
    std::string press(const std::string &command);
    std::string show(const std::string &what) const;

    std::string get(const std::string &path) const
    {
        return station.has(path) ? station.get(path) : std::string();
    }
    std::vector<records::CardRecord> records(const std::string &path) const
    {
        const std::string bytes = get(path);
        std::vector<records::CardRecord> all(bytes.size() / 500);
        for (std::size_t i = 0; i < all.size(); ++i)
            std::copy_n(bytes.data() + i * 500, 490, all[i].data().data());
        return all;
    }
    /// The slots of the rows shown.
    std::string slots() const
    {
        std::string text;
        for (const ListRow &row : list.rows())
            text += " " + std::to_string(row.slot);
        return text;
    }

    void refresh(const PendingFields &fields) override
    {
        if (fields.SSPanel1_0Visible && panel != fields.SSPanel1_0)
            happened += "panel: " + fields.SSPanel1_0 + "\n";
        panel = fields.SSPanel1_0Visible ? fields.SSPanel1_0 : "";
    }
    void showRows(const ListRows &) override {}
    void rowsColoured() override {}
    void selectRow(long row) override { happened += "selected " + std::to_string(row) + "\n"; }
    void paintNow() override { ++paints; }
    void setBusyPointer(bool) override {}
    void showEntry(const std::string &file, long slot) override
    {
        happened += "entry " + file + " " + std::to_string(slot) + "\n";
        entry.open(file, slot, "PEND");
    }
    bool closeEntry() override { return entry.closeForRewrite(); }
    void refresh(const details::EntryFields &) override {}
    void focusTip() override {}
    std::optional<std::string> choosePrinter(const std::vector<std::string> &,
                                             const std::string &) override
    {
        return {};
    }
    void unload() override { happened += "entry closed\n"; }
    platform::Answer ask(const std::string &title, const std::string &text,
                         platform::Buttons buttons) override
    {
        happened += "[" + title + "] " + text + "\n";
        app.yield();
        return buttons == platform::Buttons::Ok ? platform::Answer::Ok : answer;
    }
    std::optional<std::string> askText(const std::string &title, const std::string &text,
                                       const std::string &initial, bool) override
    {
        happened += "[" + title + "] " + text + " (" + initial + ")\n";
        return typed;
    }

    static constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
    static constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";
    static constexpr const char *kDeleted = "F:\\Lumbrio\\data\\0125CCdeleted.dat";
    static constexpr const char *kLog = "C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt";

    support::TestStation station;
    records::App app{{station.run, station.files, station.time, *this, station.system,
                      station.printers, station.installation}};
    printing::Printer printer{station.printers};
    platform::Answer answer = platform::Answer::Ok;
    std::optional<std::string> typed;
    std::string happened;
    std::string panel;
    int paints = 0;
    std::size_t logSeen = 0;
    std::unique_ptr<Story> other; // another station
    std::unique_ptr<platform::SlotFile> held;
    Pending list;
    details::EntryDetails entry{app, printer, *this, list.entryCallbacks()};
};

} // namespace pending
