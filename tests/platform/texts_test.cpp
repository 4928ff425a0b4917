// Texts without a file: command lines without quotes, and print jobs in plain text.
#include "platform/print_job.h"
#include "platform/program_search.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace platform;

TEST(CommandLines, grow_to_the_right_until_a_file_is_met)
{
    const std::set<std::string> files = {"c:\\X charge\\X.exe", "c:\\a", "c:\\a b"};
    for (const auto &[line, expected] : {
             std::pair("c:\\X charge\\X.exe", "c:\\X charge\\X.exe|"),
             {"c:\\X charge\\X.exe /LOCK  /TITLE:A  B ", "c:\\X charge\\X.exe|/LOCK  /TITLE:A  B "},
             {"c:\\a b c", "c:\\a|b c"},
             {"\"c:\\a b\" c", "c:\\a b|c"},
             {"\"c:\\a b", "c:\\a b|"},
             {"\"c:\\a b c\" d", ""},
             {"c:\\X charge\\X.exe/TITLE:A", ""},
             {"\"", ""},
         }) {
        const auto call =
            findProgram(line, [&](const std::string &path) { return files.contains(path); });
        EXPECT_EQ(call ? call->program + '|' + call->arguments : "", expected) << line;
    }
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
    EXPECT_EQ(plainText(job), "[MERCHANT COPY]\r\na b \r\nx     y     z\r\n"
                              "x         y         z\r\n0123456789ABC       behind its stop\r\n"
                              "                               behind all\r\n"
                              "- - - cut - - -\r\n\f\r\n[Picture9]\r\n");
}

} // namespace
