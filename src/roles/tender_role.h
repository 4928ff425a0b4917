// The tender role: connects the tender screen with the program's services.
#pragma once

#include "roles/application.h"

namespace roles {

/// Opens the first screen of TndrCC, full screen. The role lives as long as the returned object.
std::shared_ptr<void> openTender(Program &program);

} // namespace roles
