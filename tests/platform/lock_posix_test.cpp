// Locks and appends between processes, some of which die.
#include "support/second_process.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <map>
#include <set>

namespace {

using platform::ErrorsIgnored;
using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;
using support::SecondProcess;
using support::Talk;
using support::TestStation;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";
constexpr std::size_t kLength = 500;

class LockTest : public testing::Test {
protected:
    LockTest() { station.put(kPath, std::string(kLength, 'x')); }

    Outcome tryLock()
    {
        const ErrorsIgnored fromHere(station.run);
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Rewrite);
        return file.lock();
    }
    /// Says "locked" once it holds the lock, and holds it until it is killed.
    void hold(Talk &test)
    {
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Append);
        test.say(done(file.lock()) ? "locked" : "refused");
        test.hear();
    }

    TestStation station;
};

TEST_F(LockTest, is_refused_while_another_holds_it_and_free_when_that_one_is_killed)
{
    SecondProcess holder([this](Talk &test) { hold(test); });
    ASSERT_EQ(holder.hear(), "locked");
    EXPECT_EQ(tryLock(), Outcome::Locked);
    holder.kill();
    EXPECT_EQ(tryLock(), Outcome::Done);
}

TEST_F(LockTest, is_not_lost_when_the_same_process_opens_and_closes_the_file_again)
{
    SecondProcess other([this](Talk &test) {
        while (!test.hear().empty())
            test.say(textOf(tryLock()));
    });
    SlotFile file(station.files, kPath, kLength);
    file.open(SlotUse::Rewrite);
    ASSERT_EQ(file.lock(), Outcome::Done);
    std::string content;
    station.files.read(kPath, content);
    station.files.append(kPath, "");
    EXPECT_EQ(tryLock(), Outcome::Locked);
    other.say("try");
    EXPECT_EQ(other.hear(), "locked by another");
    file.close();
    other.say("try");
    EXPECT_EQ(other.hear(), "done");
}

TEST_F(LockTest, is_not_inherited_by_a_started_program)
{
    SecondProcess station2([this](Talk &test) {
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Append);
        if (!done(file.lock()))
            return;
        if (::fork() == 0)
            test.become("/bin/cat");
        for (;;) // the program alone listens and speaks
            ::pause();
    });
    station2.say("are you there");
    ASSERT_EQ(station2.hear(), "are you there");
    EXPECT_EQ(tryLock(), Outcome::Locked);
    station2.kill();
    EXPECT_EQ(tryLock(), Outcome::Done);
    station2.say("still");
    EXPECT_EQ(station2.hear(), "still") << "the program lives on, without the lock";
}

TEST_F(LockTest, lets_bytes_through_while_another_process_holds_it)
{
    SecondProcess holder([this](Talk &test) { hold(test); });
    ASSERT_EQ(holder.hear(), "locked");
    const ErrorsIgnored fromHere(station.run);
    SlotFile file(station.files, kPath, kLength);
    file.open(SlotUse::Append);
    EXPECT_EQ(file.lock(), Outcome::Locked);
    long slot = 0;
    EXPECT_EQ(file.append(std::string(kLength, 'y'), slot), Outcome::Done);
    EXPECT_EQ(slot, 2);
    file.close();
    EXPECT_EQ(station.get(kPath), std::string(kLength, 'x') + std::string(kLength, 'y'));
}

// Stations that all append to one file at once ------------------------------------------------

enum class Locking {
    Wait,     // every station tries until it has the lock
    None,     // none tries
    PassOver, // every other station waits, the rest append when the lock is refused
};

struct Crowd {
    const char *name;
    Locking locking;
    std::size_t tornTail;
};

constexpr int kStations = 8;
constexpr int kRecords = 150;
constexpr int kKilled = 3; // stations 0 to 2, each after a few records more than the one before

std::string recordOf(int stationNumber, int number)
{
    std::string record =
        "station " + std::to_string(stationNumber) + " record " + std::to_string(number) + " ";
    const char filler = static_cast<char>('a' + (stationNumber * 31 + number) % 26);
    record.resize(kLength, filler);
    return record;
}

/// Appends its records and says "number slot" for each that is stored.
void appendAll(TestStation &station, int stationNumber, Locking locking, Talk &test)
{
    const bool waits =
        locking == Locking::Wait || (locking == Locking::PassOver && stationNumber % 2 == 1);
    const ErrorsIgnored fromHere(station.run);
    test.hear(); // all start together
    for (int number = 0; number < kRecords; ++number) {
        SlotFile file(station.files, kPath, kLength);
        file.open(SlotUse::Append);
        while (locking != Locking::None && !done(file.lock()) && waits)
            ::sched_yield();
        long slot = 0;
        if (done(file.append(recordOf(stationNumber, number), slot)))
            test.say(std::to_string(number) + " " + std::to_string(slot));
    }
}

class AppendTest : public testing::TestWithParam<Crowd> {
protected:
    void runCrowd();
    void checkStored();

    TestStation station;
    std::map<long, std::string> stored; // what the stations say they have stored, by slot
    std::size_t before = 0;             // bytes that stood there
};

void AppendTest::runCrowd()
{
    before = 3 * kLength + GetParam().tornTail;
    station.put(kPath, std::string(before, 'x'));
    std::vector<std::unique_ptr<SecondProcess>> crowd;
    for (int number = 0; number < kStations; ++number)
        crowd.push_back(std::make_unique<SecondProcess>(
            [this, number](Talk &test) { appendAll(station, number, GetParam().locking, test); }));
    for (const auto &one : crowd)
        one->say("go");
    for (int number = 0; number < kStations; ++number) {
        SecondProcess &one = *crowd[static_cast<std::size_t>(number)];
        int said = 0;
        for (std::string line = one.hear(); !line.empty(); line = one.hear(), ++said) {
            const std::size_t blank = line.find(' ');
            const std::string record = recordOf(number, std::atoi(line.c_str()));
            const bool fresh = stored.emplace(std::atol(line.c_str() + blank), record).second;
            EXPECT_TRUE(fresh) << "two in one slot: " << line;
            if (number < kKilled && said == 5 + 10 * number)
                one.kill();
        }
        if (number >= kKilled) {
            EXPECT_EQ(said, kRecords);
        }
    }
}

void AppendTest::checkStored()
{
    const std::string bytes = station.get(kPath);
    std::set<std::string> whole;
    for (int number = 0; number < kStations; ++number)
        for (int record = 0; record < kRecords; ++record)
            whole.insert(recordOf(number, record));
    std::set<std::string> seen;
    std::size_t others = 0;
    const std::size_t slots = (bytes.size() + kLength / 2) / kLength;
    for (std::size_t slot = 1; slot <= slots; ++slot) {
        const std::string there = bytes.substr((slot - 1) * kLength, kLength);
        if (const auto said = stored.find(static_cast<long>(slot)); said != stored.end()) {
            EXPECT_EQ(there, said->second) << "slot " << slot;
        }
        if (!whole.contains(there))
            ++others;
        else
            EXPECT_TRUE(seen.insert(there).second) << "twice: " << there.substr(0, 30);
    }
    // The three slots and the tail that stood there; and one that a killed station was writing.
    EXPECT_LE(others, (before + kLength / 2) / kLength + kKilled);
    EXPECT_GE(stored.rbegin()->first, static_cast<long>(stored.size()));
    EXPECT_LE(seen.size(), stored.size() + kKilled) << "stored, and killed before it could say so";
    EXPECT_EQ(bytes.substr(0, 3 * kLength), std::string(3 * kLength, 'x'));
}

TEST_P(AppendTest, stores_every_record_whole_in_a_slot_of_its_own)
{
    runCrowd();
    checkStored();
}

INSTANTIATE_TEST_SUITE_P(Crowds, AppendTest,
                         testing::Values(Crowd{"locked", Locking::Wait, 0},
                                         Crowd{"lockedShortTail", Locking::Wait, 200},
                                         Crowd{"lockedLongTail", Locking::Wait, 300},
                                         Crowd{"notLocked", Locking::None, 0},
                                         Crowd{"notLockedShortTail", Locking::None, 200},
                                         Crowd{"notLockedLongTail", Locking::None, 300},
                                         Crowd{"passedOver", Locking::PassOver, 0},
                                         Crowd{"passedOverLongTail", Locking::PassOver, 300}),
                         [](const auto &crowd) { return std::string(crowd.param.name); });

} // namespace
