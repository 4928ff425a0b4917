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
    double clockScale = 1.0; // program milliseconds for each real one
    std::function<std::unique_ptr<platform::Disk>(std::unique_ptr<platform::Disk>)> wrapDisk;
};

class Program {
public:
    /// Needs the application object. Reads only installation.ini; touches no printer, no share and
    /// no network.
    explicit Program(const ProgramOptions &options = {});
    ~Program();

    platform::Services &services();
    /// False if installation.ini exists and cannot be read; the program then reports it and ends. A
    /// role that has something to do before that checks Installation::unreadable itself.
    bool hasInstallation();
    /// Turns the event loop until the program is ending.
    void turnUntilEnd();

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

/// Runs a program: application object, theme, services, then `openFirstScreen`, then turns until
/// the end. The object that `openFirstScreen` returns (usually the first screen) lives until then.
/// The exit code is 0, or 1 when a failed operation ended the program.
int runProgram(int argc, char **argv,
               const std::function<std::shared_ptr<void>(Program &)> &openFirstScreen,
               const ProgramOptions &options = {});

} // namespace roles
