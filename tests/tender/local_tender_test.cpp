// Tenders without a command line: the screen takes the card, a request file goes to the payment
// server, and its answer decides. The test plays the server and the hand that swipes.
#include "support/tender_story.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Answer;
using platform::Buttons;
using platform::Outcome;
using support::TenderStory;

constexpr const char *kLocalTran = "c:\\Program Files\\X-Charge\\LocalTran";
constexpr const char *kTrack1 = "%B4111111111111111^TEST/ROSALIND A^28091010000000000000?";
constexpr const char *kTrack2 = ";4111111111111111=28091010000000000?";
constexpr const char *kBadSwipe = "F:\\Lumbrio\\BadSwipe.dat";

/// The offline panel comes on screen where the count says so.
class OfflineTender : public tender::Tender {
public:
    using Tender::Tender;

protected:
    void Show_Offline_Panel() override { showOfflinePanel(); }
};

class LocalStory : public TenderStory {
public:
    LocalStory()
    {
        station.erase("C:\\Lumbrio\\X1009Version.dat");
        station.folder(kLocalTran);
        watch();
    }
    LocalStory(const LocalStory &earlier, int) : TenderStory(earlier, 0) { watch(); }

    /// What the server answers, so long after a request appeared; nothing keeps it silent.
    std::optional<std::string> reply = "\"YA12345\"\r\n";
    std::uint64_t replyAfter = 2000;
    std::vector<std::string> requests; // as the server took them

    void swipe(const std::string &first, const std::string &second = kTrack2,
               std::uint64_t at = 500)
    {
        station.time.at(at, [this, first, second] {
            played->Text2_Change(first);
            if (!second.empty())
                played->Text5_Change(second);
        });
    }
    void type(const tender::TypedCard &card)
    {
        view.typedCard = card;
        station.time.at(500, [this] { tender.SSCommand3_Click(); });
    }
    /// Files of the exchange that still lie there.
    std::vector<std::string> left()
    {
        std::vector<std::string> names;
        realDisk->list(station.drives.resolve(kLocalTran), names);
        return names;
    }

    bool isWhole(const std::string &name) const
    {
        return station.get(std::string(kLocalTran) + "\\" + name).ends_with("\r\n");
    }

private:
    void watch()
    {
        station.time.after(100, [this] {
            for (const std::string &name : left())
                if (name.ends_with(".req"))
                    take(std::string(kLocalTran) + "\\" + name);
            watch();
        });
    }
    void take(const std::string &request)
    {
        const std::string content = station.get(request);
        EXPECT_TRUE(content.ends_with("\r\n")) << "seen before it was whole";
        if (!reply)
            return;
        requests.push_back(content);
        station.erase(request);
        station.time.after(replyAfter, [this, request] {
            station.put(request.substr(0, request.size() - 3) + "ans", *reply);
        });
    }

    std::unique_ptr<platform::Disk> realDisk = platform::systemDisk();
};

TEST(LocalTender, ApprovesASwipeStoresItOnceAndLeavesNothingOfTheExchange)
{
    LocalStory story;
    story.station.put(TenderStory::kAudit, "\"48.5\"\r\n");
    story.swipe(kTrack1);
    story.run();
    ASSERT_EQ(story.requests.size(), 1U);
    EXPECT_EQ(story.requests[0], std::string("\"C1\",\"7\",\"1043\",\"4111111111111111\",\"") +
                                     kTrack1 + kTrack2 + "\",\"48.5\",\"99999\"\r\n");
    EXPECT_EQ(
        story.answer(),
        "\"Approved\"\r\n\"48.50     \"\r\n\"A12345    \"\r\n\"1043                \"\r\n"
        "\"XXXX XXXX XXXX 1111           \"\r\n\"7         \"\r\n\"12        \"\r\n"
        "\"          \"\r\n\"ROSALIND A TEST               \"\r\n\"YA12345             \"\r\n");
    ASSERT_EQ(story.pending().size(), 1U) << "the second write goes to the same slot";
    const CardRecord record = story.pending()[0];
    EXPECT_EQ(record.text(CCNumb), "D3456789:;<=>?@A");
    EXPECT_EQ(record.text(CCEncoded) + record.text(CCExpDate) + record.text(CCSwiped) +
                  record.text(CCAdjStatus) + record.text(CCVerify) + record.text(CCstatus),
              "10928TrueNot Adjusted000Approved");
    EXPECT_EQ(story.station.printers.collected.size(), 2U);
    EXPECT_TRUE(story.left().empty() && !story.station.has(TenderStory::kAudit));
    EXPECT_TRUE(story.station.run.ending() && story.station.system.started.empty());
    for (const std::string &trace : {story.processTrace(), story.traceLog()}) {
        EXPECT_EQ(trace.find("4111111111111111"), std::string::npos) << trace;
    }
    for (const char *line : {"Card Number Ready - XXXX XXXX XXXX 1111", "Amount Sent - 48.5",
                             "Actual Response From Xcharge YA12345",
                             "Approved or Declined Approved", "SetPrinter Receipt"})
        EXPECT_NE(story.processTrace().find(line), std::string::npos) << line;
}

TEST(LocalRequest, HasTheDefaultsTheExpiryOfATypedCardAndItsDigits)
{
    struct Case {
        const char *posRequest;
        tender::TypedCard card;
        const char *mode, *preApprove; // lines 3 and 10 of the options
        const char *line;
    };
    const std::string rest = "\"-1\"\r\n\"-1\"\r\n\"-1\"\r\n\"-1\"\r\n\"-1\"\r\n\"0\"\r\n";
    for (const Case &c : {Case{"12,1043,7,48.50",
                               {"4111111111111111", "0928", "123"},
                               "",
                               "0",
                               R"("C1","7","1043","4111111111111111","2809","48.5","99999","123")"},
                          Case{",,,12",
                               {"5500000000000004", "1130", "000"},
                               "",
                               "0",
                               R"("C1","9999","999","5500000000000004","3011","12.","99999")"},
                          Case{"12,1043,7,10",
                               {"4111111111111111", "0928", ""},
                               "CCnoPREauth.dat",
                               "-1",
                               R"("C6","7","1043","4111111111111111","2809","12.","99999")"}}) {
        LocalStory story;
        story.request(std::string(c.posRequest) + "\r\n");
        story.station.put("C:\\Lumbrio\\CCard.dat",
                          "\"Xcharge.exe\"\r\n\"c:\\Program Files\\X-Charge\\\"\r\n\"-1\"\r\n" +
                              rest + '"' + c.preApprove + "\"\r\n");
        if (*c.mode != '\0')
            story.station.put(std::string("F:\\Lumbrio\\Data\\") + c.mode, "");
        story.type(c.card);
        story.run();
        ASSERT_EQ(story.requests.size(), 1U) << c.line;
        EXPECT_EQ(story.requests[0], std::string(c.line) + "\r\n");
        ASSERT_EQ(story.pending().size(), 1U) << "in this path purchases are filed there too";
        const CardRecord record = story.pending()[0];
        EXPECT_EQ(record.text(CCTable), *c.posRequest == ',' ? "999" : "12");
        EXPECT_EQ(record.text(CCSwiped), "False");
        EXPECT_EQ(record.text(CCSaleAmt),
                  *c.preApprove == '0' ? story.tender.state().Text4 : "12.");
        EXPECT_NE(story.processTrace().find("Card number was manually type in"), std::string::npos);
    }
}

TEST(LocalAnswer, DeclinesUnlessItBeginsWithACapitalY)
{
    for (const auto &[reply, shown] :
         std::map<std::string, std::string>{{"\"NDECLINED\"", "DECLINED  "},
                                            {"\"DCALL BANK\"", "CALL BANK "},
                                            {"\"yA12345\"", "A12345    "},
                                            {"", "          "},
                                            {std::string("\0\xFFY", 3), ""},
                                            {std::string(100000, 'Z'), "ZZZZZZZZZZ"}}) {
        LocalStory story;
        story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        story.reply = reply;
        story.swipe(kTrack1);
        story.run();
        EXPECT_TRUE(story.answer().starts_with("\"Declined\"\r\n\"48.50     \"\r\n")) << reply;
        if (!shown.empty()) {
            EXPECT_EQ(story.answer().substr(27, 10), shown);
        }
        ASSERT_EQ(story.pending().size(), 1U);
        EXPECT_EQ(story.pending()[0].text(CCstatus), "Declined");
        EXPECT_TRUE(story.station.printers.collected.empty() && story.left().empty());
    }
}

TEST(LocalTender, SendsNothingWhenTheAuditIsRefused)
{
    LocalStory story;
    story.station.put(TenderStory::kAudit, "\"40.00\"\r\n");
    story.station.dialogs.expect(
        "AUDIT FAILED",
        "The amount you are attempting to process does not match the amount the system has "
        "calculated.The system has a purchase amount of $48.50  if this amount is in fact Correct "
        "then press OK otherwise press CANCEL",
        Buttons::OkCancel, Answer::Cancel);
    story.swipe(kTrack1);
    story.run();
    EXPECT_TRUE(story.requests.empty());
    EXPECT_TRUE(story.answer().starts_with("\"\"\r\n\"\"\r\n\"48.50     \""));
}

TEST(LocalWait, AllowsCancelFromCount15AndCancelTakesTheRequestBack)
{
    LocalStory story;
    story.reply = std::nullopt;
    story.station.time.maxStep = 10;
    std::uint64_t began = 0, cancel = 0, panel = 0;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        const std::uint64_t now = story.station.time.milliseconds();
        if (fields.Label7Visible && began == 0)
            began = now;
        if (fields.Label7Visible && fields.SSCommand1.enabled && cancel == 0)
            cancel = now - began;
        if (fields.SSPanel2Visible && panel == 0)
            panel = now - began;
    };
    story.swipe(kTrack1);
    story.station.time.at(30'000, [&] { story.tender.SSCommand1_Click(); });
    story.run();
    EXPECT_NEAR(static_cast<double>(cancel), 14400, 20);
    EXPECT_NEAR(static_cast<double>(panel), 20000, 20);
    EXPECT_TRUE(
        story.answer().starts_with("\"Declined\"\r\n\"48.50     \"\r\n\"          \"\r\n\"1043"));
    EXPECT_TRUE(story.pending().empty() && story.left().empty());
    EXPECT_TRUE(story.station.run.ending());
}

TEST(LocalWait, ThatIsStoppedDeclinesWithoutARecord)
{
    LocalStory story;
    story.reply = std::nullopt;
    story.swipe(kTrack1);
    story.station.time.at(9'000, [&] { story.app.values.StopWaiting = 65535; });
    story.run();
    EXPECT_TRUE(story.answer().starts_with("\"Declined\"\r\n\"48.50     \""));
    EXPECT_NE(story.processTrace().find("Actual Seconds waited for Response  7"),
              std::string::npos);
    EXPECT_TRUE(story.pending().empty() && story.left().empty() && story.station.run.ending());
}

// The bank's word lies there already: a decline would make the point of sale charge the card again.
TEST(Cancel, IsPassedOverWhenTheAnswerHasCome)
{
    for (const bool local : {true, false}) {
        LocalStory story;
        story.reply = std::nullopt;
        story.paymentKeepsSilent();
        if (!local)
            story.station.put("C:\\Lumbrio\\X1009Version.dat", "");
        else
            story.swipe(kTrack1);
        story.station.time.at(20'000, [&] {
            story.station.put(local ? std::string(kLocalTran) + "\\" +
                                          records::Left(story.left().at(0), 22) + "ans"
                                    : TenderStory::kResult,
                              local ? *LocalStory().reply : support::approvedResult());
            story.tender.SSCommand1_Click();
        });
        story.run();
        EXPECT_TRUE(story.answer().starts_with("\"Approved\"")) << story.answer();
        EXPECT_EQ(story.pending().size(), 1U);
    }
}

// What cannot be written, read or deleted: no approval without a record, no card charged behind the
// server's back, and evidence of what the bank said.
TEST(LocalFaults, TellNoApprovalThatIsNotOnTheDiskAndChargeNoCardTwice)
{
    struct Case {
        const char *operation, *pathEnd, *word, *trace;
        std::size_t records, left;
        const char *title, *text;
    };
    for (const Case &c :
         {Case{"append", "CCPending.dat", "\"Declined\"", "RECORD NOT STORED", 0, 0,
               "CCPending.dat",
               "The bank approved this card with the code A12345, but its record cannot be stored. "
               "Do "
               "not charge it again: write the code down and call the manager."},
          Case{"open", ".ans", "\"Declined\"", "ANSWER NOT READ", 1, 1, "", ""},
          Case{
              "rename", ".req", "\"Declined\"", "REQUEST NOT WRITTEN", 0, 0, "Request File",
              "The request for this card cannot be written to the Xcharge folder, so this card was "
              "not charged. Please try again, or check the connection to the Xcharge computer."},
          Case{"remove", ".ans", "\"Approved\"", "NOT DELETED", 1, 1, "", ""}}) {
        LocalStory story;
        story.station.disk.failOn(c.operation, c.pathEnd, Outcome::Denied);
        if (*c.title != '\0')
            story.station.dialogs.expect(c.title, c.text, Buttons::Ok, Answer::Ok);
        story.swipe(kTrack1);
        story.run();
        EXPECT_TRUE(story.answer().starts_with(c.word)) << c.trace;
        EXPECT_NE(story.processTrace().find(c.trace), std::string::npos) << c.trace;
        EXPECT_EQ(story.pending().size(), c.records) << c.trace;
        EXPECT_EQ(story.left().size(), c.left) << c.trace;
    }
}

TEST(LocalTender, WithoutTheServersFolderChargesNothingAndSaysSo)
{
    LocalStory story;
    story.station.erase(kLocalTran);
    story.station.dialogs.expect(
        "Request File",
        "The request for this card cannot be written to the Xcharge folder, so this card was not "
        "charged. Please try again, or check the connection to the Xcharge computer.",
        Buttons::Ok, Answer::Ok);
    story.swipe(kTrack1);
    story.run();
    EXPECT_TRUE(story.answer().starts_with("\"Declined\"\r\n\"48.50     \""));
    EXPECT_TRUE(story.pending().empty() && story.station.run.ending());
}

TEST(Capture, ReadsRealTracksAndKeepsWhatItCannotRead)
{
    struct Case {
        const char *first, *second, *title, *number, *name;
    };
    for (const Case &c : {Case{kTrack1, "", "", "4111111111111111", "ROSALIND A TEST"},
                          Case{"%B5500000000000004^HARBOUR TABLE^2501101?", kTrack2, "",
                               "5500000000000004", "  HARBOUR TABLE"},
                          Case{"%B4111111111111111^TEST/R^2412101?", kTrack2, "Expired", "", ""},
                          Case{";4111111111111111=28091010000?", "+5?", "INVALID", "", ""},
                          Case{"%B4111111111111111^TEST/R?", kTrack2, "INVALID", "", ""}}) {
        LocalStory story;
        const std::string title = c.title;
        if (!title.empty()) {
            story.station.dialogs.expect(
                title,
                title == "Expired"
                    ? "You have entered an EXPIRED CARD NUMBER. Please Try Another Card"
                    : "You have entered an INVALID CARD NUMBER\r\n       Please Try Another Card",
                Buttons::Ok, Answer::Ok);
            story.swipe(kTrack1, kTrack2, 10'000); // another card
        }
        story.swipe(c.first, c.second);
        // A third track arrives while the second one settles.
        story.station.time.at(900,
                              [&] { story.tender.Text5_Change(std::string(c.second) + "+9?"); });
        story.run();
        ASSERT_EQ(story.requests.size(), 1U) << c.first;
        if (title.empty()) {
            EXPECT_EQ(story.tender.state().Label3[0], c.number);
            EXPECT_EQ(story.pending()[0].text(CCName), Trim(c.name));
        }
        EXPECT_EQ(story.pending().size(), 1U);
        if (title == "INVALID") {
            EXPECT_EQ(story.station.get(kBadSwipe), std::string(c.first) + c.second + "\r\n");
        } else {
            EXPECT_FALSE(story.station.has(kBadSwipe));
        }
    }
}

// What one guest's card has left in the boxes must not be charged for the next.
TEST(Capture, BeginsAfreshWithEachCardAndLeavesNoCardInClear)
{
    LocalStory story;
    const std::string folder = std::string(kLocalTran) + "\\";
    story.station.put(folder + "FRONT-BAR011525130000.tmp", kTrack1);
    story.station.put(folder + "front-bar011525130000.req.7.new", kTrack1);
    story.station.put(folder + "FRONT-BAR-2011525130000.tmp", "another station's");
    const std::string lost = "%B5500000000000004^OTHER/GUEST^2809"; // its end did not arrive
    story.station.time.at(500, [&] { story.tender.Text2_Change(lost); });
    story.station.time.at(900, [&] { story.tender.SSCommand3_Click(); }); // and "Cancel"
    story.station.time.at(1000, [&] { story.tender.Text2_Change(lost); });
    story.swipe(lost + kTrack1, kTrack2, 1500);
    story.run();
    ASSERT_EQ(story.requests.size(), 1U);
    EXPECT_EQ(story.requests[0].find("5500000000000004"), std::string::npos);
    EXPECT_EQ(story.left(), std::vector<std::string>{"FRONT-BAR-2011525130000.tmp"});
}

TEST(Capture, TakesNoCardBeforeTheRequestIsKnownNorBesideACommandLine)
{
    LocalStory early;
    early.tender.Text2_Change(kTrack1);
    early.tender.Text5_Change(kTrack2);
    early.run(5'000);
    EXPECT_TRUE(early.requests.empty());

    LocalStory byCommandLine;
    byCommandLine.station.put("C:\\Lumbrio\\X1009Version.dat", "");
    byCommandLine.swipe(kTrack1, kTrack2, 900);
    byCommandLine.run();
    EXPECT_TRUE(byCommandLine.requests.empty());
    EXPECT_EQ(byCommandLine.pending().size(), 1U);
}

TEST(Capture, ReadsAManagersCardWithoutChargingIt)
{
    LocalStory story;
    story.station.time.at(400, [&] { story.app.values.managerCheckMode = "100"; });
    story.swipe(kTrack1);
    story.run(10'000);
    EXPECT_EQ(story.tender.state().Label3[0], "4111111111111111");
    EXPECT_TRUE(story.requests.empty());
}

TEST(OfflinePanel, ApprovesWithAManagerAndLeavesTheWaitAloneWithoutOne)
{
    for (const bool local : {true, false}) {
        for (const char *manager : {"Margaret Manager", "NO", "answered meanwhile"}) {
            LocalStory story;
            OfflineTender offline(story.app, story.printer, story.view);
            story.played = &offline;
            if (!local)
                story.station.put("C:\\Lumbrio\\X1009Version.dat", "");
            else
                story.swipe(kTrack1);
            const std::string who = manager;
            story.replyAfter = who == "answered meanwhile" ? 26'000 : 40'000;
            story.paymentAnswers(support::approvedResult(), story.replyAfter);
            story.view.onManager = [&] {
                story.pass(10'000);
                EXPECT_EQ(story.app.values.managerCheckMode, "100");
                story.app.values.managerResult = who;
            };
            story.station.time.at(23'000, [&] {
                EXPECT_TRUE(offline.state().SSPanel5Visible);
                offline.SSCommand8_Click();
            });
            story.run(100'000);
            EXPECT_EQ(story.view.asked,
                      std::vector<std::string>{"Approve this card OFFLINE $48.50"});
            EXPECT_FALSE(offline.state().SSPanel5Visible);
            ASSERT_EQ(story.pending().size(), 1U) << who;
            EXPECT_TRUE(story.answer().starts_with("\"Approved\"\r\n")) << story.answer();
            const bool byManager = who == "Margaret Manager";
            const CardRecord record = story.pending()[0];
            EXPECT_EQ(record.text(CCTroutID), byManager ? "OFFLINE" : "");
            EXPECT_EQ(record.text(CResponse), byManager ? "YOFFLINE"
                                              : local   ? "YA12345"
                                                        : "SUCCESS");
            EXPECT_EQ(story.traceLog().find("MANAGER APPROVED OFFLINE - INTERNET") !=
                          std::string::npos,
                      byManager);
            EXPECT_EQ(story.station.printers.collected.size(), 2U);
            EXPECT_TRUE(story.left().empty());
        }
    }
}

// A request that the server has not taken yet would charge the guest once more; a card without an
// expiry cannot be charged later.
TEST(OfflinePanel, TakesTheRequestBackAndRefusesACardThatIsNotKnown)
{
    for (const char *expiry : {"0928", "    "}) {
        const bool known = *expiry == '0';
        LocalStory story;
        OfflineTender offline(story.app, story.printer, story.view);
        story.played = &offline;
        story.reply = std::nullopt;
        story.view.typedCard = {"4111111111111111", expiry, ""};
        story.view.onManager = [&] { story.app.values.managerResult = "Margaret Manager"; };
        story.station.time.at(500, [&] { offline.SSCommand3_Click(); });
        story.station.time.at(22'000, [&] { offline.SSCommand9_Click(); }); // "NO"
        story.station.time.at(23'000, [&] { offline.SSCommand8_Click(); }); // the panel is gone
        story.station.time.at(60'000, [&] { offline.SSCommand8_Click(); });
        story.run(70'000);
        EXPECT_EQ(story.view.asked.size(), 1U);
        EXPECT_EQ(story.pending().size(), known ? 1U : 0U);
        EXPECT_EQ(story.left().empty(), known) << "else the wait goes on";
        EXPECT_EQ(story.stillWaiting, !known);
    }
}

TEST(TenderCommands, AskForAManagerBeforeTheSetupAndTwiceBeforeARemoval)
{
    LocalStory story;
    const std::string removal =
        "You are about to remove X-Charge from this computer. If you contine you will never be "
        "able to process credit cards on this computer again. Do not do this unless you have been "
        "instructed by Tech Support to do so. Please press CANCEL now.";
    const std::string title = "REMOVE XCHARGE - NEVER PROCESS CREDIT CARDS AGAIN";
    story.station.put("c:\\Program Files\\X-Charge\\Xchrgsrv.exe", "program");
    story.station.put("F:\\Lumbrio\\ini\\3\\ButtonAM.dat",
                      "\"1111\",\"Margaret Manager\",\"01/01/2030\"\r\n");
    story.station.dialogs.expect(title, removal, Buttons::OkCancel, Answer::Cancel);
    story.station.dialogs.expect(title, removal, Buttons::OkCancel, Answer::Ok);
    story.reply = std::nullopt;
    std::string manager = "NO";
    story.view.onManager = [&] {
        story.pass(2000);
        EXPECT_EQ(story.app.values.ManagerTable[0].name, "Margaret Manager");
        story.app.values.managerResult = manager;
    };
    story.station.time.at(400, [&] {
        story.tender.SSPanel4_Click(); // not on screen yet
        story.tender.Command3_Click();
        story.tender.SSCommand5_Click();
        manager = "Margaret Manager";
        story.tender.SSCommand5_Click();
    });
    story.swipe(kTrack1, "", 350); // its settle time ends while the manager is asked
    story.station.time.at(52'000, [&] {
        story.tender.SSPanel4_Click();
        story.tender.SSPanel4_Click();
    });
    story.run();
    EXPECT_EQ(story.station.system.started.at(0).commandLine,
              "c:\\Program Files\\X-Charge\\Xchrgsrv.exe / T");
    const std::string config = "Open the card setup $48.50";
    EXPECT_EQ(story.view.asked, (std::vector<std::string>{config, config, "setup", "remove"}));
}

TEST(StoppedLocalTender, LeavesAWholeRequestOrNoneAndAWholeRecordOrNone)
{
    std::size_t total = 0;
    for (std::size_t n = 0; n == 0 || n <= total; ++n) {
        LocalStory story;
        story.station.put(TenderStory::kPending, std::string(500, 'a'));
        if (n > 0)
            story.station.disk.stopAt(n, [&] { story.station.run.end(); });
        story.swipe(kTrack1);
        story.run();
        const std::string where =
            n == 0 ? "undisturbed" : "stopped at " + story.station.disk.operationLog()[n - 1];
        total = n == 0 ? story.station.disk.operations() : total;
        for (const std::string &name : story.left())
            EXPECT_TRUE(!name.ends_with(".req") || story.isWhole(name)) << where;
        const std::string pending = story.station.get(TenderStory::kPending);
        EXPECT_EQ(pending.substr(0, 500), std::string(500, 'a')) << where;
        EXPECT_TRUE(pending.size() == 500 || pending.size() == 1000) << where;
        if (story.answered() && story.answer().starts_with("\"Approved\"")) {
            EXPECT_EQ(pending.size(), 1000U) << where << ": told of a record that is not there";
        }
    }
    EXPECT_GT(total, 60U);
}

} // namespace
