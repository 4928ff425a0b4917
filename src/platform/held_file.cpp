#include "platform/held_file.h"

#include <utility>

namespace platform {

Outcome HeldFile::take(std::string_view path, std::string_view text)
{
    if (held())
        return Outcome::Done;
    const ErrorsIgnored ignored(files.theRun());
    std::unique_ptr<DiskFile> opened;
    Outcome outcome = files.open(path, OpenMode::AppendNoLink, opened);
    if (done(outcome))
        outcome = files.lock(path, OpenMode::AppendNoLink, opened);
    if (!done(outcome))
        return outcome;
    // Only the lock counts, so a text that cannot be written is no failure.
    std::uint64_t size = 0;
    std::uint64_t landedAt = 0;
    if (done(opened->size(size)) && done(opened->cutBack(size, 0)) && !text.empty())
        opened->append(text, landedAt);
    file = std::move(opened);
    return Outcome::Done;
}

} // namespace platform
