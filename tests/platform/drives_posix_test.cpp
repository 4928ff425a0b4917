// Paths of the contracts on folders that tell capitals from small letters.
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

class DrivesTest : public testing::Test {
protected:
    void file(const std::string &path)
    {
        const fs::path real = fs::path(drives.root()) / path;
        fs::create_directories(real.parent_path());
        std::ofstream(real) << path;
    }
    /// Below the drives folder.
    std::string resolved(std::string_view path) const
    {
        return drives.resolve(path).substr(drives.root().size() + 1);
    }

    support::TemporaryFolder folder;
    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    platform::Drives drives{*disk, folder.path() + "/", platform::Drives::Paths::BelowRoot};
};

struct Case {
    const char *path;
    const char *real;
};

TEST_F(DrivesTest, leads_contract_paths_below_the_drives_folder)
{
    file("c/Lumbrio/Data/CCPending.dat");
    file("f/lumbrio/ini/3/LumbrioINI.dat");
    file("unc/Office/share/CCard.dat");
    file("c/c/Lumbrio/odd.dat");
    file("c/above.dat");
    for (const auto &[path, real] : {
             Case{"C:\\Lumbrio\\Data\\CCPending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"c:/LUMBrio/data//ccpending.DAT", "c/Lumbrio/Data/CCPending.dat"},
             {"C:\\Lumbrio\\\\data\\CCPending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"\\lumbrio\\data\\ccpending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"lumbrio\\data\\ccpending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"C:\\LUMBRIO\\DATA\\", "c/Lumbrio/Data"},
             {"c:", "c"},
             {"", "c"},
             {"F:\\Lumbrio\\INI\\3\\lumbrioini.dat", "f/lumbrio/ini/3/LumbrioINI.dat"},
             {"\\\\office\\SHARE\\ccard.dat", "unc/Office/share/CCard.dat"},
             {"//OFFICE//share/ccard.dat", "unc/Office/share/CCard.dat"},
             {"\\\\\\lumbrio\\data\\ccpending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"c\\Lumbrio\\odd.dat", "c/c/Lumbrio/odd.dat"},
             {"C:\\Lumbrio\\.\\Data\\..\\data\\CCPending.dat", "c/Lumbrio/Data/CCPending.dat"},
             {"C:\\..\\..\\above.dat", "c/above.dat"},
         })
        EXPECT_EQ(resolved(path), real) << path;
}

TEST_F(DrivesTest, keeps_the_spelling_of_what_is_not_there_in_the_folder_that_is)
{
    file("c/Lumbrio/Data/CCPending.dat");
    file("c/Lumbrio/plain");
    for (const auto &[path, real] : {
             Case{"c:\\LUMBRIO\\dATA\\NewFile.Dat", "c/Lumbrio/Data/NewFile.Dat"},
             {"c:\\LumbrioXsend.req", "c/LumbrioXsend.req"},
             {"c:\\lumbrio\\Other\\file.dat", "c/Lumbrio/Other/file.dat"},
             {"z:\\Lumbrio\\x.dat", "z/Lumbrio/x.dat"},
             {"c:\\lumbrio\\PLAIN\\x.dat", "c/Lumbrio/PLAIN/x.dat"}, // a file is no folder
         })
        EXPECT_EQ(resolved(path), real) << path;
}

TEST_F(DrivesTest, prefers_the_exact_spelling)
{
    file("c/DATA/only.dat");
    file("c/data/CCPENDING.dat");
    file("c/data/CCPending.dat");
    file("c/data/ccpending.dat");
    for (const auto &[path, real] : {
             Case{"c:\\data\\CCPending.dat", "c/data/CCPending.dat"},
             {"c:\\data\\ccpending.dat", "c/data/ccpending.dat"},
             {"c:\\data\\CCPENDING.dat", "c/data/CCPENDING.dat"},
             {"c:\\data\\ccPENDING.DAT", "c/data/CCPENDING.dat"}, // none: the first by its bytes
             {"c:\\DATA\\ccpending.dat", "c/DATA/ccpending.dat"}, // the folder as spelled decides
             {"c:\\Data\\only.dat", "c/DATA/only.dat"},
         })
        EXPECT_EQ(resolved(path), real) << path;
}

TEST_F(DrivesTest, takes_bytes_for_names)
{
    file("c/caf\xE9/\xC3\xA9.dat");
    EXPECT_EQ(resolved("C:\\CAF\xE9\\\xC3\xA9.DAT"), "c/caf\xE9/\xC3\xA9.dat");
    EXPECT_EQ(resolved(std::string_view("c:\\a.dat\0\\b.dat", 15)), "c/a.dat");
}

TEST_F(DrivesTest, sees_at_once_what_appears_in_a_folder_that_was_quiet)
{
    file("c/Lumbrio/other.dat");
    const fs::path quiet = drives.root() + "/c/Lumbrio";
    fs::last_write_time(quiet, fs::file_time_type::clock::now() - std::chrono::hours(1));
    const std::string path = "C:\\lumbrio\\xresultfile.txt";
    EXPECT_EQ(resolved(path), "c/Lumbrio/xresultfile.txt");
    EXPECT_EQ(resolved(path), "c/Lumbrio/xresultfile.txt");
    file("c/Lumbrio/xResultFile.txt");
    EXPECT_EQ(resolved(path), "c/Lumbrio/xResultFile.txt");
    fs::remove(quiet / "xResultFile.txt");
    EXPECT_EQ(resolved(path), "c/Lumbrio/xresultfile.txt");
}

TEST_F(DrivesTest, sees_what_appears_within_one_step_of_the_file_systems_clock)
{
    file("c/Lumbrio/other.dat");
    const fs::path busy = drives.root() + "/c/Lumbrio";
    const auto changed = fs::last_write_time(busy);
    EXPECT_EQ(resolved("C:\\lumbrio\\xresultfile.txt"), "c/Lumbrio/xresultfile.txt");
    file("c/Lumbrio/xResultFile.txt");
    fs::last_write_time(busy, changed);
    EXPECT_EQ(resolved("C:\\lumbrio\\xresultfile.txt"), "c/Lumbrio/xResultFile.txt");
}

TEST_F(DrivesTest, leaves_windows_paths_as_they_stand)
{
    const platform::Drives windows(*disk, "C:\\Lumbrio", platform::Drives::Paths::AsTheyStand);
    EXPECT_EQ(windows.resolve("\\\\office\\c\\LUMBrio\\..\\x.dat"),
              "\\\\office\\c\\LUMBrio\\..\\x.dat");
}

} // namespace
