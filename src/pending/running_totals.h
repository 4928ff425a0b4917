// RunningTotals: the totals of a file that is read again after every save of a bulk command.
#pragma once

#include "pending/pending_list.h"

#include <vector>

namespace pending {

/// Always those of the whole file as it was read last, whoever has changed it. For speed, only
/// records that differ from the reading before are evaluated again.
class RunningTotals {
public:
    void take(std::vector<records::CardRecord> fresh);

    /// Of the last reading, from slot 1 on.
    const std::vector<records::CardRecord> &file() const { return records; }
    const reports::Totals &totals() const { return sums; }

private:
    std::vector<records::CardRecord> records;
    std::vector<Counted> counted; // of each record
    reports::Totals sums;
};

} // namespace pending
