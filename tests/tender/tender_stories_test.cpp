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
constexpr const char *kRequest = "C:\\Lumbrio\\Xsend.req";
const std::string kApproved = support::approvedResult();
const std::string kPartial =
    kApproved + "APPROVEDAMOUNT=30.00\r\nADDITIONALFUNDSREQUIRED=18.50\r\n";
const std::string kDeclined =
    "RESULT=DECLINED\r\nXCACCOUNTID=7401234567890\r\nACCOUNT=XXXXXXXXXXXX1234\r\n"
    "NAME=ROSALIND/TEST\r\nADDITIONALFUNDSREQUIRED=18.50\r\n";

std::string leftBehind(const TenderStory &story)
{
    const support::TestStation &station = story.station;
    const ProcessValues &values = story.app.values;
    std::string text = station.run.failed()   ? "failed\n"
                       : station.run.ending() ? "ended\n"
                                              : "stays\n";
    const tender::TenderFields &fields = story.tender.state();
    text += "screen " + fields.Text1 + "|" + fields.Label9;
    for (const std::size_t item : {4, 5, 6, 9, 10, 12, 13, 14, 15})
        text += "|" + fields.Label3[item];
    for (const std::string &status : story.view.status)
        text += status.empty() ? "\n" : "status " + status + "\n";
    for (const auto &started : station.system.started)
        text += "started " + started.commandLine + "\n";
    for (const char *file : {"Xsend.ans", "XAudit.DAT", "CCnoPrint.dat", "CreditApproval.dat"})
        if (station.has(values.Maindir + file))
            text += "== " + values.Maindir + file + "\n" + station.get(values.Maindir + file);
    for (const char *name : {"CCPending.dat", "data\\CCFinal0125.dat", "data\\0125CCdeleted.dat"}) {
        const std::string file = values.Remotedir + name;
        text += station.has(file) ? "== " + file + "\n" : "";
        for (const CardRecord &record : story.records(file))
            for (const CardField &field : kCardFields)
                if (record.raw(field)[0] != '\0') // was assigned
                    text += std::string(field.name) + " " + record.text(field) + "\n";
    }
    return text + "== slips\n" + story.slips();
}

struct Tale {
    const char *name;
    void (*begin)(TenderStory &) = nullptr;
    std::vector<std::pair<const char *, const char *>> files = {};
    std::string result = kApproved;
};

const Tale kTales[] = {
    {"approved"},
    {"approved_at_once_with_a_slip_left_open",
     [](TenderStory &story) {
         story.station.printers.preferred = "Office Laser"; // the configured one is taken
         story.app.values.NoCut2Flag = -1;
     },
     {{kChargeAtOnce, ""}}},
    // A flag file of the station alone means nothing.
    {"approved_gift_card",
     {},
     {{"C:\\Lumbrio\\Data\\CCnoPREauth.dat", ""}},
     kApproved + "BALANCE=12.00\r\nADDITIONALFUNDSREQUIRED=0.00\r\n"},
    {"approved_without_a_printer",
     [](TenderStory &story) { story.station.printers.installed.clear(); }},
    {"approved_over_midnight_of_a_month",
     [](TenderStory &story) {
         story.station.time.setNow({2025, 1, 31, 23, 59, 58, 0});
     },
     {{kChargeAtOnce, ""}}},
    {"approved_after_the_second_start",
     [](TenderStory &story) {
         story.station.system.onStart = [&story](const support::FakeSystem::Started &) {
             if (story.station.system.started.size() == 2)
                 story.station.time.after(
                     2500, [&story] { story.station.put(TenderStory::kResult, kApproved); });
         };
     },
     {},
     ""},
    {"approved_without_a_server_or_partial_support",
     {},
     {{kRequest, "\"a,b\",\"1,2\",,\" 12.5 \"\r\n"},
      {"C:\\Lumbrio\\CCard.dat", "x\n\n0\n0\n0\n0\n0\n-1\n-1\n0\n"}}},
    {"approved_with_gratuity_and_no_customer_receipt",
     [](TenderStory &story) {
         story.station.time.at(1000, [&story] {
             story.tender.SSCommand7_Click();
             story.tender.SSCheck1_Click(true);
         });
     }},
    {"approved_deleted_prepayment",
     {},
     {{kRequest, "\"DelPrePay 12\",\"1043\",\"7\",\"48.50\"\r\n"}}},
    {"approved_in_another_directory",
     [](TenderStory &story) {
         story.configure(6, "D:\\Station\\");
         story.station.erase("C:\\Lumbrio\\X1009Version.dat");
     },
     {{"D:\\Station\\X1009Version.dat", ""}, {"D:\\Station\\Xsend.req", "5,77,7,12.5\r\n"}}},
    {"approved_without_directories",
     [](TenderStory &story) {
         story.configure(6, "");
         story.configure(49, "");
     }},
    {"partial", {}, {{TenderStory::kAudit, "\"48.5\"\r\n"}}, kPartial},
    {"partial_at_once", {}, {{kChargeAtOnce, ""}}, kPartial},
    {"declined", {}, {}, kDeclined},
    {"declined_at_once", {}, {{kChargeAtOnce, ""}}, kDeclined},
    {"declined_with_approvals_of_earlier_runs_about",
     [](TenderStory &story) {
         const auto late = [&story] { story.station.put(TenderStory::kResult, kApproved); };
         story.station.system.onKill = [late](const std::string &) { late(); };
         story.station.dialogs.expect("AUDIT FAILED", tender::auditQuestion("48.50", false),
                                      Buttons::OkCancel, Answer::Ok, late);
     },
     {{TenderStory::kAudit, "50.00"}, {TenderStory::kResult, "RESULT=SUCCESS\r\n"}},
     "RESULT=DECLINED\r\n"},
    {"timed_out_and_cancelled",
     [](TenderStory &story) {
         story.station.time.at(20'000, [&story] {
             EXPECT_TRUE(story.answer().starts_with("\"Declined\"\r\n\"Declined\"\r\n"));
             story.tender.SSCommand1_Click();
         });
     },
     {},
     "RESULT=TIMEOUT\r\n"},
    {"cancelled_in_the_wait",
     [](TenderStory &story) {
         story.paymentKeepsSilent();
         story.station.time.at(7000, [&story] { story.tender.SSCommand1_Click(); }); // disabled
         story.station.time.at(11'600, [&story] {
             story.station.put(TenderStory::kMarker, "");
             story.tender.SSCommand1_Click();
             EXPECT_FALSE(story.station.has(TenderStory::kMarker));
         });
     },
     {{TenderStory::kAudit, "48.50"}},
     ""},
    {"cancelled_before_a_swipe",
     [](TenderStory &story) {
         story.station.erase("C:\\Lumbrio\\X1009Version.dat");
         story.station.time.at(5000, [&story] { story.tender.SSCommand1_Click(); });
     },
     {},
     ""},
    {"old_result_that_cannot_be_deleted",
     [](TenderStory &story) {
         story.station.disk.failOn("remove", "xResultFile.txt", platform::Outcome::Denied);
         story.station.dialogs.expect(
             "Result File",
             "The result of an earlier card cannot be removed from this computer, so this card was "
             "not charged. Please try again, or restart this station.",
             Buttons::Ok, Answer::Ok);
     },
     {{TenderStory::kResult, ""}}},
    {"audit_refused",
     [](TenderStory &story) {
         story.station.dialogs.expect("AUDIT FAILED", tender::auditQuestion("48.50", false),
                                      Buttons::OkCancel, Answer::Cancel);
     },
     {{TenderStory::kAudit, "50.00"}}},
    {"amount_missing",
     [](TenderStory &story) {
         story.station.dialogs.expect("ZERO AMOUNT",
                                      "The system was not able to obtain the amount of this TAB. "
                                      "Please Press Cancel and try again.",
                                      Buttons::Ok, Answer::Ok);
     },
     {{kRequest, "12,1043,7,$48.50\r\n"}, {TenderStory::kAudit, "48.50"}}},
    {"request_missing",
     [](TenderStory &story) {
         story.station.erase(kRequest);
         story.station.dialogs.expect(
             "Data File Not Found",
             "The Lumbrio Transaction File for this transaction was Not Found. Pless OK to "
             "continue and  Go back to the Tender screen and try again.",
             Buttons::Ok, Answer::Ok, [&story] { EXPECT_TRUE(story.answered()); });
     },
     {{TenderStory::kAudit, "48.50"}}},
    {"server_busy",
     [](TenderStory &story) {
         story.view.onBusy = [&story] {
             story.tender.deleteBatchMarker(); // the picture
             EXPECT_FALSE(story.station.has(TenderStory::kMarker) || !story.view.hidden);
             story.station.run.end(); // its button
         };
     },
     {{TenderStory::kMarker, ""}, {"C:\\Lumbrio\\Xsend.ans", "old\r\n"}}},
    {"payment_application_missing",
     [](TenderStory &story) {
         story.station.erase(support::TestStation::kXcharge);
         story.station.dialogs.expect(
             "Data File Not Found",
             "The Xcharge Program was not found on this computer. Xcharge must first be installed "
             "on this computer before you can process a credit card. Pless contact Tech Support at "
             "555-010-0199.",
             Buttons::Ok, Answer::Ok);
     },
     {},
     ""},
    {"data_folder_missing",
     [](TenderStory &story) {
         story.station.erase("F:\\Lumbrio\\data");
         story.station.dialogs.expect(
             "", "Creating failed: not there\nF:\\Lumbrio\\\\data\\CCFinal0125.dat", Buttons::Ok,
             Answer::Ok);
     }},
    // An amount that would end a tender, and a marker that would stop it.
    {"helper_of_another_role",
     [](TenderStory &story) { story.station.system.executable = "TndrMGR"; },
     {{kRequest, "12,1043,7,0\r\n"}, {TenderStory::kMarker, ""}},
     ""},
};

TEST(Story, LeavesBehindWhatItsGoldenFileSays)
{
    for (const Tale &tale : kTales) {
        TenderStory story;
        SCOPED_TRACE(tale.name);
        story.paymentAnswers(tale.result);
        for (const auto &[path, bytes] : tale.files)
            story.station.put(path, bytes);
        if (tale.begin != nullptr)
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

} // namespace
