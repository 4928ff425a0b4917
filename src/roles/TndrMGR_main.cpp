// TndrMGR: the manager's program: the list of pending transactions, from tips to batch out.
#include "roles/manager_role.h"

int main(int argc, char **argv)
{
    return roles::runProgram(argc, argv, roles::openManager);
}
