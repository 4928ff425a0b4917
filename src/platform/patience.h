// Patience: the short waits for what passes by itself, all of them and their limits in one place:
// a lease that its holder gives back, a lock held for a moment, a share that stumbles.
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

/// Makes `attempt`, and makes it again in short steps, until it is done, fails in a way that does
/// not pass by itself, or the limit is over. Gives the last outcome, for the caller to judge: while
/// it is being attempted, failures are passed over. The windows are repainted meanwhile and nothing
/// else happens: no input, timer or handler. At the end of the program nothing is waited for.
Outcome patiently(Run &run, Wait wait, const std::function<Outcome()> &attempt);

} // namespace platform
