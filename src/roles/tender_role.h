// The tender role: wires the tender screen to what the program gives it.
#pragma once

#include "roles/application.h"

namespace roles {

/// Opens the first screen of TndrCC over the whole display. What it returns keeps the role alive.
std::shared_ptr<void> openTender(Program &program);

} // namespace roles
