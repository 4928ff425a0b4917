// Programs really started and ended. The other process tells what it sees through a FIFO, so that
// nothing here waits by the clock.
#include "platform/connection.h"
#include "platform/system.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

constexpr const char *kXcharge = support::TestStation::kXcharge;

class SystemTest : public testing::Test {
protected:
    support::TestStation station;
    std::unique_ptr<System> system = runningSystem(station.drives, station.installation);
    std::string fifo = station.drives.root() + "/fifo";

    void SetUp() override { ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0); }

    /// A program whose words, from a shell, come back through told().
    void putScript(const std::string &path, const std::string &commands)
    {
        station.put(path, "#!/bin/sh\nexec >'" + fifo + "'\n" + commands + "\n");
        fs::permissions(station.drives.resolve(path), fs::perms::owner_all);
    }

    std::string told() const
    {
        const int file = ::open(fifo.c_str(), O_RDONLY | O_CLOEXEC); // waits for the other side
        std::string text;
        char c = 0;
        while (::read(file, &c, 1) == 1)
            text += c;
        ::close(file);
        return text;
    }
};

TEST_F(SystemTest, startedProgramGetsItsArgumentsAndNothingOfOurs)
{
    putScript(kXcharge, "for each in \"$@\"; do echo \"<$each>\"; done\n"
                        "test \"$(cut -d' ' -f6 /proc/$$/stat)\" = $$ && echo own session\n"
                        "for each in 3 4 5 6 7 8 9 10 11 12; do\n"
                        "  test -e /proc/$$/fd/$each && readlink /proc/$$/fd/$each; done");
    station.put("c:\\Lumbrio\\Data\\held.dat", "1");
    const std::string real = station.drives.resolve("c:\\Lumbrio\\Data\\held.dat");
    const int held = ::open(real.c_str(), O_RDWR); // on purpose without close-on-exec
    ASSERT_GE(held, 3);
    EXPECT_EQ(system->start("C:\\PROGRAM FILES\\x-charge\\xcharge.exe /RECEIPT:  /TITLE:A b ",
                            WindowStyle::Normal),
              Outcome::Done);
    const std::string text = told();
    EXPECT_EQ(text.find("</RECEIPT:>\n</TITLE:A>\n<b>\nown session\n"), 0U) << text;
    EXPECT_EQ(text.find("held.dat"), std::string::npos) << text;
    ::close(held);
}

TEST_F(SystemTest, startTellsNotThereFromNotAllowed)
{
    EXPECT_EQ(system->start(std::string(kXcharge) + " /A", WindowStyle::Normal), Outcome::NotThere);
    station.folder(kXcharge);
    EXPECT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::NotThere);
    station.erase(kXcharge);
    station.put(kXcharge, "not executable");
    EXPECT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::Denied);
}

TEST_F(SystemTest, endedProgramsAreNotKeptAsZombies)
{
    putScript(kXcharge, "echo $$");
    ASSERT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::Done);
    const auto first = static_cast<id_t>(std::stol(told()));
    siginfo_t info{};
    ASSERT_EQ(::waitid(P_PID, first, &info, WEXITED | WNOWAIT), 0);
    ASSERT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::Done);
    told();
    EXPECT_EQ(::waitid(P_PID, first, &info, WEXITED | WNOWAIT | WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

/// A process that lives until it is ended, or may read a byte.
struct Other {
    Other(const std::string &program, const std::string &fifo)
    {
        std::string path = program;
        std::string option = "-c1";
        std::string input = fifo;
        char *const arguments[] = {path.data(), option.data(), input.data(), nullptr};
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        EXPECT_EQ(::posix_spawn(&pid, program.c_str(), &files, nullptr, arguments, environ), 0);
        posix_spawn_file_actions_destroy(&files);
    }
    /// True when it was killed, false when it came to its own end.
    bool wasKilled() const
    {
        int status = 0;
        EXPECT_EQ(::waitpid(pid, &status, 0), pid);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }
    pid_t pid = 0;
};

TEST_F(SystemTest, killEndsOnlyProgramsOfTheDrivesFolder)
{
    const support::TemporaryFolder elsewhere;
    const fs::path head = fs::canonical("/usr/bin/head");
    const std::string folder = station.drives.resolve("c:\\Program Files\\X-charge");
    fs::copy_file(head, folder + "/Xcharge.exe");
    fs::copy_file(head, folder + "/Other.exe");
    fs::create_directory(folder + "/link");
    fs::create_symlink(head, folder + "/link/Xcharge.exe");
    fs::copy_file(head, elsewhere.path() + "/Xcharge.exe");
    const int input = ::open(fifo.c_str(), O_RDWR | O_CLOEXEC);

    const Other copy(folder + "/Xcharge.exe", fifo);
    const Other link(folder + "/link/Xcharge.exe", fifo);
    const Other otherName(folder + "/Other.exe", fifo);
    const Other outside(elsewhere.path() + "/Xcharge.exe", fifo);
    const Other wayOut(folder + "/../../../../" + fs::path(elsewhere.path()).filename().string() +
                           "/Xcharge.exe",
                       fifo);
    system->killImage("XCHARGE.EXE");
    EXPECT_TRUE(copy.wasKilled());
    EXPECT_TRUE(link.wasKilled());
    ASSERT_EQ(::write(input, "abc", 3), 3);
    EXPECT_FALSE(otherName.wasKilled());
    EXPECT_FALSE(outside.wasKilled());
    EXPECT_FALSE(wayOut.wasKilled());
    ::close(input);
}

TEST_F(SystemTest, connectionTestIsAnsweredByAListenerAlone)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr *>(&address), length), 0);
    ASSERT_EQ(::getsockname(listener, reinterpret_cast<sockaddr *>(&address), &length), 0);

    EXPECT_TRUE(system->connectionTest()) << "no address: nothing to test";
    station.installation.connectionTest = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    EXPECT_FALSE(system->connectionTest()) << "bound, but nobody listens";
    ASSERT_EQ(::listen(listener, 0), 0);
    EXPECT_TRUE(system->connectionTest());
    // Nobody takes the callers, so that soon one gets neither yes nor no.
    const auto server = parseHostAndPort(station.installation.connectionTest);
    int answered = 0;
    while (answered < 5 && serverAnswers(*server, std::chrono::milliseconds(50)))
        ++answered;
    EXPECT_LT(answered, 5);
    ::close(listener);
    station.installation.connectionTest = "nonsense";
    EXPECT_FALSE(system->connectionTest());
}

} // namespace
} // namespace platform
