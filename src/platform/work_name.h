// Names of work files: what a program writes beside a file before it takes that file's place. Each
// says who has made it, so that a program can clear away what it has left when it was killed.
#pragma once

#include "platform/disk.h"

#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// Who makes work files: the computer's and the executable's name.
struct Maker {
    std::string station;
    std::string role;
};

/// `name` + ".STATION-process-time-count-role" + `ending`, never the same twice. What is neither
/// letter nor digit in the names of station and role (a dash of the station may stay) is written
/// as "%" and two hexadecimal digits, so that one name never reads as another.
std::string workName(std::string_view name, const Maker &maker, std::string_view ending = ".new");

/// A name that workName() has made for exactly this maker, with the ending ".new" or ".part". False
/// for a maker without a name, and for names that do not tell their maker.
bool isWorkOf(std::string_view name, const Maker &maker);

/// Removes the work files of `maker` from a folder (a real path). Only for whoever is certain that
/// no living process of his owns one. `removed` gets their names; a folder that is not there holds
/// none.
Outcome removeWork(Disk &disk, const std::string &folder, const Maker &maker,
                   std::vector<std::string> &removed);

} // namespace platform
