#include "reports/walk_progress.h"

namespace reports {

namespace {

constexpr std::uint64_t kSayEvery = 50; // ms
constexpr long kLookEvery = 16;         // records

} // namespace

bool WalkProgress::due()
{
    const std::uint64_t now = clock.milliseconds();
    if (now - said < kSayEvery)
        return false;
    said = now;
    return true;
}

bool WalkProgress::dueAt(long record)
{
    return record % kLookEvery == 0 && due();
}

} // namespace reports
