// Disk: the seam to the system's files, on real paths. Everything above it speaks contract paths
// through Files. disk_posix.cpp and disk_win32.cpp stand side by side; tests wrap one to fail or
// stop at the Nth operation.
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

/// What stands at a path.
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
    /// ReadWrite, CreateEmpty and CreateNew only. On failure some of the bytes may stand there.
    virtual Outcome writeAt(std::uint64_t offset, std::string_view bytes) = 0;
    /// Append and AppendNoLink only: places the bytes at the end in one piece; `landedAt` is their
    /// offset. A short write (disk full) is cut back, so that the file is as before, and gives
    /// NoRoom.
    virtual Outcome append(std::string_view bytes, std::uint64_t &landedAt) = 0;
    /// Cuts the file to `to` bytes if it is `from` bytes long (nobody wrote behind it meanwhile),
    /// else leaves it; Done in both cases. Not for Read.
    virtual Outcome cutBack(std::uint64_t from, std::uint64_t to) = 0;
    /// Bytes to the disk itself.
    virtual Outcome flush() = 0;
    /// The whole-file lock: exclusive, never waits, one byte at kLockOffset, beyond any data, so
    /// that it keeps out lock takers and never blocks the bytes. Locked when another holds it.
    virtual Outcome tryLock() = 0;
    virtual Outcome unlock() = 0;
    /// True when the file at `path` is this open file still (it was not replaced by a rename).
    virtual bool isStillAt(const std::string &path) = 0;
};

constexpr std::uint64_t kLockOffset = 0x4000000000000000ULL;

class Disk {
public:
    virtual ~Disk() = default;

    /// `file` is empty after a failure. Only plain files open; anything else is Broken. Leased
    /// when the system has asked another computer (or program) to let go of it and did not wait.
    virtual Outcome open(const std::string &path, OpenMode mode,
                         std::unique_ptr<DiskFile> &file) = 0;
    /// Nothing is found only where the system is certain of it. Whatever else goes wrong is a
    /// failure, and says nothing of what is there.
    virtual Outcome look(const std::string &path, Found &found) = 0;
    /// When a file was last written to, in local time.
    virtual Outcome modified(const std::string &path, DateTime &when) = 0;
    virtual Outcome remove(const std::string &path) = 0;
    /// Atomic; replaces a file at `to` and takes over its permissions. Only where Windows cannot
    /// replace an open file is it copied over it instead.
    virtual Outcome rename(const std::string &from, const std::string &to) = 0;
    /// Atomic too, and never replaces anything: fails where a name is taken already.
    virtual Outcome renameToFree(const std::string &from, const std::string &to) = 0;
    virtual Outcome makeDirectory(const std::string &path) = 0;
    /// Names (not paths) in a directory, files and folders, in no particular order.
    virtual Outcome list(const std::string &directory, std::vector<std::string> &names) = 0;
    /// A number that changes when names come to or leave the directory, and by itself once a
    /// second (not every file server tells of changes). 0: just changed, or the system cannot say.
    virtual std::uint64_t changeStamp(const std::string &) { return 0; }
    /// Makes a rename or a new name in the directory durable.
    virtual Outcome flushDirectory(const std::string &directory) = 0;
};

/// The system's own disk.
std::unique_ptr<Disk> systemDisk();

/// A text for temporary names that this computer makes only once: the process, the time and a
/// count, in hexadecimal digits with dashes between them.
std::string uniqueSuffix();

} // namespace platform
