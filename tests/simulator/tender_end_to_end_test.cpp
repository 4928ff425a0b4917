// Whole tenders with the programs as they are shipped: the point of sale's stand-in leaves the
// request, TndrCC runs, the payment application's stand-in answers, and what lies on the drives
// afterwards is looked at. Real time passes here.
#include "platform/slot_file.h"
#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <chrono>
#include <filesystem>
#include <functional>

using namespace simulator;

namespace {

namespace fs = std::filesystem;

constexpr int kPatience = 20000; // ms; a tender takes 0.7 s, on a busy machine more

bool eventually(const std::function<bool()> &condition)
{
    const auto start = std::chrono::steady_clock::now();
    while (!condition()) {
        if (std::chrono::steady_clock::now() - start > std::chrono::milliseconds(kPatience))
            return false;
        simulator::pause(5);
    }
    return true;
}

using Records = std::vector<records::CardRecord>;

/// One station with its own drives folder.
class Restaurant {
public:
    Restaurant() { EXPECT_TRUE(makeSandbox(station.files, root(), PROGRAMS_DIR "/sim_xcharge")); }

    const std::string &root() const { return station.drives.root(); }

    /// As the point of sale does it: the program runs when this returns.
    ChildProcess start(const std::string &amount)
    {
        const TenderRequest request{"12", "1043", "7", amount, amount};
        EXPECT_TRUE(leaveRequest(place, request));
        return startTender(PROGRAMS_DIR "/TndrCC", root(), false, true);
    }

    std::vector<std::string> take(const std::string &amount)
    {
        ChildProcess tender = start(amount);
        EXPECT_TRUE(tender.waitForEnd(kPatience)) << "TndrCC still waits";
        tender.kill();
        EXPECT_EQ(tender.exitCode(), 0);
        return answer();
    }

    std::vector<std::string> answer() { return readAnswer(place); }
    Records pending() { return readCardFile(station.files, place.Remotedir + "CCPending.dat"); }

    /// Every record of every card file: where it lies, what it says, and whether its scrambled
    /// reference is the one of the result.
    std::string allRecords()
    {
        std::string text;
        const std::string result = station.get("C:\\Lumbrio\\ResponseBACKUP.txt");
        for (const std::string &folder : {place.Remotedir, place.Remotedir + "data\\"})
            for (const std::string &name : station.files.list(folder)) {
                const std::size_t kind = name.find("CC"); // the month may stand before it
                if (kind == std::string::npos)
                    continue;
                for (const auto &record : readCardFile(station.files, folder + name)) {
                    const std::string reference = records::StrDecode(record.text(records::CCNumb));
                    text += name.substr(kind, 7);
                    for (const auto &field : {records::CCstatus, records::CCAdjStatus,
                                              records::CCTabAmt, records::CCReceipt})
                        text += ", " + record.text(field);
                    text += result.find(reference) == std::string::npos ? ", strange" : "";
                    text += reference.empty() ? ", none" : ", scrambled";
                    EXPECT_EQ(record.text(records::CCEncoded), "1");
                }
            }
        return text;
    }

    /// How many slips were printed, each as PDF and as text.
    std::string slips() const
    {
        int pages = 0;
        int texts = 0;
        for (const auto &entry : fs::directory_iterator(root() + "/spool/receipt")) {
            pages += entry.path().extension() == ".pdf" ? 1 : 0;
            texts += entry.path().extension() == ".txt" ? 1 : 0;
        }
        EXPECT_EQ(pages, texts);
        return std::to_string(texts) + " slips";
    }

    /// How often the payment application was started.
    std::size_t payments() const
    {
        const std::string log = "c:\\Program Files\\X-charge\\sim_xcharge.log";
        return station.has(log) ? platform::splitLines(station.get(log)).size() : 0;
    }

    support::TestStation station;
    Place place = placeOf(station.files);
};

} // namespace

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
