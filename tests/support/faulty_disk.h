// FaultyDisk: a disk that fails or stops at the Nth operation. Every operation of Disk and
// DiskFile counts from 1, except isStillAt; looking and listing count where a test wants it, and
// can always fail by a rule. Closing a file does not count.
#pragma once

#include "platform/disk.h"
#include "support/unflushed.h"

#include <functional>
#include <map>
#include <set>

namespace support {

class FaultyDisk : public platform::Disk {
public:
    using Outcome = platform::Outcome;
    using Path = const std::string &;

    struct Operation {
        std::string name;    // "append"
        std::string path;    // "c/Lumbrio/Data/CCPending.dat"
        std::string details; // " 500 bytes"
    };

    /// `theRoot` is left out of the paths in the log.
    explicit FaultyDisk(platform::Disk &theDisk, std::string theRoot = {})
        : disk(theDisk), root(std::move(theRoot))
    {
    }

    /// Operation N, and only that one, does nothing and gives `outcome`; when `torn`, a write
    /// leaves the first half of its bytes there.
    void failAt(std::size_t n, Outcome outcome, bool torn = false)
    {
        fault = {n, outcome, torn, false, {}, {}};
    }
    /// Operation N fails, and every later one that is like it.
    void failFrom(std::size_t n, Outcome outcome, std::function<bool(const Operation &)> like)
    {
        fault = {n, outcome, false, false, {}, std::move(like)};
    }
    /// From operation N on nothing reaches the disk any more, as if the process had been killed;
    /// `onStop` is called once. Locks held are kept until their files are closed.
    void stopAt(std::size_t n, std::function<void()> onStop, bool torn = false)
    {
        fault = {n, Outcome::Broken, torn, true, std::move(onStop), {}};
    }
    /// From now on every operation of that name ("append", "rename") fails on a path that ends in
    /// `pathEnd`; for a rename either path counts. Outcome::Done lifts the rule.
    void failOn(Path operation, Path pathEnd, Outcome outcome)
    {
        rules[{operation, pathEnd}] = outcome;
    }
    /// Whether an operation has failed by such a rule.
    bool met(Path operation, Path pathEnd) const { return rulesMet.contains({operation, pathEnd}); }

    /// look and list count and are logged, and so can be the Nth.
    bool looksCount = false;
    /// As some systems do it to a file that somebody has open: the same file gets other bytes.
    bool copiesOver = false;
    /// Where it is set, it hears of each change that reaches the disk.
    std::unique_ptr<Unflushed> unflushed;
    /// Called before each operation, with its number: the moment at which another process acts.
    std::function<void(std::size_t n)> before;

    /// Operations so far.
    std::size_t operations() const { return log.size(); }
    /// One line for each operation: "12 append c/Lumbrio/Data/CCPending.dat 500 bytes".
    const std::vector<std::string> &operationLog() const { return log; }
    const std::vector<Operation> &operationsDone() const { return all; }
    const std::string &logText() const { return text; }

    Outcome open(Path at, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override;
    Outcome look(Path at, platform::Found &found) override;
    Outcome modified(Path at, platform::DateTime &when) override;
    Outcome remove(Path at) override;
    Outcome rename(Path from, Path to) override;
    Outcome renameToFree(Path from, Path to) override;
    Outcome makeDirectory(Path at) override;
    Outcome list(Path at, std::vector<std::string> &names) override;
    std::uint64_t changeStamp(Path at) override;
    Outcome flushDirectory(Path at) override;

private:
    friend class FaultyFile;

    struct Fault {
        std::size_t number = 0; // 0: never
        Outcome outcome = Outcome::Done;
        bool torn = false;
        bool kills = false;
        std::function<void()> onStop = {};
        std::function<bool(const Operation &)> like = {};
    };

    std::string nameOf(Path at) const;
    Outcome ruled(Path operation, Path at, Path line);
    bool mayLook(Path operation, Path at);
    bool may(Path operation, Path at, Path details = {});
    bool tearsNow() const { return fault.torn && log.size() == fault.number; }
    Outcome noted(Outcome outcome, const std::function<void(Unflushed &)> &note);

    platform::Disk &disk;
    std::string root;
    std::map<std::pair<std::string, std::string>, Outcome> rules;
    std::set<std::pair<std::string, std::string>> rulesMet;
    std::vector<Operation> all;
    std::vector<std::string> log;
    std::string text; // the log's lines
    Fault fault;
    Outcome given = Outcome::Done;
    bool dead = false;
};

} // namespace support
