// Locks and appends between processes, some of which die.
#include "support/second_process.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <sched.h>

#include <map>

namespace {

using namespace platform;
using namespace support;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";
constexpr std::size_t kLength = 500;

Outcome tryLock(TestStation &station)
{
    const ErrorsIgnored fromHere(station.run);
    SlotFile file(station.files, kPath, kLength);
    file.open(SlotUse::Rewrite);
    return file.lock();
}

TEST(Lock, keeps_lock_takers_out_and_lets_bytes_through_until_its_holder_is_killed)
{
    TestStation station;
    SecondProcess holder([&](Talk &test) {
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Append);
        test.say(textOf(file.lock()));
        test.hear();
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
    SecondProcess other([&](Talk &test) {
        while (!test.hear().empty())
            test.say(textOf(tryLock(station)));
    });
    SlotFile file(station.files, kPath, kLength);
    file.open(SlotUse::Rewrite);
    ASSERT_EQ(file.lock(), Outcome::Done);
    EXPECT_NE(std::system("ls -l /proc/self/fd | grep -q CCPending"), 0);
    station.files.append(kPath, "");
    EXPECT_EQ(tryLock(station), Outcome::Locked);
    other.say("try");
    EXPECT_EQ(other.hear(), "locked by another");
    file.close();
    other.say("try");
    EXPECT_EQ(other.hear(), "done");
}

// Stations that all append to one file at once ------------------------------------------------

enum class Locking {
    Wait,     // every station tries until it has the lock
    None,     // none tries
    PassOver, // every other station waits, the rest append when the lock is refused
};

constexpr int kStations = 8;
constexpr int kRecords = 150;
constexpr int kKilled = 3; // stations 0 to 2, each after a few records more than the one before

std::string recordOf(int station, int number)
{
    const std::string text =
        "station " + std::to_string(station) + " record " + std::to_string(number);
    return text + std::string(kLength - text.size(), static_cast<char>('a' + number % 26));
}

/// Appends its records and says "number slot" for each that is stored.
void appendAll(TestStation &station, int which, Locking locking, Talk &test)
{
    const bool waits = locking == Locking::Wait || which % 2 == 1;
    const ErrorsIgnored fromHere(station.run);
    test.hear(); // all start together
    for (int number = 0; number < kRecords; ++number) {
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Append);
        while (locking != Locking::None && !done(file.lock()) && waits)
            ::sched_yield();
        long slot = 0;
        if (done(file.append(recordOf(which, number), slot)))
            test.say(std::to_string(number) + " " + std::to_string(slot));
    }
}

/// What the stations of a crowd say they have stored, by slot.
std::map<std::size_t, std::string> runCrowd(TestStation &station, Locking locking)
{
    std::vector<std::unique_ptr<SecondProcess>> crowd;
    for (int which = 0; which < kStations; ++which)
        crowd.push_back(std::make_unique<SecondProcess>(
            [&, which](Talk &test) { appendAll(station, which, locking, test); }));
    for (const auto &one : crowd)
        one->say("go");
    std::map<std::size_t, std::string> stored;
    for (int which = 0; which < kStations; ++which) {
        SecondProcess &one = *crowd[static_cast<std::size_t>(which)];
        int said = 0;
        for (std::string line = one.hear(); !line.empty(); line = one.hear(), ++said) {
            const std::size_t slot = std::stoul(line.substr(line.find(' ')));
            EXPECT_TRUE(stored.emplace(slot, recordOf(which, std::stoi(line))).second)
                << "two in one slot: " << line;
            if (which < kKilled && said == 5 + 10 * which)
                one.kill();
        }
        EXPECT_TRUE(which < kKilled || said == kRecords) << said;
    }
    return stored;
}

TEST(Appends, of_a_crowd_are_each_stored_whole_in_a_slot_of_their_own)
{
    for (const Locking locking : {Locking::Wait, Locking::None, Locking::PassOver}) {
        for (const std::size_t tail : {0U, 200U, 300U}) {
            SCOPED_TRACE(testing::PrintToString(locking) + " behind " + std::to_string(tail));
            TestStation station;
            const std::string before(3 * kLength + tail, 'x');
            station.put(kPath, before);
            const auto stored = runCrowd(station, locking);
            const std::string bytes = station.get(kPath);
            EXPECT_TRUE(bytes.starts_with(before.substr(0, 3 * kLength)));
            for (const auto &[slot, record] : stored)
                EXPECT_EQ(bytes.substr((slot - 1) * kLength, kLength), record) << slot;
            // The three slots and the tail that stood there; and one that a killed station was
            // writing, or had stored and could not say so.
            const std::size_t slots = (bytes.size() + kLength / 2) / kLength;
            EXPECT_LE(slots, 3 + (tail + kLength / 2) / kLength + stored.size() + kKilled);
        }
    }
}

} // namespace
