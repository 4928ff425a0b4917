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

/// Time that really passes: a lease is the system's business.
struct RealTime : Clock, EventLoop {
    DateTime now() const override { return {}; }
    std::uint64_t milliseconds() const override
    {
        using namespace std::chrono;
        const auto since = steady_clock::now().time_since_epoch();
        return static_cast<std::uint64_t>(duration_cast<std::chrono::milliseconds>(since).count());
    }
    void turn() override {}
    void rest(std::uint32_t ms) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(ms));
    }
};

/// Holds a lease as a file server does for its client, and gives it back so long after the system
/// has asked for it.
void holdLease(const std::string &real, int kind, int delay)
{
    sigset_t asked = {};
    sigemptyset(&asked);
    sigaddset(&asked, SIGIO);
    sigprocmask(SIG_BLOCK, &asked, nullptr);
    const int file = ::open(real.c_str(), kind == F_RDLCK ? O_RDONLY : O_RDWR);
    SecondProcess::say(::fcntl(file, F_SETLEASE, kind) == 0 ? "held" : "no lease");
    int signal = 0;
    sigwait(&asked, &signal);
    std::this_thread::sleep_for(std::chrono::milliseconds(delay));
    ::fcntl(file, F_SETLEASE, F_UNLCK);
    ::pause();
}

TEST(LeasedFile, is_opened_as_soon_as_its_holder_gives_it_back)
{
    const auto add = [](Files &files) {
        long slot = 0;
        SlotFile file(files, kPath, 500);
        file.open(SlotUse::Append);
        return file.append(std::string(500, 'y'), slot);
    };
    const auto read = [](Files &files) {
        std::string content;
        return files.read(kPath, content);
    };
    const struct {
        int kind, delay;
        Outcome (*call)(Files &);
    } kRows[] = {
        {F_RDLCK, 0, add},
        {F_RDLCK, 200, [](Files &f) { return SlotFile(f, kPath, 500).open(SlotUse::Rewrite); }},
        {F_RDLCK, 0, [](Files &f) { return f.write(kPath, "answer"); }},
        {F_WRLCK, 0, read},
        {F_WRLCK, 200, [](Files &f) { return f.copy(kPath, "C:\\Lumbrio\\copy.dat"); }},
        {F_WRLCK, 0, [](Files &f) { return WorkFile(f, kPath, 500).create(); }},
        {F_WRLCK, 2000, add},
    };
    for (const auto &[kind, delay, call] : kRows) {
        SCOPED_TRACE((kind == F_RDLCK ? "read " : "write ") + std::to_string(delay));
        TestStation station;
        station.put(kPath, std::string(500, 'x'));
        const std::string real = station.drives.resolve(kPath);
        SecondProcess holder([&, kind = kind, delay = delay] { holdLease(real, kind, delay); });
        ASSERT_EQ(holder.hear(), "held");
        RealTime time;
        platform::Run run(time, time);
        const std::unique_ptr<Disk> disk = systemDisk();
        Files files(*disk, station.drives, run);
        const std::uint64_t begun = time.milliseconds();
        EXPECT_EQ(call(files), Outcome::Done);
        EXPECT_GE(time.milliseconds() - begun, static_cast<unsigned>(delay));
        EXPECT_FALSE(run.failed());
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
    EXPECT_EQ(track.data(), where) << "a copy stays behind where it moves away";
    wipe(track);
    EXPECT_TRUE(track.empty());
    EXPECT_EQ(std::string_view(where, 200).find('4'), std::string_view::npos);
}

/// No file grows past so many bytes, as on a full disk: a write that reaches over the limit is cut
/// there, the next one fails.
void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, RLIM_INFINITY};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

TEST(BrokenLength, of_a_file_with_a_million_slots_and_more_is_not_counted)
{
    TestStation station;
    station.put(kPath, "");
    ASSERT_EQ(::truncate(station.drives.resolve(kPath).c_str(), 1LL << 40), 0);
    const ErrorsIgnored fromHere(station.run);
    SlotFile file(station.files, kPath, 500);
    file.open(SlotUse::Read);
    long slots = 0;
    EXPECT_EQ(file.count(slots), Outcome::Broken);
    EXPECT_EQ(file.count(), 0);
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

TEST(NewFiles, are_for_the_group_of_the_share_and_nobody_else_whatever_the_umask)
{
    for (const mode_t mask : {0022U, 0077U, 0U}) {
        TestStation station;
        const auto modeOf = [&](const std::string &path) {
            struct stat found = {};
            ::stat(station.drives.resolve(path).c_str(), &found);
            return found.st_mode & 07777U;
        };
        ::chmod(station.drives.resolve("C:\\Lumbrio").c_str(), 02775);
        station.put("C:\\Lumbrio\\older.dat", "");
        ::chmod(station.drives.resolve("C:\\Lumbrio\\older.dat").c_str(), 0600);
        const mode_t old = ::umask(mask);
        station.files.makeFolder("C:\\Lumbrio\\new");
        station.files.append("C:\\Lumbrio\\new\\a.dat", "1");
        station.files.replaceWhole("C:\\Lumbrio\\new\\b.dat", "1");
        station.files.write("C:\\Lumbrio\\new\\c.dat", "1");
        station.files.append("C:\\Lumbrio\\older.dat", "1");
        ::umask(old);
        EXPECT_EQ(modeOf("C:\\Lumbrio\\new"), 02770U);
        for (const char *name : {"a.dat", "b.dat", "c.dat"})
            EXPECT_EQ(modeOf(std::string("C:\\Lumbrio\\new\\") + name), 0660U) << name;
        EXPECT_EQ(modeOf("C:\\Lumbrio\\older.dat"), 0600U) << "somebody's wish";
    }
}

TEST(LinkInAFilesPlace, is_not_followed_by_those_who_empty_what_they_open)
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
