// Scenes: a program at work on the restaurant's files from its start to its end, and its next
// start.
#pragma once

#include "details/entry_commands.h"
#include "manager/manager_start.h"
#include "pending/pending_story.h"
#include "records/text.h"
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
    /// What is wrong with it that cannot be seen on the disk.
    virtual std::string amiss() const { return {}; }

    std::string receipt; // of the guest of this tender
    std::string code;    // that the bank gives
    std::string boxes;   // that somebody has read
};

struct TenderKind {
    const char *name;
    bool local = false;
    bool late = false;     // the payment server, to look for requests
    bool declines = false; // the bank
    bool partial = false;
    bool purchase = false;
    bool bare = false;      // the station: no folder Data, no month file, nothing pending
    bool shortTail = false; // behind the last record, as older writers leave it
    bool respelled = false; // on the disk
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
        story.station.dialogs.noted = &boxes;
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

/// A command of the manager's list, behind its load.
class ManagerScene : public Scene, manager::ManagerStartView, platform::WindowlessView {
public:
    explicit ManagerScene(std::string theCommand) : command(std::move(theCommand))
    {
        std::string three = slotOf("CCReceipt=3;CCDate=01/14/25");
        night.station.put(kPending, slotOf("CCReceipt=1;CCAdjStatus=Completed") +
                                        slotOf("CCReceipt=2;CCstatus=Declined") + slotOf("empty") +
                                        three.replace(490, 10, "behind it ") +
                                        slotOf("CCReceipt=4;CCAdjStatus= Not"));
        night.station.put(kMonth, slotOf("CCReceipt=5;CCAdjStatus=Completed"));
        records::LumbrioConfig config;
        config.set(records::kMaindir, "C:\\Lumbrio\\");
        config.set(records::kRemotedir, "F:\\Lumbrio\\");
        night.station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
        night.station.dialogs.typed = "01/14/2025";
    }
    explicit ManagerScene(ManagerScene &earlier) : command(earlier.command), night(&earlier.night)
    {
        night.station.dialogs.typed = "01/14/2025";
        if (!rewrites())
            command.clear();
    }

    TestStation &station() override { return night.station; }
    std::unique_ptr<Scene> next() override { return std::make_unique<ManagerScene>(*this); }
    void act() override
    {
        manager::ManagerStart start(night.app, *this, {});
        start.Form_Load();
        night.list.Form_Load();
        if (!night.station.run.ending())
            press();
        night.app.roleLock.release();
        boxes = night.happened + night.panel;
    }

private:
    bool rewrites() const { return command != "tip" && command != "Delete"; }
    void press()
    {
        const details::Commands commands = {
            {"tip",
             [&] {
                 pressEntry({"tip 7.25", "Done"});
             }},
            {"Delete", [&] { pressEntry({"Delete"}); }},
            {"Finish", [&] { night.list.finish(); }},
            {"Done", [&] { night.list.leave(); }},
            {"Mark Completed", [&] { night.list.markDayCompleted(); }},
            {"DELETE RED'S", [&] { night.list.deleteDeclines(); }},
            {"Move_Completed", [&] { records::moveSettledRecords(night.app); }},
        };
        details::doFirst(commands, command);
    }
    void pressEntry(const std::vector<std::string> &presses)
    {
        night.showEntry(kPending, 4);
        for (const std::string &each : presses)
            if (!night.station.run.ending())
                details::pressEntry(night.entry, each);
    }
    void refresh(const manager::ManagerStartFields &) override {}

    std::string command;
    pending::Story night;
};

} // namespace faults
