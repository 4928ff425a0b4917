// Kept records: charged cards whose record could not be put into its card file. Each waits whole in
// a file of its own in the station's `Data\` until a program of the station can store it.
#pragma once

#include "records/app.h"

#include <string>
#include <vector>

namespace records {

/// `Maindir` + "Data\", which is made when it is missing. For routines that ignore errors.
std::string stationDataFolder(App &app);

/// Writes `record` and the card file that it belongs into to "KeptRecord-<date>-<time>.dat",
/// flushed. The path of that file, or empty when the record could not be kept either; `outcome`
/// tells why.
std::string keepRecord(App &app, const std::string &target, const CardRecord &record,
                       platform::Outcome &outcome);

struct KeptRecords {
    int stored = 0; // by this call, or found to be stored already
    std::vector<CardRecord> waiting;
    int unreadable = 0; // or, where the folder cannot be listed, perhaps there
};

/// At the start of every role: appends each kept record to its file, under the lock, unless it
/// stands in one of the card files already, and removes the file that kept it. A file is renamed by
/// the one that claims it and locked while he is at it, so that two programs never store it twice.
/// What cannot be stored yet waits. The traces tell each of it. Failures end nothing.
KeptRecords storeKeptRecords(App &app);

} // namespace records
