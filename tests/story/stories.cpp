#include "story/stories.h"

#include "support/test_files.h"

#include <gtest/gtest-spi.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace story {

namespace {

using support::setting;

/// The stories of a room, and what each of them tells.
class Room {
public:
    Room(const std::string &name, const MakeStage &theMakeStage) : makeStage(theMakeStage)
    {
        std::vector<std::string> paths;
        for (const auto &entry : std::filesystem::directory_iterator(TESTS_DIR "/golden/" + name))
            if (entry.path().extension() == ".story")
                paths.push_back(entry.path().string());
        std::sort(paths.begin(), paths.end());
        for (const std::string &path : paths)
            files.push_back(readStories(path, support::contentOf(path)));
        for (const StoryFile &file : files)
            for (const Story &story : file.stories) {
                EXPECT_FALSE(all.contains(story.name)) << "two stories " << story.name;
                all[story.name] = {&file, &story, {}, false};
            }
        EXPECT_FALSE(all.empty()) << "no stories in " << name;
    }

    void expectAll()
    {
        const std::string only = setting("LUMBRIO_STORY");
        for (auto &[name, each] : all)
            if (only.empty() || only == name)
                expect(each);
    }
    /// Writes the shown parts anew.
    void update()
    {
        for (const StoryFile &file : files) {
            StoryFile anew = file;
            for (Story &story : anew.stories)
                story = now(story);
            std::ofstream(file.path, std::ios::binary) << written(anew);
        }
        for (const auto &[name, each] : all)
            for (const std::string &complaint : each.told.complaints)
                ADD_FAILURE() << name << ": " << complaint;
    }

private:
    struct Entry {
        const StoryFile *file = nullptr;
        const Story *story = nullptr;
        Told told;
        bool played = false;
    };

    static Lines textsOf(const std::vector<ScriptLine> &script)
    {
        Lines texts;
        for (const ScriptLine &line : script)
            texts.push_back(line.text);
        return texts;
    }
    /// What the tests' own checks find on the way counts as a complaint.
    Told play(const Lines &given, const Lines &script) const
    {
        testing::TestPartResultArray found;
        Told told;
        {
            const testing::ScopedFakeTestPartResultReporter reporter(
                testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS, &found);
            told = makeStage()->perform(given, script);
        }
        for (int i = 0; i < found.size(); ++i)
            if (found.GetTestPartResult(i).failed())
                told.complaints.emplace_back(found.GetTestPartResult(i).message());
        return told;
    }
    const Told &toldOf(Entry &entry)
    {
        if (!std::exchange(entry.played, true))
            entry.told = play(textsOf(entry.file->given), textsOf(entry.story->script));
        return entry.told;
    }
    /// The stories that it is like, the nearest first.
    std::vector<Like> likeOf(const Story &story)
    {
        std::vector<Like> like;
        for (std::string next = story.like; !next.empty(); next = like.back().story->like) {
            const auto found = all.find(next);
            if (found == all.end() || like.size() > all.size()) {
                ADD_FAILURE() << story.name << " is like " << next << ", which is no story";
                break;
            }
            like.push_back({found->second.story, &toldOf(found->second)});
        }
        return like;
    }
    Story now(const Story &story) { return shownAs(story, toldOf(all[story.name]), likeOf(story)); }
    static std::string textOf(const Story &story) { return written({"", {}, {story}, {}}); }

    void expect(Entry &entry)
    {
        const Lines wrong = differences(platform::splitLines(textOf(*entry.story)),
                                        platform::splitLines(textOf(now(*entry.story))));
        std::string text;
        for (const std::string &line : wrong)
            text += line + "\n";
        for (const std::string &complaint : entry.told.complaints)
            text += complaint + "\n";
        if (!text.empty())
            ADD_FAILURE_AT(entry.file->path.c_str(), entry.story->heading.number)
                << entry.story->name << "\n"
                << text;
    }

    const MakeStage &makeStage;
    std::vector<StoryFile> files;
    std::map<std::string, Entry> all;
};

} // namespace

void expectStories(const std::string &name, const MakeStage &makeStage)
{
    Room room(name, makeStage);
    if (setting("LUMBRIO_STORIES") != "update")
        return room.expectAll();
    room.update();
    ADD_FAILURE() << "the stories of " << name << " were written anew: read the difference";
}

} // namespace story
