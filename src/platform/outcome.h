// Outcome: how a single operation on a file or program ended. Nothing throws; a failure is either
// ignored (ErrorsIgnored) or ends the program with the system's own message.
#pragma once

namespace platform {

enum class Outcome {
    Done,
    NotThere, // the file, the folder or the program does not exist
    Locked,   // another process holds it
    Leased,   // another computer has been given it, and is being asked to give it back
    NoRoom,   // the disk is full
    Denied,   // read-only, no rights, or the file layer is shut
    Broken,   // anything else: hardware, network, not a file
};

inline bool done(Outcome outcome)
{
    return outcome == Outcome::Done;
}

/// One English word or two for messages and traces, such as "not there".
const char *textOf(Outcome outcome);

} // namespace platform
