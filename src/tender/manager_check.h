// The manager's check: who may approve what a server may not, by a card or a typed code from
// "ButtonAM.dat", in three tries.
#pragma once

#include "platform/clock.h"
#include "records/app.h"

#include <optional>
#include <string>
#include <string_view>

namespace tender {

/// What a manager is asked to approve.
struct ManagerQuestion {
    std::string what;   // "Approve this card OFFLINE"
    std::string amount; // currency text; may be empty
};

/// The name of the manager whose card or code `text` is, of rows 0 to 15 of `ManagerTable`;
/// "YES" for one without a name, or whose name would read as a refusal. Nothing when no row has
/// that code; a row that is empty, unused or past its end date has none. The text is a swipe (the
/// first track, else the second; the card's own expiry does not matter) or the code itself.
std::optional<std::string> approvingManager(const records::ProcessValues &values,
                                            std::string_view text, const platform::DateTime &today);

/// One question to a manager. `managerResult` is "NO" from the start, so that a check that is cut
/// short refuses.
class ManagerCheck {
public:
    explicit ManagerCheck(records::App &theApp);

    /// One try. An approval puts the manager's name into `managerResult`, the third wrong try
    /// refuses. A blank text is no try. The text is kept nowhere.
    void read(std::string_view text);
    /// "NO", as for a Cancel.
    void refuse();

    bool decided() const { return over; }
    /// How many tries are left, as a sentence; empty before the first wrong one.
    std::string triesLeft() const;

private:
    records::App &app;
    int tries = kTries;
    bool over = false;

    static constexpr int kTries = 3;
};

} // namespace tender
