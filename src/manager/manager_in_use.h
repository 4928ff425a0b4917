// ManagerInUse: which manager's program works on the card files of the share. A second one would
// remove the batch marker of the first, so it may only look, unless the manager insists.
#pragma once

#include "platform/clock.h"
#include "platform/held_file.h"
#include "records/app.h"

#include <string>

namespace manager {

/// Asks in a box "In Use" with this text: true if OVERRIDE is typed. A word, so that an Enter too
/// many is not enough.
bool isOverridden(records::App &app, const std::string &text);

class ManagerInUse {
public:
    explicit ManagerInUse(records::App &theApp);

    /// Holds "Data\ManagerInUse.lock" in `Remotedir` until the process ends, however it does. If
    /// another process holds it, asks: then either `lookOnly` and `inUseBy` are set, or the work
    /// goes on and the log says so. If the file cannot be made the work goes on too.
    void claim();

private:
    platform::Outcome take();
    std::string holder() const;
    void ask();
    void log(const std::string &line);
    std::string path() const;

    records::App &app;
    platform::HeldFile file;
    std::string text;      // of this process
    platform::Timer again; // beside another program: takes the file once that one has ended
};

} // namespace manager
