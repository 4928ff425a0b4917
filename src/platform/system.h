// System: programs, names of this computer and of this executable, editor, browser, sound.
#pragma once

#include "platform/outcome.h"

#include <memory>
#include <optional>
#include <string>

namespace platform {

class Drives;
struct Installation;

enum class WindowStyle { Normal, Minimised, Hidden };

class System {
public:
    virtual ~System() = default;

    /// Starts a program and does not wait. The program is the first prefix of `commandLine` up to
    /// a blank (or its end) that names a file, growing to the right; the rest is its arguments,
    /// passed as one text on Windows, split at blanks elsewhere. No open file is inherited.
    virtual Outcome start(const std::string &commandLine, WindowStyle style) = 0;
    /// Ends every process of that image name ("X-Charge.exe"), compared without regard to case.
    /// On Windows it starts `cmd.exe /c TASKKILL /IM name /F` minimised; elsewhere it ends only
    /// processes whose program lies under the drives folder. Never reports anything.
    virtual void killImage(const std::string &imageName) = 0;
    /// As the system spells it; except on Windows, the host name up to the first dot.
    virtual std::string computerName() = 0;
    /// The running executable's name without folder and extension.
    virtual std::string executableName() = 0;
    virtual Outcome openEditor(const std::string &path) = 0;
    virtual Outcome openBrowser(const std::string &address) = 0;
    /// Starts the test of the installation's connection test address, which has 2 s to answer. Does
    /// nothing while a test is running. It runs on its own thread and calls nobody back.
    virtual void startConnectionTest() = 0;
    /// Whether the address answered the last test; nothing while that is running.
    virtual std::optional<bool> connectionTested() const = 0;
    /// A sound file; silent when there is none or nothing to play it.
    virtual void playSound(const std::string &path) = 0;
};

/// The running system. `drives` turns Windows paths into real ones.
std::unique_ptr<System> runningSystem(const Drives &drives, const Installation &installation);

} // namespace platform
