// Command lines without quotes, and addresses of servers.
#include "platform/connection.h"
#include "platform/program_search.h"

#include <gtest/gtest.h>

#include <set>

namespace platform {
namespace {

TEST(ProgramSearchTest, growsToTheRightUntilAFileIsMet)
{
    const std::set<std::string> files = {"c:\\Program Files\\X-charge\\Xcharge.exe", "c:\\tools\\a",
                                         "c:\\tools\\a b"};
    struct Case {
        const char *commandLine;
        const char *program; // nullptr: none
        const char *arguments;
    };
    for (const Case &each : {
             Case{"c:\\Program Files\\X-charge\\Xcharge.exe",
                  "c:\\Program Files\\X-charge\\Xcharge.exe", ""},
             Case{"c:\\Program Files\\X-charge\\Xcharge.exe /RECEIPT: /LOCK /TITLE:A  B ",
                  "c:\\Program Files\\X-charge\\Xcharge.exe", "/RECEIPT: /LOCK /TITLE:A  B "},
             Case{"c:\\tools\\a b c", "c:\\tools\\a", "b c"},
             Case{"\"c:\\tools\\a b\" c", "c:\\tools\\a b", "c"},
             Case{"\"c:\\tools\\a b\"", "c:\\tools\\a b", ""},
             Case{"\"c:\\tools\\a b", "c:\\tools\\a b", ""},
             Case{"\"c:\\tools\\a b c\" d", nullptr, ""},
             Case{"c:\\Program Files\\X-charge\\Xcharge.exe/TITLE:A", nullptr, ""},
             Case{"c:\\Program", nullptr, ""},
             Case{"   ", nullptr, ""},
             Case{"\"", nullptr, ""},
             Case{"", nullptr, ""},
         }) {
        const auto call = findProgram(
            each.commandLine, [&](const std::string &path) { return files.count(path) == 1; });
        ASSERT_EQ(call.has_value(), each.program != nullptr) << each.commandLine;
        if (call) {
            EXPECT_EQ(call->program, each.program);
            EXPECT_EQ(call->arguments, each.arguments);
        }
    }
}

TEST(ConnectionTest, needsBothHostAndPort)
{
    const auto parts = [](const char *text) {
        const auto server = parseHostAndPort(text);
        return server ? server->host + " " + server->port : "none";
    };
    EXPECT_EQ(parts("gate.example:443"), "gate.example 443");
    EXPECT_EQ(parts("[::1]:8080"), "::1 8080");
    for (const char *nonsense : {"", ":", "gate.example", "gate.example:", ":443", "[]:443"})
        EXPECT_EQ(parts(nonsense), "none") << nonsense;
}

} // namespace
} // namespace platform
