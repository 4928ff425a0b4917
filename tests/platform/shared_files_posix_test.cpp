// What the system does to shared files: the lock between processes, one of which dies, a full disk
// and permissions.
#include "support/second_process.h"
#include "support/test_station.h"

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using namespace platform;
using support::SecondProcess;
using support::TestStation;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";

Outcome tryLock(TestStation &station)
{
    const ErrorsIgnored fromHere(station.run);
    SlotFile file(station.files, kPath, 500);
    file.open(SlotUse::Rewrite);
    return file.lock();
}

TEST(Lock, keeps_lock_takers_out_and_lets_bytes_through_until_its_holder_is_killed)
{
    TestStation station;
    SecondProcess holder([&] {
        SlotFile file(station.files, kPath, 500);
        file.open(SlotUse::Append);
        SecondProcess::say(textOf(file.lock()));
        ::pause();
    });
    ASSERT_EQ(holder.hear(), "done");
    EXPECT_EQ(tryLock(station), Outcome::Locked);
    EXPECT_EQ(station.files.append(kPath, "bytes"), Outcome::Done);
    EXPECT_EQ(station.get(kPath), "bytes");
    holder.kill();
    EXPECT_EQ(tryLock(station), Outcome::Done);
}

TEST(Lock, is_kept_when_its_process_opens_the_file_again_and_not_left_to_a_started_program)
{
    TestStation station;
    station.put(kPath, "");
    const auto triedByAnother = [&] {
        return SecondProcess([&] { SecondProcess::say(textOf(tryLock(station))); }).hear();
    };
    SlotFile file(station.files, kPath, 500);
    file.open(SlotUse::Rewrite);
    ASSERT_EQ(file.lock(), Outcome::Done);
    EXPECT_NE(std::system("ls -l /proc/self/fd | grep -q CCPending"), 0);
    station.files.append(kPath, "");
    EXPECT_EQ(tryLock(station), Outcome::Locked);
    EXPECT_EQ(triedByAnother(), "locked by another");
    SecondProcess sharing([] { ::pause(); }); // not yet another program: it has the descriptor too
    file.close();
    EXPECT_EQ(triedByAnother(), "done");
}

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
        TestStation station;
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
    TestStation station;
    station.put(kPath, "old");
    const std::string real = station.drives.resolve(kPath);
    ::chmod(real.c_str(), 0640);
    ASSERT_EQ(station.files.replaceWhole(kPath, "new"), Outcome::Done);
    struct stat found = {};
    ASSERT_EQ(::stat(real.c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0640U);
}

} // namespace
