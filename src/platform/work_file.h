// WorkFile: the next content of a slot file, written beside it and put in its place whole.
#pragma once

#include "platform/slot_file.h"

#include <string>
#include <string_view>

namespace platform {

/// While it is open nobody else can build one of the same name, and from the moment it is in place
/// until it is closed its lock is that of the live file: no taker of the lock sees the change
/// half-way. One that took nobody's place is removed again, unless the program is ending.
class WorkFile {
public:
    WorkFile(Files &theFiles, std::string path, std::size_t slotLength);
    ~WorkFile();
    WorkFile(const WorkFile &) = delete;
    WorkFile &operator=(const WorkFile &) = delete;

    /// Created, or emptied where one was left over, and locked; never through a link. A lock that
    /// is refused, inside ErrorsIgnored too, means that another is at it: do not go on.
    Outcome create();
    /// One whole slot behind the others. Slots are written many at a time, so that a failure may
    /// show only in replace().
    void add(std::string_view slot);
    /// Takes the place of `live`, which is open and whose slots 1 to `walked` are accounted for.
    /// What others have appended behind them, which they may do without the lock, comes along: up
    /// to the last look right before the renaming, and by one more look behind it. Not done when
    /// `live` shrank, cannot be read or is no longer the file at its path.
    Outcome replace(SlotFile &live, long walked);

private:
    Outcome carryOver(SlotFile &live, long &walked);
    Outcome writeOut();
    Outcome comeUpWith(SlotFile &live, long &walked);
    Outcome judge(std::string_view operation, Outcome outcome);

    Files &files;
    std::string name;
    std::size_t length;
    std::unique_ptr<DiskFile> file;
    std::string waiting; // slots not written yet
    Outcome writing = Outcome::Done;
    bool created = false;
    bool placed = false;
};

} // namespace platform
