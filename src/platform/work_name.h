// Names of work files: the files that a program writes beside another one before they replace it.
// The name says who made it, so that a program can delete what it left when it was killed.
#pragma once

#include "platform/disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Who makes a work file: the names of the computer and of the executable.
struct Maker {
    std::string station;
    std::string role;
};

/// `name` + ".STATION-process-time-count-role" + `ending`, never the same twice. In the names of
/// station and role any character other than a letter or digit (or a dash of the station) becomes
/// "%" and two hexadecimal digits, so that no name can be mistaken for another.
std::string workName(std::string_view name, const Maker &maker, std::string_view ending = ".new");

/// Whether workName() made the name for exactly this maker, with the ending ".new" or ".part".
/// False for a maker without a name, and for names without a maker.
bool isWorkOf(std::string_view name, const Maker &maker);

/// Removes the work files of `maker` from a folder (a real path). Only for a caller that is certain
/// that no running process uses one. `removed` gets their names; a missing folder has none.
Outcome removeWork(Disk &disk, const std::string &folder, const Maker &maker,
                   std::vector<std::string> &removed);

} // namespace platform
