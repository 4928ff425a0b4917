#include "platform/files.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t kChunk = 64U << 10U;
constexpr int kLockAttempts = 20; // each one needs a replacement by another station just then

std::string parentOf(const std::string &realPath)
{
    const std::size_t end = realPath.find_last_of("/\\");
    return end == std::string::npos ? std::string(".") : realPath.substr(0, end);
}

bool endsInSeparator(std::string_view path)
{
    return path.empty() || path.back() == '\\' || path.back() == '/';
}

Outcome copyBytes(DiskFile &from, DiskFile &to)
{
    std::string chunk(kChunk, '\0');
    std::uint64_t offset = 0;
    for (;;) {
        std::size_t got = 0;
        Outcome outcome = from.readAt(offset, chunk.data(), chunk.size(), got);
        if (done(outcome) && got > 0)
            outcome = to.writeAt(offset, std::string_view(chunk).substr(0, got));
        if (!done(outcome) || got == 0)
            return outcome;
        offset += got;
    }
}

/// A new file written whole beside its place and then renamed over it; removed when anything
/// fails on the way.
template <typename Fill> Outcome replaceFile(Disk &disk, const std::string &real, Fill fill)
{
    const std::string beside = real + "." + uniqueSuffix() + ".new";
    std::unique_ptr<DiskFile> file;
    Outcome outcome = disk.open(beside, OpenMode::CreateEmpty, file);
    if (!done(outcome))
        return outcome;
    outcome = fill(*file);
    if (done(outcome))
        outcome = file->flush();
    file.reset();
    if (done(outcome))
        outcome = disk.rename(beside, real);
    if (!done(outcome))
        disk.remove(beside);
    return outcome;
}

} // namespace

Files::Files(Disk &theDisk, const Drives &theDrives, Run &theRun)
    : disk(theDisk), drives(theDrives), run(theRun)
{
}

Outcome Files::judge(std::string_view operation, std::string_view path, Outcome outcome)
{
    if (!done(outcome) && !run.ending() && !run.errorsIgnored())
        run.fail(operation, path, outcome);
    return outcome;
}

bool Files::exists(std::string_view path)
{
    return !shut() && !endsInSeparator(path) && disk.isFile(realPath(path));
}

bool Files::folderExists(std::string_view path)
{
    return !shut() && !path.empty() && disk.isDirectory(realPath(path));
}

Outcome Files::modified(std::string_view path, DateTime &when)
{
    if (shut())
        return Outcome::Denied;
    return judge("Looking at", path, disk.modified(realPath(path), when));
}

Outcome Files::remove(std::string_view path)
{
    if (shut())
        return Outcome::Denied;
    return judge("Deleting", path, disk.remove(realPath(path)));
}

Outcome Files::removeIfThere(std::string_view path)
{
    if (shut())
        return Outcome::Denied;
    const Outcome outcome = disk.remove(realPath(path));
    return outcome == Outcome::NotThere ? outcome : judge("Deleting", path, outcome);
}

Outcome Files::copy(std::string_view from, std::string_view to)
{
    if (shut())
        return Outcome::Denied;
    std::unique_ptr<DiskFile> source;
    const Outcome outcome = disk.open(realPath(from), OpenMode::Read, source);
    if (!done(outcome))
        return judge("Copying", from, outcome);
    return judge("Copying", to, replaceFile(disk, realPath(to), [&](DiskFile &target) {
                     return copyBytes(*source, target);
                 }));
}

Outcome Files::makeFolder(std::string_view path)
{
    if (shut())
        return Outcome::Denied;
    const std::string real = realPath(path);
    Outcome outcome = Outcome::Done;
    if (!disk.isDirectory(real))
        outcome = disk.makeDirectory(real);
    if (!done(outcome) && disk.isDirectory(real)) // another station was faster
        outcome = Outcome::Done;
    return judge("Making the folder", path, outcome);
}

std::vector<std::string> Files::list(std::string_view folder)
{
    std::vector<std::string> names;
    if (shut())
        return names;
    const std::string real = realPath(folder);
    disk.list(real, names);
    std::erase_if(names, [&](const std::string &name) { return !disk.isFile(real + "/" + name); });
    std::sort(names.begin(), names.end());
    return names;
}

Outcome Files::createIfMissing(std::string_view path)
{
    if (shut())
        return Outcome::Denied;
    const std::string real = realPath(path);
    if (disk.isFile(real))
        return Outcome::Done;
    // Append, because another station may create it and write to it at this very moment.
    std::unique_ptr<DiskFile> file;
    return judge("Creating", path, disk.open(real, OpenMode::Append, file));
}

Outcome Files::read(std::string_view path, std::string &content, std::size_t limit)
{
    content.clear();
    std::unique_ptr<DiskFile> file;
    if (const Outcome outcome = open(path, OpenMode::Read, file); !done(outcome))
        return outcome;
    std::string read;
    for (;;) {
        const std::size_t had = read.size();
        read.resize(had + std::min(kChunk, limit - had));
        std::size_t got = 0;
        const Outcome outcome = file->readAt(had, read.data() + had, read.size() - had, got);
        if (!done(outcome))
            return judge("Reading", path, outcome);
        read.resize(had + got);
        if (got == 0)
            break;
    }
    content = std::move(read);
    return Outcome::Done;
}

Outcome Files::writeInPlace(std::string_view path, std::string_view content, bool flushed)
{
    if (shut())
        return Outcome::Denied;
    const std::string real = realPath(path);
    const bool fresh = flushed && !disk.isFile(real);
    std::unique_ptr<DiskFile> file;
    Outcome outcome = disk.open(real, OpenMode::CreateEmpty, file);
    if (done(outcome))
        outcome = file->writeAt(0, content);
    if (done(outcome) && flushed)
        outcome = file->flush();
    if (done(outcome) && fresh)
        outcome = disk.flushDirectory(parentOf(real));
    return judge("Writing", path, outcome);
}

Outcome Files::write(std::string_view path, std::string_view content)
{
    return writeInPlace(path, content, false);
}

Outcome Files::writeFlushed(std::string_view path, std::string_view content)
{
    return writeInPlace(path, content, true);
}

Outcome Files::appendTo(DiskFile &file, std::string_view path, std::string_view content)
{
    std::uint64_t landedAt = 0;
    return judge("Writing", path, file.append(content, landedAt));
}

Outcome Files::append(std::string_view path, std::string_view content)
{
    std::unique_ptr<DiskFile> file;
    const Outcome outcome = open(path, OpenMode::Append, file);
    return done(outcome) ? appendTo(*file, path, content) : outcome;
}

Outcome Files::appendLocked(std::string_view path, std::string_view content)
{
    std::unique_ptr<DiskFile> file;
    Outcome outcome = open(path, OpenMode::Append, file);
    if (!done(outcome))
        return outcome;
    outcome = lock(path, OpenMode::Append, file);
    if (shut() || file == nullptr) // the refused lock has ended the program
        return outcome;
    return appendTo(*file, path, content);
}

Outcome Files::open(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    if (shut())
        return Outcome::Denied;
    return judge("Opening", path, disk.open(realPath(path), mode, file));
}

Outcome Files::lock(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    if (shut())
        return Outcome::Denied;
    const std::string real = realPath(path);
    for (int attempt = 0; attempt < kLockAttempts; ++attempt) {
        Outcome outcome = file->tryLock();
        if (!done(outcome) || file->isStillAt(real))
            return judge("Locking", path, outcome);
        outcome = disk.open(real, mode, file);
        if (!done(outcome))
            return judge("Opening", path, outcome);
    }
    return judge("Locking", path, Outcome::Locked);
}

Outcome Files::replaceWhole(std::string_view path, std::string_view content)
{
    if (shut())
        return Outcome::Denied;
    const std::string real = realPath(path);
    Outcome outcome =
        replaceFile(disk, real, [&](DiskFile &file) { return file.writeAt(0, content); });
    if (done(outcome))
        outcome = disk.flushDirectory(parentOf(real));
    return judge("Replacing", path, outcome);
}

Outcome Files::flushFolderOf(std::string_view path)
{
    return judge("Writing", path, disk.flushDirectory(parentOf(realPath(path))));
}

std::vector<std::string> splitLines(std::string_view content)
{
    std::vector<std::string> lines;
    while (!content.empty()) {
        const std::size_t end = std::min(content.find_first_of("\r\n"), content.size());
        lines.emplace_back(content.substr(0, end));
        const bool pair = content.substr(end, 2) == "\r\n";
        content.remove_prefix(std::min(end + (pair ? 2U : 1U), content.size()));
    }
    return lines;
}

std::string textLine(std::string_view text)
{
    std::string line(text);
    std::replace(line.begin(), line.end(), '\0', ' ');
    return line.append("\r\n");
}

} // namespace platform
