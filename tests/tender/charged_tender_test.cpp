// A card that the bank has charged, and something that goes wrong right then: whoever counts the
// money afterwards finds the record, or a trace that tells of it, and no guest is charged twice.
#include "records/careful_append.h"
#include "records/kept_records.h"
#include "records/transaction_search.h"
#include "support/tender_story.h"
#include "tender/command_line.h"

#include <set>

namespace {

using namespace records;
using platform::Outcome;
using support::TenderStory;

constexpr const char *kFolder = "C:\\Lumbrio\\";

class ChargedTender : public testing::TestWithParam<bool> {
protected:
    ChargedTender()
    {
        if (local()) {
            story.takeCardsHere();
            swipe(story);
        }
        story.station.dialogs.noteIn(boxes);
    }
    bool local() const { return GetParam(); }
    static void swipe(TenderStory &at)
    {
        at.swipe(TenderStory::kTrack1, TenderStory::kTrack2, 2000);
    }
    /// Names in a folder that begin so.
    std::vector<std::string> named(const std::string &folder, const std::string &beginning) const
    {
        std::vector<std::string> names;
        for (const std::string &name : support::TestStation(&story.station).files.list(folder))
            if (name.starts_with(beginning))
                names.push_back(name);
        return names;
    }
    std::vector<std::string> kept() const { return named("C:\\Lumbrio\\Data\\", "KeptRecord-"); }
    /// What the bank wrote, under the name that another tender has given it.
    std::vector<std::string> putAside() const
    {
        return local() ? named(TenderStory::kLocalTran, "FRONT-BAR011525130503-")
                       : named(kFolder, "xResultFile-");
    }
    std::string word() const { return story.answered() ? story.answer().substr(1, 8) : ""; }
    std::size_t recordsAfterTheNextTender()
    {
        TenderStory next(story, 0);
        std::string none;
        next.station.dialogs.noteIn(none);
        if (local()) {
            next.takeCardsHere();
            swipe(next);
        }
        next.run(20'000);
        return next.pending().size();
    }
    static App &atItsStation(TenderStory &next)
    {
        next.app.values.Maindir = kFolder;
        next.app.values.Remotedir = "F:\\Lumbrio\\";
        return next.app;
    }
    void cannot(const char *operation, const char *file, Outcome outcome = Outcome::Broken)
    {
        story.station.disk.failOn(operation, file, outcome);
    }

    std::string boxes;
    TenderStory story;
};

INSTANTIATE_TEST_SUITE_P(, ChargedTender, testing::Bool(),
                         [](const auto &each) { return each.param ? "local" : "commandLine"; });

TEST_P(ChargedTender, LeavesItsResultForTheNextTenderToPutAsideWhenItIsKilled)
{
    bool killed = false;
    story.station.disk.before = [&](std::size_t) {
        if (!killed && story.station.disk.operationLog().back().find(
                           "append f/Lumbrio/CCPending") != std::string::npos) {
            killed = true;
            story.station.disk.stopAt(story.station.disk.operations(),
                                      [this] { story.station.run.end(); });
        }
    };
    story.run();
    EXPECT_TRUE(killed && story.pending().empty() && !story.answered());
    recordsAfterTheNextTender();
    ASSERT_EQ(putAside().size(), 1U);
    recordsAfterTheNextTender();
    EXPECT_EQ(putAside().size(), 1U) << "a result with record and answer is deleted as ever";
}

TEST_P(ChargedTender, KeepsItsRecordAtTheStationUntilAFileTakesItOnce)
{
    cannot("append", "CCPending.dat", Outcome::NoRoom);
    story.run();
    EXPECT_EQ(word(), "Approved") << "as the bank said";
    EXPECT_NE(boxes.find("[RECORD NOT STORED]"), std::string::npos);
    EXPECT_EQ(story.station.printers.collected.size(), 2U) << "the guest has to sign";
    ASSERT_EQ(kept().size(), 1U);
    const std::string path = "C:\\Lumbrio\\Data\\" + kept()[0];
    const std::string file = story.station.get(path);
    EXPECT_EQ(recordsAfterTheNextTender(), 2U);
    EXPECT_TRUE(kept().empty());
    story.station.put(path + ".claimed", file); // by one who died before he could remove it
    EXPECT_EQ(recordsAfterTheNextTender(), 3U) << "its own alone";
    EXPECT_TRUE(kept().empty());
}

TEST_P(ChargedTender, IsKeptUntilItsRecordIsNotOnlySeenButOnTheDisk)
{
    cannot("flush", "CCPending.dat");
    story.run();
    EXPECT_EQ(word(), "Approved");
    EXPECT_EQ(story.pending().size(), 1U);
    ASSERT_EQ(kept().size(), 1U);
    TenderStory next(story, 0);
    next.station.disk.failOn("flush", "CCPending.dat", Outcome::Broken);
    EXPECT_EQ(storeKeptRecords(atItsStation(next)).waiting.size(), 1U);
    EXPECT_EQ(kept().size(), 1U) << "a power cut now would lose it";
    next.station.disk.failOn("flush", "CCPending.dat", Outcome::Done);
    EXPECT_EQ(storeKeptRecords(atItsStation(next)).stored, 1);
    EXPECT_EQ(next.pending().size(), 1U);
    EXPECT_TRUE(kept().empty());
}

TEST_P(ChargedTender, IsNotStoredBesideTheShareThatHasGone)
{
    cannot("append", "CCPending.dat", Outcome::NoRoom);
    story.run();
    story.station.erase("F:\\Lumbrio");
    story.station.folder("F:\\Lumbrio");
    TenderStory next(story, 0);
    EXPECT_EQ(storeKeptRecords(atItsStation(next)).waiting.size(), 1U);
    EXPECT_FALSE(next.station.has(TenderStory::kPending)) << "the share would hide it";
}

TEST_P(ChargedTender, LeavesWhatTheBankWritesAfterItsLastLook)
{
    std::string late;
    story.station.disk.before = [&](std::size_t) {
        const std::string &line = story.station.disk.operationLog().back();
        if (late.empty() && line.find("Xsend.ans") != line.npos && line.find("open") != line.npos) {
            late = local() ? TenderStory::kLocalTran + std::string("FRONT-BAR011525130503.ans")
                           : TenderStory::kResult;
            story.station.put(late, local() ? "\"YA99999\"\r\n" : support::approvedResult());
        }
    };
    if (local())
        story.reply = std::nullopt;
    else
        story.paymentAnswers("RESULT=DECLINED\r\n");
    story.station.time.at(30'000, [this] { story.tender.cancel(); }); // "Cancel"
    story.run();
    EXPECT_EQ(word(), "Declined");
    recordsAfterTheNextTender();
    EXPECT_EQ(putAside().size(), 1U);
}

/// Another station that holds the lock all the time and knows nothing of appends without it.
class Stranger : public ChargedTender {
protected:
    Stranger()
    {
        cannot("lock", "CCPending.dat", Outcome::Locked);
        story.station.put(TenderStory::kPending, std::string(kCardSlotLength, 'a'));
    }
    std::size_t ours() const
    {
        return static_cast<std::size_t>(
            std::ranges::count_if(story.pending(), [](const CardRecord &each) {
                return each.text(CCReceipt) == "1043";
            }));
    }
    void afterAppend(const std::function<void(std::string &)> &change)
    {
        story.station.disk.before = [this, change, done = false](std::size_t) mutable {
            std::string bytes = story.station.get(TenderStory::kPending);
            if (done || bytes.size() < 2 * kCardSlotLength)
                return;
            done = true;
            change(bytes);
            story.station.put(TenderStory::kPending, bytes);
        };
    }
};

INSTANTIATE_TEST_SUITE_P(, Stranger, testing::Bool(),
                         [](const auto &each) { return each.param ? "local" : "commandLine"; });

TEST_P(Stranger, WritesOverTheRecordAndItIsAppendedAgain)
{
    const auto overwrite = [](std::string &bytes) {
        bytes.replace(bytes.size() - 500, 500, std::string(500, 'b'));
    };
    afterAppend(overwrite);
    std::size_t whilePrinting = 0;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        if (fields.status != "Approved Printing Receipt" || whilePrinting > 0)
            return;
        whilePrinting = ours();
        std::string bytes = story.station.get(TenderStory::kPending);
        overwrite(bytes);
        story.station.put(TenderStory::kPending, bytes);
    };
    story.run();
    EXPECT_EQ(word(), "Approved");
    EXPECT_EQ(whilePrinting, 1U) << "a kill now would lose it";
    const auto &slips = story.station.printers.collected;
    EXPECT_NE(platform::plainText(slips.at(0).job).find("TransRecord 3"), std::string::npos)
        << "the slip names another's record";
    EXPECT_EQ(story.station.disk.logText().find("write f/Lumbrio/CCPending"), std::string::npos)
        << "no slot is written to that its holder may be writing to";
    EXPECT_EQ(ours(), 1U);
}

TEST_P(Stranger, MovesTheRecordAndItIsNotAppendedAgain)
{
    afterAppend([this](std::string &bytes) {
        story.station.put("F:\\Lumbrio\\data\\0125CCdeleted.dat", bytes.substr(500));
        bytes.resize(500);
    });
    story.run();
    EXPECT_EQ(word(), "Approved");
    EXPECT_EQ(ours(), 0U);
}

TEST_P(Stranger, HasWrittenOverItAndWhereItStandsCannotBeFoundOut)
{
    cannot("open", "CCFinal0125.dat");
    story.station.put("F:\\Lumbrio\\data\\CCFinal0125.dat", "");
    afterAppend([](std::string &bytes) { bytes.replace(500, 500, std::string(500, 'b')); });
    story.run();
    EXPECT_EQ(ours(), 0U);
    EXPECT_EQ(kept().size(), 1U);
}

TEST(NextGuest, IsNotPaidForByThePaymentThatTheGuestBeforeGaveUp)
{
    TenderStory before;
    before.paymentKeepsSilent();
    before.station.time.at(20'000, [&] { before.tender.cancel(); }); // "Cancel"
    before.run();
    TenderStory next(before, 0);
    std::string boxes;
    next.station.dialogs.noteIn(boxes);
    next.request("\"3\",\"2003\",\"7\",\"5.65\"\r\n");
    next.paymentAnswers(support::approvedResult()); // of 48.50
    next.run();
    EXPECT_EQ(next.answer().substr(1, 8), "Declined");
    EXPECT_NE(boxes.find("[OUTCOME UNKNOWN] The payment answered for another amount"),
              std::string::npos);
    EXPECT_TRUE(next.pending().empty());
}

TEST(EmptiedConfiguration, IsWaitedForUntilThePointOfSaleHasWrittenIt)
{
    TenderStory story;
    const std::string whole = story.station.get("C:\\Lumbrio\\LumbrioINI.dat");
    story.station.put("C:\\Lumbrio\\LumbrioINI.dat", "");
    story.station.time.at(600, [&] { story.station.put("C:\\Lumbrio\\LumbrioINI.dat", whole); });
    story.run();
    EXPECT_EQ(story.answer().substr(1, 8), "Approved");
    EXPECT_EQ(story.pending().size(), 1U) << "on the share, where the manager looks";
}

TEST(SwipedCard, StaysInTheRoomThatIsWipedAndKeptOutOfDumps)
{
    TenderStory story;
    story.takeCardsHere();
    std::set<const char *> rooms;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        for (const std::string *text :
             {&fields.cardOrResult, &fields.firstTrack, &fields.secondTrack, &fields.cardNumber})
            rooms.insert(text->data());
    };
    for (const char *typed : {"%", "%B41", "%B41%B4111"}) // character by character
        story.swipe(typed, "", 2000);
    story.swipe(story.kTrack1, story.kTrack2, 2100);
    story.run();
    EXPECT_EQ(story.answer().substr(1, 8), "Approved");
    EXPECT_EQ(rooms.size(), 4U) << "where one moves its old room is given back unwiped";
}

TEST(CommandPressedTwice, ChargesTheCardOnce)
{
    TenderStory first;
    std::string boxes;
    std::string answer;
    std::size_t payments = 0;
    first.station.time.at(2'000, [&] {
        first.station.put("C:\\Lumbrio\\Xsend.ans", "");
        TenderStory second(first, 1);
        second.station.dialogs.noteIn(boxes);
        second.run(10'000);
        payments = second.station.system.started.size();
        EXPECT_TRUE(second.station.run.ending() && second.answered());
    });
    first.run();
    EXPECT_EQ(payments, 0U);
    EXPECT_NE(boxes.find("[A CARD IS BEING TAKEN]"), std::string::npos);
    EXPECT_EQ(first.answer().substr(1, 8), "Approved");
    EXPECT_EQ(first.pending().size(), 1U);
}

TEST(SameTransaction, IsKnownAgainAfterAManagersSaveAndIsNoOther)
{
    CardRecord taken;
    taken.set(CCReceipt, "1043");
    taken.set(CApprovalCode, "A12345");
    CardRecord saved = taken;
    saved.set(CCXcTranID, ""); // was never assigned
    saved.set(CCTip, "5.00");
    EXPECT_TRUE(sameTransaction(taken, saved));
    taken.set(CCXcTranID, "00-2154");
    saved.set(CCXcTranID, "00 2154");
    EXPECT_TRUE(sameTransaction(taken, saved));
    saved.set(CCXcTranID, "00 2155");
    EXPECT_FALSE(sameTransaction(taken, saved));
}

TEST(HostileRequest, BecomesNoOptionOfThePaymentApplicationAndNoControlCharacter)
{
    TenderStory story;
    story.request("\"1\x1B[2J\",\"12\t/USERID:x\",\"7 /CLERK:1\",\"48.50 /AMOUNT:1\"\r\n" +
                  std::string(1U << 20U, 'x'));
    story.run();
    const std::string &line = story.station.system.started.at(0).commandLine;
    EXPECT_NE(line.find("/AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:12 /LOCKRECEIPT /CLERK:7 /LOCKCLERK"),
              std::string::npos)
        << line;
    EXPECT_EQ(story.pending().at(0).text(CCTable), "1 [2J");
    EXPECT_EQ(story.pending().at(0).text(CCReceipt), "12 /USERID:x");
    EXPECT_NE(story.processTrace().find("LONGER THAN 262144 BYTES"), std::string::npos);
}

} // namespace
