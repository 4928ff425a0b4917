// The kit itself: what it shows must say exactly one thing, and what never fired must not pass.
#include "story/stage.h"

#include <random>

namespace {

using story::Lines;

TEST(Differences, MakeTheOneTextOfTheOtherAndNothingElse)
{
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        const auto text = [&] {
            Lines lines;
            for (auto count = random() % 12; count > 0; --count)
                lines.push_back(std::string(1, static_cast<char>('a' + random() % 3)) +
                                (random() % 2 == 0 ? " 1" : ""));
            return lines;
        };
        const Lines before = text();
        const Lines now = text();
        const Lines shown = story::differences(before, now);
        EXPECT_EQ(story::applied(before, shown), now) << testing::PrintToString(shown);
        EXPECT_EQ(shown.empty(), before == now);
    }
    EXPECT_EQ(story::applied({"a", "b"}, {"- c"}), std::nullopt);
}

TEST(NeverFired, FailsTheStoryAndNamesTheLine)
{
    class Room : public story::Stage {
    public:
        explicit Room(support::TestStation &theStation) : Stage(theStation)
        {
            command(
                "OK", [] {}, [] { return false; });
            word("ask", [this](Words) { station.services.dialogs.message("Title", "Text"); });
        }
        void play() override { station.advance(1000); }
    };
    for (const auto &[line, complaint] :
         {std::pair("at 2 s: end", "its moment never came"),
          {"when a box is open: end", "that never happened"},
          {"when nothing: end", "nothing is called so here"},
          {"answer Ok", "nobody was asked"},
          {"ask", "nobody answers [Title] Text (Ok)"},
          {"fail append X.dat", "nothing met it"},
          {"fail append X.dat, no luck", "there is no such outcome"},
          {"lock X.dat", "nothing met it"},
          {"erase C:\\X.dat", "there is none"},
          {"press Cancel", "there is no such command"},
          {"press OK", "it is disabled"},
          {"pray", "no such word"}}) {
        support::TestStation station;
        const story::Told told = Room(station).perform({}, {line});
        ASSERT_FALSE(told.complaints.empty()) << line;
        EXPECT_EQ(told.complaints[0], "\"" + std::string(line) + "\": " + complaint);
    }
}

} // namespace
