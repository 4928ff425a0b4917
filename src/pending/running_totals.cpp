#include "pending/running_totals.h"

#include <utility>

namespace pending {

void RunningTotals::take(std::vector<records::CardRecord> fresh)
{
    counted.resize(fresh.size());
    count = 0;
    sums = {};
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        if (i >= records.size() || !(fresh[i] == records[i])) {
            records::CardRecord copy = fresh[i];
            counted[i] = countedAs(copy);
        }
        if (!counted[i].listed)
            continue;
        ++count;
        sums.tab = sums.tab + counted[i].tab;
        sums.tip = sums.tip + counted[i].tip;
    }
    records = std::move(fresh);
}

} // namespace pending
