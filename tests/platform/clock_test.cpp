// Clock, Timer and Run in virtual time: what every wait and every screen relies on.
#include "support/virtual_time.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace platform {
namespace {

using support::VirtualTime;

struct SteppedClock : Clock {
    std::uint64_t value = 0;
    DateTime now() const override { return {}; }
    std::uint64_t milliseconds() const override { return value; }
};

TEST(DateTimeTest, weekdayOverLeapDaysAndCenturies)
{
    struct Case {
        DateTime date;
        int weekday;
    };
    for (const Case &each :
         {Case{{2025, 1, 15, 0, 0, 0, 0}, 3}, Case{{2024, 2, 29, 0, 0, 0, 0}, 4},
          Case{{2024, 3, 1, 0, 0, 0, 0}, 5}, Case{{2000, 2, 29, 0, 0, 0, 0}, 2},
          Case{{1999, 12, 31, 0, 0, 0, 0}, 5}, Case{{2100, 3, 1, 0, 0, 0, 0}, 1}}) {
        EXPECT_EQ(each.date.weekday(), each.weekday) << each.date.year << "-" << each.date.month;
    }
}

TEST(TimerTest, oneThatWasLateFiresOnceAndNotInABurst)
{
    SteppedClock clock;
    int fired = 0;
    Timer timer(clock, [&] { ++fired; });
    timer.setInterval(10);
    clock.value += 95; // the program was busy
    clock.fireDueTimers();
    clock.fireDueTimers();
    EXPECT_EQ(fired, 1);
    clock.value += 10;
    clock.fireDueTimers();
    EXPECT_EQ(fired, 2);
}

TEST(TimerTest, mayDestroyItselfAndOneThatIsDueWithIt)
{
    VirtualTime time;
    int fired = 0;
    std::unique_ptr<Timer> own;
    std::unique_ptr<Timer> other;
    own = std::make_unique<Timer>(time, [&, canary = std::vector<int>(100, 7)] {
        own.reset();
        other.reset();
        fired += 10 * canary.back(); // its captures live until it returns
    });
    other = std::make_unique<Timer>(time, [&] { ++fired; });
    own->setInterval(50);
    other->setInterval(50);
    time.advance(500);
    EXPECT_EQ(fired, 70);
}

TEST(TimerTest, goesOnWhileTheHandlerOfAnotherWaits)
{
    VirtualTime time;
    int counts = 0;
    Timer counter(time, [&] { ++counts; });
    Timer waiting(time, [&] {
        waiting.setInterval(0);
        time.advance(960 * 5);
    });
    counter.setInterval(960);
    waiting.setInterval(1);
    time.advance(1);
    EXPECT_EQ(counts, 5);
}

TEST(RunTest, handlersInsideAYieldDoNotInheritIgnoredErrors)
{
    VirtualTime time;
    platform::Run run(time);
    std::optional<bool> inHandler;
    time.after(10, [&] { inHandler = run.errorsIgnored(); });
    {
        const ErrorsIgnored outer(run);
        const ErrorsIgnored inner(run);
        run.yield();
        EXPECT_TRUE(run.errorsIgnored());
    }
    EXPECT_EQ(inHandler, false);
    EXPECT_FALSE(run.errorsIgnored());
}

TEST(RunTest, theFirstFailureEndsTheRunAndIsSaidOnce)
{
    VirtualTime time;
    platform::Run run(time);
    std::vector<std::string> said;
    run.reportFailure = [&](const std::string &text) {
        said.push_back(text);
        run.fail("read", "c:\\second.dat", Outcome::Broken); // by a timer behind the message
    };
    run.fail("lock", "C:\\Lumbrio\\Data\\CCPending.dat", Outcome::Locked);
    EXPECT_TRUE(run.ending());
    EXPECT_TRUE(run.failed());
    ASSERT_EQ(said.size(), 1U);
    EXPECT_NE(said[0].find("lock"), std::string::npos);
    EXPECT_NE(said[0].find("C:\\Lumbrio\\Data\\CCPending.dat"), std::string::npos);
}

} // namespace
} // namespace platform
