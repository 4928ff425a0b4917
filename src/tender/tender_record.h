// TenderRecord: the record of one tender on its way into a card file. It is stored before anything
// is printed or answered, and a charge that no card file takes is kept at the station.
#pragma once

#include "records/app.h"
#include "records/careful_append.h"

#include <string>
#include <vector>

namespace tender {

class TenderRecord {
public:
    /// A notice about a charge that is in no card file is added to `theNotices`.
    TenderRecord(records::App &theApp, std::vector<platform::Notice> &theNotices)
        : app(theApp), notices(theNotices)
    {
    }

    /// Appends a copy of `CCdata` to `file` and flushes it. Waits some seconds for a lock that
    /// another holds, then appends without it. A failure is traced; an approved record is then
    /// kept in the station's own folder. For routines that ignore errors.
    void store(const std::string &file);
    /// Writes `CCdata` once more into its slot. Does nothing when the record was not stored, or was
    /// stored without the lock: its holder may be about to write to that slot.
    void writeAgain();
    /// Call it before the answer. A record that was appended without the lock may have been written
    /// over: it is looked for and, when it is missing, appended again.
    void confirm();

    /// The charge is recorded on a disk, whatever happens from here on.
    bool safe() const { return done(stored.outcome) || kept; }
    /// The lock was not to be had: another program may write over the record.
    bool unlocked() const { return stored.unlocked; }
    /// From 1, in its file; 0 where the record is not stored.
    long slot() const { return stored.slot; }

private:
    void tellUnstored();
    bool keep();

    records::App &app;
    std::vector<platform::Notice> &notices;
    records::CardRecord record; // as it was appended
    std::string file;
    records::CarefulRecord stored;
    bool kept = false; // in the station's own folder
};

} // namespace tender
