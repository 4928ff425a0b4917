#include "story/told.h"

#include <algorithm>

namespace story {

namespace {

constexpr const char *kPartOfLine = "-- ";
constexpr const char *kPartLeft = "== ";

const Section *titled(const std::vector<Section> &sections, const std::string &title)
{
    const auto found = std::find_if(sections.begin(), sections.end(),
                                    [&](const Section &one) { return one.title == title; });
    return found == sections.end() ? nullptr : &*found;
}

/// The lines of a section, with their marks: whole, or what differs where that is no longer.
Lines shownLines(const Section &section, const Section *base)
{
    Lines whole;
    for (const std::string &line : section.lines)
        whole.push_back("  " + line);
    if (base == nullptr)
        return whole;
    Lines shown = differences(base->lines, section.lines);
    return shown.size() > whole.size() && !whole.empty() ? whole : shown;
}

class Showing {
public:
    Showing(const Story &story, const Told &theTold, const std::vector<Like> &theLike)
        : shown(story), told(theTold), like(theLike)
    {
    }

    Story show()
    {
        showStep(shown.heading, 0);
        for (std::size_t i = 0; i < shown.script.size(); ++i)
            showStep(shown.script[i], i + 1);
        showLeft();
        return shown;
    }

private:
    void showStep(ScriptLine &line, std::size_t step)
    {
        line.shown.clear();
        const std::vector<Section> *base = baseOfStep(step);
        if (base != nullptr)
            showGone(line.shown, kPartOfLine, *base, told.steps[step]);
        for (const Section &section : told.steps[step]) {
            const Section *before = section.changes   ? lastLike(section, step)
                                    : base != nullptr ? titled(*base, section.title)
                                                      : nullptr;
            add(line.shown, kPartOfLine, section, before);
        }
    }
    void showLeft()
    {
        shown.shown.clear();
        if (!like.empty())
            showGone(shown.shown, kPartLeft, like[0].told->left, told.left);
        for (const Section &section : told.left)
            add(shown.shown, kPartLeft, section,
                like.empty() ? nullptr : titled(like[0].told->left, section.title));
    }
    static void showGone(Lines &lines, const char *mark, const std::vector<Section> &base,
                         const std::vector<Section> &now)
    {
        for (const Section &section : base)
            if (!section.changes && titled(now, section.title) == nullptr)
                lines.push_back(section.title.empty() ? "- ..."
                                                      : std::string("- ") + mark + section.title);
    }
    static void add(Lines &lines, const char *mark, const Section &section, const Section *before)
    {
        const Lines added = shownLines(section, before);
        if (added.empty() && before != nullptr && !section.changes)
            return;
        if (!section.title.empty())
            lines.push_back(mark + section.title);
        lines.insert(lines.end(), added.begin(), added.end());
    }

    /// What the base told at the same line: the nth of that text here is its nth there.
    const std::vector<Section> *baseOfStep(std::size_t step) const
    {
        if (like.empty())
            return nullptr;
        if (step == 0)
            return &like[0].told->steps[0];
        const std::vector<ScriptLine> &script = like[0].story->script;
        const std::string &text = shown.script[step - 1].text;
        const auto same = [&](const ScriptLine &line) { return line.text == text; };
        auto often = std::count_if(shown.script.begin(),
                                   shown.script.begin() + static_cast<std::ptrdiff_t>(step), same);
        for (std::size_t i = 0; i < script.size(); ++i)
            if (same(script[i]) && --often == 0)
                return &like[0].told->steps[i + 1];
        return nullptr;
    }
    const Section *lastLike(const Section &section, std::size_t step) const
    {
        const Section *last = lastOf(section.title, step);
        return last != nullptr ? last : lastOf(section.sibling, step);
    }
    /// The last one of that title before this step, or else the first in the stories it is like.
    const Section *lastOf(const std::string &title, std::size_t step) const
    {
        while (step-- > 0)
            if (const Section *found = titled(told.steps[step], title))
                return found;
        for (const Like &base : like)
            for (const std::vector<Section> &sections : base.told->steps)
                if (const Section *found = titled(sections, title))
                    return found;
        return nullptr;
    }

    Story shown;
    const Told &told;
    const std::vector<Like> &like;
};

} // namespace

Story shownAs(const Story &story, const Told &told, const std::vector<Like> &like)
{
    return Showing(story, told, like).show();
}

} // namespace story
