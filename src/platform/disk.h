// Disk: the interface to the system's files, on real paths. Everything above it uses Windows paths,
// through Files. Implemented in disk_posix.cpp and disk_win32.cpp; tests wrap one that fails or
// stops at the Nth operation.
#pragma once

#include "platform/clock.h"
#include "platform/outcome.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

enum class OpenMode {
    Read,         // must exist; a lock taken through it is a shared one where the system knows both
    ReadNoLink,   // the same of the file itself: a link in its place is Broken
    ReadWrite,    // must exist; for rewriting in place, never for appending
    Append,       // created when missing; every write lands at the end, wherever that is by then
    AppendNoLink, // the same of the file itself, for those who then empty it: a link is Broken
    CreateEmpty,  // created when missing, emptied when there; for writing
    CreateNew,    // created, and must not exist, not even as a link; for writing
};

constexpr bool appends(OpenMode mode)
{
    return mode == OpenMode::Append || mode == OpenMode::AppendNoLink;
}
constexpr bool followsNoLink(OpenMode mode)
{
    return mode == OpenMode::ReadNoLink || mode == OpenMode::AppendNoLink;
}

/// What is at a path.
enum class Found {
    Nothing,
    File,
    Folder,
    Other, // a device, a pipe
};

/// One open file. Closing (destruction) releases a lock held through it. No descriptor is ever
/// inherited by a started program.
class DiskFile {
public:
    virtual ~DiskFile() = default;

    virtual Outcome size(std::uint64_t &bytes) = 0;
    /// Reads up to `length` bytes; `got` says how many there were (0 past the end).
    virtual Outcome readAt(std::uint64_t offset, char *into, std::size_t length,
                           std::size_t &got) = 0;
    /// Only for ReadWrite, CreateEmpty and CreateNew. On failure some of the bytes may be written.
    virtual Outcome writeAt(std::uint64_t offset, std::string_view bytes) = 0;
    /// Only for Append and AppendNoLink: places the bytes at the end in one piece; `landedAt` is
    /// their offset. A short write (disk full) is cut back, so that the file is as before, and
    /// gives NoRoom.
    virtual Outcome append(std::string_view bytes, std::uint64_t &landedAt) = 0;
    /// Cuts the file to `to` bytes if it is `from` bytes long, so that nobody has appended
    /// meanwhile; else leaves it. Done in both cases. Not for Read.
    virtual Outcome cutBack(std::uint64_t from, std::uint64_t to) = 0;
    /// Bytes to the disk itself.
    virtual Outcome flush() = 0;
    /// The lock of the whole file: exclusive, never waits. It is one byte at kLockOffset, beyond
    /// any data, so that it keeps out other takers of the lock and never blocks the bytes. Locked
    /// when another holds it.
    virtual Outcome tryLock() = 0;
    virtual Outcome unlock() = 0;
    /// True when the file at `path` is still this open file (it was not replaced by a rename).
    virtual bool isStillAt(const std::string &path) = 0;
};

constexpr std::uint64_t kLockOffset = 0x4000000000000000ULL;

class Disk {
public:
    virtual ~Disk() = default;

    /// `file` is empty after a failure. Only plain files open; anything else is Broken. Leased when
    /// another computer (or program) holds a lease on it; the system has asked for it back and does
    /// not wait.
    virtual Outcome open(const std::string &path, OpenMode mode,
                         std::unique_ptr<DiskFile> &file) = 0;
    /// Found::Nothing only if the system is certain of it. Any other problem is a failure, after
    /// which it is unknown what is there.
    virtual Outcome look(const std::string &path, Found &found) = 0;
    /// When a file was last written to, in local time.
    virtual Outcome modified(const std::string &path, DateTime &when) = 0;
    virtual Outcome remove(const std::string &path) = 0;
    /// Atomic; replaces a file at `to` and takes over its permissions. Only if Windows cannot
    /// replace an open file, the bytes are copied over it instead.
    virtual Outcome rename(const std::string &from, const std::string &to) = 0;
    /// Atomic too, but never replaces anything: fails if the name exists.
    virtual Outcome renameToFree(const std::string &from, const std::string &to) = 0;
    virtual Outcome makeDirectory(const std::string &path) = 0;
    /// Names (not paths) in a directory, files and folders, in no particular order.
    virtual Outcome list(const std::string &directory, std::vector<std::string> &names) = 0;
    /// A number that changes when names appear or disappear in the directory, and by itself once a
    /// second (not every file server reports changes). 0: just changed, or the system cannot say.
    virtual std::uint64_t changeStamp(const std::string &) { return 0; }
    /// Makes a rename or a new name in the directory durable.
    virtual Outcome flushDirectory(const std::string &directory) = 0;
};

/// The system's own disk.
std::unique_ptr<Disk> systemDisk();

/// A text for temporary names, never the same twice on this computer: the process, the time and a
/// count, in hexadecimal digits with dashes between them.
std::string uniqueSuffix();

} // namespace platform
