// Unflushed: what a program has changed and not flushed yet, for the power cut of a test.
#pragma once

#include "platform/disk.h"
#include "support/test_files.h"

#include <map>
#include <memory>
#include <set>
#include <utility>

namespace support {

/// Told of each change by the disk that makes it. What other programs change stays as it is.
class Unflushed {
public:
    using Path = const std::string &;

    /// Before a change: a file that is there by then is on the disk.
    void touch(Path at)
    {
        const auto [name, fresh] = names.try_emplace(at);
        if (fresh && is_regular_file(std::filesystem::path(at)))
            name->second.now = name->second.durable = std::make_shared<std::string>(contentOf(at));
    }
    void opened(Path at)
    {
        if (names[at].now == nullptr)
            names[at].now = std::make_shared<std::string>();
    }
    void removed(Path at) { names[at].now.reset(); }
    void renamed(Path from, Path to) { names[to].now = std::exchange(names[from].now, nullptr); }
    void folderMade(Path at) { folders.insert(at); }
    void flushed(platform::DiskFile &file)
    {
        for (auto &[at, name] : names)
            if (name.now != nullptr && file.isStillAt(at))
                *name.now = contentOf(at);
    }
    void folderFlushed(Path folder)
    {
        for (auto &[at, name] : names)
            if (std::filesystem::path(at).parent_path() == folder)
                name.durable = name.now;
        std::erase_if(folders, [&](const std::filesystem::path &made) {
            return made.parent_path() == folder;
        });
    }

    /// No content survives that was not flushed; names do, or those alone whose folder was flushed.
    void cutPower(bool namesSurvive) const
    {
        for (const auto &[at, name] : names) {
            if (is_regular_file(std::filesystem::path(at)) != (name.now != nullptr))
                continue; // another program's by now
            const auto &left = namesSurvive ? name.now : name.durable;
            if (left == nullptr)
                std::filesystem::remove(at);
            else
                std::ofstream(at, std::ios::binary) << *left;
        }
        for (const std::string &made : folders)
            if (!namesSurvive)
                std::filesystem::remove_all(made);
    }

private:
    struct Name { // the contents as flushed last
        std::shared_ptr<std::string> now;
        std::shared_ptr<std::string> durable;
    };
    std::map<std::string, Name> names;
    std::set<std::string> folders;
};

} // namespace support
