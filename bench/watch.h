// Watch: observes from outside what happens to the files of some folders, and when, until a program
// ends. The program is not changed for it.
#pragma once

#include "bench/measure.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

struct FileEvent {
    Instant when;
    std::string folder; // as it was given
    std::string name;   // empty for the folder itself
    std::uint32_t what = 0;
};

/// Kinds of events, as the system names them.
bool isArrival(const FileEvent &event); // renamed to this name
bool isOpening(const FileEvent &event);
bool isFolderClosed(const FileEvent &event);

/// How a program ended.
struct Ending {
    bool ended = false; // false: it runs still
    int exitCode = -1;
    Instant when;
    double processorMilliseconds = 0;
    double peakMegabytes = 0;
};

class Watch {
public:
    explicit Watch(const std::vector<std::string> &folders);
    ~Watch();
    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    /// Notes events until the process has ended or `until` has come.
    Ending follow(int processId, Instant until);
    /// The first event after `from` that fits; its time is `from` if there is none.
    const FileEvent *first(Instant from, const std::function<bool(const FileEvent &)> &fits);
    const std::vector<FileEvent> &events() const { return seen; }

private:
    void take();

    int descriptor;
    std::map<int, std::string> watched;
    std::vector<FileEvent> seen;
};

/// Processor time of a running process so far, all its threads; 0 when it is not there.
double processorMilliseconds(int processId);

} // namespace bench
