// TndrMGR for script/screens: the shipped program with a hand at its keyboard.
//   LUMBRIO_PLAY_PRESS   the command of this name is pressed once it is enabled; more of them
//   behind
//                        semicolons. "Row 1000" opens the row of the list that begins so
#include "roles/manager_role.h"
#include "support/qt/hand.h"

namespace {

struct PlayedManager {
    explicit PlayedManager(roles::Program &program)
        : manager(roles::openManager(program)), hand(program.services().clock)
    {
    }
    std::shared_ptr<void> manager;
    support::Hand hand;
};

} // namespace

int main(int argc, char **argv)
{
    return roles::runProgram(argc, argv, [](roles::Program &program) {
        return std::make_shared<PlayedManager>(program);
    });
}
