#include "platform/slot_file.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t kReadAhead = 64U << 10U;
constexpr std::uint64_t kMostSlots = 1ULL << 40U; // far more than any file system holds
// More than a restaurant takes in a life; a broken length must not fill the memory or take forever.
constexpr std::uint64_t kMostCounted = 1ULL << 20U;

bool isPossible(long slot)
{
    return slot >= 1 && static_cast<std::uint64_t>(slot) <= kMostSlots;
}

} // namespace

SlotFile::SlotFile(Files &theFiles, std::string path, std::size_t slotLength)
    : files(theFiles), name(std::move(path)), length(slotLength)
{
}

SlotFile::~SlotFile()
{
    close();
}

Outcome SlotFile::checked(std::string_view operation, Outcome outcome)
{
    return files.checked(operation, name, outcome);
}

Outcome SlotFile::usable() const
{
    if (files.shut())
        return Outcome::Denied;
    return isOpen() ? Outcome::Done : Outcome::NotThere;
}

Outcome SlotFile::open(SlotUse use)
{
    close();
    if (files.shut())
        return Outcome::Denied;
    openedFor = use;
    return checked("Opening", attach());
}

bool SlotFile::isStillThere() const
{
    return isOpen() && file->isStillAt(files.realPath(name));
}

Outcome SlotFile::attach()
{
    mode = openedFor == SlotUse::Append ? OpenMode::Append : OpenMode::ReadWrite;
    Outcome outcome = files.tryOpen(name, mode, file);
    // A reader opens for writing too if it can: on some systems an exclusive lock needs that.
    if (outcome == Outcome::Denied && openedFor == SlotUse::Read) {
        mode = OpenMode::Read;
        outcome = files.tryOpen(name, mode, file);
    }
    return outcome;
}

Outcome SlotFile::lock()
{
    if (const Outcome outcome = usable(); !done(outcome) || locked)
        return outcome;
    dropBuffer();
    const Outcome outcome = files.lock(name, mode, file);
    locked = done(outcome);
    return outcome;
}

Outcome SlotFile::unlock()
{
    dropBuffer();
    if (!std::exchange(locked, false))
        return Outcome::Done;
    return checked("Unlocking", file->unlock());
}

Outcome SlotFile::close()
{
    Outcome outcome = unlock();
    if (std::exchange(written, false)) {
        const Outcome flushed = file->flush();
        if (done(outcome))
            outcome = checked("Writing", flushed);
    }
    if (std::exchange(startedFile, false))
        files.flushFolderOf(name);
    file.reset();
    return outcome;
}

std::uint64_t SlotFile::nearestSlot(std::uint64_t bytes) const
{
    const std::uint64_t whole = bytes / length;
    const std::uint64_t twice = 2 * (bytes % length);
    const bool up = twice > length || (twice == length && whole % 2 == 1);
    return up ? whole + 1 : whole;
}

long SlotFile::count()
{
    long slots = 0;
    return done(count(slots)) ? slots : 0;
}

Outcome SlotFile::count(long &slots)
{
    if (const Outcome outcome = usable(); !done(outcome))
        return outcome;
    std::uint64_t bytes = 0;
    Outcome sized = file->size(bytes);
    if (done(sized) && nearestSlot(bytes) > kMostCounted)
        sized = Outcome::Broken;
    const Outcome outcome = checked("Reading", sized);
    if (done(outcome))
        slots = static_cast<long>(nearestSlot(bytes));
    return outcome;
}

std::size_t SlotFile::tail()
{
    std::uint64_t bytes = 0;
    const bool known = done(usable()) && done(checked("Reading", file->size(bytes)));
    return known ? static_cast<std::size_t>(bytes % length) : 0;
}

Outcome SlotFile::read(long slot, std::span<char> into)
{
    if (const Outcome outcome = usable(); !done(outcome))
        return outcome;
    into = into.first(std::min(into.size(), length));
    if (!isPossible(slot)) {
        std::fill(into.begin(), into.end(), '\0');
        return Outcome::Done;
    }
    const std::uint64_t offset = offsetOf(slot);
    const bool atHand =
        locked && offset >= bufferAt && offset + into.size() <= bufferAt + buffer.size();
    if (!atHand) {
        if (const Outcome outcome = fillBuffer(offset); !done(outcome))
            return checked("Reading", outcome);
    }
    const std::string_view found =
        std::string_view(buffer).substr(static_cast<std::size_t>(offset - bufferAt), into.size());
    const auto end = std::copy(found.begin(), found.end(), into.begin());
    std::fill(end, into.end(), '\0');
    return Outcome::Done;
}

/// Reads the slot at `offset`, and many after it when slots are read in order.
Outcome SlotFile::fillBuffer(std::uint64_t offset)
{
    const bool walking = locked && offset == bufferAt + buffer.size();
    const std::size_t slots = walking ? std::max<std::size_t>(kReadAhead / length, 1) : 1;
    buffer.resize(slots * length);
    bufferAt = offset;
    std::size_t got = 0;
    const Outcome outcome = file->readAt(offset, buffer.data(), buffer.size(), got);
    buffer.resize(got);
    return outcome;
}

void SlotFile::dropBuffer()
{
    buffer.clear();
    bufferAt = 0;
}

Outcome SlotFile::write(long slot, std::string_view bytes)
{
    if (const Outcome outcome = usable(); !done(outcome))
        return outcome;
    if (openedFor != SlotUse::Rewrite || !isPossible(slot))
        return checked("Writing", Outcome::Broken);
    dropBuffer();
    written = true;
    return checked("Writing", file->writeAt(offsetOf(slot), bytes.substr(0, length)));
}

Outcome SlotFile::append(std::string_view bytes, long &slot)
{
    if (const Outcome outcome = usable(); !done(outcome))
        return outcome;
    if (openedFor != SlotUse::Append || bytes.size() != length)
        return checked("Writing", Outcome::Broken);
    dropBuffer();
    // Without the lock the file may just have been replaced; nobody reads the old one any more.
    if (!locked && !isStillThere()) {
        if (const Outcome outcome = attach(); !done(outcome))
            return checked("Opening", outcome);
    }
    std::uint64_t landedAt = 0;
    const Outcome outcome = locked ? placeLocked(bytes, landedAt) : place(bytes, bytes, landedAt);
    if (done(outcome)) {
        written = true;
        startedFile = startedFile || landedAt == 0;
        slot = static_cast<long>(landedAt / length) + 1;
    }
    return checked("Writing", outcome);
}

/// A tail that counts as a slot is first filled up to a whole one, so that the record lands in its
/// slot at once: if it were moved there later, a kill in between would leave it across two slots.
/// After a shorter tail the place is claimed with NUL.
Outcome SlotFile::placeLocked(std::string_view bytes, std::uint64_t &landedAt)
{
    std::uint64_t end = 0;
    if (!done(file->size(end))) // go on as without the lock: the record still gets into its slot
        return place(bytes, bytes, landedAt);
    const std::uint64_t tail = end % length;
    const std::string nothing(length, '\0');
    if (2 * tail < length)
        return place(tail == 0 ? bytes : nothing, bytes, landedAt);
    const std::string padding = nothing.substr(tail);
    std::uint64_t paddedAt = 0;
    Outcome outcome = file->append(padding, paddedAt);
    if (!done(outcome))
        return outcome;
    outcome = file->flush();
    if (done(outcome))
        outcome = place(bytes, bytes, landedAt);
    // If another station has appended meanwhile, the padding may be part of its record.
    if (!done(outcome) && paddedAt == end)
        file->cutBack(end + padding.size(), end);
    return outcome;
}

/// Appends `claimed` first and then looks where it landed: only that is certain. A length that was
/// read before may be that of another station's half-done write.
Outcome SlotFile::place(std::string_view claimed, std::string_view bytes, std::uint64_t &landedAt)
{
    std::uint64_t claim = 0;
    const Outcome outcome = file->append(claimed, claim);
    // To the nearest slot, and a half always up: of two stations that append after half a slot, one
    // would round up to the slot that the other rounds down to. Rounded down, a rewrite that has
    // already passed the half would not look there.
    const std::uint64_t tail = claim % length;
    landedAt = claim - tail + (2 * tail >= length ? length : 0);
    if (!done(outcome) || (landedAt == claim && claimed.data() == bytes.data()))
        return outcome;
    // After a torn tail. The bytes that the record covers now are its claim: any other append,
    // locked or not, claims the next 500 bytes, so that no two move to the same slot. The head of
    // the record must not stay in the slot that the tail belongs to.
    const std::string gap(landedAt > claim ? landedAt - claim : 0, '\0');
    const Outcome moved = rewriteAt(std::min(claim, landedAt), gap + std::string(bytes));
    if (!done(moved))
        giveUp(claim, std::max(claim, landedAt) + length);
    else if (landedAt < claim && locked)
        file->cutBack(claim + length, landedAt + length);
    // Without the lock the rest of the claim stays, since another append may come directly after
    // it. It is less than half a slot and does not count.
    return moved;
}

/// Takes an append back, unless somebody has appended after it.
void SlotFile::giveUp(std::uint64_t claim, std::uint64_t end)
{
    std::uint64_t size = 0;
    if (done(file->size(size)) && size <= end)
        file->cutBack(size, claim);
}

/// Through a second descriptor, because one opened for appending ignores the offset.
Outcome SlotFile::rewriteAt(std::uint64_t offset, std::string_view bytes)
{
    std::unique_ptr<DiskFile> rewriting;
    const Outcome outcome = files.tryOpen(name, OpenMode::ReadWrite, rewriting);
    if (!done(outcome))
        return outcome;
    // Just replaced by another station: not the file that the record was appended to.
    return isStillThere() ? rewriting->writeAt(offset, bytes) : Outcome::NotThere;
}

} // namespace platform
