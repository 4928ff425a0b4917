// Fixed slots in a shared file: what is read, where an append lands, who holds the lock.
#include "support/golden_table.h"
#include "support/test_station.h"

#include <limits>

namespace {

using namespace platform;

const std::string kPath = "C:\\Lumbrio\\Data\\CCPending.dat";
constexpr std::size_t kLength = 500;

/// A whole slot that begins with its number.
std::string slotOf(long number, char mark = '.')
{
    const std::string text = std::to_string(number);
    return text + std::string(kLength - text.size(), mark);
}

std::string slotsOf(long count)
{
    return count == 0 ? std::string() : slotsOf(count - 1) + slotOf(count);
}

struct SlotFileTest : testing::Test {
    /// The bytes of a slot, "unread" when the read failed and left the buffer.
    std::string read(long number, std::size_t bytes = kLength)
    {
        const std::string before(bytes, '?');
        std::string into = before;
        return done(file.read(number, into)) ? into : into == before ? "unread" : "half read";
    }
    std::string slotAt(long number) const
    {
        return station.get(kPath).substr(static_cast<std::size_t>(number - 1) * kLength, kLength);
    }
    bool openLocked(SlotFile &one, SlotUse use) { return done(one.open(use)) && done(one.lock()); }

    support::TestStation station;
    support::TestStation other{&station};
    SlotFile file{station.files, kPath, kLength};
    SlotFile theirs{other.files, kPath, kLength};
    long slot = 7;
};

TEST_F(SlotFileTest, counts_to_the_nearest_slot_and_a_half_to_the_even_one)
{
    std::string counts;
    for (const std::size_t bytes : {0U, 250U, 251U, 749U, 750U, 1250U, 1251U}) {
        station.put(kPath, std::string(bytes, 'x'));
        file.open(SlotUse::Read);
        counts += std::to_string(file.count());
    }
    EXPECT_EQ(counts, "0011223");
}

TEST_F(SlotFileTest, reads_every_slot_as_it_is_now_and_nul_where_there_is_none)
{
    file.open(SlotUse::Append);
    for (const char mark : {'.', '!'}) { // another station changed it meanwhile
        station.put(kPath, slotOf(1) + slotOf(2, mark) + slotOf(3).substr(0, 300));
        EXPECT_EQ(read(2), slotOf(2, mark));
        EXPECT_EQ(read(3), slotOf(3).substr(0, 300) + std::string(200, '\0'));
        for (const long none : {4L, 0L, -1L, std::numeric_limits<long>::max()})
            EXPECT_EQ(read(none), std::string(kLength, '\0')) << none;
        EXPECT_EQ(read(1, 900), slotOf(1) + std::string(400, '?')) << "never more than a slot";
    }
    station.put(kPath, slotsOf(1000));
    ASSERT_TRUE(openLocked(file, SlotUse::Read)); // now it reads ahead
    for (long number = 1; number <= 1000; ++number)
        ASSERT_EQ(read(number), slotOf(number));
    for (const long number : {700L, 132L, 131L, 133L, 1000L, 1L})
        EXPECT_EQ(read(number), slotOf(number));
    const ErrorsIgnored fromHere(station.run);
    station.disk.failOn("read", "", Outcome::Broken);
    EXPECT_EQ(read(200), "unread");
    station.disk.failOn("read", "", Outcome::Done);
    EXPECT_EQ(read(200), slotOf(200)) << "and the next one is right again";
}

TEST_F(SlotFileTest, keeps_a_write_inside_its_slot)
{
    station.put(kPath, slotsOf(3));
    const ErrorsIgnored fromHere(station.run);
    file.open(SlotUse::Rewrite);
    EXPECT_EQ(file.write(2, std::string(700, '!')), Outcome::Done);
    EXPECT_EQ(file.write(0, slotOf(9)), Outcome::Broken);
    file.open(SlotUse::Append);
    EXPECT_EQ(file.append("short", slot), Outcome::Broken);
    EXPECT_EQ(station.get(kPath), slotOf(1) + std::string(kLength, '!') + slotOf(3));
}

/// Each operation of the append in turn fails, is the last one before a kill, or comes directly
/// after an append of another station without the lock; in the last round nothing happens.
TEST_F(SlotFileTest, appends_at_count_plus_one_whatever_happens_meanwhile)
{
    support::expectTable("platform/appends.txt", [&](const std::string &tail) {
        const std::string before = slotsOf(2) + std::string(std::stoul(tail), 't');
        for (const std::string event : {"killed", "another", "another, failed", "failed"}) {
            bool reached = true;
            for (std::size_t n = 1; reached; ++n) {
                SCOPED_TRACE(event + " at operation " + std::to_string(n) + ", tail of " + tail);
                support::TestStation mine(&station);
                station.put(kPath, before);
                const ErrorsIgnored fromHere(mine.run);
                SlotFile one(mine.files, kPath, kLength);
                one.open(SlotUse::Append);
                EXPECT_TRUE(!tail.ends_with("locked") || done(one.lock()));
                const std::size_t then = mine.disk.operations() + n;
                long theirSlot = 0;
                const auto appendToo = [&] {
                    theirs.open(SlotUse::Append);
                    EXPECT_EQ(theirs.append(slotOf(4), theirSlot), Outcome::Done);
                };
                const auto onKill = [&] {
                    const std::size_t at = station.get(kPath).find(slotOf(3));
                    EXPECT_TRUE(!tail.ends_with("locked") || at + 1 == 0 || at % 500 == 0)
                        << "across two slots";
                    appendToo();
                };
                if (event == "killed")
                    mine.disk.stopAt(then, onKill, true);
                else if (event.ends_with("failed"))
                    mine.disk.failAt(then, Outcome::NoRoom);
                if (event.starts_with("another"))
                    mine.disk.before = [&](std::size_t now) { now == then ? appendToo() : void(); };
                const Outcome outcome = one.append(slotOf(3), slot);
                reached = mine.disk.operations() >= then;
                const std::string bytes = station.get(kPath);
                EXPECT_TRUE(bytes.starts_with(slotsOf(2)));
                EXPECT_TRUE(theirSlot == 0 || slotAt(theirSlot) == slotOf(4));
                EXPECT_TRUE(done(outcome) ? slotAt(slot) == slotOf(3) : reached);
                EXPECT_TRUE(event != "failed" || done(outcome) || bytes == before);
            }
        }
        const std::string bytes = station.get(kPath);
        return std::vector{std::to_string(slot), std::to_string(bytes.find(slotOf(3))),
                           std::to_string(bytes.size()),
                           std::to_string(std::count(bytes.begin(), bytes.end(), '\0'))};
    });
}

TEST_F(SlotFileTest, is_flushed_after_the_unlock_and_before_it_is_closed)
{
    ASSERT_TRUE(openLocked(file, SlotUse::Append));
    file.append(slotOf(1), slot);
    station.disk.failOn("flushDirectory", "", Outcome::NoRoom);
    std::string boxes;
    station.dialogs.noteIn(boxes);
    file.close();
    EXPECT_EQ(boxes, "[] Writing failed: no room on the disk\n" + kPath + " (Ok)\n");
    EXPECT_EQ(station.disk.logText(), support::testFile("golden/platform/flushed_append.txt"));
}

TEST_F(SlotFileTest, flushes_a_filled_up_tail_before_the_record_after_it)
{
    station.put(kPath, std::string(490, 'x'));
    ASSERT_TRUE(openLocked(file, SlotUse::Append) && done(file.append(slotOf(2), slot)));
    const std::string &log = station.disk.logText();
    EXPECT_LT(log.find(" flush "), log.find(" 500 bytes")) << "or a power cut leaves a gap" << log;
}

TEST_F(SlotFileTest, writes_without_the_lock_only_where_errors_are_ignored)
{
    station.put(kPath, slotsOf(2));
    ASSERT_TRUE(openLocked(theirs, SlotUse::Read));
    {
        const ErrorsIgnored fromHere(station.run);
        file.open(SlotUse::Append);
        EXPECT_EQ(file.lock(), Outcome::Locked);
        EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
        file.open(SlotUse::Rewrite);
        EXPECT_EQ(file.lock(), Outcome::Locked);
        EXPECT_EQ(file.write(1, slotOf(1, '!')), Outcome::Done);
    }
    EXPECT_EQ(station.get(kPath), slotOf(1, '!') + slotOf(2) + slotOf(3));
    file.open(SlotUse::Append);
    std::string boxes;
    station.dialogs.noteIn(boxes);
    EXPECT_EQ(file.lock(), Outcome::Locked);
    EXPECT_EQ(boxes, "[] Locking failed: locked by another\n" + kPath + " (Ok)\n");
    EXPECT_EQ(file.append(slotOf(4), slot), Outcome::Denied);
    EXPECT_TRUE(file.count() == 0 && read(1) == "unread" && theirs.count() == 3);
}

TEST_F(SlotFileTest, follows_the_file_that_has_replaced_the_one_it_opened)
{
    for (const bool locked : {true, false}) {
        station.put(kPath, slotsOf(5));
        file.open(SlotUse::Append);
        ASSERT_EQ(other.files.replaceWhole(kPath, slotsOf(2)), Outcome::Done);
        if (locked) {
            EXPECT_EQ(file.lock(), Outcome::Done);
            const ErrorsIgnored theyIgnore(other.run);
            EXPECT_FALSE(openLocked(theirs, SlotUse::Read)) << "the lock is on the new file";
        }
        EXPECT_EQ(file.append(slotOf(3), slot), Outcome::Done);
        EXPECT_EQ(station.get(kPath), slotsOf(3));
    }
}

} // namespace
