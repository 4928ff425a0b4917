// The stand-in for the payment server must answer what its table says, whole requests alone, and
// never tell or keep a card.
#include "records/delimited.h"
#include "simulator/payment_server.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "support/second_process.h"
#include "support/test_station.h"
#include "tender/local_request.h"

#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

using namespace simulator;

namespace {

const std::string kFolder = "c:\\Program Files\\X-charge\\LocalTran\\";

std::string typed(const std::string &amount, const std::string &receipt = "1043")
{
    return tender::requestLine(
        {true, "7", receipt, "4111111111111111", "1232", amount, "98765", true});
}

} // namespace

TEST(PaymentServer, AnswersWholeLinesAsTheirRowsSay)
{
    const struct {
        std::string content;
        char atOnce; // of the word that a tender makes of the answer; '-' while there is none
        std::uint64_t after = 60000; // ms
        char finally = atOnce;
        // clang-format off
    } cases[] = {{typed("48.50"), 'A'}, {typed("31"), 'A'}, {typed("31.01"), 'D'}, {typed("31.02"), 'D'},
                 {typed("31.07"), '-'}, {typed("31.08"), 'D'}, {typed("31.09"), 'D'}, {typed("31.11"), 'A'},
                 {typed("31.12"), '-', 12000, 'A'}, {typed("31.13"), 'D'}, {typed("31.14"), 'D'},
                 {typed("31.16"), 'D', 400, 'A'}, {typed("31.18"), 'A'}, {typed("31.68"), '-', 8000, 'A'},
                 {typed("-5.00"), 'D'}, {typed("x"), 'D'}, {typed("48.50", "4111111111111111"), 'A'},
                 {"\"C1\",\"4111111111111111\"\r\n", 'D'}};
    // clang-format on
    support::TestStation station;
    std::string told;
    PaymentServer server(station.files, station.run, kFolder, [&](auto &text) { told += text; });
    const std::string answer = kFolder + "BAR.ans";
    const auto word = [&] {
        const std::string content = station.has(answer) ? station.get(answer) : "none";
        records::DelimitedReader reader(content);
        return content == "none" ? '-' : tender::outcomeWord(reader.next()).front();
    };
    std::uint64_t now = 0;
    for (const auto &each : cases) {
        station.put(kFolder + "BAR.req", each.content);
        server.turn(++now);
        EXPECT_FALSE(station.has(kFolder + "BAR.req")) << each.content;
        server.turn(now + each.after - 1);
        EXPECT_EQ(word(), each.atOnce) << each.content;
        server.turn(now += each.after);
        EXPECT_EQ(word(), each.finally) << each.content;
        station.erase(answer);
    }
    EXPECT_EQ(told.find("4111"), std::string::npos) << told;
}

TEST(PaymentServer, AnswersAloneKeepsNoCardAndEndsWhenItShould)
{
    support::TestStation station;
    const std::string root = station.drives.root();
    ASSERT_TRUE(makeSandbox(station.files, root, PROGRAMS_DIR "/sim_xcharge"));
    const auto serve = [&] {
        ::setenv("LUMBRIO_DRIVES", root.c_str(), 1);
        const std::string program = station.drives.resolve(kServerProgram);
        support::SecondProcess::say(std::to_string(::getpid()));
        ::execl(program.c_str(), program.c_str(), nullptr);
    };
    support::SecondProcess server(serve);
    const int id = std::stoi(server.hear());
    EXPECT_NE(server.hear().find("answers in "), std::string::npos);
    ChildProcess second = startServer(placeOf(station.files), root);
    EXPECT_TRUE(second.waitForEnd(20000)) << "two would answer the same requests";
    second.kill();

    station.put(kFolder + "A.req", typed("48.50").substr(0, 40));
    station.put(kFolder + "B.new", typed("48.50"));
    station.disk.rename(station.drives.resolve(kFolder + "B.new"),
                        station.drives.resolve(kFolder) + "/B.req");
    EXPECT_NE(server.hear().find("XXXX XXXX XXXX 1111: approved"), std::string::npos);
    EXPECT_EQ(station.get(kFolder + "B.ans").substr(0, 2), "\"Y");
    EXPECT_FALSE(station.has(kFolder + "A.ans")) << "half a request";
    station.erase(kFolder + "A.req");
    for (const std::string &folder : {kFolder, kFolder + "..\\"})
        for (const std::string &name : station.files.list(folder))
            for (const char *secret : {"11111111", "98765"})
                EXPECT_EQ(station.get(folder + name).find(secret), std::string::npos) << name;

    ::kill(id, SIGTERM);
    EXPECT_EQ(server.hear(), "sim_server: ends");
    EXPECT_EQ(server.hear(), "") << "gone, and its lock with it";
    support::SecondProcess next(serve);
    next.hear();
    EXPECT_NE(next.hear().find(": answers in "), std::string::npos) << "the lock is free again";
    station.erase(kFolder);
    EXPECT_EQ(next.hear(), "sim_server: ends");
}
