// Services: everything that a procedure may use of the platform, as one set of references.
#pragma once

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/installation.h"
#include "platform/printers.h"
#include "platform/run.h"
#include "platform/slot_file.h"
#include "platform/system.h"

namespace platform {

struct Services {
    Run &run;
    Files &files;
    Clock &clock;
    Dialogs &dialogs;
    System &system;
    Printers &printers;
    const Installation &installation;

    void yield() const { run.yield(); }
    void glance() const { run.glance(); }
    void end() const { run.end(); }
    bool ending() const { return run.ending(); }
};

} // namespace platform
