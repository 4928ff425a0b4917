// installation.ini as people really write it.
#include "platform/installation.h"
#include "support/test_files.h"

namespace {

/// Everything that was read, one line a printer and one for the rest.
std::string read(std::string_view text)
{
    const platform::Installation all = platform::parseInstallation(text);
    std::ostringstream told;
    for (const platform::SpoolPrinter &one : all.spoolPrinters)
        told << one.name << ", " << one.widthMm << " x " << one.heightMm << ", " << one.folder
             << (one.isDefault ? ", default\n" : "\n");
    for (const char byte : all.cutBytes)
        told << static_cast<int>(byte) << ' ';
    for (const std::string &word : {all.xchargeUserId, all.xchargePassword, all.connectionTest,
                                    all.suppliesPage, all.helpPage, all.editorCommand})
        told << '|' << word;
    told << '|' << all.browserCommand;
    return told.str();
}

TEST(Installation, is_read_with_its_comments_and_without_its_nonsense)
{
    EXPECT_EQ(read(support::testFile("golden/platform/installation.ini")),
              support::testFile("golden/platform/installation.txt"));
    const std::string defaults = "29 86 66 0 |pos|trelva|||||";
    EXPECT_EQ(read(""), defaults);
    EXPECT_EQ(read(support::testFile("broken/platform/installation.ini")),
              "Printer 3, 80 x 0, spool/3\n" + defaults);
    EXPECT_EQ(read("[printer.real]\ncut =   ; the knife is broken\n"), "|pos|trelva|||||");
}

} // namespace
