// Whole tenders, and all that each leaves behind: how it ended, what the operator was told, the
// answer, the records, the slips. One golden file a story.
#include "support/tender_story.h"
#include "support/test_files.h"
#include "tender/request.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Answer;
using platform::Buttons;
using support::TenderStory;

constexpr const char *kChargeAtOnce = "F:\\Lumbrio\\Data\\CCnoPREauth.dat";
constexpr const char *kDecline =
    "RESULT=DECLINED\r\nXCACCOUNTID=7401234567890\r\nACCOUNT=XXXXXXXXXXXX1234\r\n"
    "NAME=ROSALIND/TEST\r\nADDITIONALFUNDSREQUIRED=18.50\r\n";
const std::string kPartial =
    support::approvedResult() + "APPROVEDAMOUNT=30.00\r\nADDITIONALFUNDSREQUIRED=18.50\r\n";

std::string leftBehind(const TenderStory &story)
{
    const support::TestStation &station = story.station;
    std::string text = station.run.failed()   ? "failed\n"
                       : station.run.ending() ? "ended\n"
                                              : "stays\n";
    const tender::TenderFields &fields = story.tender.state();
    text += "screen " + fields.Text1 + "|" + fields.Label9;
    for (const std::size_t item : {4, 5, 6, 9, 10, 12, 13, 14, 15})
        text += "|" + fields.Label3[item];
    text += "\n";
    for (const std::string &status : story.view.status)
        text += status.empty() ? "" : "status " + status + "\n";
    for (const auto &started : station.system.started)
        text += "started " + started.commandLine + "\n";
    for (const std::string file :
         {"Xsend.ans", "XAudit.DAT", "CCnoPrint.dat", "CreditApproval.dat"})
        if (station.has("C:\\Lumbrio\\" + file))
            text += "== " + file + "\n" + station.get("C:\\Lumbrio\\" + file);
    for (const char *file : {TenderStory::kPending, TenderStory::kMonth, TenderStory::kDeleted}) {
        for (const CardRecord &record : story.records(file)) {
            text += std::string("== ") + file + "\n";
            for (const CardField &field : kCardFields)
                if (record.raw(field)[0] != '\0') // was assigned
                    text += std::string(field.name) + " " + record.text(field) + "\n";
        }
    }
    return text + "== slips\n" + story.slips();
}

struct Tale {
    const char *name;
    void (*begin)(TenderStory &);
};

const Tale kTales[] = {
    {"approved", [](TenderStory &) {}},
    {"approved_at_once_with_a_slip_left_open",
     [](TenderStory &story) {
         story.station.put(kChargeAtOnce, "");
         story.station.printers.preferred = "Office Laser"; // the configured one is taken
         story.app.values.NoCut2Flag = -1;
     }},
    {"approved_gift_card",
     [](TenderStory &story) {
         story.station.put("C:\\Lumbrio\\Data\\CCnoPREauth.dat", ""); // of the station: no meaning
         story.paymentAnswers(support::approvedResult() +
                              "BALANCE=12.00\r\nADDITIONALFUNDSREQUIRED=0.00\r\n");
     }},
    {"approved_without_a_printer",
     [](TenderStory &story) { story.station.printers.installed.clear(); }},
    {"approved_over_midnight_of_a_month",
     [](TenderStory &story) {
         story.station.time.setNow({2025, 1, 31, 23, 59, 58, 0});
         story.station.put(kChargeAtOnce, "");
         story.paymentAnswers(support::approvedResult(), 4000);
     }},
    {"approved_after_the_second_start",
     [](TenderStory &story) {
         story.station.system.onStart = [&story](const support::FakeSystem::Started &) {
             if (story.station.system.started.size() == 2)
                 story.station.time.after(2500, [&story] {
                     story.station.put(TenderStory::kResult, support::approvedResult());
                 });
         };
     }},
    {"approved_without_a_server_or_partial_support",
     [](TenderStory &story) {
         story.request("\"a,b\",\"1,2\",,\" 12.5 \"\r\n");
         story.station.put("C:\\Lumbrio\\CCard.dat", "x\n\n0\n0\n0\n0\n0\n-1\n-1\n0\n");
     }},
    {"approved_with_gratuity_and_no_customer_receipt",
     [](TenderStory &story) {
         story.station.time.at(1000, [&story] {
             story.tender.SSCommand7_Click();
             story.tender.SSCheck1_Click(true);
         });
     }},
    {"approved_deleted_prepayment",
     [](TenderStory &story) { story.request("\"DelPrePay 12\",\"1043\",\"7\",\"48.50\"\r\n"); }},
    {"partial",
     [](TenderStory &story) {
         story.paymentAnswers(kPartial);
         story.station.put(TenderStory::kAudit, "\"48.5\"\r\n");
     }},
    {"partial_at_once",
     [](TenderStory &story) {
         story.paymentAnswers(kPartial);
         story.station.put(kChargeAtOnce, "");
     }},
    {"declined", [](TenderStory &story) { story.paymentAnswers(kDecline); }},
    {"declined_at_once",
     [](TenderStory &story) {
         story.paymentAnswers(kDecline);
         story.station.put(kChargeAtOnce, "");
     }},
    {"declined_with_approvals_of_earlier_runs_about",
     [](TenderStory &story) {
         const auto late = [&story] {
             story.station.put(TenderStory::kResult, support::approvedResult());
         };
         late();
         story.station.system.onKill = [late](const std::string &) { late(); };
         story.station.put(TenderStory::kAudit, "50.00");
         story.station.dialogs.expect("AUDIT FAILED", tender::auditQuestion("48.50", false),
                                      Buttons::OkCancel, Answer::Ok, late);
         story.paymentAnswers("RESULT=DECLINED\r\n", 5000);
     }},
    {"timed_out_and_cancelled",
     [](TenderStory &story) {
         story.paymentAnswers("RESULT=TIMEOUT\r\n");
         story.station.time.at(20'000, [&story] {
             EXPECT_TRUE(story.answer().starts_with("\"Declined\"\r\n\"Declined\"\r\n"));
             story.tender.SSCommand1_Click();
         });
     }},
    {"cancelled_as_the_result_arrives",
     [](TenderStory &story) {
         story.paymentKeepsSilent();
         story.station.put(TenderStory::kAudit, "48.50");
         story.station.time.at(7000, [&story] { story.tender.SSCommand1_Click(); }); // disabled
         story.station.time.at(11'600, [&story] {
             story.station.put(TenderStory::kMarker, "");
             story.station.put(TenderStory::kResult, support::approvedResult());
             story.tender.SSCommand1_Click();
             EXPECT_FALSE(story.station.has(TenderStory::kMarker));
         });
     }},
    {"stopped_from_outside_and_cancelled",
     [](TenderStory &story) {
         story.paymentKeepsSilent();
         story.station.time.at(20'000, [&story] { story.app.values.StopWaiting = 65535; });
         story.station.time.at(30'000, [&story] {
             EXPECT_FALSE(story.tender.state().Label7Visible || story.answered());
             story.tender.SSCommand1_Click();
         });
     }},
    {"cancelled_before_a_swipe",
     [](TenderStory &story) {
         story.station.erase("C:\\Lumbrio\\X1009Version.dat");
         story.station.time.at(5000, [&story] { story.tender.SSCommand1_Click(); });
     }},
    {"audit_refused",
     [](TenderStory &story) {
         story.station.put(TenderStory::kAudit, "50.00");
         story.station.dialogs.expect("AUDIT FAILED", tender::auditQuestion("48.50", false),
                                      Buttons::OkCancel, Answer::Cancel);
     }},
    {"request_missing",
     [](TenderStory &story) {
         story.station.erase("C:\\Lumbrio\\Xsend.req");
         story.station.put(TenderStory::kAudit, "48.50");
         story.station.dialogs.expect(
             "Data File Not Found",
             "The Lumbrio Transaction File for this transaction was Not Found. Pless OK to "
             "continue and  Go back to the Tender screen and try again.",
             Buttons::Ok, Answer::Ok, [&story] { EXPECT_TRUE(story.answered()); });
     }},
    {"server_busy",
     [](TenderStory &story) {
         story.station.put(TenderStory::kMarker, "");
         story.station.put("C:\\Lumbrio\\Xsend.ans", "old\r\n");
         story.view.onBusy = [&story] {
             story.tender.deleteBatchMarker(); // the picture
             EXPECT_FALSE(story.station.has(TenderStory::kMarker) || !story.view.hidden);
             story.station.run.end(); // its button
         };
     }},
    {"payment_application_missing",
     [](TenderStory &story) {
         story.station.erase(support::TestStation::kXcharge);
         story.station.dialogs.expect(
             "Data File Not Found",
             "The Xcharge Program was not found on this computer. Xcharge must first be installed "
             "on this computer before you can process a credit card. Pless contact Tech Support at "
             "555-010-0199.",
             Buttons::Ok, Answer::Ok);
     }},
    {"data_folder_missing",
     [](TenderStory &story) {
         story.station.erase("F:\\Lumbrio\\data");
         story.station.dialogs.expect(
             "", "Creating failed: not there\nF:\\Lumbrio\\\\data\\CCFinal0125.dat", Buttons::Ok,
             Answer::Ok);
     }},
    {"helper_of_another_role",
     [](TenderStory &story) {
         story.station.system.executable = "TndrMGR";
         story.request("12,1043,7,0\r\n"); // an amount that would end a tender
         story.station.put(TenderStory::kMarker, "");
     }},
};

TEST(Story, LeavesBehindWhatItsGoldenFileSays)
{
    for (const Tale &tale : kTales) {
        TenderStory story;
        SCOPED_TRACE(tale.name);
        tale.begin(story);
        story.run();
        const std::string name = std::string("golden/tender/stories/") + tale.name + ".txt";
        EXPECT_EQ(leftBehind(story), support::testFile(name));
    }
}

TEST(Story, OfAnApprovalStoresBeforeItPrintsAndPrintsBeforeItAnswersAndIsTraced)
{
    TenderStory story;
    std::string seen;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        if (fields.Text3 == "Approved Printing Receipt")
            seen = std::to_string(story.pending().size()) + " record, " +
                   std::to_string(story.station.printers.collected.size()) + " slips, " +
                   (story.answered() ? "answered" : "no answer");
    };
    story.run();
    EXPECT_EQ(seen, "1 record, 0 slips, no answer");
    EXPECT_EQ(story.processTrace() + story.traceLog(),
              support::testFile("golden/tender/approved_traces.txt"));
}

TEST(Story, OfAnAmountOfNothingEndsWithoutAnAnswerOrAnyOtherFile)
{
    for (const char *request : {"12,1043,7,0.00\r\n", "12,1043,7,.\r\n", "12,1043,7,abc\r\n",
                                "12,1043\r\n", "", "\"12\",\"1043\",\"7\",\"$48.50\"\r\n"}) {
        TenderStory story;
        story.request(request);
        story.station.put(TenderStory::kAudit, "48.50");
        story.station.dialogs.expect("ZERO AMOUNT",
                                     "The system was not able to obtain the amount of this TAB. "
                                     "Please Press Cancel and try again.",
                                     Buttons::Ok, Answer::Ok);
        story.run();
        EXPECT_TRUE(story.station.run.ending() && story.station.has(TenderStory::kAudit));
        EXPECT_FALSE(story.answered() || story.station.has(TenderStory::kMonth)) << request;
    }
}

TEST(Story, OfAStationWithOtherDirectoriesOrNoneUsesItsFiles)
{
    TenderStory story;
    story.configure(6, "D:\\Station\\");
    story.station.erase("C:\\Lumbrio\\X1009Version.dat");
    story.station.put("D:\\Station\\X1009Version.dat", "");
    story.station.put("D:\\Station\\Xsend.req", "5,77,7,12.5\r\n");
    story.run();
    EXPECT_TRUE(story.station.get("D:\\Station\\Xsend.ans").starts_with("\"Approved\""));
    EXPECT_EQ(story.pending()[0].text(CCReceipt), "77");
    TenderStory blank;
    blank.configure(6, "");
    blank.configure(49, "");
    blank.run();
    EXPECT_TRUE(blank.answer().starts_with("\"Approved\""));
    EXPECT_EQ(blank.records("C:\\Lumbrio\\CCPending.dat").size(), 1U);
}

} // namespace
