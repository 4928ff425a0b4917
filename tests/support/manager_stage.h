// ManagerStage: the words of stories about the manager's program, for its first screen, its list
// and an entry of it. The person is at the station with the files on F: and the log on C:.
#pragma once

#include "details/entry_details.h"
#include "manager/manager_start.h"
#include "pending/pending.h"
#include "story/stage.h"

#include <set>

namespace support {

class ManagerStage : public HasStation,
                     public story::Stage,
                     public manager::ManagerStartView,
                     public pending::PendingView,
                     public details::EntryView {
public:
    /// With `share`, another process on its drives. A grey one has none of the later screens.
    /// `callbacks` are those of an entry that the list has not opened.
    explicit ManagerStage(const TestStation *share = nullptr, bool grey = false,
                          const details::EntryCallbacks &callbacks = {});

    using HasStation::station;
    static constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
    static constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";
    static constexpr const char *kDeleted = "F:\\Lumbrio\\data\\0125CCdeleted.dat";

    /// Five slots: a settled record, a declined one, an empty one, one of yesterday with bytes
    /// after it, and one whose status begins with a blank.
    static std::string evening();

    records::App app{HasStation::station.services};
    printing::Printer printer{HasStation::station.printers};
    pending::Pending list;
    details::EntryDetails entry;
    manager::ManagerStart start;

protected:
    void boxShown(Words box) override;
    void lineDone() override;
    /// The files of the drives, but not logs and locks: paths, sizes, and the records of those that
    /// are not as the script has put them.
    std::vector<story::Section> leftBehind() override;

    void say(Words line);
    void gather(Words what);
    /// The receipts of a card file in order, each with the fields that are not as they were placed.
    std::string recordsOf(Words path, Words before) const;

    bool entryOpen = false;
    details::EntryFields shown; // of the entry
    int busy = 0;
    std::vector<std::function<void()>> pressedOfEntry; // all of its commands
    std::map<std::string, std::string> placed;         // card files, by the script
    std::unique_ptr<ManagerStage> other;               // another station on these drives

private:
    void furnish();
    pending::PendingRoutes routes();
    void addCardWords();
    void addStationWords();
    void addListWords();
    void addEntryWords();
    void place(Words bytes);
    void look(Words what);
    std::string logNow() const;
    story::Lines files() const;

    void refresh(const pending::PendingFields &fields) override;
    void refresh(const details::EntryFields &fields) override;
    void refresh(const manager::ManagerStartFields &fields) override;
    void showRows(const reports::ListRows &) override {}
    void rowsColoured() override {}
    void selectRow(long row) override { gather("row " + std::to_string(row + 1) + " selected"); }
    void showEntry(const std::string &file, long slot) override;
    bool closeEntry() override { return entry.closeForRewrite(); }
    void focusTip() override { gather("the tip has the focus"); }
    std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                             const std::string &proposed) override;
    void paintNow() override { ++paints; }
    void setBusyPointer(bool on) override { busy += on ? 1 : -1; }
    void SetTopMostWindow(bool) override {}
    void hide() override {}
    void unload() override;

    std::set<std::string> atFirst; // files and folders
    std::string notice;
    std::string status;
    std::string gathered; // since the last line
    int paints = 0;
    std::size_t logSeen = 0;
    std::size_t soundsHeard = 0;
    std::uint64_t lineBegan = 0;
    bool endTold = false;
};

} // namespace support
