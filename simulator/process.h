// Processes and waits of the stand-ins: starting a program and waiting for its end, replacing the
// running program by another, its folder, and requests to end.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// The folder of the running executable, links followed, without a separator at its end.
std::string ownFolder();
/// True when windows can be shown: an X display or a Wayland one.
bool hasDisplay();
/// The value of an environment variable; empty when it is not set.
std::string environmentValue(const char *name);
void pause(int milliseconds);

/// From now on SIGTERM and Ctrl+C no longer end the process: they make endAsked() true.
void listenForEnd();
bool endAsked();

/// Replaces this process by the program; returns only if it could not be started.
void becomeProgram(const std::string &program, const std::vector<std::string> &arguments);

/// A started program. The destructor does not end it.
class ChildProcess {
public:
    /// `changes` are "NAME=value" on top of this process's environment; `seen` false throws its
    /// output away. running() is false when it could not be started.
    ChildProcess(const std::string &program, const std::vector<std::string> &arguments,
                 const std::vector<std::string> &changes, bool seen = true);
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// The process id; 0 when it could not be started.
    int id() const { return pid; }
    /// False once it has ended.
    bool running();
    /// Waits for the end, at most so long (0: for ever); false when it still runs.
    bool waitForEnd(int milliseconds);
    /// Ends it by its id, at once.
    void kill();
    /// Asks it to end, by its id; at once when it has not done so within a second.
    void end();
    /// What it returned; -1 when it was killed, runs still or was never started.
    int exitCode() const { return code; }

private:
    int pid = 0;
    int code = -1;
    bool ended = false;
};

} // namespace simulator
