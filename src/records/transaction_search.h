// Where a transaction's record stands by now. Others may have moved it since it was written.
#pragma once

#include "records/app.h"

#include <string>

namespace records {

/// Receipt, transaction identifier, approval code, date, time, station and sale amount are the
/// same: nothing that a tip, a batch or a void changes. A manager's save writes a blank where a
/// field was never assigned, and leaves the transaction identifier without its signs; it is the
/// same transaction all the same.
bool sameTransaction(const CardRecord &one, const CardRecord &other);

struct Sighting {
    /// Not Done when a file that had to be searched cannot be read: then nobody can say where the
    /// record does not stand.
    platform::Outcome outcome = platform::Outcome::Done;
    std::string file;
    long slot = 0; // from 1
    bool found() const { return slot > 0; }
};

/// Searches `target`, "CCPending.dat", and the month and deleted files of every month from the
/// record's (24 after it at most) to today's, from their first slot to their last; one that does
/// not exist holds nothing. Failures end nothing.
Sighting findTransaction(App &app, const CardRecord &record, const std::string &target);

} // namespace records
