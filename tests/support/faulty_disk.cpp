#include "support/faulty_disk.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace support {

using platform::DiskFile;
using platform::OpenMode;
using platform::Outcome;

class FaultyFile : public DiskFile {
public:
    FaultyFile(FaultyDisk &theDisk, std::string thePath, std::unique_ptr<DiskFile> theFile)
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
        if (disk.tearsNow())
            file->writeAt(offset, bytes.substr(0, bytes.size() / 2));
        return disk.given;
    }
    Outcome append(std::string_view bytes, std::uint64_t &landedAt) override
    {
        if (disk.may("append", path, ' ' + std::to_string(bytes.size()) + " bytes"))
            return file->append(bytes, landedAt);
        if (disk.tearsNow() && disk.fault.kills)
            file->append(bytes.substr(0, bytes.size() / 2), landedAt);
        return disk.given;
    }
    Outcome cutBack(std::uint64_t from, std::uint64_t to) override
    {
        return disk.may("cutBack", path) ? file->cutBack(from, to) : disk.given;
    }
    Outcome flush() override
    {
        if (!disk.may("flush", path))
            return disk.given;
        return disk.noted(file->flush(), [&](Unflushed &changes) { changes.flushed(*file); });
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
    std::unique_ptr<DiskFile> file;
};

Outcome FaultyDisk::open(Path at, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    constexpr std::array kModes = {" to read",   " to read", " to rewrite", " to append",
                                   " to append", " emptied", " created"};
    file.reset();
    if (unflushed)
        unflushed->touch(at);
    if (!may("open", at, kModes[static_cast<std::size_t>(mode)]))
        return given;
    std::unique_ptr<DiskFile> opened;
    const Outcome outcome = noted(disk.open(at, mode, opened), [&](Unflushed &changes) {
        if (mode == OpenMode::Append || mode == OpenMode::CreateEmpty ||
            mode == OpenMode::CreateNew)
            changes.opened(at);
    });
    if (done(outcome))
        file = std::make_unique<FaultyFile>(*this, at, std::move(opened));
    return outcome;
}

Outcome FaultyDisk::look(Path at, platform::Found &found)
{
    found = platform::Found::Nothing;
    return mayLook("look", at) ? disk.look(at, found) : given;
}

Outcome FaultyDisk::modified(Path at, platform::DateTime &when)
{
    return may("modified", at) ? disk.modified(at, when) : given;
}

Outcome FaultyDisk::remove(Path at)
{
    if (unflushed)
        unflushed->touch(at);
    if (!may("remove", at))
        return given;
    return noted(disk.remove(at), [&](Unflushed &changes) { changes.removed(at); });
}

Outcome FaultyDisk::rename(Path from, Path to)
{
    if (unflushed)
        for (Path at : {from, to})
            unflushed->touch(at);
    if (!may("rename", from, " to " + nameOf(to)))
        return given;
    if (!copiesOver)
        return noted(disk.rename(from, to), [&](Unflushed &changes) { changes.renamed(from, to); });
    std::ofstream(to, std::ios::binary) << std::ifstream(from, std::ios::binary).rdbuf();
    return disk.remove(from);
}

Outcome FaultyDisk::renameToFree(Path from, Path to)
{
    return may("rename", from, " to " + nameOf(to)) ? disk.renameToFree(from, to) : given;
}

Outcome FaultyDisk::makeDirectory(Path at)
{
    if (!may("makeDirectory", at))
        return given;
    return noted(disk.makeDirectory(at), [&](Unflushed &changes) { changes.folderMade(at); });
}

Outcome FaultyDisk::list(Path at, std::vector<std::string> &names)
{
    return mayLook("list", at) ? disk.list(at, names) : given;
}

std::uint64_t FaultyDisk::changeStamp(Path at)
{
    return rules.empty() && !looksCount ? disk.changeStamp(at) : 0; // else every listing is made
}

Outcome FaultyDisk::flushDirectory(Path at)
{
    if (!may("flushDirectory", at))
        return given;
    return noted(disk.flushDirectory(at), [&](Unflushed &changes) { changes.folderFlushed(at); });
}

/// The path as the log has it, below the root.
std::string FaultyDisk::nameOf(Path at) const
{
    return at.substr(std::min(root.size() + 1, at.size()));
}

/// What the rules say of an operation; the last of them holds.
Outcome FaultyDisk::ruled(Path operation, Path at, Path line)
{
    Outcome outcome = Outcome::Done;
    for (const auto &[rule, ruling] : rules)
        if (rule.first == operation && (at.ends_with(rule.second) || line.ends_with(rule.second))) {
            outcome = ruling;
            if (!done(ruling))
                rulesMet.insert(rule);
        }
    return outcome;
}

bool FaultyDisk::mayLook(Path operation, Path at)
{
    if (looksCount)
        return may(operation, at);
    given = dead ? Outcome::Broken : ruled(operation, at, at);
    return done(given);
}

/// Counts and logs an operation. False when it must not be done; `given` is then its outcome.
bool FaultyDisk::may(Path operation, Path at, Path details)
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

Outcome FaultyDisk::noted(Outcome outcome, const std::function<void(Unflushed &)> &note)
{
    if (unflushed && done(outcome))
        note(*unflushed);
    return outcome;
}

} // namespace support
