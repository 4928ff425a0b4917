#include "platform/outcome.h"

namespace platform {

const char *textOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Done: return "done";
    case Outcome::NotThere: return "not there";
    case Outcome::Locked: return "locked by another";
    case Outcome::Leased: return "not given back by another computer";
    case Outcome::NoRoom: return "no room on the disk";
    case Outcome::Denied: return "access denied";
    case Outcome::Broken: break;
    }
    return "device or network error";
}

} // namespace platform
