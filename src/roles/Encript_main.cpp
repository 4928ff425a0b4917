// Encript: the tool "Hyper Encription".
#include "manager/Encript.h"
#include "roles/application.h"

int main(int argc, char **argv)
{
    return roles::runProgram(argc, argv, [](roles::Program &program) {
        if (!program.hasInstallation())
            return std::shared_ptr<manager::Encript>();
        auto screen = std::make_shared<manager::Encript>(program.services());
        screen->show();
        return screen;
    });
}
