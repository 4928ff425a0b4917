// Texts without a file: command lines without quotes, and print jobs in plain text.
#include "platform/print_job.h"
#include "platform/program_search.h"
#include "support/golden_table.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace platform;

TEST(CommandLines, grow_to_the_right_until_a_file_is_met)
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
                                     {Kind::Line, "x\ty\tz"},
                                     {Kind::Tabs, "60, 20,oops,40.9"},
                                     {Kind::Line, "x\ty\tz"},
                                     {Kind::Line, "0123456789ABC\tbehind its stop"},
                                     {Kind::Line, "\t\t\t\tbehind all"},
                                     {Kind::Cut, ""},
                                     {Kind::NewPage, ""},
                                     {Kind::Picture, "Picture9"}})
        job.operations.push_back({kind, text, {}});
    EXPECT_EQ(plainText(job), support::testFile("golden/platform/plain_text.txt"));
}

} // namespace
