// The system's own disk behaves as its interface says.
#include "platform/disk.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using platform::DiskFile;
using platform::OpenMode;
using platform::Outcome;

class DiskTest : public testing::Test {
protected:
    std::string at(const std::string &name) const { return folder.path() + "/" + name; }
    Outcome open(const std::string &name, OpenMode mode)
    {
        return disk->open(at(name), mode, file);
    }
    void put(const std::string &name, const std::string &bytes)
    {
        ASSERT_EQ(open(name, OpenMode::CreateEmpty), Outcome::Done);
        ASSERT_EQ(file->writeAt(0, bytes), Outcome::Done);
        file.reset();
    }
    std::string get(const std::string &name)
    {
        std::unique_ptr<DiskFile> reading;
        std::string bytes(100, '\0');
        std::size_t got = 0;
        if (done(disk->open(at(name), OpenMode::Read, reading)))
            reading->readAt(0, bytes.data(), bytes.size(), got);
        return bytes.substr(0, got);
    }

    support::TemporaryFolder folder;
    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    std::unique_ptr<DiskFile> file;
};

TEST_F(DiskTest, writes_only_where_the_mode_allows)
{
    put("file", "0123456789");
    std::uint64_t landed = 0;

    ASSERT_EQ(open("file", OpenMode::ReadWrite), Outcome::Done);
    EXPECT_EQ(file->writeAt(8, "abcd"), Outcome::Done);
    EXPECT_FALSE(done(file->append("x", landed)));

    ASSERT_EQ(open("file", OpenMode::Append), Outcome::Done);
    EXPECT_FALSE(done(file->writeAt(0, "x"))) << "it would land at the end";
    EXPECT_EQ(file->append("ef", landed), Outcome::Done);
    EXPECT_EQ(landed, 12U);
    std::unique_ptr<DiskFile> other;
    ASSERT_EQ(disk->open(at("file"), OpenMode::Append, other), Outcome::Done);
    EXPECT_EQ(other->append("gh", landed), Outcome::Done);
    std::size_t got = 0;
    char byte = 0;
    EXPECT_EQ(file->readAt(3, &byte, 1, got), Outcome::Done);
    EXPECT_EQ(file->append("i", landed), Outcome::Done);
    EXPECT_EQ(landed, 16U) << "behind the other's, wherever it has read";

    ASSERT_EQ(open("file", OpenMode::Read), Outcome::Done);
    EXPECT_FALSE(done(file->writeAt(0, "x")));
    EXPECT_EQ(get("file"), "01234567abcdefghi");
}

TEST_F(DiskTest, cuts_back_only_what_nobody_wrote_behind)
{
    put("file", "0123456789");
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::Append}) {
        ASSERT_EQ(open("file", mode), Outcome::Done);
        EXPECT_EQ(file->cutBack(9, 2), Outcome::Done);
        EXPECT_EQ(get("file").size(), mode == OpenMode::Append ? 8U : 10U);
        EXPECT_EQ(file->cutBack(10, 8), Outcome::Done);
        EXPECT_EQ(get("file"), "01234567");
    }
}

TEST_F(DiskTest, replaces_a_file_that_others_hold_open)
{
    put("file", "old and longer");
    put("new", "fresh");
    ASSERT_EQ(open("file", OpenMode::ReadWrite), Outcome::Done);
    ASSERT_EQ(file->tryLock(), Outcome::Done);
    EXPECT_TRUE(file->isStillAt(at("file")));
    EXPECT_EQ(disk->rename(at("new"), at("file")), Outcome::Done);
    EXPECT_EQ(get("file"), "fresh");
    EXPECT_FALSE(disk->isFile(at("new")));
    EXPECT_EQ(disk->flushDirectory(folder.path()), Outcome::Done);
    EXPECT_EQ(disk->rename(at("none"), at("file")), Outcome::NotThere);
}

TEST_F(DiskTest, removes_a_file_that_others_hold_open)
{
    put("file", "old");
    ASSERT_EQ(open("file", OpenMode::Read), Outcome::Done);
    EXPECT_EQ(disk->remove(at("file")), Outcome::Done);
    file.reset();
    EXPECT_FALSE(disk->isFile(at("file")));
    EXPECT_EQ(disk->remove(at("file")), Outcome::NotThere);
}

} // namespace
