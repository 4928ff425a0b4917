// Story: a manager's night at the list. The test says what is in the shared directory, what the
// manager presses and what other stations do, and writes down all that happens.
#pragma once

#include "details/entry_commands.h"
#include "pending/pending.h"
#include "records/card_files.h"
#include "support/card_text.h"
#include "support/test_station.h"

namespace pending {

using support::recordOf;
using support::slotOf;

struct Story : PendingView, details::EntryView, platform::WindowlessView {
    /// With `earlier`, another process on its drives. A grey story has none of the later screens.
    explicit Story(const Story *earlier = nullptr, bool grey = false)
        : station(support::VirtualTime::kDefaultStart,
                  earlier == nullptr ? nullptr : &earlier->station),
          list(app, printer, *this, grey ? PendingRoutes() : routes())
    {
        station.system.executable = "TndrMGR";
        station.dialogs.noted = &happened;
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

    std::string get(const std::string &path) const { return station.getIfThere(path); }
    std::vector<records::CardRecord> records(const std::string &path) const
    {
        return support::recordsIn(get(path));
    }
    /// The slots of the rows shown.
    std::string slots() const
    {
        std::string text;
        for (const reports::ListRow &row : list.rows())
            text += " " + std::to_string(row.slot);
        return text;
    }

    void refresh(const PendingFields &fields) override
    {
        if (fields.noticeVisible && panel != fields.notice)
            happened += "panel: " + fields.notice + "\n";
        panel = fields.noticeVisible ? fields.notice : "";
    }
    void showRows(const reports::ListRows &) override {}
    void rowsColoured() override {}
    void selectRow(long row) override { happened += "selected " + std::to_string(row) + "\n"; }
    void paintNow() override { ++paints; }
    void showEntry(const std::string &file, long slot) override
    {
        happened += "entry " + file + " " + std::to_string(slot) + "\n";
        entry.open(file, slot, "PEND");
    }
    bool closeEntry() override { return entry.closeForRewrite(); }
    void refresh(const details::EntryFields &) override {}
    void focusTip() override {}
    std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                             const std::string &proposed) override
    {
        happened += std::to_string(names.size()) + " printers, " + proposed + "\n";
        return station.dialogs.typed;
    }
    void unload() override { happened += "entry closed\n"; }

    static constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
    static constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";
    static constexpr const char *kDeleted = "F:\\Lumbrio\\data\\0125CCdeleted.dat";
    static constexpr const char *kLog = "C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt";

    std::string happened;
    support::TestStation station;
    records::App app{station.services};
    printing::Printer printer{station.printers};
    std::string panel;
    int paints = 0;
    std::size_t logSeen = 0;
    std::unique_ptr<Story> other; // another station
    std::unique_ptr<platform::SlotFile> held;
    Pending list;
    details::EntryDetails entry{app, printer, *this, list.entryCallbacks()};
};

} // namespace pending
