// HeldFile: a file whose lock shows that its holder is running. When the holder dies, the system
// releases the lock.
#pragma once

#include "platform/files.h"

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// Only the lock counts; the file itself stays when it is released.
class HeldFile {
public:
    explicit HeldFile(Files &theFiles) : files(theFiles) {}

    /// Creates the file if it is missing, takes its lock, and writes `text` into it for others to
    /// read. Locked when another holds it, whose text stays; Broken if the path is a link. A
    /// failure does not end the program. Taking it again while it is held changes nothing.
    Outcome take(std::string_view path, std::string_view text = {});
    bool held() const { return file != nullptr; }
    void release() { file.reset(); }

private:
    Files &files;
    std::unique_ptr<DiskFile> file;
};

} // namespace platform
