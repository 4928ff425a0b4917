// The reader of the payment application's result file "xResultFile.txt": one item a line, plain
// ("KEY=value") or tagged ("<RESULT_KEY>value"), into the working record.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>
#include <vector>

namespace tender {

inline constexpr const char *kDefaultResultFile = "c:\\Lumbrio\\xResultFile.Txt";

/// Tries every row of the reader's table on one line (trimmed here; an empty one is skipped) and
/// sets the fields it names. Keys compare exactly. A fixed-length value takes what is there, a
/// closing tag included.
void applyResultLine(std::string_view line, records::CardRecord &CCdata);

/// The outcome of reading a result.
struct ReadResult {
    platform::Outcome outcome = platform::Outcome::Broken;
    bool longer = false;       // than records::kExchangeLimit
    bool namesOutcome = false; // a line of it says approved or declined
    std::vector<std::string> lines;
    std::string mark; // of the bytes that were read, see evidence.h

    /// The bank's word is unknown: it may be yes or no.
    bool unreadable() const { return !done(outcome) || (longer && !namesOutcome); }
    /// Why it is unreadable.
    const char *reason() const
    {
        return longer ? "longer than a result can be" : platform::textOf(outcome);
    }
};

/// Reads the file `name` into `CCdata`, within the bounds of records::readExchange(): keeps a copy
/// as "C:\Lumbrio\ResponseBACKUP.txt" first, sets `GCbalance` to "0", applies every line, traces
/// all of them and writes the debug file "c:\Lumbrio\XLMread.txt". A reading that fails is tried
/// again (platform::Wait::Result). Never deletes the result file. Errors are ignored: a file that
/// says nothing leaves the fields as they were.
ReadResult readResultFile(records::App &app, const std::string &name);

/// The 22 lines of "XLMread.txt" in their fixed order.
std::string resultDebugFile(const records::CardRecord &CCdata);

} // namespace tender
