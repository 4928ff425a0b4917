// TndrCC: takes one card tender for the point of sale and ends.
#include "roles/tender_role.h"

int main(int argc, char **argv)
{
    return roles::runProgram(argc, argv, roles::openTender);
}
