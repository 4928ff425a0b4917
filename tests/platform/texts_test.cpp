// Texts without a file: command lines without quotes, print jobs in plain text, and
// installation.ini as people write it.
#include "platform/installation.h"
#include "platform/print_job.h"
#include "platform/program_search.h"
#include "support/golden_table.h"

#include <set>

namespace {

using namespace platform;

TEST(CommandLines, are_split_after_the_first_prefix_that_is_a_file)
{
    const std::set<std::string> files = {"c:\\X charge\\X.exe", "c:\\a", "c:\\a b"};
    support::expectTable("platform/command_lines.txt", [&](const std::string &line) {
        const auto call =
            findProgram(line, [&](const std::string &path) { return files.contains(path); });
        return call ? std::vector{call->program, call->arguments} : std::vector<std::string>{};
    });
}

TEST(PrintJobs, show_their_lines_as_printed_in_plain_text)
{
    using Kind = PrintOperation::Kind;
    PrintJob job;
    for (const auto &[kind, text] : {std::pair(Kind::Picture, "Picture2"),
                                     {Kind::Line, "a\rb\x7F"},
                                     {Kind::Tabs, "60, 20,oops,40.9"},
                                     {Kind::Line, "x\ty\tz"},
                                     {Kind::Line, "0123456789ABC\tafter its stop"},
                                     {Kind::Cut, ""},
                                     {Kind::NewPage, ""},
                                     {Kind::Picture, "Picture9"}})
        job.operations.push_back({kind, text, {}});
    EXPECT_EQ(plainText(job), support::testFile("golden/platform/plain_text.txt"));
}

/// Everything that was read: one line for each printer and one for the rest.
std::string read(std::string_view text)
{
    const Installation all = parseInstallation(text);
    std::ostringstream found;
    for (const SpoolPrinter &one : all.spoolPrinters)
        found << one.name << ", " << one.widthMm << " x " << one.heightMm << ", " << one.folder
              << (one.isDefault ? ", default\n" : "\n");
    for (const char byte : all.cutBytes)
        found << static_cast<int>(byte) << ' ';
    for (const std::string &word : {all.xchargeUserId, all.xchargePassword, all.connectionTest,
                                    all.suppliesPage, all.helpPage, all.editorCommand})
        found << '|' << word;
    found << '|' << all.browserCommand;
    return found.str();
}

TEST(Installation, is_read_without_its_comments_and_invalid_lines)
{
    EXPECT_EQ(read(support::testFile("golden/platform/installation.ini")),
              support::testFile("golden/platform/installation.txt"));
    const std::string defaults = "29 86 66 0 |pos|trelva|www.example.com:80||||";
    EXPECT_EQ(read(""), defaults);
    EXPECT_EQ(read(support::testFile("broken/platform/installation.ini")),
              "Printer 3, 80 x 0, spool/3\n" + defaults);
    EXPECT_EQ(read("[printer.real]\ncut =   ; the knife is broken\n"),
              "|pos|trelva|www.example.com:80||||");
}

} // namespace
