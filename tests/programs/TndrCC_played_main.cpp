// TndrCC for tests and for script/screens: the shipped tender with a hand at its keyboard. What it
// plays stands in its environment:
//   LUMBRIO_PLAY_CLOCK   so many milliseconds pass in the program for one of the wall's
//   LUMBRIO_PLAY_PRESS   the command with this caption (or a name of its own) is pressed
//                        once it is enabled
//   LUMBRIO_PLAY_SWIPE   a track, typed by the card reader once a box takes one (behind PRESS)
//   LUMBRIO_PLAY_ESCAPE  Escape is pressed so many milliseconds (the program's) after the start
//   LUMBRIO_PLAY_KILL    the process is killed (SIGKILL) at this operation on a file, from 1
//   LUMBRIO_PLAY_STATION the computer's name
//   LUMBRIO_PLAY_HOLD    it stops (SIGSTOP) when it has printed and answered, just before it ends;
//                        otherwise nobody could take a picture of an approval
//   LUMBRIO_PLAY_COUNT   a file that gets the number of operations on files, at the end
#include "roles/tender_role.h"
#include "support/faulty_disk.h"
#include "support/qt/hand.h"

#include <csignal>
#include <fstream>

namespace {

using support::setting;

struct Owned {
    std::unique_ptr<platform::Disk> owned;
};

class PlayedDisk : private Owned, public support::FaultyDisk {
public:
    explicit PlayedDisk(std::unique_ptr<platform::Disk> theDisk)
        : Owned{std::move(theDisk)}, FaultyDisk(*owned, {})
    {
        const std::string killAt = setting("LUMBRIO_PLAY_KILL");
        if (!killAt.empty())
            stopAt(std::stoul(killAt), [] { std::raise(SIGKILL); });
    }
    PlayedDisk(const PlayedDisk &) = delete;
    PlayedDisk &operator=(const PlayedDisk &) = delete;
    ~PlayedDisk() override
    {
        const std::string file = setting("LUMBRIO_PLAY_COUNT");
        if (!file.empty())
            std::ofstream(file) << operations();
    }

    Outcome open(const std::string &path, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override
    {
        // The first thing behind the answer.
        if (path.ends_with("/TRACELOG.TXT") && !setting("LUMBRIO_PLAY_HOLD").empty())
            std::raise(SIGSTOP);
        return FaultyDisk::open(path, mode, file);
    }
};

/// The running system under another computer's name.
class NamedSystem : public platform::System {
public:
    explicit NamedSystem(std::unique_ptr<System> theSystem) : system(std::move(theSystem)) {}
    platform::Outcome start(const std::string &commandLine, platform::WindowStyle style) override
    {
        return system->start(commandLine, style);
    }
    void killImage(const std::string &name) override { system->killImage(name); }
    std::string computerName() override { return setting("LUMBRIO_PLAY_STATION"); }
    std::string executableName() override { return system->executableName(); }
    platform::Outcome openEditor(const std::string &path) override
    {
        return system->openEditor(path);
    }
    platform::Outcome openBrowser(const std::string &address) override
    {
        return system->openBrowser(address);
    }
    bool connectionTest() override { return system->connectionTest(); }
    void playSound(const std::string &path) override { system->playSound(path); }

private:
    std::unique_ptr<System> system;
};

struct PlayedTender {
    explicit PlayedTender(roles::Program &program)
        : tender(roles::openTender(program)), hand(program.services().clock)
    {
    }
    std::shared_ptr<void> tender;
    support::Hand hand;
};

} // namespace

int main(int argc, char **argv)
{
    roles::ProgramOptions options;
    const std::string scale = setting("LUMBRIO_PLAY_CLOCK");
    if (!scale.empty())
        options.clockScale = std::stod(scale);
    options.wrapDisk = [](std::unique_ptr<platform::Disk> disk) {
        return std::make_unique<PlayedDisk>(std::move(disk));
    };
    if (!setting("LUMBRIO_PLAY_STATION").empty())
        options.wrapSystem = [](std::unique_ptr<platform::System> system) {
            return std::make_unique<NamedSystem>(std::move(system));
        };
    return roles::runProgram(
        argc, argv, [](roles::Program &program) { return std::make_shared<PlayedTender>(program); },
        options);
}
