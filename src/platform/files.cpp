#include "platform/files.h"

#include "platform/patience.h"

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t kChunk = 64U << 10U;
constexpr int kNameAttempts = 20; // one fails only if another station takes the name just then
constexpr int kLockAttempts = 20; // one fails only if another station replaces the file just then

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

} // namespace

Files::Files(Disk &theDisk, const Drives &theDrives, Run &theRun)
    : disk(theDisk), drives(theDrives), run(theRun)
{
}

Outcome Files::checked(std::string_view operation, std::string_view path, Outcome outcome)
{
    if (!done(outcome) && !run.ending() && !run.errorsIgnored())
        run.fail(operation, path, outcome);
    return outcome;
}

Outcome Files::openReal(const std::string &real, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    return patiently(run, Wait::Lease, [&] { return disk.open(real, mode, file); });
}

/// A new file, written whole under another name and then renamed; removed if a step fails.
template <typename Fill> Outcome Files::replaceFile(const std::string &real, Fill fill, Rename move)
{
    const std::string beside = workName(real, maker);
    std::unique_ptr<DiskFile> file;
    Outcome outcome = openReal(beside, OpenMode::CreateNew, file);
    if (!done(outcome))
        return outcome;
    outcome = fill(*file);
    if (done(outcome))
        outcome = file->flush();
    file.reset();
    if (done(outcome))
        outcome = (disk.*move)(beside, real);
    if (!done(outcome))
        disk.remove(beside);
    return outcome;
}

/// Makes the call on the real path, and handles a failure.
template <typename Call>
Outcome Files::perform(std::string_view operation, std::string_view path, Call call)
{
    if (shut())
        return Outcome::Denied;
    std::string real;
    const Outcome outcome = realPath(path, real);
    return checked(operation, path, done(outcome) ? call(real) : outcome);
}

Outcome Files::look(std::string_view path, Found &found)
{
    return perform("Looking at", path,
                   [&](const std::string &real) { return disk.look(real, found); });
}

bool Files::exists(std::string_view path)
{
    bool there = false;
    exists(path, there);
    return there;
}

Outcome Files::exists(std::string_view path, bool &there)
{
    Found found = Found::Nothing;
    const Outcome outcome = endsInSeparator(path) ? Outcome::Done : look(path, found);
    there = found == Found::File;
    return outcome;
}

bool Files::folderExists(std::string_view path)
{
    Found found = Found::Nothing;
    return !path.empty() && done(look(path, found)) && found == Found::Folder;
}

Outcome Files::modified(std::string_view path, DateTime &when)
{
    return perform("Looking at", path,
                   [&](const std::string &real) { return disk.modified(real, when); });
}

Outcome Files::remove(std::string_view path)
{
    return perform("Deleting", path, [&](const std::string &real) { return disk.remove(real); });
}

Outcome Files::removeIfThere(std::string_view path)
{
    bool missing = false;
    const Outcome outcome = perform("Deleting", path, [&](const std::string &real) {
        const Outcome removed = disk.remove(real);
        missing = removed == Outcome::NotThere;
        return missing ? Outcome::Done : removed;
    });
    return missing ? Outcome::NotThere : outcome;
}

Outcome Files::copy(std::string_view from, std::string_view to)
{
    std::unique_ptr<DiskFile> source;
    const Outcome outcome = perform("Copying", from, [&](const std::string &real) {
        return openReal(real, OpenMode::Read, source);
    });
    if (!done(outcome))
        return outcome;
    return perform("Copying", to, [&](const std::string &real) {
        return replaceFile(real, [&](DiskFile &target) { return copyBytes(*source, target); });
    });
}

Outcome Files::rename(std::string_view from, std::string_view to)
{
    std::string realTo;
    const Outcome outcome = perform("Renaming", to, [&](const std::string &real) {
        realTo = real;
        return Outcome::Done;
    });
    if (!done(outcome))
        return outcome;
    return perform("Renaming", from, [&](const std::string &real) {
        const Outcome moved = disk.renameToFree(real, realTo);
        return done(moved) ? disk.flushDirectory(parentOf(realTo)) : moved;
    });
}

Outcome Files::removeWorkFiles(std::string_view folder, std::vector<std::string> &removed)
{
    return perform("Cleaning up", folder,
                   [&](const std::string &real) { return removeWork(disk, real, maker, removed); });
}

Outcome Files::makeFolder(std::string_view path)
{
    return perform("Making the folder", path, [&](const std::string &real) {
        Found found = Found::Nothing;
        Outcome outcome = disk.look(real, found);
        if (done(outcome) && found != Found::Folder)
            outcome = disk.makeDirectory(real);
        if (!done(outcome) && done(disk.look(real, found)) && found == Found::Folder)
            outcome = Outcome::Done; // another station was faster
        return outcome;
    });
}

std::vector<std::string> Files::list(std::string_view folder)
{
    std::vector<std::string> names;
    list(folder, names);
    return names;
}

Outcome Files::list(std::string_view folder, std::vector<std::string> &names)
{
    names.clear();
    const Outcome outcome =
        perform("Listing", folder, [&](const std::string &real) { return listFiles(real, names); });
    if (!done(outcome))
        names.clear();
    return outcome;
}

Outcome Files::listFiles(const std::string &real, std::vector<std::string> &names)
{
    std::vector<std::string> all;
    Outcome outcome = disk.list(real, all);
    if (outcome == Outcome::NotThere)
        return Outcome::Done;
    std::sort(all.begin(), all.end());
    for (std::size_t i = 0; i < all.size() && done(outcome); ++i) {
        Found found = Found::Nothing;
        outcome = disk.look(real + "/" + all[i], found);
        if (found == Found::File)
            names.push_back(std::move(all[i]));
    }
    return outcome;
}

Outcome Files::createIfMissing(std::string_view path)
{
    return perform("Creating", path, [&](const std::string &real) {
        Found found = Found::Nothing;
        const Outcome outcome = disk.look(real, found);
        if (!done(outcome) || found == Found::File)
            return outcome;
        // Append, because another station may create it and write to it at the same moment.
        std::unique_ptr<DiskFile> file;
        return openReal(real, OpenMode::Append, file);
    });
}

Outcome Files::read(std::string_view path, std::string &content, std::size_t limit)
{
    return readAs(OpenMode::Read, path, content, limit);
}

Outcome Files::readNoLink(std::string_view path, std::string &content, std::size_t limit)
{
    return readAs(OpenMode::ReadNoLink, path, content, limit);
}

Outcome Files::readAs(OpenMode mode, std::string_view path, std::string &content, std::size_t limit)
{
    content.clear();
    std::unique_ptr<DiskFile> file;
    if (const Outcome outcome = open(path, mode, file); !done(outcome))
        return outcome;
    std::string read;
    for (;;) {
        const std::size_t had = read.size();
        read.resize(had + std::min(kChunk, limit - had));
        std::size_t got = 0;
        const Outcome outcome = file->readAt(had, read.data() + had, read.size() - had, got);
        if (!done(outcome))
            return checked("Reading", path, outcome);
        read.resize(had + got);
        if (got == 0)
            break;
    }
    content = std::move(read);
    return Outcome::Done;
}

Outcome Files::writeInPlace(std::string_view path, std::string_view content, bool flushed)
{
    return perform("Writing", path, [&](const std::string &real) {
        Found found = Found::File;
        std::unique_ptr<DiskFile> file;
        Outcome outcome = flushed ? disk.look(real, found) : Outcome::Done;
        if (done(outcome))
            outcome = openReal(real, OpenMode::CreateEmpty, file);
        if (done(outcome))
            outcome = file->writeAt(0, content);
        if (done(outcome) && flushed)
            outcome = file->flush();
        if (done(outcome) && found == Found::Nothing)
            outcome = disk.flushDirectory(parentOf(real));
        return outcome;
    });
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
    return checked("Writing", path, file.append(content, landedAt));
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

Outcome Files::tryOpen(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    std::string real;
    const Outcome outcome = realPath(path, real);
    return done(outcome) ? openReal(real, mode, file) : outcome;
}

Outcome Files::open(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    if (shut())
        return Outcome::Denied;
    return checked("Opening", path, tryOpen(path, mode, file));
}

Outcome Files::lock(std::string_view path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    if (shut())
        return Outcome::Denied;
    std::string real;
    if (const Outcome outcome = realPath(path, real); !done(outcome))
        return checked("Locking", path, outcome);
    for (int attempt = 0; attempt < kLockAttempts; ++attempt) {
        Outcome outcome = file->tryLock();
        if (!done(outcome) || file->isStillAt(real))
            return checked("Locking", path, outcome);
        outcome = tryOpen(path, mode, file);
        if (!done(outcome))
            return checked("Opening", path, outcome);
    }
    return checked("Locking", path, Outcome::Locked);
}

Outcome Files::replaceWhole(std::string_view path, std::string_view content)
{
    return perform("Replacing", path, [&](const std::string &real) {
        const Outcome outcome =
            replaceFile(real, [&](DiskFile &file) { return file.writeAt(0, content); });
        return done(outcome) ? disk.flushDirectory(parentOf(real)) : outcome;
    });
}

std::string Files::freeName(std::string_view beginning, std::string_view ending)
{
    std::string name(beginning);
    for (int number = 2; exists(name + std::string(ending)); ++number)
        name = std::string(beginning) + "-" + std::to_string(number);
    return name.append(ending);
}

Outcome Files::writeNew(std::string_view beginning, std::string_view ending,
                        std::string_view content, std::string &path)
{
    Outcome outcome = Outcome::Done;
    for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
        path = freeName(beginning, ending);
        bool taken = false;
        outcome = perform("Writing", path, [&](const std::string &real) {
            const Outcome written = replaceFile(
                real, [&](DiskFile &file) { return file.writeAt(0, content); },
                &Disk::renameToFree);
            Found found = Found::Nothing;
            taken = !done(written) && done(disk.look(real, found)) && found != Found::Nothing;
            return done(written) ? disk.flushDirectory(parentOf(real)) : written;
        });
        if (!taken)
            break;
    }
    return outcome;
}

Outcome Files::flushFolderOf(std::string_view path)
{
    // Also when shut: it completes what was written before.
    std::string real;
    const Outcome outcome = realPath(path, real);
    return checked("Writing", path, done(outcome) ? disk.flushDirectory(parentOf(real)) : outcome);
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
