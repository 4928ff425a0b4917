#include "support/unflushed.h"

#include "support/test_files.h"

#include <filesystem>
#include <fstream>
#include <utility>

namespace support {

namespace fs = std::filesystem;

void Unflushed::touch(Path at)
{
    const auto [name, fresh] = names.try_emplace(at);
    if (fresh && fs::is_regular_file(at))
        name->second.now = name->second.durable = std::make_shared<std::string>(contentOf(at));
}

void Unflushed::opened(Path at)
{
    if (names[at].now == nullptr)
        names[at].now = std::make_shared<std::string>();
}

void Unflushed::renamed(Path from, Path to)
{
    names[to].now = std::exchange(names[from].now, nullptr);
}

void Unflushed::flushed(platform::DiskFile &file)
{
    for (auto &[at, name] : names)
        if (name.now != nullptr && file.isStillAt(at))
            *name.now = contentOf(at);
}

void Unflushed::folderFlushed(Path folder)
{
    for (auto &[at, name] : names)
        if (fs::path(at).parent_path() == folder)
            name.durable = name.now;
    std::erase_if(folders, [&](const fs::path &made) { return made.parent_path() == folder; });
}

void Unflushed::cutPower(bool namesSurvive) const
{
    for (const auto &[at, name] : names) {
        if (fs::is_regular_file(at) != (name.now != nullptr))
            continue; // another program's by now
        const auto &left = namesSurvive ? name.now : name.durable;
        if (left == nullptr)
            fs::remove(at);
        else
            std::ofstream(at, std::ios::binary) << *left;
    }
    for (const std::string &made : folders)
        if (!namesSurvive)
            fs::remove_all(made);
}

} // namespace support
