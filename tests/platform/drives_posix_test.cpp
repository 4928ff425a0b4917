// Paths of the contracts on folders that tell capitals from small letters.
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

class DrivesTest : public testing::Test {
protected:
    /// Puts an empty file there, below the drives folder.
    void file(const std::string &path)
    {
        create_directories((root / path).parent_path());
        std::ofstream(root / path).flush();
    }
    /// Below the drives folder.
    std::string resolved(std::string_view path) const
    {
        return drives.resolve(path).substr(drives.root().size() + 1);
    }

    support::TemporaryFolder folder;
    fs::path root = folder.path();
    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    platform::Drives drives{*disk, folder.path() + "/", platform::Drives::Paths::BelowRoot};
};

TEST_F(DrivesTest, lead_contract_paths_below_the_drives_folder)
{
    for (const char *path :
         {"c/Lumbrio/Data/CCPending.dat", "f/lumbrio/ini/3/LumbrioINI.dat", "c/Lumbrio/plain",
          "unc/Office/share/CCard.dat", "c/c/Lumbrio/odd.dat", "c/DATA/only.dat",
          "c/data/CCPENDING.dat", "c/data/CCPending.dat", "c/caf\xE9/\xC3\xA9.dat"})
        file(path);
    using namespace std::string_view_literals;
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"C:\\Lumbrio\\Data\\CCPending.dat", "c/Lumbrio/Data/CCPending.dat"},
        {"c:/LUMBrio\\\\data//ccpending.DAT", "c/Lumbrio/Data/CCPending.dat"},
        {"\\lumbrio\\data\\ccpending.dat", "c/Lumbrio/Data/CCPending.dat"},
        {"", "c"},
        {"F:\\Lumbrio\\INI\\3\\lumbrioini.dat", "f/lumbrio/ini/3/LumbrioINI.dat"},
        {"\\\\office\\SHARE\\ccard.dat", "unc/Office/share/CCard.dat"},
        {"\\\\\\lumbrio\\data\\ccpending.dat", "c/Lumbrio/Data/CCPending.dat"},
        {"c\\Lumbrio\\odd.dat", "c/c/Lumbrio/odd.dat"},
        {"C:\\..\\Lumbrio\\.\\Data\\..\\..\\..\\data\\CCPENDING.dat", "c/data/CCPENDING.dat"},
        // What is not there keeps its spelling in the folder that is.
        {"c:\\LUMBRIO\\dATA\\NewFile.Dat", "c/Lumbrio/Data/NewFile.Dat"},
        {"c:\\lumbrio\\Other\\file.dat", "c/Lumbrio/Other/file.dat"},
        {"c:\\lumbrio\\PLAIN\\x.dat", "c/Lumbrio/PLAIN/x.dat"}, // a file is no folder
        // The exact spelling goes first, then the first by its bytes.
        {"c:\\data\\ccpending.dat", "c/data/CCPENDING.dat"},
        {"c:\\DATA\\ccpending.dat", "c/DATA/ccpending.dat"},
        // Names are bytes; a path ends at a NUL.
        {"C:\\CAF\xE9\\\xC3\xA9.DAT", "c/caf\xE9/\xC3\xA9.dat"},
        {"c:\\a.dat\0\\b.dat"sv, "c/a.dat"},
    };
    for (const auto &[path, real] : cases)
        EXPECT_EQ(resolved(path), real) << path;
    const platform::Drives windows(*disk, "C:\\Lumbrio", platform::Drives::Paths::AsTheyStand);
    EXPECT_EQ(windows.resolve("\\\\office\\c\\LUMBrio\\..\\x.dat"),
              "\\\\office\\c\\LUMBrio\\..\\x.dat");
}

TEST_F(DrivesTest, see_at_once_what_appears_in_a_folder_that_was_quiet)
{
    file("c/Lumbrio/other.dat");
    const std::string path = "C:\\lumbrio\\xresultfile.txt";
    for (const auto &quiet : {std::chrono::hours(0), std::chrono::hours(1)}) {
        const auto stamp = fs::file_time_type::clock::now() - quiet;
        last_write_time(root / "c/Lumbrio", stamp);
        EXPECT_EQ(resolved(path), "c/Lumbrio/xresultfile.txt");
        file("c/Lumbrio/xResultFile.txt");
        if (quiet.count() == 0) // within one step of the file system's clock
            last_write_time(root / "c/Lumbrio", stamp);
        EXPECT_EQ(resolved(path), "c/Lumbrio/xResultFile.txt");
        remove(root / "c/Lumbrio/xResultFile.txt");
    }
}

} // namespace
