// Deleting an entry and bringing it back. The record is flushed in its new file before it leaves
// the old one, so a stop in between leaves it in both.
#include "details/entry_record.h"
#include "details/entry_working.h"
#include "records/card_files.h"

namespace details {

using namespace records;

// Moves the record as it was read, not the boxes.
bool EntryDetails::moveRecord(const std::string &to, bool locked)
{
    if (!stillThere())
        return false;
    CardRecord moved = record;
    encodePlainNumber(moved);
    const StoredRecord added = locked ? addRecord(app, to, moved) : addUnlocked(app, to, moved);
    const bool removed = done(added.outcome) && removeRecord(app, fields.file, fields.slot, stored);
    if (!removed && !app.ending()) {
        reloadPending();
        app.dialogs.message("THE ENTRY HAS CHANGED",
                            "This entry was moved in its file by another program just now. It is "
                            "in " +
                                to + " already, and in the old file too. Please look at both.");
    }
    return removed;
}

bool EntryDetails::stillThere()
{
    app.files.createIfMissing(fields.file);
    const bool there = holdsRecord(app, fields.file, fields.slot, stored);
    if (!there && !app.ending())
        tellOtherRecord();
    return there;
}

void EntryDetails::deleteEntry()
{
    if (!mayChange())
        return;
    {
        const Working here(*this);
        if (!moveRecord(fields.deletedFile, false))
            return;
        reloadPending();
    }
    unload();
}

void EntryDetails::undelete()
{
    if (!mayChange())
        return;
    {
        const Working here(*this);
        if (!moveRecord(pendingFile(app.values), true))
            return;
        reloadPending();
        if (callbacks.reloadArchive)
            callbacks.reloadArchive();
    }
    unload();
}

} // namespace details
