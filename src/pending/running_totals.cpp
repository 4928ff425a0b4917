#include "pending/running_totals.h"

#include <utility>

namespace pending {

void RunningTotals::take(std::vector<records::CardRecord> fresh)
{
    counted.resize(fresh.size());
    sums = {};
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        if (i >= records.size() || !(fresh[i] == records[i])) {
            records::CardRecord copy = fresh[i];
            counted[i] = countedAs(copy);
        }
        if (counted[i].listed)
            sums.add(counted[i].tab, counted[i].tip);
    }
    records = std::move(fresh);
}

} // namespace pending
