// What the rooms do with files, and what they see of a failure.
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using platform::ErrorsIgnored;
using platform::Files;
using platform::Outcome;
using Names = std::vector<std::string>;

Names namesIn(const support::TestStation &station, const std::string &folder)
{
    Names names;
    for (const auto &entry : std::filesystem::directory_iterator(station.drives.resolve(folder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class FilesTest : public testing::Test {
protected:
    void expectSystemMessage(const std::string &text)
    {
        station.dialogs.expect("", text, platform::Buttons::Ok, platform::Answer::Ok);
    }
    support::TestStation station;
    Files &files = station.files;
};

/// Every call that can fail, with what the system's message says of it.
struct Call {
    const char *operation; // of the disk
    const char *message;
    std::function<Outcome(Files &)> make;
};

const std::string kFile = "C:\\Lumbrio\\Data\\a.dat";
const std::string kOther = "C:\\Lumbrio\\Data\\b.dat";

const std::vector<Call> &calls()
{
    static const std::vector<Call> all = {
        {"remove", "Deleting", [](Files &f) { return f.remove(kFile); }},
        {"remove", "Deleting", [](Files &f) { return f.removeIfThere(kFile); }},
        {"open", "Copying", [](Files &f) { return f.copy(kFile, kOther); }},
        {"makeDirectory", "Making the folder", [](Files &f) { return f.makeFolder("C:\\New"); }},
        {"open", "Creating", [](Files &f) { return f.createIfMissing(kOther); }},
        {"read", "Reading",
         [](Files &f) {
             std::string content = "before";
             const Outcome outcome = f.read(kFile, content);
             return content.empty() ? outcome : Outcome::Done;
         }},
        {"write", "Writing", [](Files &f) { return f.write(kFile, "new"); }},
        {"flush", "Writing", [](Files &f) { return f.writeFlushed(kFile, "new"); }},
        {"append", "Writing", [](Files &f) { return f.append(kFile, "new"); }},
        {"lock", "Locking", [](Files &f) { return f.appendLocked(kFile, "new"); }},
        {"rename", "Replacing", [](Files &f) { return f.replaceWhole(kFile, "new"); }},
    };
    return all;
}

TEST(FilesFailure, ends_the_program_with_the_systems_message)
{
    for (const Call &call : calls()) {
        SCOPED_TRACE(call.message);
        support::TestStation station;
        station.put(kFile, "old");
        station.disk.failOn(call.operation, "", Outcome::Denied);
        std::string shown;
        station.run.reportFailure = [&](const std::string &text) { shown += text; };
        EXPECT_EQ(call.make(station.files), Outcome::Denied);
        EXPECT_TRUE(shown.starts_with(std::string(call.message) + " failed: access denied\nC:\\"))
            << shown;
        EXPECT_TRUE(station.run.failed());
        EXPECT_TRUE(station.files.shut());
    }
}

TEST(FilesFailure, is_passed_over_where_errors_are_ignored)
{
    for (const Call &call : calls()) {
        SCOPED_TRACE(call.message);
        support::TestStation station;
        station.put(kFile, "old");
        const ErrorsIgnored fromHere(station.run);
        station.disk.failOn(call.operation, "", Outcome::NoRoom);
        const bool locks = std::string_view(call.operation) == "lock";
        EXPECT_EQ(call.make(station.files), locks ? Outcome::Done : Outcome::NoRoom);
        EXPECT_FALSE(station.run.ending());
        EXPECT_EQ(station.get(kFile) == "oldnew", locks) << "the refused lock is passed over";
    }
}

TEST(FilesFailure, shuts_the_file_layer)
{
    for (const Call &call : calls()) {
        SCOPED_TRACE(call.message);
        support::TestStation station;
        station.put(kFile, "old");
        station.run.end();
        station.run.reportFailure = [](const std::string &text) { ADD_FAILURE() << text; };
        EXPECT_EQ(call.make(station.files), Outcome::Denied);
        EXPECT_FALSE(station.files.exists(kFile));
        EXPECT_FALSE(station.files.folderExists("C:\\Lumbrio"));
        EXPECT_TRUE(station.files.list("C:\\Lumbrio\\Data").empty());
        EXPECT_EQ(station.disk.operations(), 0U) << station.disk.logText();
        EXPECT_EQ(station.get(kFile), "old");
    }
}

TEST_F(FilesTest, writes_nothing_when_the_lock_of_another_is_not_passed_over)
{
    station.put(kFile, "old");
    support::TestStation other(&station);
    platform::SlotFile held(other.files, kFile, 3);
    ASSERT_EQ(held.open(platform::SlotUse::Append), Outcome::Done);
    ASSERT_EQ(held.lock(), Outcome::Done);
    {
        const ErrorsIgnored fromHere(station.run);
        EXPECT_EQ(files.appendLocked(kFile, " unlocked"), Outcome::Done);
    }
    expectSystemMessage("Locking failed: locked by another\n" + kFile);
    EXPECT_EQ(files.appendLocked(kFile, " refused"), Outcome::Locked);
    EXPECT_EQ(station.get(kFile), "old unlocked");
}

TEST_F(FilesTest, never_empties_a_file_that_it_creates_if_missing)
{
    EXPECT_EQ(files.createIfMissing(kFile), Outcome::Done);
    EXPECT_EQ(station.get(kFile), "");
    files.append(kFile, "one");
    EXPECT_EQ(files.createIfMissing("c:\\LUMBRIO\\data\\A.DAT"), Outcome::Done);
    EXPECT_EQ(station.get(kFile), "one");
    EXPECT_EQ(station.disk.logText().find("emptied"), std::string::npos);
}

TEST_F(FilesTest, keeps_bytes_as_they_are)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<char>(byte));
    std::string large;
    for (int i = 0; i < 600; ++i)
        large += bytes;
    std::string content;
    for (const std::string &text : {std::string(), bytes, large}) {
        EXPECT_EQ(files.write(kFile, text), Outcome::Done);
        EXPECT_EQ(files.append(kFile, "+"), Outcome::Done);
        EXPECT_EQ(files.copy(kFile, kOther), Outcome::Done);
        EXPECT_EQ(files.read(kOther, content), Outcome::Done);
        EXPECT_TRUE(content == text + "+") << content.size();
    }
    EXPECT_EQ(files.read(kOther, content, 3), Outcome::Done);
    EXPECT_EQ(content, large.substr(0, 3));
    EXPECT_EQ(files.read(kOther, content, 0), Outcome::Done);
    EXPECT_EQ(content, "");
}

TEST_F(FilesTest, is_on_the_disk_when_flushed_writing_returns)
{
    files.writeFlushed(kFile, "1");
    EXPECT_EQ(station.disk.logText(), "1 open c/Lumbrio/Data/a.dat emptied\n"
                                      "2 write c/Lumbrio/Data/a.dat 1 bytes at 0\n"
                                      "3 flush c/Lumbrio/Data/a.dat\n"
                                      "4 flushDirectory c/Lumbrio/Data\n");
}

/// `replace` puts "new" in the place of "old" in kFile. However it fails or is stopped, the file
/// is the old or the new one; only a killed process leaves something beside it.
void expectWholeWhateverHappens(const std::function<Outcome(Files &)> &replace)
{
    bool reached = true;
    std::size_t n = 0;
    while (reached) {
        ++n;
        for (const bool killed : {false, true}) {
            SCOPED_TRACE("operation " + std::to_string(n) + (killed ? " kills" : " fails"));
            support::TestStation station;
            station.put(kFile, "old");
            station.put(kOther, "new");
            if (killed)
                station.disk.stopAt(n, {}, true);
            else
                station.disk.tornAt(n, Outcome::NoRoom);
            const ErrorsIgnored fromHere(station.run);
            const Outcome outcome = replace(station.files);
            reached = station.disk.operations() >= n;
            const std::string now = station.get(kFile);
            EXPECT_TRUE(now == "new" || (now == "old" && !done(outcome))) << now;
            if (!killed) {
                EXPECT_EQ(namesIn(station, "C:\\Lumbrio\\Data"), (Names{"a.dat", "b.dat"}));
            }
        }
    }
    EXPECT_GT(n, 5U);
}

TEST(FilesReplacing, leaves_the_old_or_the_new_file)
{
    expectWholeWhateverHappens([](Files &files) { return files.replaceWhole(kFile, "new"); });
    expectWholeWhateverHappens([](Files &files) { return files.copy(kOther, kFile); });
}

TEST_F(FilesTest, replaces_in_an_order_that_survives_a_power_cut)
{
    station.put(kFile, "old");
    EXPECT_EQ(files.replaceWhole("C:\\lumbrio\\data\\A.dat", "new content"), Outcome::Done);
    EXPECT_EQ(station.get(kFile), "new content");
    EXPECT_EQ(namesIn(station, "C:\\Lumbrio\\Data"), Names{"a.dat"});
    std::string order;
    for (const std::string &line : station.disk.operationLog())
        order += line.substr(0, line.find(" c/"));
    EXPECT_EQ(order, "1 open2 write3 flush4 rename5 flushDirectory");
}

TEST(TextLines, end_as_any_system_ends_them)
{
    const struct {
        std::string_view content;
        Names lines;
    } cases[] = {
        {"", {}},
        {"one", {"one"}},
        {"one\r\ntwo\r\n", {"one", "two"}},
        {"one\ntwo", {"one", "two"}},
        {"one\rtwo\r", {"one", "two"}},
        {"\r\n\n\r", {"", "", ""}},
        {"a\n\rb", {"a", "", "b"}},
        {std::string_view("a\0b\r\n\xFF", 6), {std::string("a\0b", 3), "\xFF"}},
    };
    for (const auto &[content, lines] : cases)
        EXPECT_EQ(platform::splitLines(content), lines) << content;
    EXPECT_EQ(platform::textLine(std::string_view("a\0 \xE9\0", 5)), "a  \xE9 \r\n");
    EXPECT_EQ(platform::textLine(""), "\r\n");
}

} // namespace
