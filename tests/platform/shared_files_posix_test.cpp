// What the system does to shared files: the lock between processes, one of which dies, a full disk
// and permissions.
#include "platform/hardening.h"
#include "platform/held_file.h"
#include "platform/work_file.h"
#include "support/second_process.h"
#include "support/test_station.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

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

TEST(Lock, keeps_other_processes_out_but_not_their_bytes_until_it_is_released)
{
    TestStation station;
    const auto triedByAnother = [&] {
        return SecondProcess([&] { SecondProcess::say(textOf(tryLock(station))); }).hear();
    };
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
    SlotFile file(station.files, kPath, 500);
    file.open(SlotUse::Rewrite);
    ASSERT_EQ(file.lock(), Outcome::Done);
    EXPECT_NE(std::system("ls -l /proc/self/fd | grep -q CCPending"), 0) << "inherited";
    station.files.append(kPath, ""); // opens and closes the file once more
    EXPECT_EQ(triedByAnother(), "locked by another");
    SecondProcess sharing([] { ::pause(); }); // forked, so it has the descriptor too
    file.close();
    EXPECT_EQ(triedByAnother(), "done");
}

/// Holds a lease as a file server does for its client, and gives it back `delay` ms after the
/// system has asked for it.
void holdLease(const std::string &real, int delay)
{
    sigset_t asked = {};
    sigemptyset(&asked);
    sigaddset(&asked, SIGIO);
    sigprocmask(SIG_BLOCK, &asked, nullptr);
    const int file = ::open(real.c_str(), O_RDONLY);
    SecondProcess::say(::fcntl(file, F_SETLEASE, F_RDLCK) == 0 ? "held" : "no lease");
    int signal = 0;
    sigwait(&asked, &signal);
    std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    ::fcntl(file, F_SETLEASE, F_UNLCK);
    ::pause();
}

TEST(LeasedFile, is_opened_as_soon_as_its_holder_gives_it_back)
{
    for (const int delay : {0, 200}) {
        TestStation station;
        station.put(kPath, "old");
        const std::string real = station.drives.resolve(kPath);
        SecondProcess holder([&] { holdLease(real, delay); });
        ASSERT_EQ(holder.hear(), "held");
        // Each look takes real time, because the system handles leases.
        station.disk.before = [](std::size_t) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        };
        EXPECT_EQ(station.files.append(kPath, "new"), Outcome::Done);
        EXPECT_TRUE(delay == 0 || station.time.milliseconds() > 0) << "it was not waited for";
    }
}

TEST(HardenedProcess, leaves_no_dump_and_no_card_in_its_memory)
{
    SecondProcess program([] {
        hardenProcess();
        rlimit limit = {1, 1};
        ::getrlimit(RLIMIT_CORE, &limit);
        SecondProcess::say(std::to_string(limit.rlim_max));
#if !defined(__SANITIZE_ADDRESS__)
        SecondProcess::say(std::to_string(::prctl(PR_GET_DUMPABLE)));
#else
        SecondProcess::say("0");
#endif
    });
    EXPECT_EQ(program.hear() + program.hear(), "00");

    std::string track;
    keepSecret(track);
    const char *const where = track.data();
    setSecret(track, std::string(200, '4'));
    track.resize(20);
    EXPECT_EQ(track.data(), where) << "moving would leave a copy";
    wipe(track);
    EXPECT_TRUE(track.empty());
    EXPECT_EQ(std::string_view(where, 200).find('4'), std::string_view::npos);
}

/// Simulates a full disk: a write beyond the limit is cut there, the next one fails.
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

TEST(Permissions, of_new_files_are_for_the_group_of_the_share_and_those_of_old_ones_stay)
{
    TestStation station;
    Files &files = station.files;
    const std::string folder = "C:\\Lumbrio\\new\\";
    const auto real = [&](const char *name) { return station.drives.resolve(folder + name); };
    ::chmod(station.drives.resolve("C:\\Lumbrio").c_str(), 02775);
    const mode_t old = ::umask(0077);
    files.makeFolder(folder);
    station.put(folder + "replaced.dat", "");
    ::chmod(real("replaced.dat").c_str(), 0640);
    files.append(folder + "a.dat", "1");
    for (const char *name : {"replaced.dat", "b.dat"})
        files.replaceWhole(folder + name, "1");
    ::umask(old);
    for (const auto &[name, mode] :
         {std::pair("", 02770U), {"a.dat", 0660U}, {"b.dat", 0660U}, {"replaced.dat", 0640U}}) {
        struct stat found = {};
        ::stat(real(name).c_str(), &found);
        EXPECT_EQ(found.st_mode & 07777U, mode) << name;
    }
}

TEST(Link, in_the_place_of_a_work_or_lock_file_is_not_followed)
{
    TestStation station;
    const ErrorsIgnored ignored(station.run);
    const std::string link = "C:\\Lumbrio\\Data\\link";
    station.put(kPath, "a night's tips");
    for (const char *target : {"CCPending.dat", "not there"}) {
        const std::string real = station.drives.resolve(link);
        ASSERT_EQ(::symlink(target, real.c_str()), 0);
        WorkFile work(station.files, link, 500);
        HeldFile held(station.files);
        EXPECT_FALSE(done(work.create()));
        EXPECT_FALSE(done(held.take(link, "BAR1")));
        EXPECT_EQ(station.get(kPath), "a night's tips");
        EXPECT_FALSE(station.files.exists("C:\\Lumbrio\\Data\\not there"));
        ::unlink(real.c_str());
    }
}

} // namespace
