// Rewrites of a whole card file: records leave it for another file, the others stay in their order.
// The one way in which "CCPending.dat" becomes shorter.
#pragma once

#include "records/app.h"

#include <functional>
#include <string>

namespace records {

enum class Fate {
    Stays,
    Moves,    // to the end of the target
    Vanishes, // an empty slot
};

struct CardRewrite {
    std::string file;
    std::string target;   // takes the records that move, created when missing; empty: none do
    std::string workFile; // the next content of `file` while it is being written
    /// Called once for each slot in its order.
    std::function<Fate(const CardRecord &record)> fateOf;
    /// What a record is to become where it goes: in the target, or in the file if it stays.
    std::function<void(CardRecord &copy, Fate fate)> change{};
    /// In ErrorsIgnored a refused lock of `file` is passed over.
    bool worksUnlocked = false;
    /// Told the slots of the second walk. No event may run in it: the file is locked.
    std::function<void(long slot)> progress{};
};

/// First the moving records are appended to the target and flushed. Then, if any leaves or changes,
/// the work file is filled with the slots of the others, read anew, and put in the place of the
/// file, under the lock from the first look on (see platform::WorkFile for what others append
/// meanwhile). No slot is written to in its place: a record that a power cut tears there could not
/// be read any more, half scrambled. At every moment each record is whole in one of the two files,
/// after a stop in between perhaps in both. On the first operation that fails nothing more is done.
platform::Outcome rewriteCardFile(App &app, const CardRewrite &rewrite);

} // namespace records
