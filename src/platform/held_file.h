// HeldFile: a file whose lock says that its holder lives. The system releases it when that dies.
#pragma once

#include "platform/files.h"

#include <memory>
#include <string>
#include <string_view>

namespace platform {

/// The file itself stays when it is released; only the lock counts.
class HeldFile {
public:
    explicit HeldFile(Files &theFiles) : files(theFiles) {}

    /// Creates the file when it is missing, takes its lock, and puts `text` into it for others to
    /// read. Locked when another holds it, whose text stays; Broken where a link stands in its
    /// place. Failures end nothing. Once held it stays held, and taking it again changes nothing.
    Outcome take(std::string_view path, std::string_view text = {});
    bool held() const { return file != nullptr; }
    void release() { file.reset(); }

private:
    Files &files;
    std::unique_ptr<DiskFile> file;
};

} // namespace platform
