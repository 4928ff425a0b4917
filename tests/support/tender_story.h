// TenderStory: a tender at the station of a small restaurant, told in virtual time. The test plays
// the point of sale, the payment application and the operator.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "support/card_text.h"
#include "support/test_station.h"
#include "tender/tender.h"

namespace support {

/// The view of a tender whose window is a list of what was asked of it.
class FakeTenderView : public tender::TenderView, public platform::WindowlessView {
public:
    void refresh(const tender::TenderFields &fields) override
    {
        if (fields.status != status.back())
            status.push_back(fields.status);
        if (onRefresh)
            onRefresh(fields);
    }
    void focus(tender::TenderBox) override {}
    void hide() override { hidden = true; }
    void showServerBusy() override
    {
        if (onBusy)
            onBusy();
    }

    std::optional<tender::TypedCard> askCard() override { return typedCard; }
    void askManager(const std::string &what, const std::string &amount) override
    {
        asked.push_back(what + " " + amount);
        if (onManager)
            onManager();
    }
    void showSetup() override { asked.push_back("setup"); }
    void removePaymentApplication() override { asked.push_back("remove"); }

    std::optional<tender::TypedCard> typedCard; // of the manual entry; none is its "Cancel"
    std::vector<std::string> asked;
    std::function<void()> onManager;        // fills `managerResult`
    std::vector<std::string> status = {""}; // every status line, in order
    std::function<void(const tender::TenderFields &)> onRefresh;
    std::function<void()> onBusy;
    bool hidden = false;
};

/// A tender whose offline panel comes on screen where the count says so, when the story wants it.
class StoryTender : public tender::Tender {
public:
    using Tender::Tender;
    bool offlinePanel = false;

protected:
    void Show_Offline_Panel() override
    {
        Tender::Show_Offline_Panel();
        if (offlinePanel)
            showOfflinePanel();
    }
};

/// What the payment application answers by default.
std::string approvedResult();

class TenderStory {
public:
    /// The station with its files: configuration, options, mode flag, payment application,
    /// employees, and a request for table 12, receipt 1043, server 7, 48.50.
    TenderStory();
    /// The same station, one process later; with `lives` 0 the earlier one has died.
    explicit TenderStory(TenderStory &earlier, int lives);

    /// Writes "LumbrioINI.dat" with this field on top of what the station has.
    void configure(int field, const std::string &text);
    void request(const std::string &content) { station.put("C:\\Lumbrio\\Xsend.req", content); }
    /// The payment application writes this result so long after it was started.
    void paymentAnswers(const std::string &result, std::uint64_t afterMilliseconds = 3000);
    void paymentKeepsSilent() { station.system.onStart = {}; }

    /// No command line from here on: the screen takes the card, and a payment server takes each
    /// request and answers it with `reply`; without one it lets the request lie.
    void takeCardsHere();
    void swipe(const std::string &first = kTrack1, const std::string &second = kTrack2,
               std::uint64_t at = 500);
    /// Files of the exchange with the server that lie there.
    std::vector<std::string> left() const { return TestStation(&station).files.list(kLocalTran); }
    std::optional<std::string> reply = "\"YA12345\"\r\n";
    std::uint64_t replyAfter = 2000;   // ms
    std::vector<std::string> requests; // as the server took them

    /// Form_Load, then turns until the program ended or so much time has passed. A wait that is
    /// still going on then is ended from outside, with `stillWaiting` set.
    void run(std::uint64_t limit = 60'000);
    bool stillWaiting = false;
    void pass(std::uint64_t milliseconds) { station.advance(milliseconds); }

    std::string answer() const { return station.get("C:\\Lumbrio\\Xsend.ans"); }
    bool answered() const { return station.has("C:\\Lumbrio\\Xsend.ans"); }
    std::string processTrace() const { return station.get("C:\\Lumbrio\\CCLastProcess.dat"); }
    /// Records of a file; none when it is not there.
    std::vector<records::CardRecord> records(const std::string &path) const
    {
        return recordsIn(station.getIfThere(path));
    }
    std::vector<records::CardRecord> pending() const { return records(kPending); }
    /// All slips as plain text, in their order.
    std::string slips() const;

    static constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
    static constexpr const char *kResult = "C:\\lumbrio\\xResultFile.txt";
    static constexpr const char *kMarker = "F:\\Lumbrio\\ServerISBatching.dat";
    static constexpr const char *kModeFlag = "C:\\Lumbrio\\X1009Version.dat";
    static constexpr const char *kLocalTran = "c:\\Program Files\\X-Charge\\LocalTran\\";
    static constexpr const char *kTrack1 =
        "%B4111111111111111^TEST/ROSALIND A^28091010000000000000?";
    static constexpr const char *kTrack2 = ";4111111111111111=28091010000000000?";

    TestStation station;
    records::App app{station.services};
    printing::Printer printer{station.printers};
    FakeTenderView view;
    StoryTender tender{app, printer, view};

private:
    void serve();

    bool running = false;
    records::LumbrioConfig config;
};

} // namespace support
