// installation.ini as people really write it.
#include "platform/installation.h"

#include <gtest/gtest.h>

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

TEST(Installation, is_read_with_its_comments)
{
    EXPECT_EQ(read("\xEF\xBB\xBF; the bar\r\n"
                   "[printer.10]\r\nname = Office Laser\r\nwidth_mm = 210\r\nheight_mm = 297\r\n"
                   "default = yes               ; not any more, see 2\r\n\r\n"
                   "[Printer.2]                 ; by the till\r\n"
                   "NAME = Receipt TM-88\t; the new one\r\nwidth_mm = 57.5\r\ndefault=YES\r\n"
                   "folder = \\spool\\receipt\\  ; below this file\r\n"
                   "[printer.real]\r\ncut = 1b 69\r\n"
                   "[xcharge]\nuserid = till 1; bar\npassword = a=b;c ;d   ;e\n"
                   "[connection]\rtest = gate.example:443\r"
                   "[web]\r\nsupplies = https://example.com/?a=1&b=2\r\nhelp=help;today\r\n"
                   "[commands]\r\neditor = /usr/bin/gedit --wait %1\r\nbrowser = firefox %1"),
              "Receipt TM-88, 57.5 x 0, spool/receipt, default\n"
              "Office Laser, 210 x 297, spool/10\n"
              "27 105 |till 1; bar|a=b;c ;d|gate.example:443|https://example.com/?a=1&b=2|"
              "help;today|/usr/bin/gedit --wait %1|firefox %1");
}

TEST(Installation, passes_over_nonsense)
{
    const std::string defaults = "29 86 66 0 |pos|trelva|||||";
    EXPECT_EQ(read(""), defaults);
    EXPECT_EQ(read("name = in no section\n[printer.0]\n[printer.x]\n[printer.-1]\nname = Nobody\n"
                   "[printer.1\n[]\n=\n= value\nwidth_mm\n[printer.3]\nname =\nwidth_mm = wide\n"
                   "width_mm = -80\nwidth_mm = nan\nheight_mm = 1e300\nfolder = ../../etc\n"
                   "folder = C:\\Windows\ndefault = perhaps\n[printer.real]\ncut = 1D GG\n"
                   "cut = 1D564200\n[xcharge]\nusserid = typo\n"),
              "Printer 3, 80 x 0, spool/3\n" + defaults);
    EXPECT_EQ(read("[printer.real]\ncut =   ; the knife is broken\n"), "|pos|trelva|||||");
}

} // namespace
