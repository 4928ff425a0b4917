#include "support/second_process.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace support {

namespace {

constexpr int kPatience = 30000; // milliseconds

std::array<int, 2> makePipe()
{
    std::array<int, 2> ends = {};
    if (::pipe(ends.data()) != 0)
        std::abort();
    return ends;
}

} // namespace

void Talk::say(const std::string &line)
{
    const std::string bytes = line + "\n";
    [[maybe_unused]] const auto written = ::write(output, bytes.data(), bytes.size());
}

std::string Talk::hear()
{
    std::size_t end = 0;
    while ((end = heard.find('\n')) == std::string::npos) {
        pollfd waiting = {input, POLLIN, 0};
        if (::poll(&waiting, 1, kPatience) == 0) {
            ADD_FAILURE() << "the other process says nothing";
            return {};
        }
        std::array<char, 4096> bytes = {};
        const auto got = ::read(input, bytes.data(), bytes.size());
        if (got <= 0)
            return {};
        heard.append(bytes.data(), static_cast<std::size_t>(got));
    }
    const std::string line = heard.substr(0, end);
    heard.erase(0, end + 1);
    return line;
}

void Talk::become(const char *program)
{
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    ::execl(program, program, nullptr);
    ::_exit(1);
}

SecondProcess::SecondProcess(const std::function<void(Talk &)> &work)
{
    const auto down = makePipe();
    const auto up = makePipe();
    id = ::fork();
    if (id == 0) {
        ::close(down[1]);
        ::close(up[0]);
        Talk child(down[0], up[1]);
        work(child);
        ::_exit(0); // not exit(): the test's own endings are the parent's
    }
    ::close(down[0]);
    ::close(up[1]);
    talk = std::make_unique<Talk>(up[0], down[1]);
}

SecondProcess::~SecondProcess()
{
    kill();
    ::close(talk->input);
    ::close(talk->output);
}

void SecondProcess::kill()
{
    if (const int child = std::exchange(id, 0); child > 0) {
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
    }
}

} // namespace support
