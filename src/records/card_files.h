// The card files: where they are and how a record is added, read, rewritten and moved. Slots of 500
// bytes, numbered from 1; each step opens, locks, uses, unlocks and closes the file.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace records {

/// `Remotedir` + "CCPending.dat".
std::string pendingFile(const ProcessValues &values);
/// `Remotedir` + "\data\CCFinal" + "MMYY" + ".dat"; the second separator is intended.
std::string monthFile(const ProcessValues &values, const platform::DateTime &when);
/// `Remotedir` + "\data\" + "MMYY" + "CCdeleted.dat".
std::string deletedFile(const ProcessValues &values, const platform::DateTime &when);

/// Creates the file empty if it is missing, but not in `lookOnly`. False if there is none.
bool makeIfMissing(App &app, const std::string &file);

/// A record as the 500 bytes of a new slot: 10 NULs after it.
std::string wholeSlot(const CardRecord &record);

struct StoredRecord {
    platform::Outcome outcome = platform::Outcome::Broken; // of the append and its flush
    long slot = 0; // where the record landed, from 1; 0 when it is not stored
    /// In the file; with an outcome other than Done it may be lost in a power cut.
    bool stored() const { return slot > 0; }
};

/// Appends a record: creates the file if it is missing, opens and locks it, lets the system place
/// the record at the end, unlocks, flushes. Inside ErrorsIgnored a refused lock is ignored and the
/// record is appended anyway; it can never overwrite another station's record.
StoredRecord addRecord(App &app, const std::string &file, const CardRecord &record);

/// Appends to a file that is open for appending, unlocks, flushes and closes.
StoredRecord appendAndClose(platform::SlotFile &slots, const CardRecord &record);

/// The same without the lock, for the month's deleted records.
StoredRecord addUnlocked(App &app, const std::string &file, const CardRecord &record);

/// Reads slot N; a slot that does not exist (0, or beyond the end) gives all NULs.
platform::Outcome readRecord(App &app, const std::string &file, long slot, CardRecord &record);

/// Whether slot N, read under the lock, holds exactly this record. False for a slot that does not
/// exist.
bool holdsRecord(App &app, const std::string &file, long slot, const CardRecord &record);

/// Writes `next` at slot N, under the lock, if the slot still holds `before`; the 10 bytes after
/// the record stay as they are. False if it was not written: the slot by now holds another record,
/// which stays.
bool replaceRecord(App &app, const std::string &file, long slot, const CardRecord &before,
                   const CardRecord &next);

/// Sets `CCAdjStatus` in every slot, including empty ones, in place under one lock; nothing else of
/// a record changes. A missing file is created empty.
platform::Outcome setEveryStatus(App &app, const std::string &file, std::string_view status);

/// Removes slot N, by rewriteCardFile(). All other slots keep their bytes and their order. A slot
/// that does not exist changes nothing; a missing file is created empty. False if the slot holds
/// another record than `record`; it stays.
bool removeRecord(App &app, const std::string &file, long slot, const CardRecord &record);

/// Number of records: length / 500 to the nearest; 0 without the file.
long countRecords(App &app, const std::string &file);
/// Writes a line to the process trace if a file of so many bytes ends between two slots: its last
/// record is not whole. Called once by code that reads a whole file, or one of its records for a
/// person.
void traceTail(App &app, const std::string &file, std::size_t bytes);
/// The same for an open file.
void traceTail(App &app, platform::SlotFile &slots);

/// The trimmed `CCAdjStatus` begins with "Com", in exactly these letters.
bool isSettled(const CardRecord &record);

/// Moves the settled records from "CCPending.dat" to the month file, by rewriteCardFile(). Without
/// the lock nothing moves (only "Finish" goes on without it).
void moveSettledRecords(App &app);

} // namespace records
