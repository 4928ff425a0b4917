// Appends that bring a charged card into a card file: they wait for a lock that another holds, and
// check afterwards if they had to go on without it.
#pragma once

#include "records/card_files.h"

namespace records {

struct CarefulRecord : StoredRecord {
    bool unlocked = false; // the lock was refused for all of the wait: another may write over it
};

/// Like addRecord(), but waits for a lock that another holds (platform::Wait::CardFileLock). After
/// an append without the lock it calls confirmStored(). For routines that ignore errors.
CarefulRecord addCarefully(App &app, const std::string &file, const CardRecord &record);

/// Whether the record of an append without the lock is still where it landed. If another record is
/// there, the record is searched for, because the holder of the lock may have moved it, and
/// appended again if it is nowhere. If that cannot be found out, it counts as not stored and is not
/// appended again.
CarefulRecord confirmStored(App &app, const std::string &file, const CardRecord &record,
                            const CarefulRecord &stored);

/// Writes slot N again, unchanged, and flushes it, under the lock, for which it waits: after a
/// failed flush readers may see a record that is not on the disk. NotThere if the slot holds
/// another transaction than `record`.
platform::Outcome flushRecord(App &app, const std::string &file, long slot,
                              const CardRecord &record);

} // namespace records
