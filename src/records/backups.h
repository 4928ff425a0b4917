// Backups with a stamp: copies of a card file, named by their date and time.
#pragma once

#include "records/app.h"

#include <string>
#include <vector>

namespace records {

/// The result of a backup.
struct Backup {
    platform::DateTime when;           // the moment that its name tells
    std::string stamp;                 // MMDDYYYYHHMMSS, the beginning of its name
    int copies = 0;                    // made; none where there was nothing to copy
    std::vector<std::string> failures; // a line for the log for each copy that was not made
};

/// Copies "CCpending.dat" of `Remotedir`, if it is there, to "data\CCdata\" + stamp + `name` in
/// `Remotedir`, and in `Maindir` where that is another directory. In `lookOnly` nothing.
Backup backUpPending(App &app, const std::string &name);

inline constexpr const char *kBackup = "CCpending.dat";
inline constexpr const char *kBatchBackup = "CCpendingBatch.dat";

} // namespace records
