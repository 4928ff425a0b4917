// Whole tenders with the programs as they are shipped: the point of sale's stand-in leaves the
// request, TndrCC runs, the payment application's stand-in answers, and what lies on the drives
// afterwards is looked at. Real time passes here, so every tender is a test of its own.
#include "platform/slot_file.h"
#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <algorithm>
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

    /// Of the month files, or of the files of deleted records, whichever month it is.
    Records monthly(const std::string &nameHolds)
    {
        Records all;
        for (const std::string &name : station.files.list(place.Remotedir + "data"))
            if (name.find(nameHolds) != std::string::npos)
                for (const auto &record :
                     readCardFile(station.files, place.Remotedir + "data\\" + name))
                    all.push_back(record);
        return all;
    }

    /// The text of each slip, in the order in which they were printed.
    std::vector<std::string> slips() const
    {
        std::vector<std::string> paths;
        for (const auto &entry : fs::directory_iterator(root() + "/spool/receipt"))
            if (entry.path().extension() == ".txt")
                paths.push_back(entry.path().string());
        std::sort(paths.begin(), paths.end());
        std::vector<std::string> texts;
        for (const std::string &path : paths) {
            EXPECT_TRUE(fs::exists(fs::path(path).replace_extension(".pdf"))) << path;
            texts.push_back(bytesOf(path));
        }
        return texts;
    }

    /// How often the payment application was started.
    std::size_t payments() const
    {
        const std::string log = "c:\\Program Files\\X-charge\\sim_xcharge.log";
        return station.has(log) ? platform::splitLines(station.get(log)).size() : 0;
    }

    support::TestStation station;
    Place place = placeOf(station.files);

private:
    std::string bytesOf(const std::string &path) const
    {
        std::unique_ptr<platform::DiskFile> file;
        const auto disk = platform::systemDisk();
        std::string bytes(1U << 20U, '\0');
        std::size_t got = 0;
        if (done(disk->open(path, platform::OpenMode::Read, file)))
            file->readAt(0, bytes.data(), bytes.size(), got);
        bytes.resize(got);
        return bytes;
    }
};

struct Story {
    const char *name;
    const char *amount;
    std::size_t answerLines;
    const char *word;     // of the answer
    const char *lastLine; // of the answer, without its blanks
    const char *status;   // of the record, in the tip cycle
    std::size_t slips;    // print jobs
    const char *onSlips = "Demo Kitchen";
    bool purchase = false; // charged at once
    const char *noPartial = "0";
};

void PrintTo(const Story &story, std::ostream *out)
{
    *out << story.name << " " << story.amount;
}

constexpr const char *kPartial = "DECLINE but PARTAIL APPROVAL";
constexpr const char *kOwing = "BALANCE STILL OWING - $40.02";

// clang-format off
const Story kStories[] = {
    {"Approved", "48.50", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"ApprovedPurchase", "48.50", 10, "Approved", "SUCCESS", "Completed", 2, "Demo Kitchen", true},
    {"Declined", "31.01", 11, "Declined", "DECLINED", "Not Adjusted", 0},
    {"DeclinedPurchase", "31.01", 11, "Declined", "DECLINED", "Not Adjusted", 0, "", true},
    {"BareDecline", "31.02", 11, "Declined", "DECLINED", "Not Adjusted", 0},
    {"Partial", "80.03", 13, kPartial, kOwing, "Adjusted - Pending", 1, "$40.02"},
    {"PartialUnsupported", "80.03", 11, "Declined", "DECLINED", "Not Adjusted", 0, "", false, "-1"},
    {"GiftBalance", "22.04", 10, "Approved", "SUCCESS", "Not Adjusted", 2, "$25.00"},
    {"GiftUsedUp", "22.05", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"Garbage", "22.08", 11, "Declined", "", "Not Adjusted", 0},
    {"Empty", "22.09", 11, "Declined", "", "Not Adjusted", 0},
    {"LineFeeds", "22.10", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"CarriageReturns", "22.15", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"TaggedIsNoApproval", "22.13", 11, "Declined", "Approved", "Not Adjusted", 0},
    {"TaggedDecline", "22.14", 11, "Declined", "Declined", "Not Adjusted", 0},
    {"Huge", "22.17", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"LongValues", "22.18", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
    {"Slow", "22.61", 10, "Approved", "SUCCESS", "Not Adjusted", 2},
};
// clang-format on

class EndToEnd : public ::testing::TestWithParam<Story> {};

// The token in the copy of the result file that the tender kept, in either form.
std::string tokenOf(const Restaurant &restaurant)
{
    for (const std::string &line :
         platform::splitLines(restaurant.station.get("C:\\Lumbrio\\ResponseBACKUP.txt")))
        for (const std::string key : {"XCACCOUNTID=", "<RESULT_XCACCOUNTID>"})
            if (line.starts_with(key))
                return line.substr(key.size(), line.find("</") - key.size()).substr(0, 30);
    return {};
}

} // namespace

TEST_P(EndToEnd, LeavesOneAnswerOneRecordAndItsSlips)
{
    const Story &story = GetParam();
    Restaurant restaurant;
    if (story.purchase)
        restaurant.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
    restaurant.station.put("C:\\Lumbrio\\CCard.dat", cardOptionsFile("-1", story.noPartial));

    const std::vector<std::string> answer = restaurant.take(story.amount);

    ASSERT_EQ(answer.size(), story.answerLines);
    EXPECT_EQ(answer[0], story.word);
    EXPECT_EQ(records::Trim(answer.back()), story.lastLine);
    const bool approved = std::string(story.word) != "Declined";
    const Records stored = !story.purchase ? restaurant.pending()
                           : approved      ? restaurant.monthly("CCFinal")
                                           : restaurant.monthly("CCdeleted");
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(restaurant.pending().size() + restaurant.monthly("CC").size(), 1U) << "nowhere else";
    const records::CardRecord &record = stored[0];
    EXPECT_EQ(record.text(records::CCstatus), approved ? "Approved" : "Declined");
    EXPECT_EQ(record.text(records::CCAdjStatus), story.status);
    EXPECT_EQ(record.text(records::CCTabAmt), story.amount);
    EXPECT_EQ(record.text(records::CCReceipt), "1043");
    EXPECT_EQ(record.text(records::CCTable), "12");
    EXPECT_EQ(record.text(records::CCEncoded), "1");
    EXPECT_EQ(records::StrDecode(record.text(records::CCNumb)), tokenOf(restaurant));
    EXPECT_EQ(answer[answer.size() == 11 ? 4 : 3].substr(0, 4), "1043");

    const std::vector<std::string> slips = restaurant.slips();
    ASSERT_EQ(slips.size(), story.slips);
    for (const std::string &slip : slips)
        EXPECT_NE(slip.find(story.onSlips), std::string::npos) << slip;
    EXPECT_EQ(restaurant.payments(), 1U) << "charged once";
    EXPECT_FALSE(restaurant.station.has("C:\\Lumbrio\\XAudit.DAT"));
}

INSTANTIATE_TEST_SUITE_P(Outcomes, EndToEnd, ::testing::ValuesIn(kStories),
                         [](const auto &each) { return std::string(each.param.name); });

// Whatever is seen of a file that is written in place, the answer and the record say the same.
TEST(EndToEndHalfWritten, AResultIsJudgedOnceAndForAll)
{
    for (const char *amount : {"22.11", "22.16"}) {
        Restaurant restaurant;
        const std::vector<std::string> answer = restaurant.take(amount);
        const Records pending = restaurant.pending();
        ASSERT_EQ(pending.size(), 1U) << amount;
        ASSERT_FALSE(answer.empty()) << amount;
        EXPECT_EQ(pending[0].text(records::CCstatus), answer[0]) << amount;
        EXPECT_EQ(answer.size(), answer[0] == "Approved" ? 10U : 11U) << amount;
        EXPECT_EQ(restaurant.slips().size(), answer[0] == "Approved" ? 2U : 0U) << amount;
    }
}

// The operator judges a timeout: the program stays with the answer already written.
TEST(EndToEndOperator, ATimeoutIsAnsweredAndStays)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.start("22.06");
    ASSERT_TRUE(eventually([&] { return restaurant.answer().size() == 11; }));
    EXPECT_FALSE(tender.waitForEnd(500)) << "the operator has not pressed Cancel";
    tender.kill();
    EXPECT_EQ(restaurant.answer()[0], "Declined");
    ASSERT_EQ(restaurant.pending().size(), 1U);
    EXPECT_EQ(restaurant.pending()[0].text(records::CResponse), "TIMEOUT");
}

// A tender that was ended from outside while it waited leaves no record and no answer, and the
// next one is taken as if nothing had been.
TEST(EndToEndOperator, NoAnswerLeavesNothingBehind)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.start("22.07");
    ASSERT_TRUE(eventually([&] { return restaurant.payments() == 1; }));
    tender.kill();
    EXPECT_TRUE(restaurant.answer().empty());
    EXPECT_TRUE(restaurant.pending().empty());
    EXPECT_EQ(restaurant.take("48.50")[0], "Approved");
    EXPECT_EQ(restaurant.pending().size(), 1U);
}

// The approval of an earlier guest arrives late; the next guest is declined all the same.
TEST(EndToEndOperator, ALateResultIsNotTakenForTheNextTenders)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.start("22.61");
    ASSERT_TRUE(eventually([&] { return restaurant.payments() == 1; }));
    tender.kill();
    ASSERT_TRUE(eventually([&] { return restaurant.station.has("C:\\Lumbrio\\xResultFile.txt"); }));
    EXPECT_EQ(restaurant.take("31.01")[0], "Declined");
    ASSERT_EQ(restaurant.pending().size(), 1U);
    EXPECT_EQ(restaurant.pending()[0].text(records::CCTabAmt), "31.01");
}

TEST(EndToEndOperator, AMissingRequestIsAnsweredBeforeAnybodyIsAsked)
{
    Restaurant restaurant;
    ChildProcess tender = startTender(PROGRAMS_DIR "/TndrCC", restaurant.root(), false, true);
    ASSERT_TRUE(eventually([&] { return restaurant.answer().size() == 10; }));
    EXPECT_TRUE(tender.running()) << "the message waits for its OK";
    tender.kill();
    EXPECT_EQ(restaurant.answer()[0], "File Not Found");
    EXPECT_EQ(restaurant.payments(), 0U);
}

// Two stations on one share close their tenders at the same moment.
TEST(EndToEndShare, TwoStationsLoseNoRecord)
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
