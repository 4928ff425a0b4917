// Program: builds everything a role needs (files, clock, dialogs, printers, run state) and runs
// it from the first screen to the end. One short main per executable calls runProgram().
#pragma once

#include "platform/services.h"

#include <functional>
#include <memory>

class QApplication;

namespace roles {

/// For executables of the tests; the shipped mains pass none.
struct ProgramOptions {
    double clockScale = 1.0; // milliseconds that pass in the program for one of the wall's
    std::function<std::unique_ptr<platform::Disk>(std::unique_ptr<platform::Disk>)> wrapDisk;
};

class Program {
public:
    /// Needs the application object; reads installation.ini and nothing else: no printer, no
    /// share and no network is touched here.
    explicit Program(const ProgramOptions &options = {});
    ~Program();

    platform::Services &services();
    /// False, and the program says so and ends, where installation.ini is there and cannot be read.
    /// A role that has something to do before it ends asks Installation::unreadable itself.
    bool hasInstallation();
    /// Turns the event loop until the end was asked for.
    void turnUntilEnd();

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

/// Runs a program: application object, theme, services, then `openFirstScreen`, then turns until
/// the end. What it returns is kept alive until then (the first screen, as a rule). The exit code
/// is 0, or 1 when a failed operation ended the program.
int runProgram(int argc, char **argv,
               const std::function<std::shared_ptr<void>(Program &)> &openFirstScreen,
               const ProgramOptions &options = {});

} // namespace roles
