// MemoryStation: a station for the fuzzer, with the real file layer on a disk in memory, so that
// the programs' own routines can read a million broken files a minute.
#pragma once

#include "records/app.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fuzz {

/// Ends the run as a find if the condition is false.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

inline std::string textOf(const std::uint8_t *data, std::size_t size)
{
    return std::string(data, data + size);
}

/// Every folder is there, nothing fails, nobody else holds a lock.
class MemoryDisk : public platform::Disk {
public:
    using Outcome = platform::Outcome;
    std::map<std::string, std::string> content;

    Outcome open(const std::string &path, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override;
    Outcome look(const std::string &path, platform::Found &found) override
    {
        found = content.count(path) > 0 ? platform::Found::File : platform::Found::Folder;
        return Outcome::Done;
    }
    Outcome modified(const std::string &path, platform::DateTime &when) override
    {
        when = {2025, 1, 15, 13, 5, 0, 0};
        return content.count(path) > 0 ? Outcome::Done : Outcome::NotThere;
    }
    Outcome remove(const std::string &path) override
    {
        return content.erase(path) > 0 ? Outcome::Done : Outcome::NotThere;
    }
    Outcome rename(const std::string &from, const std::string &to) override
    {
        content[to] = std::move(content[from]);
        content.erase(from);
        return Outcome::Done;
    }
    Outcome renameToFree(const std::string &from, const std::string &to) override
    {
        return content.count(to) > 0 ? Outcome::Broken : rename(from, to);
    }
    Outcome makeDirectory(const std::string &) override { return Outcome::Done; }
    Outcome list(const std::string &, std::vector<std::string> &) override { return Outcome::Done; }
    Outcome flushDirectory(const std::string &) override { return Outcome::Done; }
};

class MemoryFile : public platform::DiskFile {
public:
    using Outcome = platform::Outcome;
    explicit MemoryFile(std::string &theBytes) : bytes(theBytes) {}

    Outcome size(std::uint64_t &count) override
    {
        count = bytes.size();
        return Outcome::Done;
    }
    Outcome readAt(std::uint64_t offset, char *into, std::size_t length, std::size_t &got) override
    {
        const std::size_t from = std::min<std::size_t>(offset, bytes.size());
        got = bytes.copy(into, length, from);
        return Outcome::Done;
    }
    Outcome writeAt(std::uint64_t offset, std::string_view text) override
    {
        bytes.resize(std::max<std::size_t>(bytes.size(), offset + text.size()));
        bytes.replace(offset, text.size(), text);
        return Outcome::Done;
    }
    Outcome append(std::string_view text, std::uint64_t &landedAt) override
    {
        landedAt = bytes.size();
        bytes += text;
        return Outcome::Done;
    }
    Outcome cutBack(std::uint64_t from, std::uint64_t to) override
    {
        if (bytes.size() == from)
            bytes.resize(to);
        return Outcome::Done;
    }
    Outcome flush() override { return Outcome::Done; }
    Outcome tryLock() override { return Outcome::Done; }
    Outcome unlock() override { return Outcome::Done; }
    bool isStillAt(const std::string &) override { return true; }

private:
    std::string &bytes;
};

inline platform::Outcome MemoryDisk::open(const std::string &path, platform::OpenMode mode,
                                          std::unique_ptr<platform::DiskFile> &file)
{
    const bool creates = mode >= platform::OpenMode::Append;
    if (!creates && content.count(path) == 0)
        return Outcome::NotThere;
    std::string &bytes = content[path];
    if (mode == platform::OpenMode::CreateEmpty)
        bytes.clear();
    file = std::make_unique<MemoryFile>(bytes);
    return Outcome::Done;
}

/// No reader of a file asks a question, starts a program or prints.
class Nobody : public platform::Dialogs, public platform::System, public platform::Printers {
public:
    using Outcome = platform::Outcome;
    using Dialogs::Dialogs;

    Outcome start(const std::string &, platform::WindowStyle) override { std::abort(); }
    void killImage(const std::string &) override { std::abort(); }
    std::string computerName() override { return "FUZZ"; }
    std::string executableName() override { return "TndrCC"; }
    Outcome openEditor(const std::string &) override { std::abort(); }
    Outcome openBrowser(const std::string &) override { std::abort(); }
    void startConnectionTest() override { std::abort(); }
    std::optional<bool> connectionTested() const override { std::abort(); }
    void playSound(const std::string &) override { std::abort(); }
    std::vector<std::string> names() override { return {}; }
    std::string defaultName() override { return {}; }
    int paperWidth(const std::string &) override { return 0; }
    Outcome submit(const std::string &, const platform::PrintJob &) override { std::abort(); }
    void warmUp(const platform::PrintFont &) override {}

protected:
    platform::Answer ask(const std::string &, const std::string &, platform::Buttons) override
    {
        std::abort();
    }
    std::optional<std::string> askText(const std::string &, const std::string &,
                                       const std::string &, bool) override
    {
        std::abort();
    }
};

/// Time stands still: no reader waits.
class StoppedTime : public platform::Clock, public platform::EventLoop {
public:
    platform::DateTime now() const override { return {2025, 1, 15, 13, 5, 0, 0}; }
    std::uint64_t milliseconds() const override { return 0; }
    void turn() override { std::abort(); }
};

class MemoryStation {
public:
    MemoryStation()
    {
        run.reportFailure = [](const std::string &) { std::abort(); };
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.Remotedir = "C:\\Lumbrio\\";
        app.values.timeClockDirectory = "C:\\Lumbrio\\";
    }

    void put(const std::string &path, std::string bytes)
    {
        disk.content[drives.resolve(path)] = std::move(bytes);
    }
    const std::string &get(const std::string &path) { return disk.content[drives.resolve(path)]; }

    MemoryDisk disk;
    StoppedTime time;
    platform::Run run{time, time};
    platform::Drives drives{disk, "/drives", platform::Drives::Paths::BelowRoot};
    platform::Files files{disk, drives, run};
    Nobody nobody{run};
    platform::Installation installation;
    platform::Services services{run, files, time, nobody, nobody, nobody, installation};
    records::App app{services};
};

} // namespace fuzz
