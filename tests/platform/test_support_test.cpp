// The doubles themselves: a fake that lets a fault pass makes every test above it worthless.
#include "support/test_station.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

namespace platform {
namespace {

using support::TestStation;

TEST(ScriptedDialogsTest, failsOnEveryOtherBoxThanTheExpectedOne)
{
    TestStation station;
    Answer answer = Answer::Yes;
    EXPECT_NONFATAL_FAILURE(answer = station.dialogs.message("Void", "Sure?", Buttons::YesNo),
                            "without being expected");
    EXPECT_EQ(answer, Answer::No);
    const auto showInstead = [&](const char *title, const char *text, Buttons buttons) {
        station.dialogs.expect("Void", "Sure?", Buttons::OkCancel, Answer::Ok);
        station.dialogs.message(title, text, buttons);
    };
    EXPECT_NONFATAL_FAILURE(showInstead("void", "Sure?", Buttons::OkCancel), "shown: ");
    EXPECT_NONFATAL_FAILURE(showInstead("Void", "Sure", Buttons::OkCancel), "shown: ");
    EXPECT_NONFATAL_FAILURE(showInstead("Void", "Sure?", Buttons::YesNo), "shown: ");
    auto left = std::make_unique<support::ScriptedDialogs>(station.run);
    left->expectInput("Tip", "How much?", "5.00");
    EXPECT_NONFATAL_FAILURE(left.reset(), "never shown");
}

TEST(ScriptedDialogsTest, timersGoOnBehindTheBoxAndTheirEndClosesIt)
{
    TestStation station;
    Timer giveUp(station.time, [&] { station.run.end(); });
    giveUp.setInterval(5000);
    station.dialogs.expect("Void", "Sure?", Buttons::YesNo, Answer::Yes,
                           [&] { station.advance(6000); });
    EXPECT_EQ(station.dialogs.message("Void", "Sure?", Buttons::YesNo), Answer::No);
}

TEST(VirtualTimeTest, aWaitThatNeverEndsIsEnded)
{
    TestStation station;
    station.time.limit = 60000;
    const auto waitForever = [&] {
        while (!station.run.ending())
            station.run.yield();
    };
    EXPECT_NONFATAL_FAILURE(waitForever(), "ran away");
}

class FaultyDiskTest : public testing::Test {
protected:
    TestStation station;
    std::string path = station.drives.resolve("c:\\Lumbrio\\Data\\a.dat");

    /// Opens, writes eight bytes, flushes, renames: operations 1 to 4 of a fresh disk.
    std::string outcomes()
    {
        std::string text;
        std::unique_ptr<DiskFile> file;
        const Outcome opened = station.disk.open(path, OpenMode::CreateEmpty, file);
        text += done(opened) ? "o" : "-";
        if (file != nullptr) {
            text += done(file->writeAt(0, "abcdefgh")) ? "w" : "-";
            text += done(file->flush()) ? "f" : "-";
        }
        return text += done(station.disk.rename(path, path + ".new")) ? "r" : "-";
    }
    std::string left() const
    {
        for (const char *name : {"c:\\Lumbrio\\Data\\a.dat", "c:\\Lumbrio\\Data\\a.dat.new"}) {
            if (station.has(name))
                return station.get(name);
        }
        return "nothing";
    }
};

TEST_F(FaultyDiskTest, failsJustTheOperationAskedFor)
{
    station.disk.failAt(3, Outcome::Broken);
    EXPECT_EQ(outcomes(), "ow-r");
    EXPECT_EQ(left(), "abcdefgh");
    EXPECT_EQ(station.disk.logText(),
              "1 open c/Lumbrio/Data/a.dat emptied\n"
              "2 write c/Lumbrio/Data/a.dat 8 bytes at 0\n"
              "3 flush c/Lumbrio/Data/a.dat\n"
              "4 rename c/Lumbrio/Data/a.dat to c/Lumbrio/Data/a.dat.new\n");
}

TEST_F(FaultyDiskTest, tearsAWrite)
{
    station.disk.tornAt(2, Outcome::NoRoom);
    EXPECT_EQ(outcomes(), "o-fr");
    EXPECT_EQ(left(), "abcd");
}

TEST_F(FaultyDiskTest, failsByOperationAndNameUntilLifted)
{
    station.disk.failOn("rename", "A.DAT.NEW", Outcome::Denied);
    EXPECT_EQ(outcomes(), "owf-");
    station.disk.failOn("rename", "A.DAT.NEW", Outcome::Done);
    EXPECT_EQ(outcomes(), "owfr");
}

TEST_F(FaultyDiskTest, reachesTheDiskNoMoreFromTheStopOn)
{
    int stops = 0;
    station.disk.stopAt(
        2, [&] { ++stops; }, true);
    EXPECT_EQ(outcomes(), "o---");
    EXPECT_EQ(outcomes(), "--");
    EXPECT_EQ(left(), "abcd");
    EXPECT_FALSE(station.disk.isFile(path));
    EXPECT_EQ(stops, 1);
    const TestStation restarted(&station);
    EXPECT_EQ(restarted.get("c:\\Lumbrio\\Data\\a.dat"), "abcd");
}

} // namespace
} // namespace platform
