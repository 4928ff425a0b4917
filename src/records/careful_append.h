// Appends by which a charged card enters a card file: patient with a lock that another holds, and
// looked after where they had to be made without it.
#pragma once

#include "records/card_files.h"

namespace records {

struct CarefulRecord : StoredRecord {
    bool unlocked = false; // the lock was refused for all of the wait: another may write over it
};

/// Like addRecord(), but a lock that is held is waited for (platform::Wait::CardFileLock). An
/// append without it is looked at right away, as by confirmStored(). For routines that ignore
/// errors.
CarefulRecord addCarefully(App &app, const std::string &file, const CardRecord &record);

/// Whether the record of an append without the lock still stands where it landed. Where another
/// stands there it is searched for, since who holds the lock may have moved it, and is appended
/// again when it stands nowhere. Where that cannot be found out it counts as not stored, and is not
/// appended a second time.
CarefulRecord confirmStored(App &app, const std::string &file, const CardRecord &record,
                            const CarefulRecord &stored);

/// Writes slot N once more as it stands and flushes it, under the lock, which is waited for: after
/// a flush that failed what a reader sees may still not be on the disk. NotThere when the slot
/// holds another transaction than `record`.
platform::Outcome flushRecord(App &app, const std::string &file, long slot,
                              const CardRecord &record);

} // namespace records
