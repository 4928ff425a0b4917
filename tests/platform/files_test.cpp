// What the rooms do with files, and what they see of a failure.
#include "support/test_files.h"
#include "support/test_station.h"

namespace {

using namespace platform;
using support::TestStation;
using Names = std::vector<std::string>;

const std::string kFolder = "C:\\Lumbrio\\Data";
const std::string kFile = kFolder + "\\a.dat";
const std::string kOther = kFolder + "\\b.dat";

std::string content; // of the file read last

/// Every call that can fail.
const struct {
    const char *operation; // of the disk
    std::function<Outcome(Files &)> make;
} kCalls[] = {
    {"remove", [](Files &f) { return f.remove(kFile); }},
    {"remove", [](Files &f) { return f.removeIfThere(kFile); }},
    {"open", [](Files &f) { return f.copy(kFile, kOther); }},
    {"makeDirectory", [](Files &f) { return f.makeFolder("C:\\New"); }},
    {"open", [](Files &f) { return f.createIfMissing(kOther); }},
    {"read", [](Files &f) { return f.read(kFile, content); }},
    {"write", [](Files &f) { return f.write(kFile, "new"); }},
    {"flush", [](Files &f) { return f.writeFlushed(kFile, "new"); }},
    {"append", [](Files &f) { return f.append(kFile, "new"); }},
    {"lock", [](Files &f) { return f.appendLocked(kFile, "new"); }},
    {"rename", [](Files &f) { return f.replaceWhole(kFile, "new"); }},
};

TEST(FailedCalls, end_the_program_or_are_passed_over)
{
    for (const auto &[operation, make] : kCalls) {
        SCOPED_TRACE(operation);
        const bool locks = operation == std::string_view("lock");
        TestStation station;
        station.put(kFile, "old");
        station.disk.failOn(operation, "", Outcome::Denied);
        {
            const ErrorsIgnored fromHere(station.run);
            EXPECT_EQ(make(station.files), locks ? Outcome::Done : Outcome::Denied);
            EXPECT_EQ(station.get(kFile) == "oldnew", locks) << "a refused lock is passed over";
        }
        station.put(kFile, "old");
        std::string shown;
        station.run.reportFailure = [&](const std::string &text) { shown += text; };
        EXPECT_EQ(make(station.files), Outcome::Denied);
        EXPECT_NE(shown.find(" failed: access denied\nC:\\"), std::string::npos) << shown;
        EXPECT_TRUE(station.run.failed());

        const std::string left = station.get(kFile);
        const std::size_t operations = station.disk.operations();
        EXPECT_EQ(make(station.files), Outcome::Denied) << "the file layer is shut";
        EXPECT_FALSE(station.files.exists(kFile) || station.files.folderExists(kFolder));
        EXPECT_TRUE(station.files.list(kFolder).empty());
        EXPECT_EQ(station.disk.operations(), operations) << station.disk.logText();
        EXPECT_EQ(station.get(kFile), left);
    }
}

TEST(LeasedFiles, are_waited_for_ten_seconds_and_are_then_a_failure_like_any_other)
{
    TestStation station;
    station.put(kFile, "old");
    for (const char *path : {"a.dat", "a.dat to append"})
        station.disk.failOn("open", path, Outcome::Leased);
    station.time.after(2000, [&] { station.disk.failOn("open", "a.dat", Outcome::Done); });
    EXPECT_EQ(station.files.read(kFile, content), Outcome::Done);
    EXPECT_EQ(station.time.milliseconds(), 2000U);
    std::string boxes;
    station.dialogs.noteIn(boxes);
    EXPECT_EQ(station.files.append(kFile, "new"), Outcome::Leased);
    EXPECT_EQ(boxes, "[] Opening failed: not given back by another computer\n" + kFile + " (Ok)\n");
    EXPECT_GE(station.time.milliseconds(), 12'000U);
    EXPECT_EQ(station.get(kFile), "old");
}

TEST(Files, of_any_length_are_copied_whole)
{
    TestStation station;
    std::string large;
    for (int i = 0; i < 600 * 256; ++i)
        large.push_back(static_cast<char>(i));
    station.put(kFile, large);
    EXPECT_EQ(station.files.copy(kFile, kOther), Outcome::Done);
    EXPECT_TRUE(station.get(kOther) == large) << "a backup without its last records";
}

TEST(Files, are_on_the_disk_in_an_order_that_survives_a_power_cut)
{
    TestStation station;
    station.files.writeFlushed(kFile, "1");
    station.files.createIfMissing(kOther); // never emptied: another may just have written to it
    station.files.replaceWhole(kFile, "new");
    std::string steps; // without the unique part of the work file's name
    for (std::string line : splitLines(station.disk.logText())) {
        for (std::size_t at; (at = line.find("a.dat.")) != line.npos;)
            line.replace(at, line.find(".new", at) + 4 - at, "work file");
        steps += line + "\n";
    }
    EXPECT_EQ(steps, support::testFile("golden/platform/flushed_files.txt"));
}

TEST(ReplacedFiles, are_the_old_or_the_new_one_whatever_fails)
{
    const auto replaced = [](Files &files) { return files.replaceWhole(kFile, "new"); };
    const auto copied = [](Files &files) { return files.copy(kOther, kFile); };
    for (Outcome (*replace)(Files &) : {+replaced, +copied}) {
        bool reached = true;
        for (std::size_t n = 1; reached || n < 6; ++n) {
            for (const bool killed : {false, true}) {
                SCOPED_TRACE("operation " + std::to_string(n) + (killed ? " kills" : " fails"));
                TestStation station;
                station.put(kFile, "old");
                station.put(kOther, "new");
                station.disk.failAt(n, Outcome::NoRoom, true);
                if (killed)
                    station.disk.stopAt(n, {}, true);
                const ErrorsIgnored fromHere(station.run);
                const bool isDone = done(replace(station.files));
                reached = station.disk.operations() >= n;
                const std::string now = station.get(kFile);
                EXPECT_TRUE(now == "new" || (now == "old" && !isDone)) << now;
                const Names left = TestStation(&station).files.list(kFolder);
                EXPECT_TRUE(killed || left == (Names{"a.dat", "b.dat"}));
            }
        }
    }
}

TEST(TextLines, end_as_any_system_ends_them)
{
    EXPECT_EQ(platform::splitLines(std::string_view("one\r\ntwo\nthree\r\n\r\n\n\ra\0b\r\xFF", 25)),
              (Names{"one", "two", "three", "", "", "", std::string("a\0b", 3), "\xFF"}));
    EXPECT_EQ(platform::splitLines(""), Names{});
    EXPECT_EQ(platform::textLine(std::string_view("a\0 \xE9\0", 5)), "a  \xE9 \r\n");
}

} // namespace
