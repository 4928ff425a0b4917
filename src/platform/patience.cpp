#include "platform/patience.h"

namespace platform {

namespace {

constexpr std::uint32_t kStep = 20; // ms; short enough that nobody sees it

struct Row {
    std::uint32_t limit; // ms
    bool (*passes)(Outcome);
};

bool isLeased(Outcome outcome)
{
    return outcome == Outcome::Leased;
}

bool isLocked(Outcome outcome)
{
    return outcome == Outcome::Locked;
}

/// Any failure is worth another attempt, because money depends on it.
bool anyFailure(Outcome outcome)
{
    return !done(outcome);
}

bool isFailure(Outcome outcome)
{
    return !done(outcome) && outcome != Outcome::NotThere;
}

constexpr Row rowOf(Wait wait)
{
    switch (wait) {
    case Wait::Lease: return {10'000, isLeased};
    case Wait::Configuration: return {1'000, isLocked};
    case Wait::Options: return {1'000, isFailure};
    case Wait::CardFileLock: return {3'000, isLocked};
    case Wait::Result: return {1'000, anyFailure};
    case Wait::Answer: break;
    }
    return {1'000, anyFailure};
}

} // namespace

std::uint32_t limitOf(Wait wait)
{
    return rowOf(wait).limit;
}

Outcome patiently(Run &run, Wait wait, const std::function<Outcome()> &attempt)
{
    const ErrorsIgnored ignored(run);
    const Row row = rowOf(wait);
    const std::uint64_t begun = run.milliseconds();
    Outcome outcome = attempt();
    // An attempt may itself take long (a share that has gone) or no time at all.
    for (std::uint32_t rested = 0; row.passes(outcome) && !run.ending() && !run.impatient() &&
                                   rested < row.limit && run.milliseconds() - begun < row.limit;
         rested += kStep) {
        run.rest(kStep);
        outcome = attempt();
    }
    return outcome;
}

} // namespace platform
