// Local requests: the files that a tender exchanges with the payment server in its folder
// "LocalTran\", when the payment application is not started by a command line.
#pragma once

#include "platform/clock.h"
#include "records/app.h"

#include <string>
#include <string_view>

namespace tender {

/// The three names of one exchange; each station and second has its own.
struct LocalFiles {
    std::string work;    // ".tmp", written first
    std::string request; // ".req", appears whole
    std::string answer;  // ".ans", by the payment server
    bool set() const { return !work.empty(); }
};

/// The folder of the exchange, with its backslash.
std::string localFolder(const records::ProcessValues &values);

/// The kind of a file that a tender of this station has left in that folder.
enum class LeftOver { None, Request, Answer };

/// Judged by the station's whole name, the twelve digits of the moment and the ending. A work file
/// counts as a request, for it holds one.
LeftOver leftOverOf(const records::ProcessValues &values, std::string_view name);

LocalFiles localFiles(const records::ProcessValues &values, const platform::DateTime &now);

/// The eight values; blank ones take their defaults when the line is made.
struct LocalRequest {
    bool charge = false;  // "C6", else "C1"
    std::string server;   // "9999"
    std::string receipt;  // "999"
    std::string number;   // "99999999999999"
    std::string cardText; // the whole track of a swipe, the expiry of a typed card; "9999"
    std::string amount;   // "1.00"
    std::string verify;   // of a typed card only; left out when blank or "000"
    bool typed = false;

    ~LocalRequest(); // wipes the card
};

/// `text`, or `fallback` where it is blank.
std::string orDefault(const std::string &text, const char *fallback);

/// One delimited line of 7 values, or 8 with the verification digits of a typed card.
std::string requestLine(const LocalRequest &request);

/// The amount as the request sends it: mask "#######.##", a value of 0 becomes "1.00".
std::string localAmount(std::string_view amount);

/// The one value of an answer file; empty when there is none. A card number in it is masked, since
/// the value goes into traces, the record and the answer for the point of sale.
std::string answerText(std::string_view content);

/// True for an answer that begins with a letter for yes or no. Any other text may be the first
/// bytes of an answer that is still being written.
bool namesOutcome(std::string_view answer);

/// "Approved" for an answer that begins with "Y", else "Declined"; capitals count.
std::string outcomeWord(std::string_view answer);

} // namespace tender
