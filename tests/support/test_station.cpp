#include "support/test_station.h"

#include "support/test_files.h"

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

void TestStation::put(const std::string &path, const std::string &bytes)
{
    create_directories(realPath(path).parent_path());
    std::ofstream file(realPath(path), std::ios::binary | std::ios::trunc);
    file << bytes << std::flush;
    ASSERT_TRUE(file.good()) << "cannot write " << path;
}

std::string TestStation::get(const std::string &path) const
{
    EXPECT_TRUE(has(path)) << "there is no " << path;
    return contentOf(realPath(path));
}

void TestStation::advance(std::uint64_t milliseconds)
{
    const std::uint64_t end = time.milliseconds() + milliseconds;
    time.at(end, [] {}); // no step goes past it
    while (time.milliseconds() < end)
        run.yield();
}

} // namespace support
