// Rewrites of a whole card file: some records move to another file, the others stay in their order.
// The only way in which "CCPending.dat" becomes shorter.
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
    /// Changes a record before it is written: to the target, or to the file if it stays.
    std::function<void(CardRecord &copy, Fate fate)> change{};
    /// In ErrorsIgnored, ignore a refused lock of `file`.
    bool worksUnlocked = false;
    /// Called with each slot of the second pass. No event may run in it: the file is locked.
    std::function<void(long slot)> progress{};
};

/// First the moving records are appended to the target and flushed. Then, if any record leaves or
/// changes, the work file is filled with the other slots, read again, and replaces the file. The
/// file is locked all the time (see platform::WorkFile for what others append meanwhile). No slot
/// is rewritten in place, because a power cut could leave half a record there. At every moment each
/// record is whole in one of the two files; if the program stops in between, perhaps in both. The
/// first operation that fails ends the rewrite.
platform::Outcome rewriteCardFile(App &app, const CardRewrite &rewrite);

} // namespace records
