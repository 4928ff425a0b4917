#include "support/test_station.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

namespace support {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::random_device random;
    fs::path made;
    do
        made = fs::temp_directory_path() / ("lumbrio-test-" + std::to_string(random()));
    while (!fs::create_directory(made));
    folder = made.string();
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

TestStation::TestStation(const platform::DateTime &start)
    : TestStation(std::make_unique<TemporaryFolder>(), {}, start)
{
    folder("c:\\Lumbrio\\Data");
    folder("c:\\Program Files\\X-charge");
}

TestStation::TestStation(const TestStation *other)
    : TestStation(nullptr, other->drives.root(), other->time.now())
{
}

TestStation::TestStation(std::unique_ptr<TemporaryFolder> own, const std::string &root,
                         const platform::DateTime &start)
    : ownDrives(std::move(own)), time(start),
      drives(*realDisk, ownDrives ? ownDrives->path() : root, platform::Drives::Paths::BelowRoot),
      disk(*realDisk, drives.root())
{
    run.reportFailure = [this](const std::string &text) { dialogs.systemMessage(text); };
    time.onRunAway = [this] { run.end(); };
}

void TestStation::put(const std::string &path, const std::string &bytes)
{
    const fs::path real = drives.resolve(path);
    std::error_code failed;
    fs::create_directories(real.parent_path(), failed);
    std::ofstream file(real, std::ios::binary | std::ios::trunc);
    file << bytes << std::flush;
    ASSERT_TRUE(file.good()) << "cannot write " << path;
}

std::string TestStation::get(const std::string &path) const
{
    std::ifstream file(drives.resolve(path), std::ios::binary);
    if (!file.is_open())
        ADD_FAILURE() << "there is no " << path;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TestStation::has(const std::string &path) const
{
    std::error_code failed;
    return fs::is_regular_file(drives.resolve(path), failed);
}

void TestStation::folder(const std::string &path)
{
    std::error_code failed;
    fs::create_directories(drives.resolve(path), failed);
    ASSERT_TRUE(fs::is_directory(drives.resolve(path))) << "cannot make " << path;
}

void TestStation::erase(const std::string &path)
{
    std::error_code failed;
    fs::remove_all(drives.resolve(path), failed);
    ASSERT_FALSE(failed) << "cannot erase " << path;
}

void TestStation::advance(std::uint64_t milliseconds)
{
    const std::uint64_t end = time.milliseconds() + milliseconds;
    time.at(end, [] {}); // no step goes past it
    while (time.milliseconds() < end)
        run.yield();
}

} // namespace support
