// What a full disk, missing rights and odd files do on this system.
#include "support/second_process.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace {

using platform::ErrorsIgnored;
using platform::OpenMode;
using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";

/// While one lives, no file grows past so many bytes, as on a full disk: a write that reaches over
/// the limit is cut there, the next one fails.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : signals(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit now = {bytes, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &now);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, signals);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit before = {};
    void (*signals)(int);
};

TEST(FullDiskTest, leaves_the_slots_as_they_were)
{
    for (const auto &[tail, limit] : {std::pair<std::size_t, rlim_t>{0, 1000},
                                      {0, 1499},
                                      {0, 1001},
                                      {200, 1600}, // the record does not fit behind the tail
                                      {300, 1700},
                                      {300, 1900}}) { // it does, but not in its slot
        SCOPED_TRACE(std::to_string(tail) + " bytes of tail, room for " + std::to_string(limit));
        support::TestStation station;
        const std::string before(1000 + tail, 'x');
        station.put(kPath, before);
        const ErrorsIgnored fromHere(station.run);
        SlotFile file(station.files, kPath, 500);
        ASSERT_EQ(file.open(SlotUse::Append), Outcome::Done);
        ASSERT_EQ(file.lock(), Outcome::Done);
        long slot = 7;
        {
            const FullDisk full(limit);
            EXPECT_EQ(file.append(std::string(500, 'y'), slot), Outcome::NoRoom);
        }
        EXPECT_EQ(slot, 7);
        EXPECT_EQ(station.get(kPath), before);
        EXPECT_EQ(file.append(std::string(500, 'y'), slot), Outcome::Done) << "room again";
    }
}

TEST(FullDiskTest, leaves_a_replaced_or_appended_file_as_it_was)
{
    support::TestStation station;
    station.put(kPath, "old");
    const ErrorsIgnored fromHere(station.run);
    {
        const FullDisk full(10);
        EXPECT_EQ(station.files.replaceWhole(kPath, "much too long"), Outcome::NoRoom);
        EXPECT_EQ(station.files.append(kPath, "much too long"), Outcome::NoRoom);
        EXPECT_EQ(station.files.write("C:\\Lumbrio\\Xsend.ans", "much too long"), Outcome::NoRoom);
    }
    EXPECT_EQ(station.get(kPath), "old");
    EXPECT_EQ(station.files.list("C:\\Lumbrio\\Data"), std::vector<std::string>{"CCPending.dat"});
}

TEST(RightsTest, are_denied_where_the_station_has_none)
{
    support::TestStation station;
    station.put(kPath, std::string(500, 'x'));
    const std::string folder = station.drives.resolve("C:\\Lumbrio\\Data");
    ::chmod(station.drives.root().c_str(), 0755);
    ::chmod(station.drives.resolve(kPath).c_str(), 0444);
    ::chmod(folder.c_str(), 0555);
    support::SecondProcess other([&](support::Talk &test) {
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            return;
        const ErrorsIgnored fromHere(station.run);
        platform::Files &files = station.files;
        const std::string fresh = "C:\\Lumbrio\\Data\\new.dat";
        std::string outcomes;
        for (const Outcome outcome :
             {files.write(kPath, "y"), files.append(kPath, "y"), files.remove(kPath),
              files.createIfMissing(fresh), files.makeFolder("C:\\Lumbrio\\Data\\CCdata"),
              files.replaceWhole(kPath, "y"), files.copy(kPath, fresh)})
            outcomes += outcome == Outcome::Denied ? "-" : "!";
        SlotFile file(files, kPath, 500);
        outcomes += done(file.open(SlotUse::Rewrite)) ? "!" : "-";
        std::string slot(490, '?');
        const bool readable = done(file.open(SlotUse::Read)) && done(file.lock()) &&
                              done(file.read(1, slot)) && slot == std::string(490, 'x');
        test.say(outcomes + (readable ? " read" : " not read"));
    });
    EXPECT_EQ(other.hear(), "-------- read");
    ::chmod(folder.c_str(), 0755);
    EXPECT_EQ(station.get(kPath), std::string(500, 'x'));
}

TEST(ReplacingTest, keeps_the_permissions_of_the_old_file)
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

TEST(OddFilesTest, do_not_hold_the_program_up)
{
    const support::TemporaryFolder folder;
    const auto disk = platform::systemDisk();
    const std::string pipe = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0666), 0);
    std::filesystem::create_symlink("loop", folder.path() + "/loop");
    std::unique_ptr<platform::DiskFile> file;
    for (const OpenMode mode :
         {OpenMode::Read, OpenMode::ReadWrite, OpenMode::Append, OpenMode::CreateEmpty}) {
        EXPECT_EQ(disk->open(pipe, mode, file), Outcome::Broken);
        EXPECT_EQ(disk->open(folder.path() + "/loop", mode, file), Outcome::Broken);
    }
    EXPECT_FALSE(disk->isFile(pipe));
}

} // namespace
