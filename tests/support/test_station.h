// TestStation: one computer of the restaurant for a test. A fresh drives folder, virtual time,
// scripted dialogs, and the real file layer over a disk that can be told to fail.
#pragma once

#include "platform/services.h"
#include "support/fake_printers.h"
#include "support/fake_system.h"
#include "support/faulty_disk.h"
#include "support/scripted_dialogs.h"
#include "support/virtual_time.h"

#include <gtest/gtest.h>

namespace support {

/// A new folder under the system's temporary one; removed with everything in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    const std::string &path() const { return folder; }

private:
    std::string folder;
};

class TestStation {
public:
    explicit TestStation(const platform::DateTime &start = VirtualTime::kDefaultStart,
                         const TestStation *other = nullptr);
    /// Another process, or the same after a restart, on the drives of `other`, which must live on.
    explicit TestStation(const TestStation *other);
    ~TestStation();

    // Fixtures, on Windows paths. They bypass Files and the faulty disk.
    /// Writes the file, and the folders to it.
    void put(const std::string &path, const std::string &bytes);
    /// The exact bytes; a missing file is a test failure.
    std::string get(const std::string &path) const;
    /// Nothing for a missing file.
    std::string getIfThere(const std::string &path) const { return has(path) ? get(path) : ""; }
    bool has(const std::string &path) const;
    /// Makes the folder, and those to it.
    void folder(const std::string &path);
    /// Removes the file or the whole folder; false when there was none.
    bool erase(const std::string &path);

    /// Lets time pass as a wait of the program does.
    void advance(std::uint64_t milliseconds);

    static constexpr const char *kXcharge = "c:\\Program Files\\X-charge\\Xcharge.exe";

private:
    std::unique_ptr<TemporaryFolder> ownDrives; // none on the drives of another
    std::unique_ptr<platform::Disk> realDisk = platform::systemDisk();

public:
    VirtualTime time;
    platform::Run run{time, time};
    ScriptedDialogs dialogs{run};
    platform::Drives drives; // over the real disk, for the test
    FaultyDisk disk;
    platform::Drives ownNames{disk, drives.root(), platform::Drives::Paths::BelowRoot};
    platform::Files files{disk, ownNames, run};
    FakeSystem system{[this](const std::string &path) { return has(path); }};
    FakePrinters printers;
    platform::Installation installation;
    platform::Services services{run, files, time, dialogs, system, printers, installation};
};

/// A base class for classes that need the station before their other bases. With `share`, another
/// process on its drives.
struct HasStation {
    explicit HasStation(const TestStation *share = nullptr)
        : station(VirtualTime::kDefaultStart, share)
    {
    }
    TestStation station;
};

} // namespace support
