// Stage: where a story is played. The base knows the station and the words of every room; a room
// derives, adds its own words and says what it tells. The language is in tests/README.md.
#pragma once

#include "records/configuration.h"
#include "story/told.h"
#include "support/test_station.h"

#include <deque>
#include <functional>
#include <list>
#include <map>

namespace story {

class Stage {
public:
    explicit Stage(support::TestStation &theStation);
    virtual ~Stage() = default;
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

    /// Does the given lines, the script, and what they lead to.
    Told perform(const Lines &given, const Lines &script);

protected:
    using Words = const std::string &;
    using Act = std::function<void(Words)>;
    using Test = std::function<bool()>;

    // What a room adds in its constructor.

    /// A word of the language: the line begins with it, the act gets the rest of the line.
    void word(Words beginning, Act act) { words[beginning] = std::move(act); }
    /// "press CAPTION", for a command that can be pressed now; one without `enabled` always can.
    void command(Words caption, std::function<void()> press, Test enabled = {});
    /// "when NAME: ..." may be said in a script; the room calls happen(NAME) when it does.
    void event(Words name) { happened[name] = 0; }

    // What a room does while it plays.

    void happen(Words event);
    /// Tells a line under the script's line that is being done; those of a title stand together.
    void tell(Words line, Words title = {});
    /// A part told as what has changed since the last part of that title (a look at a screen).
    /// The first one of a title is told against the last one of its sibling's.
    void tellChanges(Words title, const Lines &lines, Words sibling = {});
    /// The story fails, with the line that is being done.
    void complain(Words text);
    /// Does one line of the language.
    void act(Words line);

    // What a room may say otherwise.

    /// "press", where it is not one of the commands above.
    virtual void press(Words caption, bool thoughDisabled);
    /// "configure 95 = 18": writes LumbrioINI.dat with this field on top of what it has.
    virtual void configure(int field, Words text);
    /// A box came up; as it is told, with its captions.
    virtual void boxShown(Words box) { tell(box); }
    /// After each line without a moment: what a room tells step by step.
    virtual void lineDone() {}
    /// When all lines without a moment are done: to the end, where the lines do not lead there.
    virtual void play() {}
    /// What the story leaves behind; empty parts are left out.
    virtual std::vector<Section> leftBehind() { return {}; }

    support::TestStation &station;
    records::LumbrioConfig config; // what "configure" has set

private:
    static constexpr std::size_t kNoLine = Lines::size_type(-1);

    struct Line {
        std::size_t number = kNoLine; // of the script, from 1; 0: a given one
        std::string text;
    };

    void addWords();
    void addFaultWords();
    void begin(const Line &line);
    void doNow(const Line &line, const std::string &rest);
    void doAt(std::uint64_t moment, const Line &line, const std::string &rest);
    void doWhen(const Line &line, std::string rest);
    void fail(std::string rest);
    std::string answerTo(const std::string &box, const Lines &captions);
    void complainOfWhatNeverFired();
    std::vector<Section> &partsOfLine();

    std::map<std::string, Act> words;
    std::map<std::string, std::pair<std::function<void()>, Test>> commands;
    std::map<std::string, int> happened;
    std::multimap<std::string, std::pair<Line, std::string>> whens; // by event and how often
    std::deque<std::pair<Line, std::string>> answers;
    std::vector<std::pair<Line, std::pair<std::string, std::string>>> faults;
    std::list<Line> awaited; // lines with a moment that has not come
    Line current;
    Told telling;
};

/// "2.5 s", "100 ms" at the beginning; the rest is left in `words`, without ": " before it.
std::uint64_t takeTime(std::string &words);
/// The words before the mark, which are taken from the beginning; all when it is not there.
std::string takeUntil(std::string &words, const std::string &mark);
/// \r, \n, \0 and \x1B of a script as the bytes they stand for.
std::string bytesOf(const std::string &words);

} // namespace story
