#include "support/test_station.h"

#include "support/test_files.h"

#include <filesystem>
#include <fstream>
#include <random>

namespace support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::random_device random;
    do
        folder = (fs::temp_directory_path() / ("lumbrio-" + std::to_string(random()))).string();
    while (!fs::create_directory(folder));
}

TemporaryFolder::~TemporaryFolder()
{
    fs::remove_all(folder);
}

TestStation::TestStation(const platform::DateTime &start, const TestStation *other)
    : ownDrives(other == nullptr ? std::make_unique<TemporaryFolder>() : nullptr), time(start),
      drives(*realDisk, other == nullptr ? ownDrives->path() : other->drives.root(),
             platform::Drives::Paths::BelowRoot),
      disk(*realDisk, drives.root())
{
    files.signWorkFiles({system.computerName(), system.executable});
    run.reportFailure = [this](const std::string &text) { dialogs.systemMessage(text); };
    folder("c:\\Lumbrio\\Data");
    folder("c:\\Program Files\\X-charge");
}

TestStation::TestStation(const TestStation *other) : TestStation(other->time.now(), other) {}
TestStation::~TestStation() = default;

void TestStation::put(const std::string &path, const std::string &bytes)
{
    const fs::path real = drives.resolve(path);
    fs::create_directories(real.parent_path());
    std::ofstream file(real, std::ios::binary | std::ios::trunc);
    file << bytes << std::flush;
    ASSERT_TRUE(file.good()) << "cannot write " << path;
}

std::string TestStation::get(const std::string &path) const
{
    EXPECT_TRUE(has(path)) << "there is no " << path;
    return contentOf(drives.resolve(path));
}

bool TestStation::has(const std::string &path) const
{
    return fs::is_regular_file(drives.resolve(path));
}

void TestStation::folder(const std::string &path)
{
    fs::create_directories(drives.resolve(path));
}

bool TestStation::erase(const std::string &path)
{
    return fs::remove_all(drives.resolve(path)) > 0;
}

void TestStation::advance(std::uint64_t milliseconds)
{
    const std::uint64_t end = time.milliseconds() + milliseconds;
    time.at(end, [] {}); // no step goes past it
    while (time.milliseconds() < end)
        run.yield();
}

} // namespace support
