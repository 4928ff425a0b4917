// TenderEnd: how every tender ends. The point of sale gets its answer, the operator reads what he
// has to know, and the program ends.
#pragma once

#include "printing/printer.h"
#include "records/app.h"
#include "tender/answer.h"
#include "tender/display.h"

#include <functional>
#include <string>
#include <vector>

namespace tender {

class TenderEnd {
public:
    /// `theStopTimers` is called before the operator reads anything: no timer may start something
    /// then.
    TenderEnd(records::App &theApp, printing::Printer &thePrinter, Display &theDisplay,
              std::function<void()> theStopTimers);

    /// From the bank's word to the answer no command may end the tender.
    void begin() { isBegun = true; }
    bool begun() const { return isBegun; }

    /// Writes the answer. Where it does not stand, a notice says so at the end.
    void answer(const std::string &content);
    /// The same, with a line for each value in "TRACELOG.TXT".
    void answerTraced(const std::string &content);
    bool answerFlushed() const { return file.flushed(); }

    /// Nobody knows what the bank has said: the card may be charged. The point of sale has no word
    /// for that, `declined` is the answer that it gets; no record is made, for it would read as a
    /// decline. What the bank wrote to `result` stays there. `what` is for the operator, `reason`
    /// says why. Ends the tender.
    void unknown(const std::string &result, const char *what, const char *reason,
                 const std::string &declined);
    /// Leaves the end to the operator, who reads the notices first.
    void leaveToOperator();
    /// Closes, and so prints, a print job that is still open, shows the notices and ends the
    /// program; in failure where no answer stands. Record and answer are written by then, so that
    /// nothing waits for whoever reads.
    void close();

    /// For what somebody has to know once record and answer are done with.
    std::vector<platform::Notice> notices;

private:
    void showNotices();

    records::App &app;
    printing::Printer &printer;
    Display &display;
    std::function<void()> stopTimers;
    Answer file;
    bool isBegun = false;
};

} // namespace tender
