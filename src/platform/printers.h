// Printers: which there are, and submitting a finished job to one.
#pragma once

#include "platform/outcome.h"
#include "platform/print_job.h"

#include <string>
#include <vector>

namespace platform {

class Printers {
public:
    virtual ~Printers() = default;
    /// Device names in the system's order, the installation's spool printers first.
    virtual std::vector<std::string> names() = 0;
    /// The spool printer marked as default, else the system's, else the first; empty: none.
    virtual std::string defaultName() = 0;
    /// Width of its paper in whole millimetres; 0 if unknown.
    virtual int paperWidth(const std::string &printerName) = 0;
    /// Prints a closed job. A printer that is not there gives NotThere; nothing is shown.
    virtual Outcome submit(const std::string &printerName, const PrintJob &job) = 0;
    /// Loads fonts and printer lists while the program waits anyway; may do nothing.
    virtual void warmUp(const PrintFont &font) = 0;
    /// Removes unfinished jobs that a killed program of this role and station left; only for a
    /// caller that is certain that none is running. Gives the names of the files.
    virtual std::vector<std::string> removeUnfinished() { return {}; }
};

} // namespace platform
