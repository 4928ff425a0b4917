// SecondProcess: another process of the restaurant for tests of locks and appends. It runs a
// function of the test, talks with it in lines, and can be killed at any moment.
#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace support {

/// One end of the talk.
class Talk {
public:
    explicit Talk(int theSocket) : socket(theSocket) {}
    ~Talk() { ::close(socket); }
    Talk(const Talk &) = delete;
    Talk &operator=(const Talk &) = delete;

    void say(const std::string &line)
    {
        ::send(socket, (line + "\n").data(), line.size() + 1, MSG_NOSIGNAL);
    }
    /// Waits for the next line. Empty when the other side is gone; a test fails when it says
    /// nothing for half a minute.
    std::string hear()
    {
        constexpr timeval kPatience = {30, 0};
        ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &kPatience, sizeof kPatience);
        std::string line;
        char c = 0;
        ssize_t got = 0;
        while ((got = ::recv(socket, &c, 1, 0)) == 1 && c != '\n')
            line += c;
        EXPECT_TRUE(got >= 0 || errno == ECONNRESET) << "the other process says nothing";
        return got == 1 ? line : std::string();
    }
    /// Becomes the program, with its standard input and output on this talk.
    void become(const std::string &program)
    {
        ::dup2(socket, STDIN_FILENO);
        ::dup2(socket, STDOUT_FILENO);
        ::execl(program.c_str(), program.c_str(), nullptr);
    }

private:
    int socket;
};

class SecondProcess {
public:
    /// Starts `work` in a child, which ends when it returns. Nothing of GoogleTest may be used
    /// inside; a finding is said to the test.
    explicit SecondProcess(const std::function<void(Talk &)> &work)
    {
        int ends[2] = {};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
        id = ::fork();
        if (id == 0) {
            ::close(ends[0]);
            Talk child(ends[1]);
            work(child);
            ::_exit(0); // not exit(): the test's own endings are the parent's
        }
        ::close(ends[1]);
        talk = std::make_unique<Talk>(ends[0]);
    }
    ~SecondProcess() { kill(); }
    SecondProcess(const SecondProcess &) = delete;
    SecondProcess &operator=(const SecondProcess &) = delete;

    void say(const std::string &line) { talk->say(line); }
    std::string hear() { return talk->hear(); }
    /// Kills it as a power cut would, and returns when it is gone. What it said can still be heard.
    void kill()
    {
        if (const int child = std::exchange(id, 0); child > 0) {
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
        }
    }

private:
    int id = 0;
    std::unique_ptr<Talk> talk;
};

} // namespace support
