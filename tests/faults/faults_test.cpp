// The fault sweep: each operation on a file fails, or is the last that reaches the disk, in one
// scene after the other, and the same questions are asked of what is left. LUMBRIO_FAULT_STRIDE
// takes every Nth point, LUMBRIO_FAULT_SEED says from which one on.
#include "faults/questions.h"

#include <cstdlib>
#include <iostream>

namespace {

using namespace faults;
using support::FaultyDisk;
using Operation = FaultyDisk::Operation;

struct Recipe {
    std::string name;
    std::function<std::unique_ptr<Scene>()> make;
};

std::vector<Recipe> recipes()
{
    std::vector<Recipe> all;
    for (const TenderKind &kind :
         {TenderKind{.name = "command line"}, TenderKind{.name = "request", .local = true},
          TenderKind{.name = "late server", .local = true, .late = true},
          TenderKind{.name = "partial", .partial = true},
          TenderKind{.name = "decline", .declines = true},
          TenderKind{.name = "purchase", .purchase = true},
          TenderKind{.name = "bare station", .bare = true},
          TenderKind{.name = "short slot", .shortTail = true},
          TenderKind{.name = "other spelling", .respelled = true}})
        all.push_back({kind.name, [kind] { return std::make_unique<TenderScene>(kind); }});
    for (const story::Lines &script :
         {story::Lines{"open slot 4", "tip 7.25", "press Done of the entry"},
          {"open slot 4", "press Delete of the entry"},
          {"press Refresh"},
          {"press Finish"},
          {"press Done"},
          {"answer with 01/14/2025", "press Mark Completed"},
          {"press DELETE RED'S"},
          {"Move_Completed"}})
        all.push_back({script.back(), [script] { return std::make_unique<ManagerScene>(script); }});
    return all;
}

enum class Point { Once, File, Drive, All, Kill, TornKill, CutAll, CutNames };

constexpr const char *kWords[] = {"fails",
                                  "fails, and on this file from now on",
                                  "and all like it on this drive fail",
                                  "and all like it fail",
                                  "is stopped",
                                  "is stopped in the midst",
                                  "sees a power cut",
                                  "sees a power cut that leaves the names"};

bool isOneOf(const std::string &word, std::string_view words)
{
    return (" " + std::string(words) + " ").find(" " + word + " ") != std::string::npos;
}

/// Whether an operation can fail that way.
bool canFail(const Operation &operation, Outcome outcome)
{
    const bool writes =
        isOneOf(operation.name, "write append makeDirectory rename remove cutBack") ||
        (operation.name == "open" && operation.details != " to read");
    switch (outcome) {
    case Outcome::Broken: return true;
    case Outcome::Denied: return writes || isOneOf(operation.name, "open look list modified");
    case Outcome::NoRoom: return isOneOf(operation.name, "write append makeDirectory flush");
    case Outcome::Locked: return operation.name == "lock";
    case Outcome::Leased: return operation.name == "open";
    default: return false;
    }
}

/// How far a failure that stays reaches: nothing is read from a share that is gone, everything
/// from one that is full or must not be written to.
bool reaches(Point point, Outcome outcome)
{
    switch (point) {
    case Point::Once: return true;
    case Point::File: return outcome != Outcome::NoRoom;
    case Point::Drive: return outcome != Outcome::Locked && outcome != Outcome::Leased;
    case Point::All: return outcome == Outcome::Broken || outcome == Outcome::NoRoom;
    default: return outcome == Outcome::Broken;
    }
}

std::string driveOf(const std::string &path)
{
    return path.substr(0, path.find('/'));
}

bool isAlike(Point point, Outcome outcome, const Operation &first, const Operation &now)
{
    if (!canFail(now, outcome))
        return false;
    const bool onlyReads = isOneOf(now.name, "look list modified") || now.details == " to read";
    switch (point) {
    case Point::File: return now.path == first.path;
    case Point::Drive:
        return driveOf(now.path) == driveOf(first.path) &&
               (outcome != Outcome::Denied || !onlyReads);
    default: return true;
    }
}

unsigned long setting(const char *name, unsigned long otherwise)
{
    const char *value = std::getenv(name);
    return value == nullptr ? otherwise : std::strtoul(value, nullptr, 10);
}

struct Tally {
    int points = 0, kills = 0, cuts = 0, lost = 0, unrecorded = 0, otherwiseWrong = 0;

    void count(const Questions &questions, const Happened &happened)
    {
        const std::string lostNow = questions.recordsLost();
        const std::string unrecordedNow = questions.unrecorded();
        const std::string wrongNow = questions.otherwiseWrong();
        lost += lostNow.empty() ? 0 : 1;
        unrecorded += unrecordedNow.empty() ? 0 : 1;
        otherwiseWrong += wrongNow.empty() ? 0 : 1;
        const std::string all = lostNow + unrecordedNow + wrongNow;
        if (!all.empty())
            ADD_FAILURE() << happened.where << (happened.again ? ", at the next start" : "") << ": "
                          << all;
    }
};

class Sweep {
public:
    Sweep(const Recipe &theRecipe, Tally &theTally)
        : recipe(theRecipe), tally(theTally),
          scene(recipe.make()), undisturbed{Drives(scene->station()), Drives(scene->station())}
    {
        scene->station().disk.looksCount = true;
        scene->act();
        operations = scene->station().disk.operationsDone();
        undisturbed.after = Drives(scene->station());
        const Questions questions(*scene, undisturbed.after, undisturbed, {});
        EXPECT_EQ(questions.recordsLost() + questions.unrecorded() + questions.otherwiseWrong(), "")
            << recipe.name;
        EXPECT_EQ(questions.inCardFiles(), scene->charged() ? 1U : 0U) << recipe.name;
        EXPECT_EQ(scene->notFired(), story::Lines()) << recipe.name;
        scene->next()->act();
        EXPECT_FALSE(Drives(scene->station()).hold("/xresultfile-"))
            << recipe.name << ": put aside";
    }

    /// Every `stride`th point from the one on that `count` says.
    void run(unsigned long &count, unsigned long stride)
    {
        for (std::size_t n = 1; n <= operations.size() + 1; ++n)
            for (int point = 0; point <= static_cast<int>(Point::CutNames); ++point)
                for (const Outcome outcome : {Outcome::Broken, Outcome::Denied, Outcome::NoRoom,
                                              Outcome::Locked, Outcome::Leased})
                    if (makesSense(n, static_cast<Point>(point), outcome) && count++ % stride == 0)
                        disturb(n, static_cast<Point>(point), outcome);
    }

private:
    bool makesSense(std::size_t n, Point point, Outcome outcome) const
    {
        if (!reaches(point, outcome))
            return false;
        const bool cut = point >= Point::CutAll;
        if (cut) // behind a change
            return n > 1 && canFail(operations[n - 2], Outcome::Denied);
        if (n > operations.size())
            return false;
        if (point == Point::TornKill)
            return isOneOf(operations[n - 1].name, "write append");
        return point == Point::Kill || canFail(operations[n - 1], outcome);
    }

    void disturb(std::size_t n, Point point, Outcome outcome)
    {
        scene = recipe.make();
        Happened happened;
        prepare(n, point, outcome, happened);
        scene->act();
        // Only the last one, behind all operations, cannot fire: then nothing fails.
        EXPECT_EQ(scene->station().disk.operations() >= n, n <= operations.size())
            << happened.where << ": it never fired";
        if (point >= Point::CutAll)
            scene->station().disk.unflushed->cutPower(point == Point::CutNames);
        const Drives drives(scene->station());
        tally.count(Questions(*scene, drives, undisturbed, happened), happened);
        lookAtNextStart(happened);
    }
    void prepare(std::size_t n, Point point, Outcome outcome, Happened &happened)
    {
        FaultyDisk &disk = scene->station().disk;
        disk.looksCount = true;
        const Operation first = n > operations.size() ? Operation{} : operations[n - 1];
        happened.where = recipe.name + ": " + std::to_string(n) + " " + first.name + " " +
                         first.path + first.details + " " + kWords[static_cast<int>(point)] +
                         (point < Point::Kill ? std::string(": ") + textOf(outcome) : "");
        happened.stopped = point >= Point::Kill;
        happened.torn = point >= Point::TornKill;
        happened.lasting = point > Point::Once && point < Point::Kill;
        if (point >= Point::CutAll)
            disk.unflushed = std::make_unique<support::Unflushed>();
        if (happened.stopped)
            disk.stopAt(
                n, [this] { scene->station().run.end(); }, point == Point::TornKill);
        else if (point == Point::Once)
            disk.failAt(n, outcome, true);
        else
            disk.failFrom(n, outcome, [=](const Operation &now) {
                return isAlike(point, outcome, first, now);
            });
        ++(point < Point::Kill ? tally.points : point < Point::CutAll ? tally.kills : tally.cuts);
    }
    void lookAtNextStart(Happened happened)
    {
        happened.again = true;
        const std::unique_ptr<Scene> next = scene->next();
        next->act();
        const Drives drives(scene->station());
        tally.count(Questions(*scene, drives, undisturbed, happened), happened);
        const Questions ofNext(*next, drives, undisturbed, {.where = happened.where});
        EXPECT_EQ(ofNext.inCardFiles(), next->charged() ? 1U : 0U)
            << "of the next guest, after: " << happened.where;
    }

    const Recipe &recipe;
    Tally &tally;
    std::unique_ptr<Scene> scene;
    Undisturbed undisturbed;
    std::vector<Operation> operations;
};

TEST(FaultSweep, FindsNoChargeWithoutATraceAndNoRecordLostOrDoubled)
{
    const unsigned long stride = std::max(setting("LUMBRIO_FAULT_STRIDE", 149), 1UL);
    const unsigned long seed = setting("LUMBRIO_FAULT_SEED", 0);
    std::cout << "stride " << stride << ", seed " << seed << std::endl;
    Tally tally;
    unsigned long count = seed % stride;
    for (const Recipe &recipe : recipes()) {
        const Tally so = tally;
        Sweep(recipe, tally).run(count, stride);
        std::cout << recipe.name << ": " << tally.points - so.points << " failures, "
                  << tally.kills - so.kills << " kills, " << tally.cuts - so.cuts << " power cuts"
                  << std::endl;
    }
    std::cout << "points tried " << tally.points << ", kills " << tally.kills << ", power cuts "
              << tally.cuts << ", records lost " << tally.lost << ", charged without record "
              << tally.unrecorded << ", otherwise wrong " << tally.otherwiseWrong << std::endl;
}

} // namespace
