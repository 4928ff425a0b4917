// Tender: the procedures of the tender role, from the point of sale's "Xsend.req" to "Xsend.ans".
// One object lives for one card attempt. It knows no window: it works on App, on the pen of the
// slips and on the narrow view of its screen. Its parts are declared in the headers below.
#pragma once

#include "platform/clock.h"
#include "printing/printer.h"
#include "tender/card_capture.h"
#include "tender/display.h"
#include "tender/manager_step.h"
#include "tender/outcomes.h"
#include "tender/request.h"
#include "tender/server_exchange.h"
#include "tender/tender_end.h"
#include "tender/tender_wait.h"
#include "tender/xcharge_payment.h"

#include <string>

namespace tender {

class Tender {
public:
    /// All three must outlive the tender.
    Tender(records::App &theApp, printing::Printer &thePrinter, TenderView &theView);
    virtual ~Tender() = default;

    /// Load of the tender screen: restarts the trace "CCLastProcess.dat" and arms the 100 ms timer
    /// that runs Start_Tender. Errors are ignored.
    void Form_Load();
    /// Reads configuration and "Xsend.req" and fills the fields; in command-line mode it goes
    /// straight on to Run_Xcharge. Runs once. In any role but the tender's it never writes an
    /// answer, shows a message or ends the program: it stops when the fields are filled.
    void Start_Tender();
    /// Starts the payment application, waits for its result file, stores the record, prints and
    /// answers. Ends the program in all outcomes but a "T" result and a stopped wait.
    void Run_Xcharge();
    /// Sends the card of the fields to the payment server as a file in "LocalTran\", waits for its
    /// answer, stores the record, prints and answers. Ends the program in all outcomes.
    void Approval_Engine();

    // The swipe boxes and the commands of the screen, see CardCapture for the first five.

    void takeFirstTrack(const std::string &typed) { capture.takeFirstTrack(typed); }
    void takeSecondTrack(const std::string &typed) { capture.takeSecondTrack(typed); }
    void enterManually() { capture.enterManually(); }
    void clearSwipe() { capture.clearSwipe(); }
    void showDigits() { capture.showDigits(); }
    /// Declines and ends the tender, but not when the bank's word has come. Where it may have come,
    /// the outcome is unknown.
    void cancel();
    void finishTender();
    /// Opens the card setup after a manager has agreed.
    void openSetup();
    void switchGratuitySlip();
    /// Asks a manager, who approves the card without the bank.
    void askForOfflineApproval();
    void keepWaiting();
    /// Warns, then removes the payment application.
    void offerRemoval();
    void startPaymentServer();
    /// Remembered in "CCnoPrint.dat" for later tenders.
    void setNoReceipt(bool checked);
    /// The hidden way out of "File Server Busy" when a batch has died: deletes the batch marker.
    void deleteBatchMarker();

    const TenderFields &state() const { return display.fields; }

protected:
    /// Called at counts 20, 60, 120 and 180 of a wait. Deliberately empty: nothing brings the
    /// offline panel on screen, so that the wait stays a plain wait. One line here,
    /// showOfflinePanel(), switches it on.
    virtual void Show_Offline_Panel();
    void showOfflinePanel();

private:
    // start_tender.cpp
    void startOnce();
    void startAsTender();
    bool prepareStation();
    void startAsHelper();
    bool anotherTenderLives();
    void configure(bool iniLocked);
    bool serverIsBatching();
    bool takeRequest(TenderRequest &request);
    void requestMissing();
    void showRequest(const TenderRequest &request);
    bool refuseZeroAmount();
    void stopTimers();

    // run_xcharge.cpp
    bool paymentProgramMissing();
    bool amountRefused(bool localPath);
    void startWait();
    bool oldResultRemains();
    bool waitForResult();
    void waitStopped();
    ReadResult readResult();
    void judgeResult(const ReadResult &read);
    void takeResult();
    void showResult(bool approved);

    // approval_engine.cpp
    void closeCapture();
    bool sendRequest();
    void requestNotPlaced(platform::Outcome outcome);
    void traceLocalRequest(const LocalRequest &request);
    bool waitForAnswer();
    bool noAnswer();
    bool readAnswer();
    void takeAnswer(const std::string &text);

    // commands.cpp
    void Hide_Offline_Panel();
    bool cardIsKnown() const;
    std::string unknownAnswer() const;
    std::string answerOfPayment() const;

    records::App &app;
    printing::Printer &printer;
    Display display;
    TenderFields &fields = display.fields;
    TenderWait wait;
    ManagerStep manager;
    CardCapture capture;
    ServerExchange server;
    XchargePayment payment;
    TenderEnd end;
    Outcomes outcomes;
    platform::Timer startTimer; // 100 ms after the load
};

} // namespace tender
