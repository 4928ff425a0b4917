// SecondProcess: another process of the restaurant for tests of locks and appends. It runs a
// function of the test, which may start a program in its place; the test reads what it prints and
// can kill it.
#pragma once

#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

class SecondProcess {
public:
    /// `work` must not use GoogleTest; it reports to the test with say().
    explicit SecondProcess(const std::function<void()> &work)
    {
        int ends[2] = {};
        (void)!::pipe2(ends, O_CLOEXEC);
        id = ::fork();
        if (id == 0) {
            ::dup2(ends[1], STDOUT_FILENO);
            work();
            ::_exit(0); // not exit(), which would run the test's own destructors
        }
        output.open("/dev/fd/" + std::to_string(ends[0]));
        for (const int end : ends)
            ::close(end);
    }
    ~SecondProcess() { kill(); }

    /// In the process itself.
    static void say(const std::string &line) { ::dprintf(STDOUT_FILENO, "%s\n", line.c_str()); }
    /// Waits for the next line; empty when the process is gone.
    std::string hear()
    {
        std::string line;
        std::getline(output, line);
        return line;
    }
    /// Kills it as a power cut would, and returns when it is gone. What it said can still be heard.
    void kill()
    {
        if (id > 0) {
            ::kill(id, SIGKILL);
            ::waitpid(id, nullptr, 0);
        }
        id = 0;
    }

private:
    int id = 0;
    std::ifstream output;
};

} // namespace support
