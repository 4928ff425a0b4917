// Drives: turns Windows paths ("C:\Lumbrio\Data\") into real ones.
#pragma once

#include "platform/disk.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// On Windows a path is used as it stands. Elsewhere a drive letter is a sub-folder (one small
/// letter) of the drives folder, `\` and `/` are the same, several separators count as one (except
/// a leading `\\server`, which is the sub-folder "unc"), and each name is matched first as spelled
/// and then without regard to case. A name that does not exist keeps the spelling given, in the
/// existing folder whatever its case. A path with neither a drive nor a leading separator is
/// relative to drive c's root; "c\Lumbrio\" is such a path, not drive c.
class Drives {
public:
    enum class Paths { AsTheyStand, BelowRoot };

    /// `root`: the drives folder, an absolute real path. `paths`: AsTheyStand on Windows,
    /// BelowRoot elsewhere; a test may keep its files below a folder on Windows too.
    Drives(Disk &theDisk, std::string root, Paths paths = systemPaths());

    /// The real path. A path that does not exist is no failure. A folder on the way that cannot be
    /// looked at or listed is one, because the file may be there in another spelling. "." and ".."
    /// are resolved in the text; ".." never leads above the drive.
    Outcome resolve(std::string_view path, std::string &real) const;
    /// For callers that create nothing: the path as spelled if the real spelling is unknown.
    std::string resolve(std::string_view path) const;
    const std::string &root() const { return folder; }

    /// LUMBRIO_DRIVES, else $XDG_DATA_HOME/lumbrio/drives, else ~/.local/share/lumbrio/drives; on
    /// Windows the folder of the executable (where installation.ini lies).
    static std::string defaultRoot();
    static Paths systemPaths();

private:
    struct Listing {
        std::uint64_t stamp = 0;
        std::vector<std::string> names;
    };

    std::string driveOf(std::string_view &path) const;
    Outcome walk(std::string at, const std::vector<std::string> &names, std::size_t next,
                 std::string &real) const;
    Outcome fits(const std::string &path, bool last, bool &there) const;
    Outcome match(const std::string &parent, bool last, std::string &name, bool &there) const;
    Outcome namesIn(const std::string &directory, std::vector<std::string> *&names) const;

    Disk &disk;
    std::string folder;
    Paths kind;
    // The names in the folders, as long as these have not changed: a wait asks for the same missing
    // file hundreds of times a second.
    mutable std::map<std::string, Listing> listings;
};

} // namespace platform
