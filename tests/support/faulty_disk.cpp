#include "support/faulty_disk.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace support {

using platform::DiskFile;
using platform::OpenMode;
using platform::Outcome;

namespace {

char small(char c)
{
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() &&
           std::equal(end.begin(), end.end(), text.end() - static_cast<std::ptrdiff_t>(end.size()),
                      [](char a, char b) { return small(a) == small(b); });
}

const char *textOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Read: return "to read";
    case OpenMode::ReadWrite: return "to rewrite";
    case OpenMode::Append: return "to append";
    case OpenMode::CreateEmpty: break;
    }
    return "emptied";
}

std::string placeOf(std::uint64_t offset, std::size_t length)
{
    return std::to_string(length) + " bytes at " + std::to_string(offset);
}

} // namespace

class FaultyFile : public DiskFile {
public:
    FaultyFile(FaultyDisk &theDisk, std::string thePath, std::unique_ptr<DiskFile> theFile)
        : disk(theDisk), path(std::move(thePath)), file(std::move(theFile))
    {
    }

    Outcome size(std::uint64_t &bytes) override
    {
        const Outcome fault = disk.count("size", path).outcome;
        return done(fault) ? file->size(bytes) : fault;
    }

    Outcome readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got) override
    {
        const Outcome fault = disk.count("read", path, placeOf(offset, length)).outcome;
        return done(fault) ? file->readAt(offset, into, length, got) : fault;
    }

    Outcome writeAt(std::uint64_t offset, std::string_view bytes) override
    {
        const auto fault = disk.count("write", path, placeOf(offset, bytes.size()));
        if (done(fault.outcome))
            return file->writeAt(offset, bytes);
        if (fault.half)
            file->writeAt(offset, bytes.substr(0, bytes.size() / 2));
        return fault.outcome;
    }

    Outcome append(std::string_view bytes, std::uint64_t &landedAt) override
    {
        const auto fault = disk.count("append", path, std::to_string(bytes.size()) + " bytes");
        if (done(fault.outcome))
            return file->append(bytes, landedAt);
        if (fault.half)
            file->append(bytes.substr(0, bytes.size() / 2), landedAt);
        return fault.outcome;
    }

    Outcome cutBack(std::uint64_t from, std::uint64_t to) override
    {
        const Outcome fault = disk.count("cutBack", path, "to " + std::to_string(to)).outcome;
        return done(fault) ? file->cutBack(from, to) : fault;
    }

    Outcome flush() override
    {
        const Outcome fault = disk.count("flush", path).outcome;
        return done(fault) ? file->flush() : fault;
    }

    Outcome tryLock() override
    {
        const Outcome fault = disk.count("lock", path).outcome;
        return done(fault) ? file->tryLock() : fault;
    }

    Outcome unlock() override
    {
        const Outcome fault = disk.count("unlock", path).outcome;
        return done(fault) ? file->unlock() : fault;
    }

    bool isStillAt(const std::string &where) override
    {
        return disk.query("isStillAt", where) && file->isStillAt(where);
    }

private:
    FaultyDisk &disk;
    std::string path;
    std::unique_ptr<DiskFile> file;
};

void FaultyDisk::failOn(const std::string &operation, const std::string &pathEnd, Outcome outcome)
{
    std::erase_if(rules, [&](const Rule &rule) {
        return rule.operation == operation && rule.pathEnd == pathEnd;
    });
    rules.push_back({operation, pathEnd, outcome});
}

void FaultyDisk::stopAt(std::size_t n, std::function<void()> onStop, bool writeIsHalfDone)
{
    stopNumber = n;
    stopHook = std::move(onStop);
    stopHalf = writeIsHalfDone;
}

std::string FaultyDisk::logText() const
{
    std::string text;
    for (const std::string &line : log)
        text.append(line).append("\n");
    return text;
}

/// The path as the log has it, below the root.
std::string_view FaultyDisk::nameOf(std::string_view path) const
{
    if (!root.empty() && path.starts_with(root))
        path.remove_prefix(std::min(root.size() + 1, path.size()));
    return path;
}

/// Counts and logs an operation; gives the fault it shall have, Done for none.
FaultyDisk::Fault FaultyDisk::count(std::string_view operation, const std::string &path,
                                    const std::string &details)
{
    std::string line = std::to_string(log.size() + 1);
    line.append(" ").append(operation).append(" ").append(nameOf(path));
    if (!details.empty())
        line.append(" ").append(details);
    log.push_back(line);

    if (dead)
        return {Outcome::Broken, false};
    if (log.size() == stopNumber) {
        dead = true;
        if (const auto hook = std::exchange(stopHook, {}))
            hook();
        return {Outcome::Broken, stopHalf};
    }
    if (const auto fault = faults.find(log.size()); fault != faults.end())
        return fault->second;
    for (const Rule &rule : rules) {
        if (rule.operation == operation &&
            (endsWith(path, rule.pathEnd) || endsWith(details, rule.pathEnd)))
            return {rule.outcome, false};
    }
    return {};
}

/// False when the query is to be answered with no.
bool FaultyDisk::query(std::string_view operation, const std::string &path)
{
    if (countQueries)
        return done(count(operation, path).outcome);
    return !dead;
}

Outcome FaultyDisk::open(const std::string &path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    const Outcome fault = count("open", path, textOf(mode)).outcome;
    if (!done(fault))
        return fault;
    std::unique_ptr<DiskFile> opened;
    const Outcome outcome = disk.open(path, mode, opened);
    if (done(outcome))
        file = std::make_unique<FaultyFile>(*this, path, std::move(opened));
    return outcome;
}

bool FaultyDisk::isFile(const std::string &path)
{
    return query("isFile", path) && disk.isFile(path);
}

bool FaultyDisk::isDirectory(const std::string &path)
{
    return query("isDirectory", path) && disk.isDirectory(path);
}

Outcome FaultyDisk::remove(const std::string &path)
{
    const Outcome fault = count("remove", path).outcome;
    return done(fault) ? disk.remove(path) : fault;
}

Outcome FaultyDisk::rename(const std::string &from, const std::string &to)
{
    const Outcome fault = count("rename", from, "to " + std::string(nameOf(to))).outcome;
    return done(fault) ? disk.rename(from, to) : fault;
}

Outcome FaultyDisk::makeDirectory(const std::string &path)
{
    const Outcome fault = count("makeDirectory", path).outcome;
    return done(fault) ? disk.makeDirectory(path) : fault;
}

Outcome FaultyDisk::list(const std::string &directory, std::vector<std::string> &names)
{
    const Outcome fault = count("list", directory).outcome;
    return done(fault) ? disk.list(directory, names) : fault;
}

Outcome FaultyDisk::flushDirectory(const std::string &directory)
{
    const Outcome fault = count("flushDirectory", directory).outcome;
    return done(fault) ? disk.flushDirectory(directory) : fault;
}

} // namespace support
