// installation.ini as people really write it.
#include "platform/installation.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

TEST(InstallationTest, nothingGivesTheDefaults)
{
    const Installation installation = parseInstallation("");
    EXPECT_TRUE(installation.spoolPrinters.empty());
    EXPECT_EQ(installation.cutBytes, std::string("\x1D\x56\x42\x00", 4));
    EXPECT_EQ(installation.xchargeUserId, "pos");
    EXPECT_EQ(installation.xchargePassword, "trelva");
    EXPECT_EQ(installation.connectionTest + installation.suppliesPage + installation.helpPage +
                  installation.editorCommand + installation.browserCommand,
              "");
}

TEST(InstallationTest, readsAWholeFileWithComments)
{
    const Installation installation =
        parseInstallation("\xEF\xBB\xBF; the bar\r\n"
                          "[printer.10]\r\n"
                          "name = Office Laser\r\n"
                          "width_mm = 210\r\n"
                          "height_mm = 297\r\n"
                          "default = yes               ; not any more, see 2\r\n"
                          "\r\n"
                          "[Printer.2]                 ; by the till\r\n"
                          "NAME = Receipt TM-88\t; the new one\r\n"
                          "width_mm = 57.5\r\n"
                          "default=YES\r\n"
                          "folder = \\spool\\receipt\\  ; below this file\r\n"
                          "[printer.real]\r\n"
                          "cut = 1b 69\r\n"
                          "[xcharge]\n"
                          "userid = till 1; bar\n"
                          "password = a=b;c ;d   ;e\n"
                          "[connection]\r"
                          "test = gate.example:443\r"
                          "[web]\r\n"
                          "supplies = https://example.com/?a=1&b=2\r\n"
                          "help=https://example.com/help;today\r\n"
                          "[commands]\r\n"
                          "editor = /usr/bin/gedit --wait %1\r\n"
                          "browser = firefox %1");
    ASSERT_EQ(installation.spoolPrinters.size(), 2U);
    const SpoolPrinter &receipt = installation.spoolPrinters[0];
    EXPECT_EQ(receipt.name, "Receipt TM-88");
    EXPECT_EQ(receipt.widthMm, 57.5);
    EXPECT_EQ(receipt.folder, "spool/receipt");
    EXPECT_TRUE(receipt.isDefault);
    const SpoolPrinter &laser = installation.spoolPrinters[1];
    EXPECT_EQ(laser.name, "Office Laser");
    EXPECT_EQ(laser.widthMm, 210);
    EXPECT_EQ(laser.heightMm, 297);
    EXPECT_FALSE(laser.isDefault) << "two defaults: the first printer has it";
    EXPECT_EQ(installation.cutBytes, "\x1B\x69");
    EXPECT_EQ(installation.xchargeUserId, "till 1; bar");
    EXPECT_EQ(installation.xchargePassword, "a=b;c ;d");
    EXPECT_EQ(installation.connectionTest, "gate.example:443");
    EXPECT_EQ(installation.suppliesPage, "https://example.com/?a=1&b=2");
    EXPECT_EQ(installation.helpPage, "https://example.com/help;today");
    EXPECT_EQ(installation.editorCommand, "/usr/bin/gedit --wait %1");
    EXPECT_EQ(installation.browserCommand, "firefox %1");
}

TEST(InstallationTest, nonsenseLeavesTheDefaultAndTheNextLineCounts)
{
    const Installation installation = parseInstallation("name = in no section\n"
                                                        "[printer.0]\n[printer.x]\n[printer.-1]\n"
                                                        "name = Nobody\n"
                                                        "[printer.1\n"
                                                        "[]\n=\n= value\nwidth_mm\n"
                                                        "[printer.3]\n"
                                                        "name =\n"
                                                        "width_mm = wide\n"
                                                        "width_mm = -80\n"
                                                        "width_mm = nan\n"
                                                        "height_mm = 1e300\n"
                                                        "folder = ../../etc\n"
                                                        "folder = C:\\Windows\n"
                                                        "default = perhaps\n"
                                                        "[printer.real]\n"
                                                        "cut = 1D GG\n"
                                                        "cut = 1D564200\n"
                                                        "[xcharge]\n"
                                                        "usserid = typo\n");
    ASSERT_EQ(installation.spoolPrinters.size(), 1U);
    EXPECT_EQ(installation.spoolPrinters[0].name, "Printer 3");
    EXPECT_EQ(installation.spoolPrinters[0].folder, "spool/3");
    EXPECT_EQ(installation.spoolPrinters[0].widthMm, 80);
    EXPECT_EQ(installation.spoolPrinters[0].heightMm, 0);
    EXPECT_FALSE(installation.spoolPrinters[0].isDefault);
    EXPECT_EQ(installation.cutBytes, Installation().cutBytes);
    EXPECT_EQ(installation.xchargeUserId, "pos");
}

TEST(InstallationTest, anEmptyCutMeansNone)
{
    EXPECT_EQ(parseInstallation("[printer.real]\ncut =   ; the knife is broken\n").cutBytes, "");
}

} // namespace
} // namespace platform
