#include "platform/work_file.h"

#include <utility>

namespace platform {

namespace {

constexpr std::size_t kAtOnce = 64U << 10U;

} // namespace

WorkFile::WorkFile(Files &theFiles, std::string path, std::size_t slotLength)
    : files(theFiles), name(std::move(path)), length(slotLength)
{
}

WorkFile::~WorkFile()
{
    if (created && !placed && !files.shut())
        files.rawDisk().remove(files.realPath(name));
}

Outcome WorkFile::checked(std::string_view operation, Outcome outcome)
{
    return files.checked(operation, name, outcome);
}

Outcome WorkFile::create()
{
    Outcome outcome = files.open(name, OpenMode::AppendNoLink, file);
    if (done(outcome))
        outcome = files.lock(name, OpenMode::AppendNoLink, file);
    if (!done(outcome))
        return outcome;
    created = true;
    std::uint64_t leftOver = 0;
    outcome = file->size(leftOver);
    if (done(outcome) && leftOver > 0)
        outcome = file->cutBack(leftOver, 0);
    return checked("Creating", outcome);
}

void WorkFile::add(std::string_view slot)
{
    waiting += slot;
    if (waiting.size() >= kAtOnce)
        writeOut();
}

Outcome WorkFile::writeOut()
{
    std::uint64_t landedAt = 0;
    if (done(writing) && !waiting.empty())
        writing = files.shut() ? Outcome::Denied : file->append(waiting, landedAt);
    waiting.clear();
    return writing;
}

Outcome WorkFile::copyAppendedOnce(SlotFile &live, long &walked)
{
    const long count = live.count();
    if (count < walked)
        return Outcome::Broken;
    std::string slot(length, '\0');
    for (; walked < count; ++walked) {
        if (const Outcome outcome = live.read(walked + 1, slot); !done(outcome))
            return outcome;
        add(slot);
    }
    const Outcome outcome = writeOut();
    return done(outcome) ? file->flush() : outcome;
}

/// Repeats until nothing was appended to the live file while this one was flushed.
Outcome WorkFile::copyAppended(SlotFile &live, long &walked)
{
    Outcome outcome = Outcome::Done;
    do {
        outcome = copyAppendedOnce(live, walked);
        if (done(outcome) && !live.isStillThere())
            outcome = Outcome::Locked;
    } while (done(outcome) && live.count() > walked);
    return outcome;
}

Outcome WorkFile::replace(SlotFile &live, long walked)
{
    std::string from;
    std::string to;
    Outcome outcome = copyAppended(live, walked);
    if (done(outcome))
        outcome = files.realPath(name, from);
    if (done(outcome))
        outcome = files.realPath(live.path(), to);
    if (done(outcome))
        outcome = files.rawDisk().rename(from, to);
    if (!done(outcome))
        return files.checked("Replacing", live.path(), outcome);
    placed = true;
    outcome = files.flushFolderOf(live.path());
    // If the system could only copy this file over the live one, there is no old one left.
    if (live.isStillThere() || live.count() == walked)
        return outcome;
    const Outcome copied = checked("Writing", copyAppendedOnce(live, walked));
    return done(outcome) ? copied : outcome;
}

} // namespace platform
