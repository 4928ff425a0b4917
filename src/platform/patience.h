// Patience: all short waits for failures that pass by themselves, and their limits: a lease that
// its holder gives back, a lock held for a moment, a short failure of a share.
#pragma once

#include "platform/outcome.h"
#include "platform/run.h"

#include <cstdint>
#include <functional>

namespace platform {

enum class Wait {
    Lease,         // a file that another computer must give back before it can be opened
    Configuration, // "LumbrioINI.dat", which the point of sale locks while it writes
    Options,       // the files that say how a card is charged; one that is not there is no failure
    CardFileLock,  // the lock of a card file, before a tender appends without it
    Result,        // the payment application's word, once it lies there
    Answer,        // the answer to the point of sale
};

/// The longest wait, in milliseconds.
std::uint32_t limitOf(Wait wait);

/// Repeats `attempt` in short steps until it succeeds, fails in a way that does not pass by itself,
/// or the limit is over. Gives the last outcome for the caller to judge: failures during the
/// attempts are ignored. Meanwhile the windows are only repainted: no input, timer or handler runs.
/// While the program ends, it does not wait.
Outcome patiently(Run &run, Wait wait, const std::function<Outcome()> &attempt);

} // namespace platform
