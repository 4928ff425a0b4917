// FaultyDisk: a disk that fails or stops at the Nth operation. Every operation of Disk and
// DiskFile counts from 1, but for isStillAt; looking and listing count where a test wants it, and
// fail by a rule at any time. Closing a file is none.
#pragma once

#include "support/unflushed.h"

#include <algorithm>
#include <array>
#include <functional>
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
    /// So does operation N, and every later one that is like it.
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
    /// Every operation of that name ("append", "rename") on a path that ends in `pathEnd`, from
    /// now on; for a rename either path. Outcome::Done lifts it.
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
    /// Where it is set, it is told of each change that reaches the disk.
    std::unique_ptr<Unflushed> unflushed;
    /// Called before each operation, with its number: the moment at which another process acts.
    std::function<void(std::size_t n)> before;

    /// Operations so far.
    std::size_t operations() const { return log.size(); }
    /// One line an operation: "12 append c/Lumbrio/Data/CCPending.dat 500 bytes".
    const std::vector<std::string> &operationLog() const { return log; }
    const std::vector<Operation> &operationsDone() const { return all; }
    const std::string &logText() const { return text; }

    Outcome open(Path at, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override;
    Outcome look(Path at, platform::Found &found) override
    {
        found = platform::Found::Nothing;
        return mayLook("look", at) ? disk.look(at, found) : given;
    }
    Outcome modified(Path at, platform::DateTime &when) override
    {
        return may("modified", at) ? disk.modified(at, when) : given;
    }
    Outcome remove(Path at) override
    {
        touch(at);
        return may("remove", at)
                   ? told(disk.remove(at), [&](Unflushed &changes) { changes.removed(at); })
                   : given;
    }
    Outcome rename(Path from, Path to) override
    {
        touch(from);
        touch(to);
        if (!may("rename", from, " to " + nameOf(to)))
            return given;
        if (!copiesOver)
            return told(disk.rename(from, to),
                        [&](Unflushed &changes) { changes.renamed(from, to); });
        std::ofstream(to, std::ios::binary) << std::ifstream(from, std::ios::binary).rdbuf();
        return disk.remove(from);
    }
    Outcome renameToFree(Path from, Path to) override
    {
        return may("rename", from, " to " + nameOf(to)) ? disk.renameToFree(from, to) : given;
    }
    Outcome makeDirectory(Path at) override
    {
        return may("makeDirectory", at) ? told(disk.makeDirectory(at),
                                               [&](Unflushed &changes) { changes.folderMade(at); })
                                        : given;
    }
    Outcome list(Path at, std::vector<std::string> &names) override
    {
        return mayLook("list", at) ? disk.list(at, names) : given;
    }
    std::uint64_t changeStamp(Path at) override
    {
        return rules.empty() && !looksCount ? disk.changeStamp(at) : 0; // each listing is made
    }
    Outcome flushDirectory(Path at) override
    {
        return may("flushDirectory", at)
                   ? told(disk.flushDirectory(at),
                          [&](Unflushed &changes) { changes.folderFlushed(at); })
                   : given;
    }

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

    /// The path as the log has it, below the root.
    std::string nameOf(Path at) const { return at.substr(std::min(root.size() + 1, at.size())); }
    /// What the rules say of an operation; the last of them holds.
    Outcome ruled(Path operation, Path at, Path line)
    {
        Outcome said = Outcome::Done;
        for (const auto &[rule, outcome] : rules)
            if (rule.first == operation &&
                (at.ends_with(rule.second) || line.ends_with(rule.second))) {
                said = outcome;
                if (!done(outcome))
                    rulesMet.insert(rule);
            }
        return said;
    }
    bool mayLook(Path operation, Path at)
    {
        if (looksCount)
            return may(operation, at);
        given = dead ? Outcome::Broken : ruled(operation, at, at);
        return done(given);
    }
    /// Counts and logs an operation; when it is not to be done, `given` says what it gives.
    bool may(Path operation, Path at, Path details = {})
    {
        all.push_back({operation, nameOf(at), details});
        log.push_back(std::to_string(all.size()) + ' ' + operation + ' ' + nameOf(at) + details);
        text += log.back() + '\n';
        if (before)
            before(log.size());
        given = ruled(operation, at, log.back());
        if (fault.like && log.size() >= fault.number && fault.like(all.back()))
            given = fault.outcome;
        if (log.size() == fault.number) {
            given = fault.outcome;
            dead = fault.kills;
            if (fault.onStop)
                fault.onStop();
        }
        if (dead)
            given = Outcome::Broken;
        return done(given);
    }

    void touch(Path at)
    {
        if (unflushed)
            unflushed->touch(at);
    }
    /// A change that was made, for those who look at what is not flushed.
    template <class Tell> Outcome told(Outcome outcome, Tell tell)
    {
        if (unflushed && done(outcome))
            tell(*unflushed);
        return outcome;
    }

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

class FaultyFile : public platform::DiskFile {
public:
    using Outcome = platform::Outcome;

    FaultyFile(FaultyDisk &theDisk, std::string thePath,
               std::unique_ptr<platform::DiskFile> theFile)
        : disk(theDisk), path(std::move(thePath)), file(std::move(theFile))
    {
    }

    Outcome size(std::uint64_t &bytes) override
    {
        return disk.may("size", path) ? file->size(bytes) : disk.given;
    }
    Outcome readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got) override
    {
        const bool may = disk.may("read", path, placeOf(offset, length));
        return may ? file->readAt(offset, into, length, got) : disk.given;
    }
    Outcome writeAt(std::uint64_t offset, std::string_view bytes) override
    {
        if (disk.may("write", path, placeOf(offset, bytes.size())))
            return file->writeAt(offset, bytes);
        if (disk.fault.torn && disk.operations() == disk.fault.number)
            file->writeAt(offset, bytes.substr(0, bytes.size() / 2));
        return disk.given;
    }
    Outcome append(std::string_view bytes, std::uint64_t &landedAt) override
    {
        if (disk.may("append", path, ' ' + std::to_string(bytes.size()) + " bytes"))
            return file->append(bytes, landedAt);
        if (disk.fault.torn && disk.fault.kills && disk.operations() == disk.fault.number)
            file->append(bytes.substr(0, bytes.size() / 2), landedAt);
        return disk.given;
    }
    Outcome cutBack(std::uint64_t from, std::uint64_t to) override
    {
        return disk.may("cutBack", path) ? file->cutBack(from, to) : disk.given;
    }
    Outcome flush() override
    {
        return disk.may("flush", path)
                   ? disk.told(file->flush(), [&](Unflushed &changes) { changes.flushed(*file); })
                   : disk.given;
    }
    Outcome tryLock() override { return disk.may("lock", path) ? file->tryLock() : disk.given; }
    Outcome unlock() override { return disk.may("unlock", path) ? file->unlock() : disk.given; }
    bool isStillAt(const std::string &at) override { return !disk.dead && file->isStillAt(at); }

private:
    static std::string placeOf(std::uint64_t offset, std::size_t length)
    {
        return ' ' + std::to_string(length) + " bytes at " + std::to_string(offset);
    }

    FaultyDisk &disk;
    std::string path;
    std::unique_ptr<platform::DiskFile> file;
};

inline platform::Outcome FaultyDisk::open(Path at, platform::OpenMode mode,
                                          std::unique_ptr<platform::DiskFile> &file)
{
    constexpr std::array kModes = {" to read",   " to read", " to rewrite", " to append",
                                   " to append", " emptied", " created"};
    file.reset();
    touch(at);
    if (!may("open", at, kModes[static_cast<std::size_t>(mode)]))
        return given;
    std::unique_ptr<platform::DiskFile> opened;
    const Outcome outcome = told(disk.open(at, mode, opened), [&](Unflushed &changes) {
        if (mode == platform::OpenMode::Append || mode == platform::OpenMode::CreateEmpty ||
            mode == platform::OpenMode::CreateNew)
            changes.opened(at);
    });
    if (done(outcome))
        file = std::make_unique<FaultyFile>(*this, at, std::move(opened));
    return outcome;
}

} // namespace support
