// Timers and Run in virtual time: what every wait and every screen relies on.
#include "support/test_station.h"

namespace {

using namespace platform;

TEST(Timers, may_destroy_themselves_and_another_timer_that_is_due)
{
    support::TestStation station;
    int fired = 0;
    std::unique_ptr<Timer> own;
    std::unique_ptr<Timer> other;
    own = std::make_unique<Timer>(station.time, [&, canary = std::vector<int>(100, 7)] {
        own.reset();
        other.reset();
        fired += 10 * canary.back(); // its captures live until it returns
    });
    other = std::make_unique<Timer>(station.time, [&] { ++fired; });
    own->setInterval(50);
    other->setInterval(50);
    station.advance(500);
    EXPECT_EQ(fired, 70);
}

TEST(Runs, do_not_ignore_errors_in_handlers_inside_a_yield)
{
    support::TestStation station;
    bool ignoredInHandler = true;
    station.time.after(10, [&] { ignoredInHandler = station.run.errorsIgnored(); });
    {
        const ErrorsIgnored outer(station.run);
        const ErrorsIgnored inner(station.run);
        station.run.yield();
        EXPECT_TRUE(station.run.errorsIgnored());
    }
    EXPECT_FALSE(ignoredInHandler || station.run.errorsIgnored());
}

TEST(Runs, ask_nobody_once_the_program_ends)
{
    support::TestStation station;
    station.run.end();
    EXPECT_EQ(station.dialogs.message("A", "?", Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(station.dialogs.message("A", "?", Buttons::YesNo), Answer::No);
    EXPECT_FALSE(station.dialogs.input("A", "?"));
}

} // namespace
