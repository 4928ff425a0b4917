// Where the program ends in a command line without quotes.
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

} // namespace
