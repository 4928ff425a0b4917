// What a tender does about a printer or a share that lets it down. Every operation on a file fails
// in tests/faults/.
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

/// A station with earlier records.
class Disturbed : public TenderStory {
public:
    explicit Disturbed(bool local = false)
    {
        if (local) {
            takeCardsHere();
            swipe();
        }
        station.put(kPending, earlierRecords());
    }

    bool stored() const { return station.get(kPending).size() == 2000; }
};

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
    story.app.values.NoCut2Flag = row.leftOpen ? -1 : 0;
    if (row.partial)
        story.paymentAnswers(support::approvedResult() + "ADDITIONALFUNDSREQUIRED=20.00\r\n");
    bool whileOpen = false;
    story.station.dialogs.answerNext(platform::Answer::Ok, [&] {
        whileOpen = story.stored() && !story.station.run.ending() &&
                    story.answer().starts_with(row.partial ? "\"DECLINE but" : "\"Approved");
        story.tender.cancel(); // neither hurries it away
        story.tender.finishTender();
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
        story.station.time.at(50'000, [&] { story.tender.askForOfflineApproval(); });
        story.station.time.at(70'000,
                              [&] { story.station.disk.failOn("look", ending, Outcome::Done); });
        story.run(100'000);
        EXPECT_FALSE(story.station.run.failed()) << "in the midst of a charge";
        ASSERT_TRUE(story.stored());
        EXPECT_EQ(story.pending()[3].text(CApprovalCode).substr(0, 6), local ? "A12345" : "012345");
    }
}

/// Before the tender has looked whether it lies there: the guest is charged.
TEST(Request, IsWaitedForWhenTheServerTakesItAtOnce)
{
    TenderStory story;
    story.takeCardsHere();
    story.swipe();
    const std::string request = TenderStory::kLocalTran + std::string("FRONT-BAR011525130502.req");
    story.station.disk.looksCount = true;
    story.station.disk.before = [&](std::size_t) {
        if (!story.station.has(request))
            return;
        story.requests.push_back(request);
        story.station.erase(request);
        story.station.time.after(2000, [&] {
            story.station.put(request.substr(0, request.size() - 3) + "ans", *story.reply);
        });
    };
    story.run();
    EXPECT_EQ(story.requests.size(), 1U);
    EXPECT_EQ(story.answer().substr(1, 8), "Approved");
}

} // namespace
