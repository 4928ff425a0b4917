// The card files: where they lie and how a record is added, read, rewritten and moved. Slots of
// 500 bytes, known by their number from 1; open, lock, use, unlock, close around each step.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace records {

/// `Remotedir` + "CCPending.dat".
std::string pendingFile(const ProcessValues &values);
/// `Remotedir` + "\data\CCFinal" + "MMYY" + ".dat"; the separator stands twice by design.
std::string monthFile(const ProcessValues &values, const platform::DateTime &when);
/// `Remotedir` + "\data\" + "MMYY" + "CCdeleted.dat".
std::string deletedFile(const ProcessValues &values, const platform::DateTime &when);

/// Makes a missing file, empty; in `lookOnly` it does not. False where it is not there.
bool makeIfMissing(App &app, const std::string &file);

/// A record as the 500 bytes of a new slot: 10 NULs behind it.
std::string wholeSlot(const CardRecord &record);

struct StoredRecord {
    platform::Outcome outcome = platform::Outcome::Broken; // of the append and its flush
    long slot = 0; // where the record landed, from 1; 0 when it is not stored
    /// In the file; with an outcome other than Done it may not outlive a power cut.
    bool stored() const { return slot > 0; }
};

/// Appends a record: created empty when missing, opened, locked, placed at the end by the system,
/// unlocked, flushed. Inside ErrorsIgnored a refused lock is passed over and the append is made
/// all the same; it can never overwrite another station's record.
StoredRecord addRecord(App &app, const std::string &file, const CardRecord &record);

/// Appends to a file that is open for it, unlocks, flushes and closes.
StoredRecord appendAndClose(platform::SlotFile &slots, const CardRecord &record);

/// The same without the lock, for the month's deleted records.
StoredRecord addUnlocked(App &app, const std::string &file, const CardRecord &record);

/// Reads slot N; a slot that does not exist (0, or beyond the end) gives all NULs.
platform::Outcome readRecord(App &app, const std::string &file, long slot, CardRecord &record);

/// Whether slot N, looked at under the lock, holds just this record; one that does not exist holds
/// none.
bool holdsRecord(App &app, const std::string &file, long slot, const CardRecord &record);

/// Writes `next` at slot N, under the lock, where the slot still holds `before`; the 10 bytes
/// behind the record stay as they are. False where it was not written: another's record, which came
/// to lie there meanwhile, stays.
bool replaceRecord(App &app, const std::string &file, long slot, const CardRecord &before,
                   const CardRecord &next);

/// `CCAdjStatus` of every slot, empty ones included, in place under one lock; nothing else of a
/// record changes. A missing file is created empty.
platform::Outcome setEveryStatus(App &app, const std::string &file, std::string_view status);

/// Takes slot N out, by rewriteCardFile(). All other slots stay byte for byte in their order. A
/// slot that does not exist changes nothing; a missing file is created empty. False where the slot
/// holds another record than `record`, and stays.
bool removeRecord(App &app, const std::string &file, long slot, const CardRecord &record);

/// Number of records: length / 500 to the nearest; 0 without the file.
long countRecords(App &app, const std::string &file);
/// A line in the process trace when a file of so many bytes ends between two slots: somebody's last
/// record is not whole. Said once by whoever reads a whole file, or a record of it for a person.
void traceTail(App &app, const std::string &file, std::size_t bytes);
/// The same for a file that is open.
void traceTail(App &app, platform::SlotFile &slots);

/// The trimmed `CCAdjStatus` begins with "Com", in just these letters.
bool isSettled(const CardRecord &record);

/// Moves the settled records from "CCPending.dat" to the month file, by rewriteCardFile(). Without
/// the lock nothing moves; "Finish" alone goes on without it.
void moveSettledRecords(App &app);

} // namespace records
