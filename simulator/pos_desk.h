// PosDesk: the steps that the point of sale's window takes. It never waits and knows no window.
#pragma once

#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "simulator/station.h"

#include <memory>
#include <string>
#include <vector>

namespace simulator {

/// An amount to try, and what the stand-in of the payment programs makes of it.
struct SampleAmount {
    std::string amount;
    std::string outcome; // "declined"
    std::string meaning;
};
/// 48.50 and one for each row of the mode's table.
std::vector<SampleAmount> sampleAmounts(Mode mode);

/// The next number, with as many digits; a text that is not a number stays.
std::string nextReceipt(const std::string &receipt);

class PosDesk {
public:
    /// For the restaurant in the drives folder (empty: the one that the programs find). Local
    /// requests are answered as long as the desk exists.
    explicit PosDesk(const std::string &drivesFolder);
    ~PosDesk();
    PosDesk(const PosDesk &) = delete;
    PosDesk &operator=(const PosDesk &) = delete;

    const std::string &drivesFolder() const { return station.drivesFolder; }
    Mode mode();
    /// Leaves the request and starts the tender; returns why it could not, or nothing.
    std::string begin(const TenderRequest &request, Mode mode);
    /// False before the first tender and once the last one has ended.
    bool tenderRuns() { return tender && tender->running(); }
    std::vector<AnswerLine> answer();

private:
    void keepServerRunning();

    Station station;
    Place place;
    std::unique_ptr<ChildProcess> server;
    std::unique_ptr<ChildProcess> tender;
};

} // namespace simulator
