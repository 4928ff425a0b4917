// ManagerInUse: which manager's program works on the card files of the share. A second one would
// take the batch marker away from the first; it looks only, unless its person insists.
#pragma once

#include "platform/clock.h"
#include "platform/held_file.h"
#include "records/app.h"

#include <string>

namespace manager {

/// A box "In Use" with this text: true where OVERRIDE is typed. A word, so that nobody goes on by
/// an Enter too many.
bool isOverridden(records::App &app, const std::string &text);

class ManagerInUse {
public:
    explicit ManagerInUse(records::App &theApp);

    /// Holds "Data\ManagerInUse.lock" in `Remotedir` from here to the end of the process, however
    /// that comes. Where another process holds it, asks: `lookOnly` and `inUseBy` are set, or the
    /// work goes on and the log says so. A file that cannot be made is never in the way.
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
    platform::Timer again; // went on beside another: takes the file once that one has ended
};

} // namespace manager
