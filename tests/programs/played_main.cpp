// TndrCC and TndrMGR for tests and for script/screens: the shipped programs with a hand at their
// keyboard. What they play stands in their environment:
//   LUMBRIO_PLAY_CLOCK   so many milliseconds pass in the program for one of the wall's
//   LUMBRIO_PLAY_PRESS   the command with this caption (or a name of its own) is pressed
//                        once it is enabled; more of them behind semicolons. "Row 1000" opens the
//                        row of the list that begins so
//   LUMBRIO_PLAY_SWIPE   a track, typed by the card reader once a box takes one (behind PRESS)
//   LUMBRIO_PLAY_ESCAPE  Escape is pressed so many milliseconds (the program's) after the start
//   LUMBRIO_PLAY_HOLD    it stops (SIGSTOP) when it has printed and answered, just before it ends;
//                        otherwise nobody could take a picture of an approval
#include "roles/manager_role.h"
#include "roles/tender_role.h"
#include "support/faulty_disk.h"
#include "support/qt/hand.h"
#include "support/test_files.h"

#include <csignal>

namespace {

using support::setting;

struct Owned {
    std::unique_ptr<platform::Disk> owned;
};

struct PlayedDisk : private Owned, public support::FaultyDisk {
    explicit PlayedDisk(std::unique_ptr<platform::Disk> theDisk)
        : Owned{std::move(theDisk)}, FaultyDisk(*owned)
    {
        if (setting("LUMBRIO_PLAY_HOLD").empty())
            return;
        before = [this](std::size_t) { // the first thing after the answer
            if (operationLog().back().ends_with("/TRACELOG.TXT to append"))
                std::raise(SIGSTOP);
        };
    }
};

/// Which of them it is says the executable's name, as it does to the shipped ones.
struct Played {
    explicit Played(roles::Program &program)
        : screen(program.services().system.executableName() == "TndrMGR"
                     ? roles::openManager(program)
                     : roles::openTender(program)),
          hand(program.services().clock)
    {
    }
    std::shared_ptr<void> screen;
    support::Hand hand;
};

} // namespace

int main(int argc, char **argv)
{
    roles::ProgramOptions options;
    const std::string scale = setting("LUMBRIO_PLAY_CLOCK");
    options.clockScale = scale.empty() ? 1.0 : std::stod(scale);
    options.wrapDisk = [](auto disk) { return std::make_unique<PlayedDisk>(std::move(disk)); };
    return roles::runProgram(
        argc, argv, [](auto &program) { return std::make_shared<Played>(program); }, options);
}
