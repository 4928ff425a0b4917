// The manager's role: connects the manager's screens with the program's services and with each
// other.
#pragma once

#include "roles/application.h"

namespace roles {

/// Opens the first screen of TndrMGR, full screen. The role lives as long as the returned object.
std::shared_ptr<void> openManager(Program &program);

} // namespace roles
