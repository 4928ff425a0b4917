// Tender: the procedures of the tender role, from the point of sale's "Xsend.req" to "Xsend.ans".
// One object lives for one card attempt. It knows no window: it works on App, on the pen of the
// slips and on the narrow view of its screen.
#pragma once

#include "platform/clock.h"
#include "printing/printer.h"
#include "tender/answer.h"
#include "tender/card_capture.h"
#include "tender/display.h"
#include "tender/server_exchange.h"
#include "tender/tender_record.h"
#include "tender/tender_slips.h"
#include "tender/tender_wait.h"
#include "tender/xcharge_payment.h"

#include <string>
#include <vector>

namespace tender {

class Tender {
public:
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

    // What was typed into a swipe box; passed over while no card is awaited.
    void takeFirstTrack(const std::string &typed) { capture.takeFirstTrack(typed); }
    void takeSecondTrack(const std::string &typed) { capture.takeSecondTrack(typed); }

    void cancel();                                    // "Cancel"
    void finishTender();                              // "Finish Tender"
    void enterManually() { capture.enterManually(); } // "Enter Manually"
    void clearSwipe() { capture.clearSwipe(); }       // "Clear"
    void openSetup();                                 // "CONFIG"
    void showDigits() { capture.showDigits(); }       // "View"
    void switchGratuitySlip();                        // "NO" / "YES": slip with gratuity
    void askForOfflineApproval();                     // "YES", approve offline
    void keepWaiting();                               // "NO", go on waiting
    void offerRemoval();             // the warning panel: remove the payment application
    void startPaymentServer();       // "Start Xcharge", the payment server
    void setNoReceipt(bool checked); // "Do not print a RECEIPT for Customer"
    /// The hidden way out of "File Server Busy" when a batch has died: deletes the batch marker.
    void deleteBatchMarker();

    const TenderFields &state() const { return fields; }

protected:
    /// Called at counts 20, 60, 120 and 180 of a wait. Deliberately empty: nothing brings the
    /// offline panel on screen, so that the wait stays a plain wait. One line here,
    /// showOfflinePanel(), switches it on.
    virtual void Show_Offline_Panel();
    void showOfflinePanel();

private:
    // start_tender.cpp
    void startOnce();
    bool findDirectories();
    void readModeFlag();
    bool anotherTenderLives();
    void freeAnswer();
    void clearWhatOthersLeft();
    void storeKept();
    void prepareForCommandLine();
    void readConfiguration(bool iniLocked);
    void showOptions();
    void assumeSwipe();
    bool serverIsBatching();
    bool readRequest();
    void requestMissing();
    void traceStart();
    void fillFields();
    void showGratuity();
    bool refuseZeroAmount();
    void showFlags();
    void waitForCard();
    bool isTenderRole() const;
    bool isStationRole() const;

    // set_data.cpp
    void Set_Data();

    // approval_engine.cpp
    LocalRequest fillRequest();
    void requestNotPlaced(platform::Outcome outcome);
    void traceLocalRequest(const LocalRequest &request);
    bool waitForAnswer();
    bool noAnswer();
    bool readAnswer();
    void judgeAnswer();
    void answerDealtWith();

    // offline.cpp
    bool cardIsKnown() const;
    bool answerHasCome();
    /// Before a wait is given up.
    struct LastLook {
        bool there = false;            // the bank's word, after all
        const char *unknown = nullptr; // or what cannot be told,
        const char *reason = nullptr;  // and why
    };
    LastLook lookLast();
    std::string answerOfPayment() const;
    void approveOffline();
    void Hide_Offline_Panel();

    // run_xcharge.cpp
    void nameMonthFiles();
    bool paymentProgramMissing();
    bool auditRefused(bool localPath);
    void startWait();
    bool oldResultRemains();
    bool waitForResult();
    void waitStopped();
    ReadResult readResult();
    void judgeResult();

    // outcomes.cpp
    void approved();
    void partiallyApproved();
    void declined();
    void stayForOperator();
    std::string chooseTarget();
    void offlineNotStored();
    void outcomeUnknown(const std::string &result, const char *what, const char *reason);
    void writeAnswer(const std::string &content);
    void resultDealtWith();
    void finish();
    void showNotices();
    void endTender();

    records::App &app;
    printing::Printer &printer;
    Display display;
    TenderFields &fields = display.fields;
    TenderWait wait;
    ServerExchange server{app};
    XchargePayment payment{app};
    ManagerStep manager{app, display};
    CardCapture capture;
    platform::Timer startTimer; // 100 ms after the load
    std::string target;         // month file of this run's first step, kept over midnight
    std::string declineTarget;  // deleted file of the same month
    std::string sentTable;      // values of "Xsend.req" until the fields show them
    std::string sentReceipt;
    std::string sentAmount;
    Gratuity gratuity;
    bool answering = false; // from the result to the answer nothing may end the tender
    std::vector<platform::Notice> notices; // for when record and answer are done with
    TenderRecord record{app, notices};
    Answer answer{app};
};

} // namespace tender
