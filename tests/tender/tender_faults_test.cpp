// A tender whose file operations fail or stop, one after the other: whatever happens, nobody
// else's record is touched, and the point of sale is told nothing that is not on the disk.
#include "records/trace.h"
#include "support/tender_story.h"

namespace {

using namespace records;
using platform::Outcome;
using support::TenderStory;

std::string earlierRecords()
{
    std::string bytes;
    for (const char letter : {'a', 'b', 'c'})
        bytes += std::string(kCardSlotLength, letter);
    return bytes;
}

/// A station with earlier records and an old answer; what must hold on its drives, whatever failed.
class Disturbed : public TenderStory {
public:
    explicit Disturbed(bool local = false)
    {
        if (local) {
            takeCardsHere();
            swipe();
        }
        station.put(kPending, earlierRecords());
        station.put("C:\\Lumbrio\\Xsend.ans", "old answer");
        station.run.reportFailure = [](const std::string &) {};
        station.dialogs.noted = &boxes;
    }

    void look() const
    {
        const std::string bytes = station.get(kPending);
        EXPECT_EQ(bytes.substr(0, 1500), earlierRecords());
        EXPECT_TRUE(bytes.size() == 1500 || bytes.size() == 2000) << bytes.size();
        if (stored()) {
            EXPECT_EQ(pending()[3].text(CCReceipt), "1043");
        }
        for (const std::string &name : left())
            EXPECT_TRUE(!name.ends_with(".req") || station.get(kLocalTran + name).ends_with("\r\n"))
                << "half a request";
        const std::string text = answerIfThere();
        EXPECT_TRUE(text.empty() || text == "old answer" ||
                    std::count(text.begin(), text.end(), '\n') >= 10)
            << "not written by one step: " << text;
    }
    bool stored() const { return station.get(kPending).size() == 2000; }
    /// In a file of the station's own, for the next program to store.
    bool kept() const
    {
        for (const std::string &name :
             support::TestStation(&station).files.list("C:\\Lumbrio\\Data\\"))
            if (name.starts_with("KeptRecord-"))
                return true;
        return false;
    }
    std::string answerIfThere() const { return station.getIfThere("C:\\Lumbrio\\Xsend.ans"); }
    std::string boxes;
    bool approved() const { return answerIfThere().starts_with("\"Approved\""); }
};

std::size_t operationsOfATender(bool local = false)
{
    Disturbed story(local);
    story.run();
    EXPECT_TRUE(story.approved() && story.stored());
    return story.station.disk.operations();
}

TEST(StoppedTender, NeverTellsOfARecordThatIsNotThereAndTouchesNobodyElses)
{
    for (const bool local : {false, true}) {
        const std::size_t total = operationsOfATender(local);
        ASSERT_GT(total, local ? 60U : 40U);
        bool sawStoredUnanswered = false;
        for (std::size_t n = 1; n <= total; ++n) {
            Disturbed story(local);
            story.station.disk.stopAt(n, [&] { story.station.run.end(); });
            story.run();
            SCOPED_TRACE("stopped at " + story.station.disk.operationLog()[n - 1]);
            story.look();
            const bool stored = story.stored();
            EXPECT_TRUE(!story.approved() || stored);
            sawStoredUnanswered |= stored && !story.approved();
            if (n % 8 != 0 || local)
                continue;
            TenderStory next(story, 0); // when all is well again
            next.run();
            EXPECT_TRUE(next.answer().starts_with("\"Approved\""));
            EXPECT_EQ(next.pending().size(), stored ? 5U : 4U);
        }
        EXPECT_TRUE(sawStoredUnanswered) << "the record is on the disk before anybody is told";
    }
}

TEST(FailingTender, EitherEndsOrSaysInItsTraceThatARecordIsMissing)
{
    const std::size_t total = operationsOfATender();
    for (const Outcome outcome : {Outcome::NoRoom, Outcome::Denied, Outcome::Locked}) {
        for (std::size_t n = 1; n <= total; ++n) {
            Disturbed story;
            story.station.disk.failAt(n, outcome);
            story.run();
            SCOPED_TRACE(story.station.disk.operationLog()[n - 1] + textOf(outcome));
            story.look();
            EXPECT_TRUE(story.station.run.ending() && !story.stillWaiting);
            if (story.approved() && !story.stored()) {
                EXPECT_NE(story.processTrace().find("  RECORD NOT STORED - "), std::string::npos);
                EXPECT_TRUE(story.kept());
                EXPECT_NE(story.boxes.find("[RECORD NOT STORED]"), std::string::npos);
            }
        }
    }
}

/// The last printer of the system may stand in the kitchen.
TEST(ReceiptPrinter, ThatIsNotThereLeavesTheSlipsToTheDefaultPrinterAndTheTraceSaysSo)
{
    TenderStory unconfigured;
    unconfigured.station.printers.installed = {"Receipt TM-88", "Kitchen"};
    unconfigured.tender.Form_Load();
    EXPECT_EQ(unconfigured.printer.selectedName(), "Receipt TM-88");
    const std::string told = "  RECEIPT PRINTER NOT FOUND - Bar - printing on Receipt TM-88\r\n";
    for (const bool local : {false, true})
        for (const auto &[configured, printer] :
             {std::pair("Bar", "Receipt TM-88"), {"Off", "Office"}, {"", "Kitchen"}}) {
            Disturbed story(local);
            story.station.printers.installed = {"Office", "Receipt TM-88", "Kitchen"};
            story.configure(8, configured);
            story.run();
            for (const auto &slip : story.station.printers.collected)
                EXPECT_EQ(slip.printer, printer);
            EXPECT_EQ(story.station.printers.collected.size(), 2U);
            const std::string trace = story.processTrace();
            const std::size_t at = trace.find(told);
            EXPECT_EQ(at != trace.npos, std::string(configured) == "Bar") << trace;
            EXPECT_EQ(at, trace.rfind(told)) << "once";
        }
}

/// A night on which the printer takes only some of a tender's jobs.
struct BadPaper {
    const char *name;
    std::deque<Outcome> jobs;
    const char *told;
    bool local = false;
    bool partial = false;
    bool leftOpen = false; // the customer's copy, until the end
};

class UnprintedSlips : public testing::TestWithParam<BadPaper> {};

TEST_P(UnprintedSlips, AreToldByNameBehindRecordAndAnswerUntilSomebodyPressesOk)
{
    const BadPaper &row = GetParam();
    Disturbed story(row.local);
    story.station.printers.failures = row.jobs;
    story.station.dialogs.noted = nullptr;
    story.app.values.NoCut2Flag = row.leftOpen ? -1 : 0;
    if (row.partial)
        story.paymentAnswers(support::approvedResult() + "ADDITIONALFUNDSREQUIRED=20.00\r\n");
    bool whileOpen = false;
    story.station.dialogs.answerNext(platform::Answer::Ok, [&] {
        whileOpen = story.stored() && !story.station.run.ending() &&
                    story.answer().starts_with(row.partial ? "\"DECLINE but" : "\"Approved");
        story.tender.SSCommand1_Click(); // neither hurries it away
        story.tender.SSCommand2_Click();
    });
    story.run();
    EXPECT_TRUE(whileOpen && story.station.run.ending());
    const std::string words = row.told;
    EXPECT_EQ(story.station.dialogs.shown,
              std::vector{"[NOT PRINTED] " + words +
                          " The card is approved: do not run it again. Reprint from the manager's "
                          "list.\nReceipt: 1043\nAmount: $48.50\n" +
                          (row.partial ? "Approved: $48.50\n" : "") +
                          "Approval code: " + (row.local ? "A12345 (Ok)" : "012345 (Ok)")});
    for (const std::string &trace : {story.processTrace(), story.station.get(kTraceLogFile)})
        for (const char *slip : {"merchant's slip", "customer's slip", "server's notice"})
            EXPECT_EQ(trace.find(std::string("  NOT PRINTED - ") + slip) != trace.npos,
                      words.find(slip) != words.npos)
                << slip;
}

INSTANTIATE_TEST_SUITE_P(
    , UnprintedSlips,
    testing::Values(
        BadPaper{"merchant",
                 {Outcome::NoRoom},
                 "The merchant's slip was not printed on Receipt TM-88: no room on the disk."},
        BadPaper{"customer",
                 {Outcome::Done, Outcome::NotThere},
                 "The customer's slip was not printed on Receipt TM-88: the printer is not there."},
        BadPaper{"both",
                 {Outcome::Broken, Outcome::Broken},
                 "The merchant's slip and the customer's slip were not printed on Receipt TM-88: "
                 "device or network error.",
                 true},
        BadPaper{"leftOpen",
                 {Outcome::Done, Outcome::NoRoom},
                 "The customer's slip was not printed on Receipt TM-88: no room on the disk.",
                 false,
                 false,
                 true},
        BadPaper{"partialInOneJob",
                 {Outcome::Broken},
                 "The merchant's slip, the customer's slip and the server's notice were not "
                 "printed on Receipt TM-88: device or network error.",
                 false,
                 true}),
    [](const auto &row) { return std::string(row.param.name); });

/// The answer lies there while the manager says yes to "OFFLINE", and nobody can look at it: the
/// guest would be charged by the bank and once more by the offline record.
TEST(UnknownAnswer, IsNeverTakenForNoneWhenTheManagerApprovesOffline)
{
    for (const bool local : {false, true}) {
        Disturbed story(local);
        const std::string ending = local ? ".ans" : "xResultFile.txt";
        story.tender.offlinePanel = true;
        story.view.onManager = [&] {
            story.app.values.managerResult = "Rosalind";
            story.station.disk.failOn("look", ending, Outcome::Broken);
        };
        story.replyAfter = 60'000;
        story.paymentAnswers(support::approvedResult(), 60'000);
        story.station.time.at(50'000, [&] { story.tender.SSCommand8_Click(); });
        story.station.time.at(70'000,
                              [&] { story.station.disk.failOn("look", ending, Outcome::Done); });
        story.run(100'000);
        EXPECT_FALSE(story.station.run.failed()) << "in the midst of a charge";
        ASSERT_TRUE(story.stored());
        EXPECT_EQ(story.pending()[3].text(CApprovalCode).substr(0, 6), local ? "A12345" : "012345");
    }
}

} // namespace
