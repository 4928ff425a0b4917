// Where a transaction's record is now. Others may have moved it since it was written.
#pragma once

#include "records/app.h"

#include <string>

namespace records {

/// True if receipt, transaction identifier, approval code, date, time, station and sale amount are
/// the same: a tip, a batch or a void changes none of them. A manager's save writes blanks into a
/// field never assigned and drops the signs of the transaction identifier; it is still the same
/// transaction.
bool sameTransaction(const CardRecord &one, const CardRecord &other);

struct Sighting {
    /// Not Done if a file that had to be searched cannot be read: then the record may be in it.
    platform::Outcome outcome = platform::Outcome::Done;
    std::string file;
    long slot = 0; // from 1
    bool found() const { return slot > 0; }
};

/// Searches `target`, "CCPending.dat", and the month and deleted files of every month from the
/// record's (24 after it at most) to today's. A missing file has no records. Failures do not end
/// the program.
Sighting findTransaction(App &app, const CardRecord &record, const std::string &target);

} // namespace records
