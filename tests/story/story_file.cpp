#include "story/story_file.h"

#include "platform/files.h"

#include <utility>

namespace story {

namespace {

constexpr const char *kStory = "story ";
constexpr const char *kLike = ", like ";

/// What a story leaves behind begins with such a line.
bool isPartLeft(const std::string &line)
{
    return line.starts_with("== ") || line.starts_with("- == ");
}

bool isShown(const std::string &line)
{
    for (const char *mark : {"  ", "+ ", "- ", "* ", "--", "=="})
        if (line.starts_with(mark))
            return true;
    return false;
}

Story storyOf(const ScriptLine &heading)
{
    const std::string names = heading.text.substr(std::string(kStory).size());
    const std::size_t like = names.find(kLike);
    Story story;
    story.name = names.substr(0, like);
    if (like != names.npos)
        story.like = names.substr(like + std::string(kLike).size());
    story.heading = heading;
    return story;
}

class Reader {
public:
    explicit Reader(const std::string &path) { file.path = path; }

    void read(const std::string &line)
    {
        ++number;
        if (isPartLeft(line) && !file.stories.empty())
            shown = &file.stories.back().shown;
        if (isShown(line) && shown != nullptr)
            shown->push_back(line);
        else if (line.starts_with('#'))
            above.push_back(line);
        else if (!line.empty())
            readScript({std::exchange(above, {}), line, number, {}});
    }
    StoryFile take()
    {
        file.tail = std::move(above);
        return std::move(file);
    }

private:
    void readScript(const ScriptLine &line)
    {
        if (line.text.starts_with(kStory)) {
            file.stories.push_back(storyOf(line));
            shown = &file.stories.back().heading.shown;
        } else {
            std::vector<ScriptLine> &script =
                file.stories.empty() ? file.given : file.stories.back().script;
            script.push_back(line);
            shown = &script.back().shown;
        }
    }

    StoryFile file;
    Lines above;
    Lines *shown = nullptr;
    int number = 0;
};

void write(std::string &text, const Lines &lines)
{
    for (const std::string &line : lines)
        text += line + '\n';
}

void write(std::string &text, const ScriptLine &line)
{
    write(text, line.above);
    text += line.text + '\n';
    write(text, line.shown);
}

} // namespace

StoryFile readStories(const std::string &path, const std::string &content)
{
    Reader reader(path);
    for (const std::string &line : platform::splitLines(content))
        reader.read(line);
    return reader.take();
}

std::string written(const StoryFile &file)
{
    std::string text;
    for (const ScriptLine &line : file.given)
        write(text, line);
    for (const Story &story : file.stories) {
        text += text.empty() ? "" : "\n";
        write(text, story.heading);
        for (const ScriptLine &line : story.script)
            write(text, line);
        write(text, story.shown);
    }
    if (!file.tail.empty())
        text += "\n";
    write(text, file.tail);
    return text;
}

} // namespace story
