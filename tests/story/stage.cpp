#include "story/stage.h"

#include "records/text.h"

#include <algorithm>
#include <cstdlib>

namespace story {

namespace {

using platform::Outcome;

constexpr const char *kThoughDisabled = ", though disabled";

std::optional<Outcome> outcomeNamed(const std::string &name)
{
    for (const Outcome outcome :
         {Outcome::Done, Outcome::NotThere, Outcome::Locked, Outcome::Leased, Outcome::NoRoom,
          Outcome::Denied, Outcome::Broken})
        if (platform::textOf(outcome) == name)
            return outcome;
    return {};
}

/// "2025-01-31 23:59:58"
platform::DateTime momentOf(const std::string &text)
{
    const auto number = [&](std::size_t at, std::size_t length) {
        return std::atoi(text.substr(std::min(at, text.size()), length).c_str());
    };
    return {
        number(0, 4), number(5, 2), number(8, 2), number(11, 2), number(14, 2), number(17, 2), 0};
}

} // namespace

std::uint64_t takeTime(std::string &words)
{
    char *end = nullptr;
    const double number = std::strtod(words.c_str(), &end);
    words.erase(0, static_cast<std::size_t>(end - words.c_str()));
    const bool milliseconds = words.starts_with(" ms");
    words.erase(0, milliseconds ? 3 : words.starts_with(" s") ? 2 : 0);
    words.erase(0, words.starts_with(": ") ? 2 : 0);
    return static_cast<std::uint64_t>(number * (milliseconds ? 1 : 1000) + 0.5);
}

std::string takeUntil(std::string &words, const std::string &mark)
{
    const std::size_t at = std::min(words.find(mark), words.size());
    const std::string taken = words.substr(0, at);
    words.erase(0, at + mark.size());
    return taken;
}

std::string bytesOf(const std::string &words)
{
    std::string bytes;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const char next = words[i] == '\\' && i + 1 < words.size() ? words[i + 1] : ' ';
        i += std::string("rn0x").find(next) == std::string::npos ? 0 : 1;
        if (next == 'x') {
            bytes += static_cast<char>(std::strtol(words.substr(i + 1, 2).c_str(), nullptr, 16));
            i += 2;
        } else {
            bytes += next == 'r' ? '\r' : next == 'n' ? '\n' : next == '0' ? '\0' : words[i];
        }
    }
    return bytes;
}

Stage::Stage(support::TestStation &theStation) : station(theStation)
{
    station.dialogs.person = [this](const std::string &box, const Lines &captions) {
        return answerTo(box, captions);
    };
    event("a box is open");
    addWords();
    addFaultWords();
}

Told Stage::perform(const Lines &given, const Lines &script)
{
    telling.steps.resize(script.size() + 1);
    for (const std::string &line : given)
        begin({0, line});
    for (std::size_t i = 0; i < script.size(); ++i)
        begin({i + 1, script[i]});
    current = {};
    play();
    complainOfWhatNeverFired();
    for (Section &section : leftBehind())
        telling.left.push_back(std::move(section));
    telling.steps.push_back(std::move(telling.left));
    for (std::vector<Section> &sections : telling.steps)
        for (Section &section : sections)
            std::transform(section.lines.begin(), section.lines.end(), section.lines.begin(),
                           plain);
    telling.left = std::move(telling.steps.back());
    telling.steps.pop_back();
    return telling;
}

void Stage::begin(const Line &line)
{
    std::string rest = line.text;
    if (rest.starts_with("at ")) {
        rest.erase(0, 3);
        const std::uint64_t moment = takeTime(rest);
        doAt(moment, line, rest);
    } else if (rest.starts_with("after ")) {
        rest.erase(0, 6);
        const std::uint64_t later = takeTime(rest);
        doAt(station.time.milliseconds() + later, line, rest);
    } else if (rest.starts_with("when ")) {
        doWhen(line, rest.substr(5));
    } else {
        doNow(line, rest);
        current = line;
        lineDone();
    }
}

void Stage::doNow(const Line &line, const std::string &rest)
{
    const Line before = std::exchange(current, line);
    act(rest);
    current = before;
}

void Stage::doAt(std::uint64_t moment, const Line &line, const std::string &rest)
{
    station.time.at(moment, [this, line, rest, place = awaited.insert(awaited.end(), line)] {
        awaited.erase(place);
        doNow(line, rest);
    });
}

void Stage::doWhen(const Line &line, std::string rest)
{
    std::string name = takeUntil(rest, ": ");
    std::string times = "1";
    if (const std::size_t at = name.find(" ("); at != name.npos) {
        times = name.substr(at + 2, name.size() - at - 3);
        name.erase(at);
    }
    current = line;
    if (happened.contains(name))
        whens.emplace(name + " " + times, std::pair(line, rest));
    else
        complain("nothing is called so here");
}

void Stage::happen(Words name)
{
    const std::string event = name + " " + std::to_string(++happened[name]);
    std::vector<std::pair<Line, std::string>> now;
    for (auto [at, end] = whens.equal_range(event); at != end; ++at)
        now.push_back(at->second);
    whens.erase(event);
    for (const auto &[line, does] : now)
        doNow(line, does);
}

void Stage::act(Words line)
{
    const Act *act = nullptr;
    std::size_t length = 0;
    for (const auto &[beginning, does] : words)
        if (line.starts_with(beginning) && beginning.size() >= length &&
            (line.size() == beginning.size() ||
             std::string(" :,").find(line[beginning.size()]) != std::string::npos)) {
            act = &does;
            length = beginning.size();
        }
    if (act == nullptr)
        return complain("no such word");
    const bool marked = line.size() > length && line[length] != ' '; // by a colon or a comma
    (*act)(line.substr(std::min(length + (marked ? 2 : 1), line.size())));
}

void Stage::addWords()
{
    word("put", [this](std::string rest) {
        const std::string path = takeUntil(rest, " |");
        station.put(path, bytesOf(rest.substr(rest.starts_with(' ') ? 1 : 0)));
    });
    word("erase", [this](Words path) {
        if (!station.erase(path))
            complain("there is none");
    });
    word("configure", [this](std::string rest) {
        const std::string field = takeUntil(rest, " =");
        configure(std::atoi(field.c_str()), rest.substr(rest.starts_with(' ') ? 1 : 0));
    });
    word("press", [this](std::string caption) {
        const bool disabled = caption.ends_with(kThoughDisabled);
        if (disabled)
            caption.erase(caption.size() - std::string(kThoughDisabled).size());
        press(caption, disabled);
    });
    word("answer", [this](Words said) { answers.emplace_back(current, said); });
    word("pass", [this](std::string time) { station.advance(takeTime(time)); });
    word("clock", [this](Words moment) { station.time.setNow(momentOf(moment)); });
    word("role", [this](Words name) { station.system.executable = name; });
    word("in vain", [this](Words line) { act(line); });
    word("end", [this](Words) { station.run.end(); });
}

void Stage::addFaultWords()
{
    word("fail", [this](Words rest) { fail(rest); });
    word("mend", [this](std::string rest) {
        const std::string operation = takeUntil(rest, " ");
        station.disk.failOn(operation, rest, Outcome::Done);
    });
    word("lock", [this](std::string rest) {
        const std::string path = takeUntil(rest, " from ");
        if (rest.empty())
            return fail("lock " + path + ", locked by another");
        doAt(takeTime(rest), current, "lock " + path);
        takeUntil(rest, "to ");
        doAt(takeTime(rest), current, "mend lock " + path);
    });
    word("printers", [this](std::string names) {
        station.printers.installed.clear();
        while (!names.empty() && names != "none")
            station.printers.installed.push_back(takeUntil(names, ", "));
    });
    word("printer fails", [this](Words outcome) {
        station.printers.failures.push_back(outcomeNamed(outcome).value_or(Outcome::Broken));
    });
}

void Stage::fail(std::string rest)
{
    const std::string operation = takeUntil(rest, " ");
    const std::string path = takeUntil(rest, ", ");
    const auto outcome = rest.empty() ? Outcome::Denied : outcomeNamed(rest);
    if (!outcome)
        return complain("there is no such outcome");
    station.disk.failOn(operation, path, *outcome);
    faults.emplace_back(current, std::pair(operation, path));
}

std::string Stage::answerTo(const std::string &box, const Lines &captions)
{
    boxShown(box);
    const bool wasEnding = station.run.ending();
    std::pair<Line, std::string> answer;
    if (answers.empty())
        complain("nobody answers " + box);
    else {
        answer = answers.front();
        answers.pop_front();
    }
    station.run.yield();
    happen("a box is open");
    const bool possible = captions.empty()
                              ? answer.second == "Cancel" || answer.second.starts_with("with")
                              : std::count(captions.begin(), captions.end(), answer.second) > 0;
    if (!possible && !answer.second.empty())
        complain("there is no \"" + answer.second + "\" in " + box);
    return possible && (wasEnding || !station.run.ending()) ? answer.second : "";
}

void Stage::press(Words caption, bool thoughDisabled)
{
    const auto found = commands.find(caption);
    if (found == commands.end())
        return complain("there is no such command");
    const auto &[does, enabled] = found->second;
    if ((!enabled || enabled()) == thoughDisabled)
        return complain(thoughDisabled ? "it is not disabled" : "it is disabled");
    does();
}

void Stage::command(Words caption, std::function<void()> press, Test enabled)
{
    commands[caption] = {std::move(press), std::move(enabled)};
}

void Stage::configure(int field, Words text)
{
    config.set(records::configField(field), text);
    station.put("C:\\Lumbrio\\LumbrioINI.dat", std::string(config.view()));
}

std::vector<Section> &Stage::partsOfLine()
{
    return current.number == kNoLine ? telling.left : telling.steps[current.number];
}

void Stage::tell(Words line, Words title)
{
    std::vector<Section> &parts = partsOfLine();
    auto part = std::find_if(parts.begin(), parts.end(),
                             [&](const Section &one) { return one.title == title; });
    if (part == parts.end())
        part = parts.insert(title.empty() ? parts.begin() : parts.end(), {title, {}, false});
    const Lines lines = platform::splitLines(line);
    part->lines.insert(part->lines.end(), lines.begin(), lines.end());
    if (lines.empty())
        part->lines.emplace_back();
}

void Stage::tellChanges(Words title, const Lines &lines, Words sibling)
{
    partsOfLine().push_back({title, lines, true, sibling});
}

void Stage::complain(Words text)
{
    telling.complaints.push_back((current.text.empty() ? "" : "\"" + current.text + "\": ") + text);
}

void Stage::complainOfWhatNeverFired()
{
    const auto complainOf = [this](const Line &line, const char *text) {
        current = line;
        complain(text);
    };
    for (const Line &line : awaited)
        complainOf(line, "its moment never came");
    for (const auto &[event, waiting] : whens)
        complainOf(waiting.first, "that never happened");
    for (const auto &[line, answer] : answers)
        complainOf(line, "nobody was asked");
    for (const auto &[line, rule] : faults)
        if (!station.disk.met(rule.first, rule.second))
            complainOf(line, "nothing met it");
    for (std::size_t n = station.printers.failures.size(); n > 0; --n)
        complainOf({}, "a printer's failure never came");
    current = {};
}

} // namespace story
