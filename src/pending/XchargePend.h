// XchargePend: "Pending Transactions", the manager's working list of "CCPending.dat". It shows the
// fields and rows of the list and passes its commands on. The window's cross is "Done".
#pragma once

#include "pending/pending.h"
#include "pending/pending_view.h"
#include "platform/qt/screen.h"

#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QAbstractButton;
class QLabel;
class QRadioButton;
namespace Ui {
class XchargePend;
}

namespace pending {

/// The window that shows one record.
struct EntryWindow {
    std::function<void(const std::string &file, long slot)> open;
    std::function<bool()> close; // as PendingView::closeEntry()
};

class XchargePend : public platform::Screen, private PendingView {
    Q_OBJECT

public:
    /// `app` and `printer` must outlive the screen.
    XchargePend(records::App &theApp, printing::Printer &printer, EntryWindow theEntry,
                PendingRoutes routes = {});
    ~XchargePend() override;

    /// "Refresh"; on a screen that is just being opened, as the end of its load.
    void fillList();
    /// For the entry that the list opens; they refer to this screen.
    details::EntryCallbacks entryCallbacks();

protected:
    void Form_Load() override;
    void closeAsked() override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void gatherArrays();
    void connectCommands();
    void connectRows();

    // PendingView
    void refresh(const PendingFields &fields) override;
    void showRows(const reports::ListRows &rows) override;
    void rowsColoured() override;
    void selectRow(long index) override;
    void showEntry(const std::string &file, long slot) override;
    bool closeEntry() override;
    std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                             const std::string &proposed) override;

    void showHeading();
    void showTotals(const PendingFields &fields);
    void showState(const PendingFields &fields);
    void showCommands(const PendingFields &fields);
    void showOptions(const PendingFields &fields);

    records::App &app;
    EntryWindow entry;
    std::unique_ptr<Ui::XchargePend> ui;
    std::array<QAbstractButton *, kCommands> SSCommand{}; // as Command names them
    std::array<QRadioButton *, 7> SSOption1{};            // what the list is sorted by
    std::array<QLabel *, 3> Label5{};                     // total tabs, total tips, grand total
    QString usualHint;
    std::optional<PendingFields> shown;
    bool formLoaded = false;
    bool fillAtLoad = false;
    Pending list; // last: it refers to this view until it is gone
};

} // namespace pending
