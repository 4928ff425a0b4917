// Tender: the procedures of the tender role, from the point of sale's "Xsend.req" to "Xsend.ans".
// One object lives for one card attempt. It knows no window: it works on App, on the pen of the
// slips and on the narrow view of its screen.
#pragma once

#include "platform/clock.h"
#include "printing/printer.h"
#include "records/app.h"
#include "tender/tender_fields.h"
#include "tender/tender_view.h"

#include <string>

namespace tender {

class Tender {
public:
    Tender(records::App &theApp, printing::Printer &thePrinter, TenderView &theView);

    /// Load of the tender screen: starts the trace "CCLastProcess.dat" and arms the 100 ms timer
    /// that runs Start_Tender. As a helper of another role it is called without that timer.
    void Form_Load();
    /// Reads configuration and "Xsend.req" and fills the fields; in command-line mode it goes
    /// straight on to Run_Xcharge. Runs once. In any role but the tender's it never writes an
    /// answer, shows a message or ends the program.
    void Start_Tender();
    /// Starts the payment application, waits for its result file, stores the record, prints and
    /// answers. Ends the program in all outcomes but a "T" result and a stopped wait.
    void Run_Xcharge();

    void SSCommand1_Click();           // "Cancel"
    void SSCommand2_Click();           // "Finish Tender"
    void SSCommand7_Click();           // "NO" / "YES", slip with gratuity
    void SSCheck1_Click(bool checked); // "Do not print a RECEIPT for Customer"
    void SSPanel2_Click();             // the wait panel's notice goes away

    const TenderFields &state() const { return fields; }

private:
    // start_tender.cpp
    void prepareForCommandLine();
    void readConfiguration();
    void showOptions();
    bool serverIsBatching();
    bool readRequest();
    void requestMissing();
    void traceStart();
    void fillFields();
    void showGratuity();
    bool refuseZeroAmount();
    void showCardMask();
    void waitForCard();
    bool isTenderRole() const;
    bool isStationRole() const;

    // set_data.cpp
    void Set_Data();

    // run_xcharge.cpp
    bool paymentProgramMissing();
    bool auditRefused();
    void traceRequest(const std::string &commandLine);
    bool waitForResult(const std::string &commandLine);
    void readResult();
    void judgeResult();

    // outcomes.cpp
    void approved();
    void partiallyApproved();
    void declined(const std::string &word);
    void storeRecord(const std::string &file);
    void printSlips();
    void printPartialSlips();
    void writeAnswer(const std::string &content);
    void traceAnswer();
    void deleteAudit();
    void endTender();

    // waits.cpp
    void startCounting();
    void setLabel7(int count);
    void Timer2_Timer();
    void Timer5_Timer();
    void Show_Offline_Panel();
    void status(const std::string &text);
    void show();

    records::App &app;
    printing::Printer &printer;
    TenderView &view;
    TenderFields fields;
    std::string sentTable;  // the request's four values as read
    platform::Timer Timer2; // during the wait
    platform::Timer Timer3; // 100 ms after the first paint
    platform::Timer Timer5; // after a "T" result
    std::string monthFile;
    std::string deletedFile;
    std::uint32_t startTick = 0;
    long transRecord = 0; // slot of the record in its file
};

} // namespace tender
