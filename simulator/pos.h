// The point of sale's side of a tender: it leaves the request, starts "TndrCC", waits for its end
// and reads the answer.
#pragma once

#include "platform/files.h"
#include "simulator/process.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace simulator {

/// An installation in a drives folder, with the directories that its "LumbrioINI.dat" names.
struct Place {
    platform::Files &files;
    std::string Maindir;
    std::string Remotedir;
    std::string paymentDirectory; // of "CCard.dat", with its separator
};

/// The sandbox's directories if there is no configuration or it names none.
Place placeOf(platform::Files &files);

struct TenderRequest {
    std::string table;
    std::string receipt;
    std::string server;
    std::string amount;
    std::optional<std::string> audit; // the amount that the point of sale calculated
};

/// Writes "Xsend.req", and "XAudit.DAT" if there is one; removes an earlier answer and an earlier
/// audit, so that they are not mistaken for this tender's.
bool leaveRequest(const Place &place, const TenderRequest &request);

/// The values of "Xsend.ans" in their order, inside the quotes, with their blanks; empty without
/// the file.
std::vector<std::string> readAnswer(const Place &place);

/// A readable answer: the name and the value of each line. The number of lines shows which form it
/// is.
using AnswerLine = std::pair<std::string, std::string>;
std::vector<AnswerLine> namedAnswer(const std::vector<std::string> &answer);
/// The same as text; "no answer" for none.
std::string readableAnswer(const std::vector<std::string> &answer);

/// False if a tender would run without a visible window: nobody could swipe a card.
bool tenderIsSeen();

/// Starts the payment server as the tender does; it ends at once if one is already running. Its
/// output is thrown away.
ChildProcess startServer(const Place &place, const std::string &drivesFolder);

/// Starts "TndrCC" (a real path) on a drives folder, without a display on Qt's offscreen platform.
ChildProcess startTender(const std::string &tndrcc, const std::string &drivesFolder,
                         bool outputSeen = true, bool forceOffscreen = false);

} // namespace simulator
