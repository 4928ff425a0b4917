// Starts and ends real programs. The other process writes what it sees to a FIFO, so that no test
// waits by the clock.
#include "platform/system.h"
#include "support/second_process.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <arpa/inet.h>
#include <sys/stat.h>

#include <filesystem>
#include <thread>

namespace {

using namespace platform;

namespace fs = std::filesystem;

struct SystemTest : testing::Test {
    /// The output of this shell script, started as the payment application.
    std::string outputOf(const std::string &commands, const std::string &arguments = {})
    {
        const std::string fifo = station.drives.root() + "/fifo";
        ::mkfifo(fifo.c_str(), 0600);
        station.put(kXcharge, "#!/bin/sh\nexec >'" + fifo + "'\n" + commands + "\n");
        fs::permissions(station.drives.resolve(kXcharge), fs::perms::owner_all);
        EXPECT_EQ(system->start(kXcharge + arguments, WindowStyle::Normal), Outcome::Done);
        return support::contentOf(fifo); // waits for the other side
    }

    const std::string kXcharge = support::TestStation::kXcharge;
    support::TestStation station;
    std::unique_ptr<System> system = runningSystem(station.drives, station.installation);
};

TEST_F(SystemTest, started_programs_get_their_arguments_and_none_of_our_files)
{
    const int held = ::open("/dev/zero", O_RDWR); // on purpose without close-on-exec
    EXPECT_EQ(outputOf("for each in \"$@\"; do echo \"<$each>\"; done\n"
                       "test \"$(cut -d' ' -f6 /proc/$$/stat)\" = $$ && echo own session\n"
                       "ls -l /proc/$$/fd | grep -c zero",
                       " /RECEIPT:  /TITLE:A b "),
              "</RECEIPT:>\n</TITLE:A>\n<b>\nown session\n0\n");
    ::close(held);
    fs::permissions(station.drives.resolve(kXcharge), fs::perms::owner_read);
    EXPECT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::Denied);
    station.erase(kXcharge);
    EXPECT_EQ(system->start(kXcharge, WindowStyle::Normal), Outcome::NotThere);
}

TEST_F(SystemTest, killing_ends_only_programs_of_the_drives_folder)
{
    const support::TemporaryFolder elsewhere;
    const std::string folder = station.drives.resolve("c:\\Program Files\\X-charge");
    station.folder("c:\\Program Files\\X-charge\\link");
    // Each shows what comes to the file.
    std::ofstream heard(elsewhere.path() + "/heard");
    heard << "there" << std::endl;
    for (const std::string &copy :
         {folder + "/Xcharge.exe", folder + "/Other.exe", elsewhere.path() + "/Xcharge.exe"})
        fs::copy_file("/usr/bin/tail", copy);
    fs::create_symlink("/usr/bin/tail", folder + "/link/Xcharge.exe");
    std::deque<support::SecondProcess> others;
    for (const std::string &program : {folder + "/Xcharge.exe", folder + "/link/Xcharge.exe",
                                       folder + "/Other.exe", elsewhere.path() + "/Xcharge.exe"}) {
        others.emplace_back([&] {
            ::execl(program.c_str(), program.c_str(), "-f", (elsewhere.path() + "/heard").c_str(),
                    nullptr);
        });
        EXPECT_EQ(others.back().hear(), "there") << program;
    }
    system->killImage("XCHARGE.EXE");
    heard << "still there" << std::endl;
    std::string alive;
    for (support::SecondProcess &other : others)
        alive += other.hear().empty() ? '-' : '+';
    EXPECT_EQ(alive, "--++");
}

TEST_F(SystemTest, connection_is_tested_on_its_own_thread_and_there_if_a_server_listens)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto *const any = reinterpret_cast<sockaddr *>(&address);
    ASSERT_EQ(::bind(listener, any, length) + ::getsockname(listener, any, &length), 0);
    const std::string server = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    const auto isThere = [&](const std::string &where) {
        station.installation.connectionTest = where;
        system->startConnectionTest();
        while (!system->connectionTested()) // at most 2 s
            std::this_thread::yield();
        return *system->connectionTested();
    };
    EXPECT_FALSE(isThere(server)) << "bound, but nobody listens";
    ASSERT_EQ(::listen(listener, 0), 0);
    EXPECT_TRUE(isThere(server)); // it is not accepted, so the next connection gets no answer
    system->startConnectionTest();
    EXPECT_FALSE(system->connectionTested()) << "still running";
    ::close(listener);
    system.reset(); // the program's end waits for none of it
}

} // namespace
