#include "story/differences.h"

#include <algorithm>
#include <string_view>

namespace story {

namespace {

constexpr const char *kMore = "- ...";

/// Up to the first blank, "=" or ":" behind a word; the whole line where there is none.
std::string beginningOf(const std::string &line)
{
    const std::size_t word = std::min(line.find_first_not_of(' '), line.size());
    return line.substr(0, std::min(line.find_first_of(" =:", word), line.size() - 1) + 1);
}

bool beginAlike(const std::string &one, const std::string &other)
{
    return one != other && beginningOf(one) == beginningOf(other);
}

/// Lines of `before` that are gone, and lines of `now` in their place.
struct Hunk {
    std::size_t at = 0, end = 0; // in `before`
    std::size_t nowAt = 0, nowEnd = 0;
    bool replaces = false; // one line by one that begins alike
};

/// The way from one text to the other with the fewest lines to show.
class Way {
public:
    Way(const Lines &theBefore, const Lines &theNow)
        : before(theBefore), now(theNow), cost(before.size() + 1, std::vector<int>(now.size() + 1))
    {
        for (std::size_t i = before.size() + 1; i-- > 0;)
            for (std::size_t j = now.size() + 1; j-- > 0;)
                cost[i][j] = bestAt(i, j);
    }

    std::vector<Hunk> hunks() const
    {
        std::vector<Hunk> hunks;
        std::size_t i = 0;
        std::size_t j = 0;
        while (i < before.size() || j < now.size()) {
            if (has(i, j) && before[i] == now[j]) {
                ++i, ++j;
            } else if (has(i, j) && beginAlike(before[i], now[j]) &&
                       cost[i][j] == cost[i + 1][j + 1] + kReplaced) {
                hunks.push_back({i, i + 1, j, j + 1, true});
                ++i, ++j;
            } else {
                if (hunks.empty() || hunks.back().replaces || hunks.back().end != i ||
                    hunks.back().nowEnd != j)
                    hunks.push_back({i, i, j, j, false});
                const bool gone = i < before.size() &&
                                  (j == now.size() || cost[i][j] == cost[i + 1][j] + kGoneOrNew);
                (gone ? hunks.back().end = ++i : hunks.back().nowEnd = ++j);
            }
        }
        return hunks;
    }

private:
    static constexpr int kReplaced = 3;
    static constexpr int kGoneOrNew = 2;

    bool has(std::size_t i, std::size_t j) const { return i < before.size() && j < now.size(); }
    int bestAt(std::size_t i, std::size_t j) const
    {
        if (has(i, j) && before[i] == now[j])
            return cost[i + 1][j + 1];
        if (!has(i, j))
            return static_cast<int>(before.size() - i + now.size() - j) * kGoneOrNew;
        const int apart = std::min(cost[i + 1][j], cost[i][j + 1]) + kGoneOrNew;
        return beginAlike(before[i], now[j]) ? std::min(apart, cost[i + 1][j + 1] + kReplaced)
                                             : apart;
    }

    const Lines &before;
    const Lines &now;
    std::vector<std::vector<int>> cost;
};

/// The gone lines, or the first of them and so many of the last.
Lines shownGone(const Lines &before, const Hunk &hunk, std::size_t lastOnes)
{
    const std::size_t count = hunk.end - hunk.at;
    if (lastOnes == 1 && count == before.size() && count > 1)
        return {kMore};
    Lines shown;
    for (std::size_t i = hunk.at; i < hunk.end; ++i) {
        const bool among = i > hunk.at && i + lastOnes < hunk.end && count > lastOnes + 2;
        if (!among)
            shown.push_back("- " + before[i]);
        else if (shown.back() != kMore)
            shown.push_back(kMore);
    }
    return shown;
}

/// Reads differences, a hunk at a time, and finds the place of each.
class Reader {
public:
    Reader(const Lines &theBefore, const Lines &theShown) : before(theBefore), shown(theShown) {}

    std::optional<Lines> read()
    {
        while (next < shown.size())
            if (!readHunk())
                return {};
        made.insert(made.end(), before.begin() + offset(place), before.end());
        return made;
    }

private:
    static std::ptrdiff_t offset(std::size_t n) { return static_cast<std::ptrdiff_t>(n); }
    Lines take(char mark)
    {
        Lines taken;
        for (; next < shown.size() && shown[next][0] == mark && shown[next][1] == ' '; ++next)
            taken.push_back(shown[next].substr(2));
        return taken;
    }
    /// Where the gone lines that begin here end; npos when they do not begin here.
    std::size_t endOfGone(std::size_t at, const Lines &gone) const
    {
        if (gone.size() == 1 && gone[0] == "...")
            return at == 0 ? before.size() : std::string::npos;
        if (gone.size() > 2 && gone[1] == "...") {
            const Lines last(gone.begin() + 2, gone.end());
            if (!stand(at, {gone[0]}))
                return std::string::npos;
            for (std::size_t end = at + 3; end < before.size(); ++end)
                if (stand(end, last))
                    return end + last.size();
            return std::string::npos;
        }
        return stand(at, gone) ? at + gone.size() : std::string::npos;
    }
    bool stand(std::size_t at, const Lines &lines) const
    {
        return at + lines.size() <= before.size() &&
               std::equal(lines.begin(), lines.end(), before.begin() + offset(at));
    }
    bool readHunk()
    {
        const std::size_t begun = next;
        const Lines context = take(' ');
        const Lines gone = take('-');
        const bool replaces = gone.empty() && next < shown.size() && shown[next][0] == '*';
        const Lines added = replaces ? Lines{shown[next++].substr(2)} : take('+');
        for (std::size_t at = place; at <= before.size() && next > begun; ++at) {
            const std::size_t goneAt = at + context.size();
            const std::size_t end = !stand(at, context) ? std::string::npos
                                    : replaces          ? endOfReplaced(goneAt, added[0])
                                                        : endOfGone(goneAt, gone);
            if (end == std::string::npos)
                continue;
            made.insert(made.end(), before.begin() + offset(place),
                        before.begin() + offset(goneAt));
            made.insert(made.end(), added.begin(), added.end());
            place = end;
            return true;
        }
        return false;
    }
    /// The first line that begins alike gives way to this one.
    std::size_t endOfReplaced(std::size_t at, const std::string &line) const
    {
        return at < before.size() && beginAlike(before[at], line) ? at + 1 : std::string::npos;
    }

    const Lines &before;
    const Lines &shown;
    std::size_t next = 0;
    std::size_t place = 0; // in `before`
    Lines made;
};

Lines shownHunk(const Lines &before, const Lines &now, const Hunk &hunk, std::size_t context,
                std::size_t lastOnes)
{
    Lines shown;
    for (std::size_t i = hunk.at - context; i < hunk.at; ++i)
        shown.push_back("  " + before[i]);
    const bool replaces = hunk.replaces && lastOnes == 1;
    if (!replaces) {
        const Lines gone = shownGone(before, hunk, lastOnes);
        shown.insert(shown.end(), gone.begin(), gone.end());
    }
    for (std::size_t j = hunk.nowAt; j < hunk.nowEnd; ++j)
        shown.push_back((replaces ? "* " : "+ ") + now[j]);
    return shown;
}

/// Adds a hunk with as little around it as makes the place clear.
void addHunk(Lines &shown, const Lines &before, const Lines &now, const Hunk &hunk,
             std::size_t after)
{
    Lines wanted(now.begin(), now.begin() + static_cast<std::ptrdiff_t>(hunk.nowEnd));
    wanted.insert(wanted.end(), before.begin() + static_cast<std::ptrdiff_t>(hunk.end),
                  before.end());
    for (std::size_t lastOnes = 1; lastOnes <= hunk.end - hunk.at + 1; ++lastOnes)
        for (std::size_t context = 0; context <= hunk.at - after; ++context) {
            Lines tried = shown;
            const Lines added = shownHunk(before, now, hunk, context, lastOnes);
            tried.insert(tried.end(), added.begin(), added.end());
            if (applied(before, tried) == wanted) {
                shown = tried;
                return;
            }
        }
}

/// How many bytes of a letter of UTF-8 begin here; 0 when it is none or plain ASCII.
std::size_t lengthOfLetter(const std::string &text, std::size_t at)
{
    const auto first = static_cast<unsigned char>(text[at]);
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 0;
    for (std::size_t i = at + 1; i < at + length; ++i)
        if (i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80)
            return 0;
    return length;
}

} // namespace

Lines differences(const Lines &before, const Lines &now)
{
    Lines shown;
    std::size_t after = 0;
    for (const Hunk &hunk : Way(before, now).hunks()) {
        addHunk(shown, before, now, hunk, after);
        after = hunk.end;
    }
    return shown;
}

std::optional<Lines> applied(const Lines &before, const Lines &differences)
{
    return Reader(before, differences).read();
}

std::string plain(const std::string &text)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto code = static_cast<unsigned char>(text[i]);
        if (const std::size_t length = lengthOfLetter(text, i); length > 0) {
            line += text.substr(i, length);
            i += length - 1;
        } else if (code == '\r' || code == '\n' || code == 0) {
            line += code == '\r' ? "\\r" : code == '\n' ? "\\n" : "\\0";
        } else if (code < 0x20 || code >= 0x7F) {
            line += std::string("\\x") + kDigits[code / 16] + kDigits[code % 16];
        } else {
            line += text[i];
        }
    }
    return line;
}

Lines linesOf(const std::string &bytes)
{
    Lines lines;
    std::size_t from = 0;
    for (std::size_t end = 0; (end = bytes.find('\n', from)) != bytes.npos; from = end + 1) {
        const bool pair = end > from && bytes[end - 1] == '\r';
        lines.push_back(plain(bytes.substr(from, end - from - (pair ? 1 : 0))) +
                        (pair ? "" : "\\n"));
    }
    if (from < bytes.size())
        lines.push_back(plain(bytes.substr(from)) + " (no end of line)");
    return lines;
}

} // namespace story
