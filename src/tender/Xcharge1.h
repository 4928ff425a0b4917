// Xcharge1: the tender screen, "Xcharge Credit Card Interface". It shows the tender's fields and
// hands its commands to the tender, which it owns; one screen lives for one card attempt.
#pragma once

#include "platform/qt/screen.h"
#include "tender/tender.h"
#include "tender/tender_view.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>

class QLabel;
namespace Ui {
class Xcharge1;
}

namespace tender {

class Xcharge1 : public platform::Screen, private TenderView {
    Q_OBJECT

public:
    /// `app` and `printer` must outlive the screen.
    Xcharge1(records::App &theApp, printing::Printer &printer);
    ~Xcharge1() override;

    /// These show screens of a higher room; empty while there is no such screen.
    std::function<void()> onSetup;
    std::function<void()> onRemoval;

protected:
    void Form_Load() override;
    void closeAsked() override;

private:
    void gatherArrays();
    void connectCommands();

    // TenderView
    void refresh(const TenderFields &fields) override;
    void focus(TenderBox box) override;
    void showServerBusy() override;
    std::optional<TypedCard> askCard() override;
    void askManager(const std::string &what, const std::string &amount) override;
    void showSetup() override;
    void removePaymentApplication() override;

    void keepShown(const TenderFields &fields);
    void showTender(const TenderFields &fields);
    void showCard(const TenderFields &fields);
    void showState(const TenderFields &fields);
    void showPanels(const TenderFields &fields);
    void showCommands(const TenderFields &fields);
    void showOptions(const TenderFields &fields);

    records::App &app;
    std::unique_ptr<Ui::Xcharge1> ui;
    std::array<QLabel *, 16> Label3{}; // 7 and 11 are not used
    std::optional<TenderFields> shown;
    Tender tender; // last: it uses this view until it is destroyed
};

} // namespace tender
