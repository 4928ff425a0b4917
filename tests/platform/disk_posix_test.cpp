// What a full disk and permissions do on this system.
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using namespace platform;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";

/// No file grows past so many bytes, as on a full disk: a write that reaches over the limit is cut
/// there, the next one fails.
void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

TEST(FullDisk, leaves_the_files_as_they_were)
{
    for (const rlim_t limit : {1000U, 1499U}) {
        support::TestStation station;
        const std::string before(1000, 'x');
        station.put(kPath, before);
        const ErrorsIgnored fromHere(station.run);
        SlotFile file(station.files, kPath, 500);
        file.open(SlotUse::Append);
        file.lock();
        long slot = 0;
        limitFiles(limit);
        EXPECT_EQ(file.append(std::string(500, 'y'), slot), Outcome::NoRoom);
        EXPECT_EQ(station.files.append(kPath, std::string(1000, 'y')), Outcome::NoRoom);
        EXPECT_EQ(station.files.replaceWhole(kPath, std::string(2000, 'y')), Outcome::NoRoom);
        limitFiles(RLIM_INFINITY);
        EXPECT_EQ(station.get(kPath), before);
        EXPECT_EQ(station.files.list("C:\\Lumbrio\\Data").size(), 1U);
    }
}

TEST(ReplacedFile, keeps_the_permissions_of_the_old_one)
{
    support::TestStation station;
    station.put(kPath, "old");
    const std::string real = station.drives.resolve(kPath);
    ::chmod(real.c_str(), 0640);
    ASSERT_EQ(station.files.replaceWhole(kPath, "new"), Outcome::Done);
    struct stat found = {};
    ASSERT_EQ(::stat(real.c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0640U);
}

} // namespace
