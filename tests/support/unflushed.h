// Unflushed: what a program has changed and not flushed yet, for the power cut of a test.
#pragma once

#include "platform/disk.h"

#include <map>
#include <memory>
#include <set>
#include <string>

namespace support {

/// The disk reports each change that it makes. What other programs change stays as it is.
class Unflushed {
public:
    using Path = const std::string &;

    /// Before a change: a file that is there by then is on the disk.
    void touch(Path at);
    void opened(Path at);
    void removed(Path at) { names[at].now.reset(); }
    void renamed(Path from, Path to);
    void folderMade(Path at) { folders.insert(at); }
    void flushed(platform::DiskFile &file);
    void folderFlushed(Path folder);

    /// No content survives that was not flushed. Names survive, or only those whose folder was
    /// flushed.
    void cutPower(bool namesSurvive) const;

private:
    struct Name { // the contents as flushed last
        std::shared_ptr<std::string> now;
        std::shared_ptr<std::string> durable;
    };
    std::map<std::string, Name> names;
    std::set<std::string> folders;
};

} // namespace support
