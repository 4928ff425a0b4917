// XchargeEntryDetals: one entry of a card file on the manager's screen. It shows the fields of the
// entry's procedures, which it owns, and hands its commands to them.
#pragma once

#include "details/entry_details.h"
#include "platform/qt/screen.h"

#include <array>
#include <memory>

class QAbstractButton;
class QLabel;
namespace Ui {
class XchargeEntryDetals;
}

namespace platform {
class Field;
class FittingEdit;
} // namespace platform

namespace details {

/// Not modal. Its owner destroys it with Screen::Later once it is unloaded, and makes a new one for
/// the next entry, so that what a password has revealed goes with it.
class XchargeEntryDetals : public platform::Screen, private EntryView {
    Q_OBJECT

public:
    /// `app` and `printer` must outlive the screen.
    XchargeEntryDetals(records::App &theApp, printing::Printer &printer, EntryCallbacks callbacks);
    ~XchargeEntryDetals() override;

    /// Shows slot `slot` of `file`, as EntryDetails::open() says, over the whole display and in
    /// front; also while another one is shown.
    void open(const std::string &file, long slot, const std::string &source);
    bool closeForRewrite() { return entry.closeForRewrite(); }

protected:
    void closeAsked() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void gatherArrays();
    void connectCommands();
    void connectTip();
    void disableChanges();
    void selectTip();
    bool dangerFocused() const;

    // EntryView
    void refresh(const EntryFields &fields) override;
    void focusTip() override;
    std::optional<std::string> choosePrinter(const std::vector<std::string> &names,
                                             const std::string &current) override;
    void unload() override;

    void showEntry(const EntryFields &fields);
    void showAmounts(const EntryFields &fields);
    void showTip(const EntryFields &fields);
    void showCardData(const EntryFields &fields);
    void showNotices(const EntryFields &fields);
    void showCommands(const EntryFields &fields);

    records::App &app;
    std::unique_ptr<Ui::XchargeEntryDetals> ui;
    std::array<platform::FittingEdit *, kBoxes> Text1{};
    std::array<platform::Field *, 5> amounts{}; // of kAmountBoxes
    std::array<QAbstractButton *, 15> SSCommand6{};
    std::array<QString, 15> quickNames; // of SSCommand6, without their amounts
    EntryDetails entry;                 // last: it refers to this view until it is gone
};

} // namespace details
