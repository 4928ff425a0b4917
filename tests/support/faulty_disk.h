// FaultyDisk: a disk that fails or stops at the Nth operation. Every operation of Disk and
// DiskFile counts from 1; isFile, isDirectory and isStillAt only with countQueries. Closing a
// file is no operation.
#pragma once

#include "platform/disk.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace support {

class FaultyDisk : public platform::Disk {
public:
    using Outcome = platform::Outcome;

    /// `theRoot` is left out of the paths in the log.
    explicit FaultyDisk(platform::Disk &theDisk, std::string theRoot = {})
        : disk(theDisk), root(std::move(theRoot))
    {
    }

    /// Operation N, and only that one, does nothing and gives `outcome`.
    void failAt(std::size_t n, Outcome outcome) { faults[n] = {outcome, false}; }
    /// The same, but a write or an append leaves the first half of its bytes there.
    void tornAt(std::size_t n, Outcome outcome) { faults[n] = {outcome, true}; }
    /// Every operation of that name ("append", "rename") on a path that ends in `pathEnd`, compared
    /// without regard to case, from now on; for a rename either path. Outcome::Done lifts it.
    void failOn(const std::string &operation, const std::string &pathEnd, Outcome outcome);
    /// From operation N on nothing reaches the disk any more, as if the process had been killed;
    /// `onStop` is called once. Locks held are kept until their files are closed.
    void stopAt(std::size_t n, std::function<void()> onStop, bool writeIsHalfDone = false);
    bool stopped() const { return dead; }

    /// Operations so far.
    std::size_t operations() const { return log.size(); }
    /// One line an operation: "12 append c/Lumbrio/Data/CCPending.dat 500 bytes".
    const std::vector<std::string> &operationLog() const { return log; }
    std::string logText() const;
    bool countQueries = false;

    Outcome open(const std::string &path, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override;
    bool isFile(const std::string &path) override;
    bool isDirectory(const std::string &path) override;
    Outcome remove(const std::string &path) override;
    Outcome rename(const std::string &from, const std::string &to) override;
    Outcome makeDirectory(const std::string &path) override;
    Outcome list(const std::string &directory, std::vector<std::string> &names) override;
    Outcome flushDirectory(const std::string &directory) override;

private:
    friend class FaultyFile;

    struct Fault {
        Outcome outcome = Outcome::Done;
        bool half = false;
    };
    struct Rule {
        std::string operation;
        std::string pathEnd;
        Outcome outcome = Outcome::Done;
    };

    std::string_view nameOf(std::string_view path) const;
    Fault count(std::string_view operation, const std::string &path,
                const std::string &details = {});
    bool query(std::string_view operation, const std::string &path);

    platform::Disk &disk;
    std::string root;
    std::map<std::size_t, Fault> faults;
    std::vector<Rule> rules;
    std::vector<std::string> log;
    std::function<void()> stopHook;
    std::size_t stopNumber = 0; // 0: never
    bool stopHalf = false;
    bool dead = false;
};

} // namespace support
