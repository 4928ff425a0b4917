// Windows paths on folders that tell capitals from small letters.
#include "support/golden_table.h"
#include "support/test_station.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

struct DrivesTest : testing::Test {
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
    support::expectTable("platform/paths.txt",
                         [&](const std::string &path) { return std::vector{resolved(path)}; });
    EXPECT_EQ(resolved(std::string("c:\\a.dat\0\\b.dat", 15)), "c/a.dat");
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
