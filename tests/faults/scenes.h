// Scenes: a program at work on the restaurant's files from its start to its end, and its next
// start.
#pragma once

#include "support/card_text.h"
#include "support/manager_stage.h"
#include "support/tender_story.h"
#include "support/test_files.h"

#include <algorithm>
#include <filesystem>

namespace faults {

using platform::Outcome;
using support::recordOf;
using support::slotOf;
using support::TestStation;

constexpr const char *kPending = "F:\\Lumbrio\\CCPending.dat";
constexpr const char *kMonth = "F:\\Lumbrio\\data\\CCFinal0125.dat";
constexpr const char *kDeleted = "F:\\Lumbrio\\data\\0125CCdeleted.dat";
constexpr std::uint64_t kOthersGoOn = 10'000; // ms, when a program has ended

struct Scene {
    virtual ~Scene() = default;
    virtual TestStation &station() = 0;
    /// Until the program has ended, and what the other side does then.
    virtual void act() = 0;
    /// The next start of the role, when all is well again.
    virtual std::unique_ptr<Scene> next() = 0;
    virtual bool charged() const { return false; }
    /// What of its script did not happen.
    virtual story::Lines notFired() const { return {}; }
    /// What is wrong with it that cannot be seen on the disk.
    virtual std::string amiss() const { return {}; }

    std::string receipt; // of the guest of this tender
    std::string code;    // that the bank gives
    std::string boxes;   // that somebody has read
};

struct TenderKind {
    const char *name;
    bool local = false;
    bool late = false;     // the payment server looks for requests late
    bool declines = false; // the bank declines
    bool partial = false;
    bool purchase = false;
    bool bare = false;      // the station has no folder Data, no month file, nothing pending
    bool shortTail = false; // the last record is not filled up, as older writers leave it
    bool respelled = false; // names are spelled otherwise on the disk
};

class TenderScene : public Scene {
public:
    explicit TenderScene(const TenderKind &theKind) : kind(theKind)
    {
        if (!kind.bare) {
            story.station.put(kPending, slotOf("CCReceipt=1") + slotOf("CCReceipt=2;CCTip=5") +
                                            slotOf("CCReceipt=3").substr(0, tailLength()));
            story.station.put(kMonth, slotOf("CCReceipt=4;CCAdjStatus=Completed"));
            story.station.put(kDeleted, slotOf("CCReceipt=5;CCstatus=Declined"));
        }
        story.station.put("C:\\Lumbrio\\Xsend.ans", "\"Approved\"\r\nof the guest before\r\n");
        if (kind.purchase)
            story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        if (kind.bare)
            story.station.erase("C:\\Lumbrio\\Data");
        if (kind.respelled)
            respell();
        begin("1043", kind.local ? "A12345" : "012345");
    }
    explicit TenderScene(TenderScene &earlier)
        : kind(earlier.kind), again(true), story(earlier.story, 0)
    {
        kind.declines = kind.partial = false;
        begin("1044", kind.local ? "B67890" : "067890");
    }

    TestStation &station() override { return story.station; }
    std::unique_ptr<Scene> next() override { return std::make_unique<TenderScene>(*this); }
    bool charged() const override { return chargedAt > 0 && !kind.declines; }
    void act() override
    {
        story.run(kLongest);
        endedAt = story.station.time.milliseconds();
        story.app.roleLock.release();
        noticeCharge();
        if (!kind.late || chargedAt > 0)
            story.station.time.rest(kOthersGoOn);
        noticeCharge();
    }
    std::string amiss() const override
    {
        std::string text;
        if (story.stillWaiting || (chargedAt > 0 && endedAt > chargedAt + kLongestWait))
            text += "nobody gets away; ";
        if (story.station.system.started.size() > 1 || story.requests.size() > 1)
            text += "charged twice; ";
        if (again && story.requests.size() == 1 &&
            story.requests[0].find(receipt) == std::string::npos)
            text += "a dead tender's request charged; ";
        return text;
    }

private:
    static constexpr std::uint64_t kLongest = 150'000;    // ms
    static constexpr std::uint64_t kSwipes = 3000;        // ms, from one to the next
    static constexpr std::uint64_t kPatience = 58'000;    // ms, of the operator
    static constexpr std::uint64_t kLongestWait = 65'000; // from the charge, answered in 3 s

    std::size_t tailLength() const { return kind.shortTail ? 490 : 500; }
    void respell()
    {
        const std::string drive = story.station.drives.root() + "/f/";
        std::filesystem::rename(drive + "Lumbrio/CCPending.dat", drive + "Lumbrio/ccpending.DAT");
        std::filesystem::rename(drive + "Lumbrio/data/CCFinal0125.dat",
                                drive + "Lumbrio/data/CCFINAL0125.dat");
        std::filesystem::rename(drive + "Lumbrio", drive + "lumbrio");
    }
    void begin(const std::string &theReceipt, const std::string &theCode)
    {
        receipt = theReceipt;
        code = theCode;
        story.station.dialogs.noteIn(boxes);
        story.station.time.everyTurn = [this] { operatorActs(); };
        story.request("\"12\",\"" + receipt + "\",\"7\",\"48.50\"\r\n");
        std::string result =
            support::approvedResult() + (kind.partial ? "ADDITIONALFUNDSREQUIRED=20.00\r\n" : "");
        result.replace(result.find("012345"), code.size(), code);
        story.paymentAnswers(kind.declines ? "RESULT=DECLINED\r\n" : result);
        if (!kind.local)
            return;
        story.reply.reset();
        story.station.time.at(kind.late ? 5000 : 0,
                              [this] { story.reply = "\"Y" + code + "\"\r\n"; });
        story.takeCardsHere();
    }
    /// Never within a wait that only repaints.
    void operatorActs()
    {
        noticeCharge();
        const std::uint64_t now = story.station.time.milliseconds();
        if (kind.local && now >= swipesAt) {
            swipesAt = now + kSwipes;
            story.tender.takeFirstTrack(story.kTrack1);
            story.tender.takeSecondTrack(story.kTrack2);
        }
        if (now >= kPatience && !story.station.run.ending())
            story.tender.cancel();
    }
    void noticeCharge()
    {
        if (chargedAt == 0 && !(story.station.system.started.empty() && story.requests.empty()))
            chargedAt = story.station.time.milliseconds();
    }

    TenderKind kind;
    bool again = false;
    std::uint64_t swipesAt = 500; // ms
    std::uint64_t chargedAt = 0;
    std::uint64_t endedAt = 0;
    support::TenderStory story;
};

/// A night of the manager, from the start of the program to a command, told in the stories' words.
class ManagerScene : public Scene {
public:
    explicit ManagerScene(story::Lines theScript) : script(std::move(theScript))
    {
        night.station.put(kPending, support::ManagerStage::evening());
        night.station.put(kMonth, slotOf("CCReceipt=5;CCAdjStatus=Completed"));
    }
    /// A tip or a deletion is not made again.
    explicit ManagerScene(ManagerScene &earlier)
        : script(!earlier.script.empty() && earlier.script.front() == "open slot 4"
                     ? story::Lines()
                     : earlier.script),
          night(&earlier.night.station)
    {
    }

    TestStation &station() override { return night.station; }
    std::unique_ptr<Scene> next() override { return std::make_unique<ManagerScene>(*this); }
    void act() override
    {
        const story::Told told = night.perform({"start the program", "load the list"}, script);
        night.app.roleLock.release();
        unfired = told.complaints;
    }
    story::Lines notFired() const override { return unfired; }

private:
    story::Lines script;
    story::Lines unfired;
    support::ManagerStage night;
};

} // namespace faults
