// Whole tenders with the programs as they are shipped: the point of sale's stand-in leaves the
// request, TndrCC runs, the payment application's stand-in answers, and what lies on the drives
// afterwards is looked at. Real time passes here.
#include "simulator/restaurant.h"
#include "support/golden_table.h"

using namespace simulator;
using namespace support;

namespace fs = std::filesystem;

TEST(EndToEnd, EveryTenderLeavesWhatTheGoldenTableSays)
{
    support::expectTable("simulator/tenders.txt", [](const std::string &input) {
        Restaurant restaurant;
        if (input.find(" at once") != input.npos)
            restaurant.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        if (input.find(" whole") != input.npos) // no partial approvals
            restaurant.station.put("C:\\Lumbrio\\CCard.dat", cardOptionsFile("-1", "-1"));
        const std::vector<std::string> answer = restaurant.take(input.substr(0, input.find(' ')));
        EXPECT_EQ(restaurant.payments(), 1U) << "charged once";
        EXPECT_FALSE(restaurant.station.has("C:\\Lumbrio\\XAudit.DAT"));
        return std::vector{answer.empty() ? "none" : answer.front() + " / " + answer.back(),
                           std::to_string(answer.size()) + " lines", restaurant.allRecords(),
                           restaurant.slips()};
    });
}

// Whatever is seen of a file that is written in place, the answer and the record say the same.
TEST(EndToEnd, AHalfWrittenResultIsJudgedOnceAndForAll)
{
    for (const char *amount : {"22.11", "22.16"}) {
        Restaurant restaurant;
        const std::vector<std::string> answer = restaurant.take(amount);
        ASSERT_TRUE(restaurant.pending().size() == 1 && !answer.empty()) << amount;
        EXPECT_EQ(restaurant.pending()[0].text(records::CCstatus), answer[0]) << amount;
        EXPECT_EQ(answer.size(), answer[0] == "Approved" ? 10U : 11U) << amount;
        EXPECT_EQ(restaurant.slips(), answer[0] == "Approved" ? "2 slips" : "0 slips") << amount;
    }
}

// The operator judges a timeout: the program stays with the answer already written.
TEST(EndToEnd, ATimeoutIsAnsweredAndStays)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.start("22.06");
    ASSERT_TRUE(eventually([&] { return restaurant.answer().size() == 11; }));
    EXPECT_FALSE(tender.waitForEnd(500)) << "the operator has not pressed Cancel";
    tender.kill();
    EXPECT_EQ(restaurant.answer()[0], "Declined");
    EXPECT_EQ(restaurant.pending()[0].text(records::CResponse), "TIMEOUT");
}

// A tender that is ended from outside while it waits leaves no record and no answer; when its
// approval arrives late, the next guest is declined all the same.
TEST(EndToEnd, ALateResultIsNotTakenForTheNextTenders)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.start("22.61");
    ASSERT_TRUE(eventually([&] { return restaurant.payments() == 1; }));
    tender.kill();
    EXPECT_TRUE(restaurant.answer().empty() && restaurant.pending().empty());
    ASSERT_TRUE(eventually([&] { return restaurant.station.has("C:\\Lumbrio\\xResultFile.txt"); }));
    EXPECT_EQ(restaurant.take("31.01")[0], "Declined");
    ASSERT_EQ(restaurant.pending().size(), 1U);
    EXPECT_EQ(restaurant.pending()[0].text(records::CCTabAmt), "31.01");
}

// Two stations on one share close their tenders at the same moment.
TEST(EndToEnd, TwoStationsLoseNoRecord)
{
    Restaurant front, terrace;
    fs::remove_all(terrace.root() + "/f");
    fs::create_directory_symlink(front.root() + "/f", terrace.root() + "/f");
    for (const char *amount : {"10.00", "11.00"}) {
        ChildProcess first = front.start(amount);
        ChildProcess second = terrace.start(amount);
        EXPECT_TRUE(first.waitForEnd(kPatience));
        EXPECT_TRUE(second.waitForEnd(kPatience));
        EXPECT_EQ(front.answer()[0], "Approved");
        EXPECT_EQ(terrace.answer()[0], "Approved");
    }
    EXPECT_EQ(front.pending().size(), 4U);
}
