// The lock between processes, one of which dies.
#include "support/second_process.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

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

} // namespace
