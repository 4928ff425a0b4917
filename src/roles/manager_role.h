// The manager's role: wires the manager's screens to what the program gives them and to each other.
#pragma once

#include "roles/application.h"

namespace roles {

/// Opens the first screen of TndrMGR over the whole display. What it returns keeps the role alive.
std::shared_ptr<void> openManager(Program &program);

} // namespace roles
