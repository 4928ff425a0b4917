// Telling: plays the script of a story, a line each of moment (ms, "first", or an event and which
// one of its kind), verb and words. "*" stands for an approved result.
#pragma once

#include "support/tender_story.h"
#include "support/test_files.h"

#include <filesystem>

namespace support {

class Telling {
public:
    Telling() = default;
    Telling(const Telling &) = delete;
    Telling &operator=(const Telling &) = delete;
    virtual ~Telling() = default;

    /// What is seen in the story and what it leaves behind.
    virtual std::string tell(const std::string &script) = 0;

protected:
    struct Words {
        std::string all, first, rest; // both at the bar, or else at the first blank
    };
    using W = const Words &;

    void listen(const std::string &script)
    {
        for (const std::string &line : platform::splitLines(script)) {
            const std::string moment = line.substr(0, line.find(' '));
            const std::string rest = line.substr(moment.size() + 1);
            if (moment == "first")
                act(rest);
            else if (std::isdigit(moment[0]) != 0)
                story.station.time.at(std::stoull(moment), [this, rest] { act(rest); });
            else
                events.emplace(moment, rest);
        }
    }
    void happen(const std::string &event)
    {
        const std::string nth = event + "-" + std::to_string(++happened[event]);
        for (const std::string &each : {event, nth})
            for (auto [at, end] = events.equal_range(each); at != end; ++at)
                act(at->second);
    }

    TenderStory story;
    std::string seen;
    std::map<std::string, std::function<void(W)>> verbs = {
        {"put", [&](W w) { story.station.put(w.first, w.rest); }},
        {"erase", [&](W w) { story.station.erase(w.all); }},
        {"configure", [&](W w) { story.configure(std::stoi(w.first), w.rest); }},
        {"refuse", [&](W w) { story.station.disk.failOn(w.first, w.rest, Outcome::Denied); }},
        {"lock", [&](W w) { story.station.disk.failOn("lock", w.all, Outcome::Locked); }},
        {"payment", [&](W w) { story.paymentAnswers(w.all); }},
        {"late-payment", [&](W w) { story.paymentAnswers(w.all, story.replyAfter); }},
        {"take-cards-here", [&](W) { story.takeCardsHere(); }},
        {"reply", [&](W w) { story.reply = w.all; }},
        {"long-reply", [&](W) { story.reply = std::string(100'000, 'Z'); }},
        {"reply-after", [&](W w) { story.replyAfter = std::stoull(w.all); }},
        {"silent",
         [&](W) {
             story.reply = std::nullopt;
             story.paymentKeepsSilent();
         }},
        {"dialog",
         [&](W w) {
             story.station.dialogs.answerNext(w.all == "Ok" ? Answer::Ok : Answer::Cancel,
                                              [this] { happen("dialog"); });
         }},
        {"approve", [&](W w) { story.app.values.managerResult = w.all; }},
        {"pass", [&](W w) { story.pass(std::stoull(w.all)); }},
        {"end", [&](W) { story.station.run.end(); }},
    };

private:
    using Answer = platform::Answer;
    using Outcome = platform::Outcome;

    void act(const std::string &line)
    {
        const auto halves = [](const std::string &text, std::size_t at) {
            at = std::min(at, text.size());
            return std::pair(text.substr(0, at), text.substr(std::min(at + 1, text.size())));
        };
        auto [name, words] = halves(line, line.find(' '));
        const auto verb = verbs.find(name);
        ASSERT_NE(verb, verbs.end()) << line;
        for (const auto &[what, by] : {std::pair(R"(\r)", std::string("\r")),
                                       {R"(\n)", "\n"},
                                       {R"(\0)", std::string(1, '\0')},
                                       {"|*", "|" + approvedResult()}})
            words = replaced(words, what, by);
        if (words.starts_with('*'))
            words = approvedResult() + words.substr(1);
        const std::size_t bar = words.find('|');
        const auto [first, rest] = halves(words, bar == words.npos ? words.find(' ') : bar);
        verb->second({words, first, rest});
    }

    std::multimap<std::string, std::string> events; // of one event in order of entry
    std::map<std::string, int> happened;
};

/// Each file of the folder below tests/golden: above its "----" the script, below it what is told.
template <class Teller> void expectStories(const std::string &folder, std::size_t count)
{
    std::size_t told = 0;
    for (const auto &entry : std::filesystem::directory_iterator(TESTS_DIR "/golden/" + folder)) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        const std::string golden = testFile("golden/" + folder + "/" + name);
        const std::string script = golden.substr(0, golden.find("----\n"));
        EXPECT_EQ(script + "----\n" + Teller().tell(script), golden);
        ++told;
    }
    EXPECT_EQ(told, count);
}

} // namespace support
