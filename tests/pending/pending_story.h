// PendingStory: a manager's night at the list, told in virtual time on a station whose shared
// directory holds the records that the test writes down.
#pragma once

#include "pending/pending.h"
#include "records/card_files.h"
#include "support/test_station.h"

#include <algorithm>
#include <sstream>

namespace pending {

/// The view of the list whose window is what was asked of it.
class FakePendingView : public PendingView {
public:
    void refresh(const PendingFields &fields) override
    {
        if (fields.SSPanel1_0Visible && (panels.empty() || panels.back() != fields.SSPanel1_0))
            panels.push_back(fields.SSPanel1_0);
        if (fields.Label19 != "" && (read.empty() || read.back() != fields.Label19))
            read.push_back(fields.Label19);
        if (onRefresh)
            onRefresh(fields);
    }
    void showRows(const ListRows &rows) override { shown = &rows; }
    void rowsColoured() override {}
    void selectRow(long index) override { selected.push_back(index); }
    void paintNow() override {}
    void setBusyPointer(bool) override {}
    void showEntry(const std::string &file, long slot) override
    {
        entries.push_back(file + " " + std::to_string(slot));
    }

    std::vector<std::string> panels; // every text of the status panel, in order
    std::vector<std::string> read;   // every progress
    std::vector<std::string> entries;
    std::vector<long> selected;
    const ListRows *shown = nullptr;
    std::function<void(const PendingFields &)> onRefresh;
};

/// A record from "field=text;field=text", on top of an approved one of tonight over 20.00. "\0" is
/// a NUL, "field=~" the NULs of a field never assigned; "CCEncoded=1" scrambles the number.
inline records::CardRecord recordOf(const std::string &text)
{
    records::CardRecord record;
    const auto set = [&](const std::string &name, std::string value) {
        const auto field =
            std::find_if(records::kCardFields.begin(), records::kCardFields.end(),
                         [&](const records::CardField &known) { return known.name == name; });
        EXPECT_NE(field, records::kCardFields.end()) << name;
        for (auto at = value.find("\\0"); at != std::string::npos; at = value.find("\\0"))
            value.replace(at, 2, 1, '\0');
        record.set(*field, value == "~" ? std::string(field->length, '\0') : value);
    };
    std::istringstream fields(
        "CCNumb=4111111111111111;CCEncoded=0;CCServer=7;CCTabAmt=20.00;CCApprovedAmt=0;CCTip=0;"
        "CCReceipt=1;CCAdjStatus=Not Adjusted;CCstatus=Approved;CApprovalCode=004711;"
        "CCDate=01/15/25;CCTime=01:05 PM;CCStation=FRONT-BAR;" +
        text);
    for (std::string field; std::getline(fields, field, ';');)
        set(field.substr(0, field.find('=')), field.substr(field.find('=') + 1));
    if (record.text(records::CCEncoded) == "1")
        records::encodeCardNumber(record);
    return record;
}

struct PendingStory {
    explicit PendingStory(const std::vector<std::string> &pending = {}, PendingRoutes routes = {})
        : list(app, printer, view, std::move(routes))
    {
        station.system.executable = "TndrMGR";
        station.folder("F:\\Lumbrio\\data\\CCdata");
        station.folder("C:\\Lumbrio\\Data\\CCmgrLOGS");
        station.folder("C:\\Lumbrio\\data\\CCdata");
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.Remotedir = "F:\\Lumbrio\\";
        if (!pending.empty())
            station.put(kPending, slots(pending));
    }

    /// Another process on the drives of `earlier`, which must live on.
    PendingStory(const PendingStory &earlier, int)
        : station(&earlier.station), list(app, printer, view)
    {
        app.values = earlier.app.values;
    }

    static std::string slots(const std::vector<std::string> &records)
    {
        std::string bytes;
        for (const std::string &text : records)
            bytes += text == "empty" ? std::string(500, '\0')
                                     : std::string(recordOf(text).view()) + std::string(10, '\0');
        return bytes;
    }
    std::vector<records::CardRecord> records(const std::string &path) const
    {
        const std::string bytes = station.has(path) ? station.get(path) : "";
        std::vector<records::CardRecord> all(bytes.size() / 500);
        for (std::size_t i = 0; i < all.size(); ++i)
            std::copy_n(bytes.data() + i * 500, 490, all[i].data().data());
        return all;
    }
    /// One field of all records: "1 2 3 ".
    std::string fieldOf(const std::string &path, const records::CardField &field) const
    {
        std::string texts;
        for (const records::CardRecord &record : records(path))
            texts += record.text(field) + " ";
        return texts;
    }
    std::string receipts(const std::string &path) const
    {
        return fieldOf(path, records::CCReceipt);
    }
    std::string slotsShown() const
    {
        std::string shown;
        for (const ListRow &row : list.rows())
            shown += std::to_string(row.slot) + " ";
        return shown;
    }
    std::string log() const { return station.has(kLog) ? station.get(kLog) : ""; }

    static constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
    static constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";
    static constexpr const char *kDeleted = "F:\\Lumbrio\\data\\0125CCdeleted.dat";
    static constexpr const char *kMarker = "F:\\Lumbrio\\ServerISBatching.dat";
    static constexpr const char *kLog = "C:\\Lumbrio\\Data\\CCmgrLOGS\\012025MGRlog.txt";

    support::TestStation station;
    records::App app{station.services};
    printing::Printer printer{station.printers};
    FakePendingView view;
    Pending list;
};

} // namespace pending
