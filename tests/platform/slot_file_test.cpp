// Fixed slots in a shared file: what is read, where an append lands, who holds the lock.
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using platform::ErrorsIgnored;
using platform::Outcome;
using platform::SlotFile;
using platform::SlotUse;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";
constexpr std::size_t kLength = 500;

/// A whole slot that says its number.
std::string slotOf(long number, char mark = '.')
{
    std::string slot = std::to_string(number);
    slot.resize(kLength, mark);
    return slot;
}

std::string slotsOf(long count)
{
    std::string bytes;
    for (long number = 1; number <= count; ++number)
        bytes += slotOf(number);
    return bytes;
}

class SlotFileTest : public testing::Test {
protected:
    void openLocked(SlotUse use)
    {
        ASSERT_EQ(file.open(use), Outcome::Done);
        ASSERT_EQ(file.lock(), Outcome::Done);
    }
    /// The bytes of a slot, "unread" when the read failed.
    std::string read(long slot, std::size_t bytes = 490)
    {
        std::string into(bytes, '?');
        return done(file.read(slot, into)) ? into : "unread";
    }
    void expectSystemMessage(const std::string &what)
    {
        station.dialogs.expect("", what + "\n" + kPath, platform::Buttons::Ok,
                               platform::Answer::Ok);
    }
    std::ptrdiff_t reads() const
    {
        const auto &log = station.disk.operationLog();
        return std::count_if(log.begin(), log.end(), [](const std::string &line) {
            return line.find(" read ") != std::string::npos;
        });
    }

    support::TestStation station;
    support::TestStation other{&station};
    SlotFile file{station.files, kPath, kLength};
    SlotFile theirs{other.files, kPath, kLength};
};

TEST_F(SlotFileTest, counts_to_the_nearest_slot_and_a_half_to_the_even_one)
{
    const struct {
        std::size_t bytes;
        long count;
    } cases[] = {{0, 0},   {249, 0},  {250, 0},  {251, 1},  {490, 1},  {500, 1},  {749, 1},
                 {750, 2}, {1249, 2}, {1250, 2}, {1251, 3}, {1750, 4}, {5000, 10}};
    for (const auto &[bytes, count] : cases) {
        station.put(kPath, std::string(bytes, 'x'));
        ASSERT_EQ(file.open(SlotUse::Read), Outcome::Done);
        EXPECT_EQ(file.count(), count) << bytes;
    }
    file.close();
    EXPECT_EQ(file.count(), 0);
}

TEST_F(SlotFileTest, fills_up_with_nul_what_is_not_there)
{
    station.put(kPath, slotsOf(2) + slotOf(3).substr(0, 300));
    file.open(SlotUse::Read);
    for (const bool locked : {false, true}) {
        SCOPED_TRACE(locked);
        if (locked) {
            ASSERT_EQ(file.lock(), Outcome::Done);
        }
        const std::string nothing(490, '\0');
        EXPECT_EQ(read(2), slotOf(2).substr(0, 490));
        EXPECT_EQ(read(3), slotOf(3).substr(0, 300) + std::string(190, '\0'));
        for (const long slot : {4L, 1000L, 0L, -1L, std::numeric_limits<long>::max(),
                                std::numeric_limits<long>::min()})
            EXPECT_EQ(read(slot), nothing) << slot;
        EXPECT_EQ(read(1, 900), slotOf(1) + std::string(400, '?')) << "never more than a slot";
    }
}

TEST_F(SlotFileTest, leaves_the_buffer_when_a_read_fails)
{
    station.put(kPath, slotsOf(300));
    const ErrorsIgnored fromHere(station.run);
    EXPECT_EQ(read(1), "unread") << "not open";
    openLocked(SlotUse::Read);
    ASSERT_EQ(read(1), slotOf(1).substr(0, 490));
    station.disk.failOn("read", "", Outcome::Broken);
    std::string into = "before";
    EXPECT_EQ(file.read(200, into), Outcome::Broken);
    EXPECT_EQ(into, "before");
    station.disk.failOn("read", "", Outcome::Done);
    EXPECT_EQ(read(200), slotOf(200).substr(0, 490)) << "and the next one is right again";
}

TEST_F(SlotFileTest, walks_under_the_lock_with_few_reads_and_sees_every_slot)
{
    constexpr long kSlots = 1000;
    station.put(kPath, slotsOf(kSlots));
    openLocked(SlotUse::Read);
    ASSERT_EQ(file.count(), kSlots);
    for (long slot = 1; slot <= kSlots; ++slot)
        ASSERT_EQ(read(slot), slotOf(slot).substr(0, 490));
    EXPECT_LT(reads(), kSlots / 50);
    for (const long slot : {700L, 2L, 132L, 131L, 133L, 1000L, 1L})
        EXPECT_EQ(read(slot), slotOf(slot).substr(0, 490));
}

TEST_F(SlotFileTest, sees_the_others_at_once_when_it_holds_no_lock)
{
    station.put(kPath, slotsOf(3));
    file.open(SlotUse::Read);
    ASSERT_EQ(read(1), slotOf(1).substr(0, 490));
    theirs.open(SlotUse::Rewrite);
    for (long slot = 1; slot <= 3; ++slot) {
        ASSERT_EQ(theirs.write(slot, slotOf(slot, '!')), Outcome::Done);
        EXPECT_EQ(read(slot), slotOf(slot, '!').substr(0, 490));
    }
}

TEST_F(SlotFileTest, keeps_a_write_inside_its_slot)
{
    station.put(kPath, slotsOf(3));
    const ErrorsIgnored fromHere(station.run);
    file.open(SlotUse::Rewrite);
    EXPECT_EQ(file.write(2, std::string(700, '!')), Outcome::Done);
    EXPECT_EQ(file.write(0, slotOf(9)), Outcome::Broken);
    EXPECT_EQ(file.write(-1, slotOf(9)), Outcome::Broken);
    long slot = 0;
    EXPECT_EQ(file.append(slotOf(4), slot), Outcome::Broken) << "not opened for it";
    file.open(SlotUse::Append);
    EXPECT_EQ(file.write(1, slotOf(9)), Outcome::Broken) << "not opened for it";
    EXPECT_EQ(file.append("short", slot), Outcome::Broken);
    EXPECT_EQ(station.get(kPath), slotOf(1) + std::string(kLength, '!') + slotOf(3));
}

TEST_F(SlotFileTest, appends_at_count_plus_one)
{
    const struct {
        std::size_t tail; // bytes behind two whole slots
        bool locked;
        long slot;
        std::size_t rest; // bytes behind the last slot afterwards, which do not count
    } cases[] = {{0, true, 3, 0},   {1, true, 3, 0},      {200, true, 3, 0},
                 {250, true, 3, 0}, {251, true, 4, 0},    {499, true, 4, 0},
                 {0, false, 3, 0},  {200, false, 3, 200}, {300, false, 4, 0}};
    for (const auto &[tail, locked, expected, rest] : cases) {
        SCOPED_TRACE(std::to_string(tail) + (locked ? " locked" : " not locked"));
        station.put(kPath, slotsOf(2) + std::string(tail, 't'));
        file.open(SlotUse::Append);
        if (locked) {
            ASSERT_EQ(file.lock(), Outcome::Done);
        }
        long slot = 0;
        EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
        EXPECT_EQ(slot, expected);
        EXPECT_EQ(file.count(), expected);
        EXPECT_EQ(read(slot, kLength), slotOf(3));
        EXPECT_EQ(file.append(slotOf(4), slot), Outcome::Done);
        EXPECT_EQ(slot, expected + 1);

        const std::string bytes = station.get(kPath);
        const std::size_t behind = static_cast<std::size_t>(expected - 1) * kLength;
        EXPECT_EQ(bytes.substr(0, 2 * kLength), slotsOf(2));
        EXPECT_EQ(bytes.substr(behind, 2 * kLength), slotOf(3) + slotOf(4));
        EXPECT_EQ(bytes.size(), behind + 2 * kLength + rest);
    }
}

TEST_F(SlotFileTest, leaves_the_file_as_it_was_when_an_append_fails)
{
    for (const std::size_t tail : {0U, 200U, 300U}) {
        const std::string before = slotsOf(2) + std::string(tail, 't');
        bool failed = true;
        for (std::size_t n = 1; failed; ++n) {
            SCOPED_TRACE("tail of " + std::to_string(tail) + ", operation " + std::to_string(n));
            support::TestStation mine(&station);
            station.put(kPath, before);
            const ErrorsIgnored fromHere(mine.run);
            SlotFile failing(mine.files, kPath, kLength);
            ASSERT_EQ(failing.open(SlotUse::Append), Outcome::Done);
            ASSERT_EQ(failing.lock(), Outcome::Done);
            mine.disk.failAt(mine.disk.operations() + n, Outcome::NoRoom);
            long slot = 0;
            failed = !done(failing.append(slotOf(3), slot));
            if (failed) {
                EXPECT_EQ(station.get(kPath), before);
            }
        }
    }
}

TEST_F(SlotFileTest, is_flushed_after_the_unlock_and_before_it_is_closed)
{
    long slot = 0;
    {
        SlotFile leaving(station.files, kPath, kLength);
        leaving.open(SlotUse::Append);
        leaving.lock();
        leaving.append(slotOf(1), slot);
    }
    EXPECT_EQ(station.disk.logText(), "1 open c/Lumbrio/Data/CCPending.dat to append\n"
                                      "2 lock c/Lumbrio/Data/CCPending.dat\n"
                                      "3 append c/Lumbrio/Data/CCPending.dat 500 bytes\n"
                                      "4 unlock c/Lumbrio/Data/CCPending.dat\n"
                                      "5 flush c/Lumbrio/Data/CCPending.dat\n"
                                      "6 flushDirectory c/Lumbrio/Data\n");
    file.open(SlotUse::Rewrite);
    file.write(1, slotOf(1, '!'));
    station.disk.failOn("flush", "", Outcome::NoRoom);
    expectSystemMessage("Writing failed: no room on the disk");
    EXPECT_EQ(file.close(), Outcome::NoRoom);
}

TEST_F(SlotFileTest, ends_the_program_when_the_lock_is_refused)
{
    station.put(kPath, slotsOf(1));
    theirs.open(SlotUse::Rewrite);
    ASSERT_EQ(theirs.lock(), Outcome::Done);
    file.open(SlotUse::Append);
    expectSystemMessage("Locking failed: locked by another");
    EXPECT_EQ(file.lock(), Outcome::Locked);
    EXPECT_TRUE(station.run.failed());
    long slot = 0;
    EXPECT_EQ(file.append(slotOf(2), slot), Outcome::Denied);
    EXPECT_EQ(file.count(), 0);
    EXPECT_EQ(station.get(kPath), slotsOf(1));
}

TEST_F(SlotFileTest, writes_all_the_same_where_a_refused_lock_is_passed_over)
{
    station.put(kPath, slotsOf(2));
    theirs.open(SlotUse::Read);
    ASSERT_EQ(theirs.lock(), Outcome::Done);
    const ErrorsIgnored fromHere(station.run);
    file.open(SlotUse::Append);
    EXPECT_EQ(file.lock(), Outcome::Locked);
    long slot = 0;
    EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
    EXPECT_EQ(slot, 3);
    file.open(SlotUse::Rewrite);
    EXPECT_EQ(file.lock(), Outcome::Locked);
    EXPECT_EQ(file.write(1, slotOf(1, '!')), Outcome::Done);
    EXPECT_EQ(file.close(), Outcome::Done);
    EXPECT_EQ(station.get(kPath), slotOf(1, '!') + slotOf(2) + slotOf(3));
    EXPECT_EQ(theirs.unlock(), Outcome::Done);
    file.open(SlotUse::Read);
    EXPECT_EQ(file.lock(), Outcome::Done);
}

TEST_F(SlotFileTest, gives_the_lock_back_on_unlock_and_on_close)
{
    station.put(kPath, slotsOf(1));
    openLocked(SlotUse::Rewrite);
    file.unlock();
    theirs.open(SlotUse::Append);
    EXPECT_EQ(theirs.lock(), Outcome::Done);
    theirs.close();
    EXPECT_EQ(file.lock(), Outcome::Done);
    file.open(SlotUse::Read); // closes first
    theirs.open(SlotUse::Append);
    EXPECT_EQ(theirs.lock(), Outcome::Done);
}

TEST_F(SlotFileTest, locks_the_file_that_has_replaced_the_one_it_opened)
{
    station.put(kPath, slotsOf(5));
    file.open(SlotUse::Append);
    theirs.open(SlotUse::Read);
    ASSERT_EQ(theirs.lock(), Outcome::Done);
    {
        const ErrorsIgnored fromHere(station.run);
        ASSERT_EQ(file.lock(), Outcome::Locked);
    }
    ASSERT_EQ(other.files.replaceWhole(kPath, slotsOf(2)), Outcome::Done);
    theirs.close();

    ASSERT_EQ(file.lock(), Outcome::Done);
    EXPECT_EQ(file.count(), 2);
    long slot = 0;
    EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
    theirs.open(SlotUse::Read);
    const ErrorsIgnored theyIgnore(other.run);
    EXPECT_EQ(theirs.lock(), Outcome::Locked) << "the lock is on the new file";
    EXPECT_EQ(station.get(kPath), slotsOf(3));
}

TEST_F(SlotFileTest, does_not_append_to_a_file_that_was_replaced)
{
    station.put(kPath, slotsOf(5));
    file.open(SlotUse::Append);
    ASSERT_EQ(other.files.replaceWhole(kPath, slotsOf(2)), Outcome::Done);
    long slot = 0;
    EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
    EXPECT_EQ(slot, 3);
    EXPECT_EQ(station.get(kPath), slotsOf(3));
}

TEST_F(SlotFileTest, does_nothing_once_the_end_was_asked_for)
{
    station.put(kPath, slotsOf(2));
    openLocked(SlotUse::Append);
    station.run.end();
    long slot = 7;
    EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Denied);
    EXPECT_EQ(slot, 7);
    EXPECT_EQ(file.count(), 0);
    EXPECT_EQ(read(1), "unread");
    theirs.open(SlotUse::Read);
    file.close();
    EXPECT_EQ(theirs.lock(), Outcome::Done) << "closing still frees the lock";
    EXPECT_EQ(file.open(SlotUse::Append), Outcome::Denied);
    EXPECT_EQ(station.get(kPath), slotsOf(2));
}

} // namespace
