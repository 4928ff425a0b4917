// RunningTotals: the totals of a file that is read again after every save of a bulk command.
#pragma once

#include "pending/pending_list.h"

#include <vector>

namespace pending {

/// They are those of the whole file as it was read last, whoever has changed it; but only records
/// that differ from those of the reading before are looked into again.
class RunningTotals {
public:
    void take(std::vector<records::CardRecord> fresh);

    /// Of the last reading, from slot 1 on.
    const std::vector<records::CardRecord> &file() const { return records; }
    long listed() const { return count; }
    records::Money tabs() const { return sums.tab; }
    records::Money tips() const { return sums.tip; }

private:
    std::vector<records::CardRecord> records;
    std::vector<Counted> counted; // of each record
    long count = 0;
    Counted sums;
};

} // namespace pending
