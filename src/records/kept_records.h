// Kept records: charged cards whose record could not be written to its card file. Each is kept
// whole in its own file in the station's `Data\` until a program of the station can store it.
#pragma once

#include "records/app.h"

#include <string>
#include <vector>

namespace records {

/// `Maindir` + "Data\", created if it is missing. For routines that ignore errors.
std::string stationDataFolder(App &app);

/// Writes `record` and the path of its card file to "KeptRecord-<date>-<time>.dat", flushed. Gives
/// the path of that file, or an empty text if the record could not be kept either; `outcome` says
/// why.
std::string keepRecord(App &app, const std::string &target, const CardRecord &record,
                       platform::Outcome &outcome);

struct KeptRecords {
    int stored = 0; // by this call, or found to be stored already
    std::vector<CardRecord> waiting;
    int unreadable = 0; // or, where the folder cannot be listed, perhaps there
};

/// At the start of every role: appends each kept record to its card file, under the lock, unless
/// one of the card files already has it, and removes the file that kept it. A program that claims
/// such a file renames it and locks it while it works on it, so that no record is stored twice. A
/// record that cannot be stored yet stays kept. The traces report each case. Failures do not end
/// the program.
KeptRecords storeKeptRecords(App &app);

} // namespace records
