#include "platform/connection.h"
#include "platform/drives.h"
#include "platform/installation.h"
#include "platform/program_search.h"
#include "platform/system.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <strings.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace platform {

namespace {

bool isFile(const std::string &realPath)
{
    struct stat status {};
    return ::stat(realPath.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

Outcome outcomeOfStart(int error)
{
    switch (error) {
    case 0: return Outcome::Done;
    case ENOENT:
    case ENOTDIR: return Outcome::NotThere;
    case EACCES:
    case EPERM:
    case ENOEXEC: return Outcome::Denied; // a file, but no program that may run
    default: return Outcome::Broken;
    }
}

/// A started program gets its own session, so that it goes on when we end, no blocked signals, none
/// of our files, no input, and only the common error output.
class SpawnTerms {
public:
    SpawnTerms()
    {
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK |
                                                  POSIX_SPAWN_SETSIGDEF);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        sigaddset(&signals, SIGPIPE);
        posix_spawnattr_setsigdefault(&attributes, &signals);
    }

    ~SpawnTerms()
    {
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }

    SpawnTerms(const SpawnTerms &) = delete;
    SpawnTerms &operator=(const SpawnTerms &) = delete;

    posix_spawn_file_actions_t files{};
    posix_spawnattr_t attributes{};
};

std::string linkTarget(const std::string &link)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
    return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length)) : "";
}

std::string fileName(const std::string &path)
{
    return path.substr(path.rfind('/') + 1);
}

bool isBelow(const std::string &path, const std::string &folder)
{
    return !folder.empty() && path.starts_with(folder + "/") &&
           path.find("/../") == std::string::npos;
}

/// The program of a running process, links followed; empty without the right to know it.
std::string programOf(const std::string &process)
{
    constexpr std::string_view kReplaced = " (deleted)"; // the file, since it was started
    std::string program = linkTarget(process + "/exe");
    if (program.ends_with(kReplaced))
        program.resize(program.size() - kReplaced.size());
    return program;
}

/// The program as it was called: a link in the drives folder that leads out of it counts too.
std::string calledAs(const std::string &process)
{
    std::ifstream file(process + "/cmdline", std::ios::binary);
    std::string first;
    std::getline(file, first, '\0');
    return first;
}

std::string replaced(std::string text, std::string_view value)
{
    if (const std::size_t at = text.find("%1"); at != std::string::npos)
        text.replace(at, 2, value);
    return text;
}

class PosixSystem : public System {
public:
    PosixSystem(const Drives &theDrives, const Installation &theInstallation)
        : drives(theDrives), installation(theInstallation)
    {
    }

    Outcome start(const std::string &commandLine, WindowStyle) override
    {
        const auto call = findProgram(
            commandLine, [this](const std::string &path) { return isFile(drives.resolve(path)); });
        if (!call)
            return Outcome::NotThere;
        std::vector<std::string> words = splitArguments(call->arguments);
        words.insert(words.begin(), drives.resolve(call->program));
        return spawn(words);
    }

    void killImage(const std::string &imageName) override
    {
        reap();
        std::array<char, PATH_MAX> buffer{};
        const char *followed = ::realpath(drives.root().c_str(), buffer.data());
        const std::array<std::string, 2> roots = {drives.root(), followed ? followed : ""};
        const auto isMeant = [&](const std::string &program) {
            return ::strcasecmp(fileName(program).c_str(), imageName.c_str()) == 0 &&
                   (isBelow(program, roots[0]) || isBelow(program, roots[1]));
        };
        for (const pid_t pid : processes()) {
            const std::string process = "/proc/" + std::to_string(pid);
            if (pid != ::getpid() && (isMeant(programOf(process)) || isMeant(calledAs(process))))
                ::kill(pid, SIGKILL);
        }
    }

    std::string computerName() override
    {
        std::array<char, HOST_NAME_MAX + 1> name{};
        ::gethostname(name.data(), name.size() - 1);
        const std::string whole(name.data());
        return whole.substr(0, whole.find('.'));
    }

    std::string executableName() override
    {
        const std::string name = fileName(programOf("/proc/self"));
        return name.substr(0, name.rfind('.'));
    }

    Outcome openEditor(const std::string &path) override
    {
        return open(installation.editorCommand, drives.resolve(path));
    }

    Outcome openBrowser(const std::string &address) override
    {
        return address.empty() ? Outcome::NotThere : open(installation.browserCommand, address);
    }

    void startConnectionTest() override { connection.start(installation.connectionTest); }
    std::optional<bool> connectionTested() const override { return connection.result(); }

    void playSound(const std::string &path) override
    {
        const std::string sound = drives.resolve(path);
        if (!isFile(sound))
            return;
        if (!done(spawn({"paplay", sound})))
            spawn({"aplay", "-q", sound});
    }

private:
    /// Runs the installation's command with %1 replaced, or the desktop's program for such a file.
    Outcome open(const std::string &command, const std::string &what)
    {
        if (command.empty())
            return spawn({"xdg-open", what});
        std::vector<std::string> words;
        if (const auto call = findProgram(command, isFile)) {
            words = splitArguments(call->arguments);
            words.insert(words.begin(), call->program);
        } else {
            words = splitArguments(command); // a program on the search path
        }
        if (words.empty())
            return Outcome::NotThere;
        if (command.find("%1") == std::string::npos)
            words.emplace_back("%1");
        for (std::string &word : words)
            word = replaced(word, what); // after the split: a blank in the file's name stays
        return spawn(words);
    }

    Outcome spawn(std::vector<std::string> words)
    {
        reap();
        std::vector<char *> arguments;
        arguments.reserve(words.size() + 1);
        for (std::string &word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const SpawnTerms terms;
        pid_t pid = 0;
        const int error = ::posix_spawnp(&pid, arguments[0], &terms.files, &terms.attributes,
                                         arguments.data(), environ);
        if (error == 0)
            children.push_back(pid);
        return outcomeOfStart(error);
    }

    /// Programs that were started earlier and have ended must not remain as zombies.
    void reap()
    {
        std::erase_if(children,
                      [](pid_t child) { return ::waitpid(child, nullptr, WNOHANG) != 0; });
    }

    static std::vector<pid_t> processes()
    {
        std::vector<pid_t> pids;
        DIR *const folder = ::opendir("/proc");
        if (folder == nullptr)
            return pids;
        while (const dirent *entry = ::readdir(folder)) {
            if (const int pid = std::atoi(entry->d_name); pid > 0)
                pids.push_back(pid);
        }
        ::closedir(folder);
        return pids;
    }

    const Drives &drives;
    const Installation &installation;
    ConnectionTest connection{std::chrono::seconds(2)};
    std::vector<pid_t> children;
};

} // namespace

std::unique_ptr<System> runningSystem(const Drives &drives, const Installation &installation)
{
    return std::make_unique<PosixSystem>(drives, installation);
}

} // namespace platform
