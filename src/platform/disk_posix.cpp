#include "platform/disk.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>
#include <utility>

namespace platform {

namespace {

// Whatever the umask: for the share's group, and nobody else.
constexpr mode_t kNewFileMode = 0660;
constexpr mode_t kNewFolderMode = 0770;

Outcome outcomeOf(int error)
{
    switch (error) {
    case ENOENT:
    case ENOTDIR: return Outcome::NotThere;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return Outcome::NoRoom;
    case EACCES:
    case EPERM:
    case EROFS: return Outcome::Denied;
    case EAGAIN: return Outcome::Locked;
    default: return Outcome::Broken;
    }
}

/// Repeats a system call that a signal interrupted (it happens on network file systems).
template <typename Call> auto uninterrupted(Call call)
{
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

Outcome outcomeOfCall(int result)
{
    return result == 0 ? Outcome::Done : outcomeOf(errno);
}

int flagsOf(OpenMode mode)
{
    switch (mode) {
    case OpenMode::Read: return O_RDONLY;
    case OpenMode::ReadNoLink: return O_RDONLY | O_NOFOLLOW;
    case OpenMode::ReadWrite: return O_RDWR;
    case OpenMode::Append: return O_RDWR | O_APPEND | O_CREAT;
    case OpenMode::AppendNoLink: return O_RDWR | O_APPEND | O_CREAT | O_NOFOLLOW;
    case OpenMode::CreateEmpty: return O_RDWR | O_CREAT | O_TRUNC;
    case OpenMode::CreateNew: break;
    }
    return O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
}

class PosixFile final : public DiskFile {
public:
    PosixFile(int theDescriptor, OpenMode theMode) : descriptor(theDescriptor), mode(theMode) {}
    ~PosixFile() override
    {
        // Unlocked explicitly, because a child between fork and exec still shares the descriptor.
        if (locked)
            unlock();
        ::close(descriptor);
    }
    PosixFile(const PosixFile &) = delete;
    PosixFile &operator=(const PosixFile &) = delete;

    Outcome size(std::uint64_t &bytes) override;
    Outcome readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got) override;
    Outcome writeAt(std::uint64_t offset, std::string_view bytes) override;
    Outcome append(std::string_view bytes, std::uint64_t &landedAt) override;
    Outcome cutBack(std::uint64_t from, std::uint64_t to) override;
    Outcome flush() override;
    Outcome tryLock() override;
    Outcome unlock() override;
    bool isStillAt(const std::string &path) override;

private:
    Outcome setLock(short type);

    int descriptor;
    OpenMode mode;
    bool locked = false;
};

Outcome PosixFile::size(std::uint64_t &bytes)
{
    struct stat found = {};
    if (::fstat(descriptor, &found) != 0)
        return outcomeOf(errno);
    bytes = static_cast<std::uint64_t>(found.st_size);
    return Outcome::Done;
}

Outcome PosixFile::readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got)
{
    got = 0;
    while (got < length) {
        const ssize_t part = uninterrupted([&] {
            return ::pread(descriptor, into + got, length - got, static_cast<off_t>(offset + got));
        });
        if (part < 0)
            return outcomeOf(errno);
        if (part == 0)
            break;
        got += static_cast<std::size_t>(part);
    }
    return Outcome::Done;
}

Outcome PosixFile::writeAt(std::uint64_t offset, std::string_view bytes)
{
    if (mode == OpenMode::Read || appends(mode))
        return Outcome::Denied; // in append mode the system would ignore the offset
    while (!bytes.empty()) {
        const ssize_t part = uninterrupted([&] {
            return ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        });
        if (part < 0)
            return outcomeOf(errno);
        bytes.remove_prefix(static_cast<std::size_t>(part));
        offset += static_cast<std::uint64_t>(part);
    }
    return Outcome::Done;
}

Outcome PosixFile::append(std::string_view bytes, std::uint64_t &landedAt)
{
    if (!appends(mode))
        return Outcome::Denied;
    const ssize_t part =
        uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
    if (part < 0)
        return outcomeOf(errno);
    // Only appends move this descriptor's position, so it is where the bytes end.
    const off_t end = ::lseek(descriptor, 0, SEEK_CUR);
    if (end < 0)
        return outcomeOf(errno);
    landedAt = static_cast<std::uint64_t>(end - part);
    if (static_cast<std::size_t>(part) == bytes.size())
        return Outcome::Done;
    cutBack(static_cast<std::uint64_t>(end), landedAt);
    return Outcome::NoRoom;
}

Outcome PosixFile::cutBack(std::uint64_t from, std::uint64_t to)
{
    std::uint64_t bytes = 0;
    if (const Outcome outcome = size(bytes); !done(outcome) || bytes != from)
        return outcome;
    return outcomeOfCall(
        uninterrupted([&] { return ::ftruncate(descriptor, static_cast<off_t>(to)); }));
}

Outcome PosixFile::flush()
{
    return outcomeOfCall(uninterrupted([&] { return ::fdatasync(descriptor); }));
}

/// Open-file-description locks: they belong to this descriptor, not to the process, so that
/// closing another descriptor of the same file does not lose them.
Outcome PosixFile::setLock(short type)
{
    struct flock span = {};
    span.l_type = type;
    span.l_whence = SEEK_SET;
    span.l_start = static_cast<off_t>(kLockOffset);
    span.l_len = 1;
    const int result = uninterrupted([&] { return ::fcntl(descriptor, F_OFD_SETLK, &span); });
    if (result != 0)
        return errno == EACCES ? Outcome::Locked : outcomeOf(errno);
    locked = type != F_UNLCK;
    return Outcome::Done;
}

Outcome PosixFile::tryLock()
{
    return setLock(mode == OpenMode::Read ? F_RDLCK : F_WRLCK);
}

Outcome PosixFile::unlock()
{
    return setLock(F_UNLCK);
}

/// Opens what is there, else creates it with the rights of a new file.
int openOrCreate(const char *path, int flags)
{
    const auto call = [&](int how) {
        return uninterrupted([&] { return ::open(path, how, kNewFileMode); });
    };
    const bool mustBeNew = (flags & O_EXCL) != 0;
    int descriptor = mustBeNew ? -1 : call(flags & ~O_CREAT);
    if (descriptor >= 0 || (flags & O_CREAT) == 0 || (!mustBeNew && errno != ENOENT))
        return descriptor;
    descriptor = call(flags | O_EXCL);
    if (descriptor >= 0)
        ::fchmod(descriptor, kNewFileMode); // a file system without rights has none to give
    else if (errno == EEXIST && !mustBeNew) // another was faster, or a link leads nowhere yet
        descriptor = call(flags);
    return descriptor;
}

bool PosixFile::isStillAt(const std::string &path)
{
    struct stat mine = {};
    struct stat there = {};
    return ::fstat(descriptor, &mine) == 0 && ::stat(path.c_str(), &there) == 0 &&
           mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
}

class PosixDisk final : public Disk {
public:
    Outcome open(const std::string &path, OpenMode mode, std::unique_ptr<DiskFile> &file) override;
    Outcome look(const std::string &path, Found &found) override;
    Outcome modified(const std::string &path, DateTime &when) override;
    Outcome remove(const std::string &path) override;
    Outcome rename(const std::string &from, const std::string &to) override;
    Outcome renameToFree(const std::string &from, const std::string &to) override;
    Outcome makeDirectory(const std::string &path) override;
    Outcome list(const std::string &directory, std::vector<std::string> &names) override;
    std::uint64_t changeStamp(const std::string &directory) override;
    Outcome flushDirectory(const std::string &directory) override;
};

Outcome PosixDisk::open(const std::string &path, OpenMode mode, std::unique_ptr<DiskFile> &file)
{
    file.reset();
    // Not blocking: opening a named pipe or a device must not stop the program.
    const int flags = flagsOf(mode) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = openOrCreate(path.c_str(), flags);
    if (descriptor < 0) // only a lease makes an open "try again"
        return errno == EWOULDBLOCK ? Outcome::Leased : outcomeOf(errno);
    struct stat found = {};
    if (::fstat(descriptor, &found) != 0 || !S_ISREG(found.st_mode)) {
        ::close(descriptor);
        return Outcome::Broken;
    }
    file = std::make_unique<PosixFile>(descriptor, mode);
    return Outcome::Done;
}

Outcome PosixDisk::look(const std::string &path, Found &found)
{
    found = Found::Nothing;
    struct stat there = {};
    if (::stat(path.c_str(), &there) != 0) {
        const Outcome outcome = outcomeOf(errno);
        return outcome == Outcome::NotThere ? Outcome::Done : outcome;
    }
    const bool file = S_ISREG(there.st_mode);
    found = file ? Found::File : S_ISDIR(there.st_mode) ? Found::Folder : Found::Other;
    return Outcome::Done;
}

Outcome PosixDisk::modified(const std::string &path, DateTime &when)
{
    struct stat found = {};
    if (::stat(path.c_str(), &found) != 0)
        return outcomeOf(errno);
    tm local = {};
    ::localtime_r(&found.st_mtim.tv_sec, &local);
    when = {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            0};
    return Outcome::Done;
}

Outcome PosixDisk::remove(const std::string &path)
{
    return outcomeOfCall(::unlink(path.c_str()));
}

Outcome PosixDisk::rename(const std::string &from, const std::string &to)
{
    struct stat old = {};
    struct stat fresh = {};
    if (::stat(to.c_str(), &old) == 0 && ::stat(from.c_str(), &fresh) == 0 &&
        old.st_mode != fresh.st_mode)
        ::chmod(from.c_str(), old.st_mode & 07777);
    return outcomeOfCall(::rename(from.c_str(), to.c_str()));
}

Outcome PosixDisk::renameToFree(const std::string &from, const std::string &to)
{
    const int result = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    if (result == 0 || (errno != EINVAL && errno != ENOSYS))
        return outcomeOfCall(result);
    // Not every file system supports it; then the file has both names for a moment.
    if (::link(from.c_str(), to.c_str()) != 0)
        return outcomeOf(errno);
    return outcomeOfCall(::unlink(from.c_str()));
}

Outcome PosixDisk::makeDirectory(const std::string &path)
{
    struct stat made = {};
    if (::mkdir(path.c_str(), kNewFolderMode) != 0)
        return outcomeOf(errno);
    // The group, and the rule that new files get it, come from the folder above.
    if (::stat(path.c_str(), &made) == 0)
        ::chmod(path.c_str(), kNewFolderMode | (made.st_mode & S_ISGID));
    return Outcome::Done;
}

Outcome PosixDisk::list(const std::string &directory, std::vector<std::string> &names)
{
    names.clear();
    DIR *open = ::opendir(directory.c_str());
    if (open == nullptr)
        return outcomeOf(errno);
    errno = 0;
    while (const dirent *entry = ::readdir(open)) {
        std::string name = entry->d_name;
        if (name != "." && name != "..")
            names.push_back(std::move(name));
    }
    const int error = errno;
    ::closedir(open);
    return error == 0 ? Outcome::Done : outcomeOf(error);
}

std::uint64_t PosixDisk::changeStamp(const std::string &directory)
{
    struct stat found = {};
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    // File systems store times in steps of up to two seconds, so a folder that changed within the
    // last two may change again and keep its time.
    constexpr time_t kCoarsest = 3;
    if (::stat(directory.c_str(), &found) != 0 || found.st_mtim.tv_sec > now.tv_sec - kCoarsest)
        return 0;
    std::uint64_t stamp = 0;
    for (const auto part :
         {static_cast<std::uint64_t>(found.st_dev), static_cast<std::uint64_t>(found.st_ino),
          static_cast<std::uint64_t>(found.st_mtim.tv_sec), static_cast<std::uint64_t>(now.tv_sec)})
        stamp = (stamp ^ part) * 0x9E3779B97F4A7C15ULL + (stamp >> 29U);
    return stamp == 0 ? 1 : stamp;
}

Outcome PosixDisk::flushDirectory(const std::string &directory)
{
    const int descriptor = uninterrupted(
        [&] { return ::open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (descriptor < 0)
        return outcomeOf(errno);
    const int result = uninterrupted([&] { return ::fsync(descriptor); });
    const int error = errno;
    ::close(descriptor);
    // Some network file systems cannot flush a folder; their server does it by itself.
    return result == 0 || error == EINVAL || error == ENOTSUP ? Outcome::Done : outcomeOf(error);
}

} // namespace

std::unique_ptr<Disk> systemDisk()
{
    return std::make_unique<PosixDisk>();
}

std::string uniqueSuffix()
{
    static std::atomic<unsigned> count = 0;
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    char text[64];
    std::snprintf(text, sizeof text, "%lx-%lx%lx-%x", static_cast<unsigned long>(::getpid()),
                  static_cast<unsigned long>(now.tv_sec), static_cast<unsigned long>(now.tv_nsec),
                  ++count);
    return text;
}

} // namespace platform
