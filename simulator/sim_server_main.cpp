// sim_server: the stand-in for the payment server. It answers the requests of local tenders until
// it is asked to end or its folder is gone (see docs/simulator.md).
#include "simulator/payment_server.h"
#include "simulator/pos.h"
#include "simulator/process.h"
#include "simulator/station.h"

#include <chrono>
#include <cstdio>

namespace {

using namespace simulator;

constexpr int kBetweenLooks = 10; // ms

std::uint64_t milliseconds()
{
    using namespace std::chrono;
    return static_cast<std::uint64_t>(
        duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count());
}

void say(const std::string &text)
{
    std::printf("sim_server: %s\n", text.c_str());
    std::fflush(stdout);
}

// "/ T", with which the tender starts it, means nothing more.
std::string drivesFolder(int argc, char **argv)
{
    for (int i = 1; i + 1 < argc; ++i)
        if (std::string(argv[i]) == "--drives")
            return argv[i + 1];
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    listenForEnd();
    Station station(drivesFolder(argc, argv), "sim_server");
    const std::string directory = placeOf(station.files).paymentDirectory;
    const std::string folder = directory + "LocalTran\\";
    const std::string realFolder = station.files.realPath(folder);
    if (!station.files.folderExists(folder)) {
        std::fprintf(stderr, "sim_server: there is no folder %s\n", realFolder.c_str());
        return 1;
    }
    // Held to the end; beside the folder, because only requests and answers belong in it.
    std::unique_ptr<platform::DiskFile> lock;
    if (!done(station.files.open(directory + "sim_server.lock", platform::OpenMode::Append, lock)))
        return 1;
    if (!done(lock->tryLock())) {
        say("another one answers in " + realFolder);
        return 0;
    }
    PaymentServer server(station.files, station.run, folder, [&](const std::string &text) {
        station.files.append(directory + "sim_server.log", text + "\n");
        say(text);
    });
    say("answers in " + realFolder);
    while (!endAsked() && server.folderIsThere()) {
        server.turn(milliseconds());
        pause(kBetweenLooks);
    }
    say("ends");
    return 0;
}
