#include "simulator/process.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace simulator {

namespace {

std::vector<char *> pointersTo(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> withProgram(const std::string &program,
                                     const std::vector<std::string> &arguments)
{
    std::vector<std::string> all{program};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return all;
}

std::string_view nameOf(std::string_view setting)
{
    return setting.substr(0, setting.find('='));
}

volatile std::sig_atomic_t askedToEnd = 0;

std::vector<std::string> environmentWith(const std::vector<std::string> &changes)
{
    std::vector<std::string> result = changes;
    for (char **setting = environ; *setting != nullptr; ++setting) {
        bool changed = false;
        for (const std::string &change : changes)
            changed = changed || nameOf(change) == nameOf(*setting);
        if (!changed)
            result.emplace_back(*setting);
    }
    return result;
}

} // namespace

std::string ownFolder()
{
    char path[4096];
    const ssize_t length = ::readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0)
        return ".";
    const std::string_view whole(path, static_cast<std::size_t>(length));
    return std::string(whole.substr(0, whole.rfind('/')));
}

bool hasDisplay()
{
    return !environmentValue("DISPLAY").empty() || !environmentValue("WAYLAND_DISPLAY").empty();
}

std::string environmentValue(const char *name)
{
    const char *value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

void pause(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void listenForEnd()
{
    for (const int signal : {SIGTERM, SIGINT})
        std::signal(signal, [](int) { askedToEnd = 1; });
}

bool endAsked()
{
    return askedToEnd != 0;
}

void becomeProgram(const std::string &program, const std::vector<std::string> &arguments)
{
    std::vector<std::string> all = withProgram(program, arguments);
    ::execv(program.c_str(), pointersTo(all).data());
}

ChildProcess::ChildProcess(const std::string &program, const std::vector<std::string> &arguments,
                           const std::vector<std::string> &changes, bool seen)
{
    std::vector<std::string> all = withProgram(program, arguments);
    std::vector<std::string> environment = environmentWith(changes);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    if (!seen) {
        ::posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    }
    if (::posix_spawn(&pid, program.c_str(), &actions, nullptr, pointersTo(all).data(),
                      pointersTo(environment).data()) != 0)
        pid = 0;
    ::posix_spawn_file_actions_destroy(&actions);
}

bool ChildProcess::running()
{
    if (pid == 0 || ended)
        return false;
    int status = 0;
    const pid_t answer = ::waitpid(pid, &status, WNOHANG);
    ended = answer == pid || (answer < 0 && errno == ECHILD);
    if (answer == pid && WIFEXITED(status))
        code = WEXITSTATUS(status);
    return !ended;
}

bool ChildProcess::waitForEnd(int milliseconds)
{
    const auto start = std::chrono::steady_clock::now();
    while (running()) {
        if (milliseconds > 0 &&
            std::chrono::steady_clock::now() - start > std::chrono::milliseconds(milliseconds))
            return false;
        pause(2);
    }
    return true;
}

void ChildProcess::kill()
{
    if (!running())
        return;
    ::kill(pid, SIGKILL);
    waitForEnd(0);
}

void ChildProcess::end()
{
    constexpr int kPatience = 1000; // ms
    if (!running())
        return;
    ::kill(pid, SIGTERM);
    if (!waitForEnd(kPatience))
        kill();
}

} // namespace simulator
