#include "bench/watch.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {

double milliseconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) * 1000 + static_cast<double>(time.tv_usec) / 1000;
}

Ending endOf(int processId)
{
    Ending ending;
    int status = 0;
    rusage used = {};
    ending.when = now();
    if (::wait4(processId, &status, 0, &used) != processId)
        return ending;
    ending.ended = true;
    ending.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    ending.processorMilliseconds = milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
    ending.peakMegabytes = static_cast<double>(used.ru_maxrss) / 1024;
    return ending;
}

} // namespace

bool isArrival(const FileEvent &event)
{
    return (event.what & IN_MOVED_TO) != 0;
}

bool isOpening(const FileEvent &event)
{
    return (event.what & IN_OPEN) != 0;
}

bool isFolderClosed(const FileEvent &event)
{
    return event.name.empty() && (event.what & IN_CLOSE_NOWRITE) != 0;
}

Watch::Watch(const std::vector<std::string> &folders)
    : descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    for (const std::string &folder : folders)
        watched[::inotify_add_watch(descriptor, folder.c_str(),
                                    IN_MOVED_TO | IN_OPEN | IN_CLOSE_NOWRITE)] = folder;
}

Watch::~Watch()
{
    ::close(descriptor);
}

void Watch::take()
{
    alignas(inotify_event) char buffer[16384];
    const Instant moment = now();
    for (ssize_t got = 0; (got = ::read(descriptor, buffer, sizeof buffer)) > 0;) {
        for (const char *at = buffer; at < buffer + got;) {
            const auto *event = reinterpret_cast<const inotify_event *>(at);
            seen.push_back(
                {moment, watched[event->wd], event->len > 0 ? event->name : "", event->mask});
            at += sizeof *event + event->len;
        }
    }
}

Ending Watch::follow(int processId, Instant until)
{
    const int process = static_cast<int>(::syscall(SYS_pidfd_open, processId, 0));
    Ending ending;
    while (process >= 0 && !ending.ended && now() < until) {
        pollfd waiting[] = {{descriptor, POLLIN, 0}, {process, POLLIN, 0}};
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(until - now()).count();
        ::poll(waiting, 2, static_cast<int>(std::max<long>(left, 0)) + 1);
        take();
        if ((waiting[1].revents & POLLIN) != 0)
            ending = endOf(processId);
    }
    ::close(process);
    take();
    return ending;
}

const FileEvent *Watch::first(Instant from, const std::function<bool(const FileEvent &)> &fits)
{
    const auto found = std::find_if(seen.begin(), seen.end(), [&](const FileEvent &event) {
        return event.when >= from && fits(event);
    });
    return found == seen.end() ? nullptr : &*found;
}

double processorMilliseconds(int processId)
{
    double total = 0;
    std::error_code error;
    const std::string tasks = "/proc/" + std::to_string(processId) + "/task";
    for (const auto &task : std::filesystem::directory_iterator(tasks, error)) {
        double nanoseconds = 0;
        std::ifstream(task.path() / "schedstat") >> nanoseconds;
        total += nanoseconds / 1e6;
    }
    return total;
}

} // namespace bench
