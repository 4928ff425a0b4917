// WorkFile: the next content of a slot file, written beside it and put in its place whole.
#pragma once

#include "platform/slot_file.h"

#include <string>
#include <string_view>

namespace platform {

/// While it is open nobody else can write one of the same name. It is locked from the beginning, so
/// that it is the locked live file as soon as it is in place: no taker of the lock sees the change
/// half-done. A work file that replaced nothing is removed again, unless the program is ending.
class WorkFile {
public:
    WorkFile(Files &theFiles, std::string path, std::size_t slotLength);
    ~WorkFile();
    WorkFile(const WorkFile &) = delete;
    WorkFile &operator=(const WorkFile &) = delete;

    /// Creates the file, or empties one that was left over, and locks it; never through a link. A
    /// refused lock, inside ErrorsIgnored too, means that another program is using it: do not go
    /// on.
    Outcome create();
    /// Adds one whole slot after the others. Slots are written many at a time, so that a failure
    /// may show only in replace().
    void add(std::string_view slot);
    /// Replaces `live`, which is open and whose slots 1 to `walked` were copied or moved. Records
    /// that others appended after those, as they may without the lock, are copied too: those before
    /// the last look, immediately before the rename, and those that one more look after it finds.
    /// Fails if `live` shrank, cannot be read or is no longer the file at its path.
    Outcome replace(SlotFile &live, long walked);

private:
    Outcome copyAppendedOnce(SlotFile &live, long &walked);
    Outcome writeOut();
    Outcome copyAppended(SlotFile &live, long &walked);
    Outcome checked(std::string_view operation, Outcome outcome);

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
