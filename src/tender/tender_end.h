// TenderEnd: how every tender ends. The point of sale gets its answer, the operator reads the
// notices, and the program ends.
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
    /// `theStopTimers` is called before the notices are shown: no timer may fire while they are
    /// read.
    TenderEnd(records::App &theApp, printing::Printer &thePrinter, Display &theDisplay,
              std::function<void()> theStopTimers);

    /// From the bank's word to the answer no command may end the tender.
    void begin() { isBegun = true; }
    bool begun() const { return isBegun; }

    /// Writes the answer. When that fails, a notice says so at the end.
    void answer(const std::string &content);
    /// The same, with a line for each value in "TRACELOG.TXT".
    void answerTraced(const std::string &content);
    bool answerFlushed() const { return file.flushed(); }

    /// Ends a tender whose outcome is unknown: the card may be charged. The point of sale has no
    /// word for that and gets `declined`. No record is made, since it would read as a decline. The
    /// file `result` of the bank stays. `what` is for the operator, `reason` says why.
    void unknown(const std::string &result, const char *what, const char *reason,
                 const std::string &declined);
    /// Leaves the end to the operator, who reads the notices first.
    void leaveToOperator();
    /// Closes, and so prints, a print job that is still open, shows the notices and ends the
    /// program, in failure when there is no answer. Record and answer are written by then, so that
    /// nothing waits until the notices are read.
    void close();

    /// Shown after record and answer are written.
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
