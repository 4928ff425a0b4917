// SlotFile: fixed-length records at (slot - 1) x length in a shared file. It knows only bytes; no
// other code computes offsets.
#pragma once

#include "platform/files.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace platform {

enum class SlotUse {
    Read,    // must exist
    Rewrite, // must exist; read and write N
    Append,  // created empty when missing; read and append
};

/// Open, lock, use, unlock, close; no file stays open while a user decides. All reading and writing
/// goes through the descriptor that holds the lock. Failures are handled as in Files: inside
/// ErrorsIgnored a refused lock is ignored and the write is done anyway.
class SlotFile {
public:
    SlotFile(Files &theFiles, std::string path, std::size_t slotLength);
    ~SlotFile(); // closes
    SlotFile(const SlotFile &) = delete;
    SlotFile &operator=(const SlotFile &) = delete;

    Outcome open(SlotUse use);
    /// Never waits. Checks that the file it locked is still the one at the path (it may have
    /// been replaced meanwhile), else opens it again and locks that one.
    Outcome lock();
    /// Length / slot length, rounded to the nearest whole number, an exact half to the even one. 0
    /// when not open, shut, or when the length cannot be read.
    long count();
    /// The same for callers that must tell none from unknown. A length of more than a million slots
    /// is Broken.
    Outcome count(long &slots);
    /// Bytes after the last whole slot; 0 in the same cases as count().
    std::size_t tail();
    /// Fills `into` (at most one slot's length) from slot N, from 1. Past the end, and for N < 1,
    /// NUL bytes without an error; a short last slot is filled up with NUL. A read that fails
    /// leaves `into` as it was.
    Outcome read(long slot, std::span<char> into);
    /// Writes at slot N; shorter than a slot leaves the slot's tail as it stands.
    Outcome write(long slot, std::string_view bytes);
    /// `bytes` must be one whole slot. The system places it at the end, so that it never overwrites
    /// what another process wrote, with or without the lock; `slot` is where it landed. Only if the
    /// file's length is not a multiple of the slot length, it is put into the next whole slot, over
    /// a tail of less than half a slot. Under the lock a longer tail is first filled up with NUL
    /// and flushed, so that a kill at any moment leaves the bytes only in their slot. After a
    /// failure the file is as it was. Flushed to the disk before close() returns.
    Outcome append(std::string_view bytes, long &slot);
    Outcome unlock();
    /// Flushes what was written (after the unlock, on the still open descriptor) and closes.
    Outcome close();
    bool isOpen() const { return file != nullptr; }
    /// Whether the open file is still the one at the path and was not replaced.
    bool isStillThere() const;
    const std::string &path() const { return name; }

private:
    Outcome checked(std::string_view operation, Outcome outcome);
    Outcome usable() const;
    Outcome attach();
    Outcome placeLocked(std::string_view bytes, std::uint64_t &landedAt);
    Outcome place(std::string_view claimed, std::string_view bytes, std::uint64_t &landedAt);
    void giveUp(std::uint64_t claim, std::uint64_t end);
    Outcome rewriteAt(std::uint64_t offset, std::string_view bytes);
    Outcome fillBuffer(std::uint64_t offset);
    void dropBuffer();
    std::uint64_t offsetOf(long slot) const
    {
        return (static_cast<std::uint64_t>(slot) - 1) * length;
    }
    std::uint64_t nearestSlot(std::uint64_t bytes) const;

    Files &files;
    std::string name;
    std::size_t length;
    SlotUse openedFor = SlotUse::Read;
    OpenMode mode = OpenMode::Read;
    std::unique_ptr<DiskFile> file;
    bool locked = false;
    bool written = false;
    bool startedFile = false; // the file's first record was appended here
    // What was read last. Under the lock, slots are read ahead, because nobody else may rewrite
    // them.
    std::string buffer;
    std::uint64_t bufferAt = 0;
};

} // namespace platform
