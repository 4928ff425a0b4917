// sim_pos: the stand-in for the point of sale (see docs/simulator.md).
#include "simulator/outcome_table.h"
#include "simulator/pending_table.h"
#include "simulator/pos.h"
#include "simulator/records_generator.h"
#include "simulator/sandbox.h"
#include "simulator/server_table.h"
#include "simulator/station.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>

namespace {

using namespace simulator;

const char kUsage[] =
    "usage: sim_pos COMMAND [--drives DIR] ...\n"
    "  sandbox   makes the drives folder with a restaurant in it\n"
    "  tender    --table 12 --receipt 1043 --server 7 --amount 48.50 [--audit 48.50] [--wait S]\n"
    "            [--mode command|local] [--track TEXT]\n"
    "            takes one card tender; gives up after S seconds (0: never; without a display 60)\n"
    "            local: a person gives the card at the tender's screen; --track is shown to him\n"
    "  pending   the records of CCPending.dat; --month: those of the month files\n"
    "  evening   [--records 120] [--all-adjusted] [--no-declines]\n"
    "            writes CCPending.dat anew: the tenders of this evening\n"
    "  manager   [--keep]\n"
    "            an evening, and the manager's program on it; --keep: on what is there\n"
    "  demo      a sandbox where there is none, tenders of several outcomes, and what they left\n"
    "  window    the point of sale in a window; makes the sandbox where there is none\n"
    "  outcomes  the amounts that the payment programs' stand-ins answer in a special way\n";

/// Words behind the command: "--name value", or "--name" alone before another option.
using Options = std::map<std::string, std::string>;

Options parseOptions(int argc, char **argv)
{
    Options options;
    for (int i = 2; i < argc; ++i) {
        const std::string name = argv[i];
        const bool hasValue = i + 1 < argc && std::string(argv[i + 1]).rfind("--", 0) != 0;
        options[name] = hasValue ? argv[++i] : "";
    }
    return options;
}

bool onlyKnown(const Options &options)
{
    for (const auto &[name, value] : options) {
        bool known = false;
        for (const char *each : {"--drives", "--table", "--receipt", "--server", "--amount",
                                 "--audit", "--wait", "--month", "--mode", "--track", "--records",
                                 "--all-adjusted", "--no-declines", "--keep"})
            known = known || name == each;
        if (!known) {
            std::fprintf(stderr, "sim_pos: unknown option %s\n%s", name.c_str(), kUsage);
            return false;
        }
    }
    return true;
}

// The PDFs that the sandbox's printers have written so far, sorted.
std::vector<std::string> slipFiles(const std::string &drivesFolder)
{
    std::vector<std::string> paths;
    for (const char *spool : {"/spool/receipt", "/spool/letter"}) {
        std::error_code error;
        for (const auto &entry : std::filesystem::directory_iterator(drivesFolder + spool, error))
            if (entry.path().extension() == ".pdf")
                paths.push_back(entry.path().string());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

class PointOfSale {
public:
    explicit PointOfSale(const Options &theOptions)
        : options(theOptions), station(value("--drives", ""), "sim_pos")
    {
    }

    int sandbox();
    int tender();
    int pending();
    int evening();
    int manager();
    int demo();
    int window();

private:
    bool installedHere();
    bool takeTender(const TenderRequest &request, int waitSeconds);
    bool takeLocalTender(const TenderRequest &request, int waitSeconds);
    void localDemo();
    void printSlipFiles(const std::vector<std::string> &before);
    std::string value(const char *name, const char *otherwise) const;

    const Options &options;
    Station station;
    platform::Files &files = station.files;
    const std::string &drivesFolder = station.drivesFolder;
};

std::string PointOfSale::value(const char *name, const char *otherwise) const
{
    const auto found = options.find(name);
    return found == options.end() ? otherwise : found->second;
}

bool PointOfSale::installedHere()
{
    if (!isInstalled(files)) {
        std::fprintf(stderr, "sim_pos: no restaurant in %s; sim_pos sandbox makes one\n",
                     drivesFolder.c_str());
        return false;
    }
    mendLinks(files, ownFolder());
    return true;
}

int PointOfSale::sandbox()
{
    if (isInstalled(files)) {
        std::fprintf(stderr, "sim_pos: there is an installation in %s already; nothing done\n",
                     drivesFolder.c_str());
        return 1;
    }
    if (!makeSandbox(files, drivesFolder, ownFolder() + "/sim_xcharge"))
        return 1;
    std::printf("A restaurant in %s\n", drivesFolder.c_str());
    return 0;
}

bool PointOfSale::takeTender(const TenderRequest &request, int waitSeconds)
{
    const Place place = placeOf(files);
    std::printf("\nTable %s, receipt %s, server %s: %s\n", request.table.c_str(),
                request.receipt.c_str(), request.server.c_str(), request.amount.c_str());
    std::fflush(stdout);
    if (!leaveRequest(place, request))
        return false;
    const auto start = std::chrono::steady_clock::now();
    ChildProcess tndrcc = startTender(ownFolder() + "/TndrCC", drivesFolder, hasDisplay());
    if (tndrcc.id() == 0) {
        std::fprintf(stderr, "sim_pos: no TndrCC in %s\n", ownFolder().c_str());
        return false;
    }
    if (!tndrcc.waitForEnd(waitSeconds * 1000)) {
        tndrcc.kill();
        std::printf("  TndrCC still waited after %d s and was ended\n", waitSeconds);
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    const std::vector<std::string> answer = readAnswer(place);
    std::printf("%s  (TndrCC ran %.2f s)\n", readableAnswer(answer).c_str(), took.count());
    return !answer.empty();
}

// The server answers during this tender; if one is already running, that one does.
bool PointOfSale::takeLocalTender(const TenderRequest &request, int waitSeconds)
{
    const SampleCard card;
    std::printf("\nGive the card at the tender's screen: type a track as a reader would,\n  %s\n"
                "or press \"Enter Manually\": %s, expires %s, from the back %s\n",
                value("--track", card.track).c_str(), card.number, card.expiry, card.verify);
    ChildProcess server = startServer(placeOf(files), drivesFolder);
    const bool answered = takeTender(request, waitSeconds);
    server.end();
    return answered;
}

int PointOfSale::tender()
{
    const std::string mode = value("--mode", "command");
    if (mode != "command" && mode != "local") {
        std::fputs(kUsage, stderr);
        return 2;
    }
    if (!installedHere())
        return 1;
    const bool local = mode == "local";
    if (local && !tenderIsSeen()) {
        std::fputs("sim_pos: in local mode a person gives the card; there is no display\n", stderr);
        return 1;
    }
    setMode(files, placeOf(files).Maindir, local ? Mode::Local : Mode::CommandLine);
    TenderRequest request;
    request.table = value("--table", "12");
    request.receipt = value("--receipt", "1043");
    request.server = value("--server", "7");
    request.amount = value("--amount", "48.50");
    if (options.contains("--audit"))
        request.audit = value("--audit", "");
    const int wait = std::atoi(value("--wait", hasDisplay() ? "0" : "60").c_str());
    const std::vector<std::string> before = slipFiles(drivesFolder);
    const bool answered = local ? takeLocalTender(request, wait) : takeTender(request, wait);
    printSlipFiles(before);
    return answered ? 0 : 1;
}

int PointOfSale::pending()
{
    const Place place = placeOf(files);
    if (!options.contains("--month")) {
        std::printf(
            "CCPending.dat\n%s",
            readableRecords(readCardFile(files, place.Remotedir + "CCPending.dat")).c_str());
        return station.run.failed() ? 1 : 0;
    }
    for (const std::string &path : monthFiles(files, place.Remotedir))
        std::printf("%s\n%s", path.c_str(), readableRecords(readCardFile(files, path)).c_str());
    return station.run.failed() ? 1 : 0;
}

void PointOfSale::printSlipFiles(const std::vector<std::string> &before)
{
    std::printf("\nSlips\n");
    for (const std::string &path : slipFiles(drivesFolder))
        if (std::find(before.begin(), before.end(), path) == before.end())
            std::printf("  %s\n", path.c_str());
}

int PointOfSale::evening()
{
    if (!installedHere())
        return 1;
    const std::time_t now = std::time(nullptr);
    const std::tm today = *std::localtime(&now);
    EveningOptions evening;
    evening.opening.year = today.tm_year + 1900;
    evening.opening.month = today.tm_mon + 1;
    evening.opening.day = today.tm_mday;
    evening.seed = 1521; // of its 120 tenders one is a partial approval, one on a gift card
    evening.allAdjusted = options.contains("--all-adjusted");
    evening.declines = !options.contains("--no-declines");
    const auto records = static_cast<std::size_t>(std::atol(value("--records", "120").c_str()));
    const std::string path = placeOf(files).Remotedir + "CCPending.dat";
    if (!done(writeCardFile(files, path, Evening(records, evening))))
        return 1;
    std::printf("%zu tenders in %s\n", records, path.c_str());
    return 0;
}

int PointOfSale::manager()
{
    if (!tenderIsSeen()) {
        std::fputs("sim_pos: there is no display\n", stderr);
        return 1;
    }
    if ((!isInstalled(files) && sandbox() != 0) || (!options.contains("--keep") && evening() != 0))
        return 1;
    std::fflush(stdout);
    ChildProcess program(ownFolder() + "/TndrMGR", {}, {"LUMBRIO_DRIVES=" + drivesFolder});
    if (program.id() == 0) {
        std::fprintf(stderr, "sim_pos: no TndrMGR in %s\n", ownFolder().c_str());
        return 1;
    }
    program.waitForEnd(0);
    return program.exitCode();
}

// Perhaps nobody is there to swipe the card, which is no fault of the demo.
void PointOfSale::localDemo()
{
    constexpr int kPatience = 180; // seconds
    if (!tenderIsSeen()) {
        std::printf("\nLocal requests: left out. The card is given by a person at the tender's "
                    "screen, and\nthere is no display; with one: script/run tender --mode local\n");
        return;
    }
    const std::string Maindir = placeOf(files).Maindir;
    if (!setMode(files, Maindir, Mode::Local))
        return;
    std::printf("\nA local request; the demo waits %d s for the card.", kPatience);
    takeLocalTender({"9", "1047", "5", "27.30", {}}, kPatience);
    setMode(files, Maindir, Mode::CommandLine);
}

int PointOfSale::window()
{
    if (!tenderIsSeen()) {
        std::fputs("sim_pos: there is no display\n", stderr);
        return 1;
    }
    if (!isInstalled(files) && sandbox() != 0)
        return 1;
    becomeProgram(ownFolder() + "/sim_pos_window", {"--drives", drivesFolder});
    std::fputs("sim_pos: no sim_pos_window beside it\n", stderr);
    return 1;
}

int PointOfSale::demo()
{
    if (!isInstalled(files) && sandbox() != 0)
        return 1;
    if (!installedHere())
        return 1;
    const std::vector<std::string> before = slipFiles(drivesFolder);
    setMode(files, placeOf(files).Maindir, Mode::CommandLine);
    bool answered = true;
    for (const TenderRequest &request : {TenderRequest{"12", "1043", "7", "48.50", "48.50"},
                                         TenderRequest{"4", "1044", "2", "31.01", {}},
                                         TenderRequest{"21", "1045", "6", "80.03", {}},
                                         TenderRequest{"7", "1046", "7", "22.04", {}}})
        answered = takeTender(request, hasDisplay() ? 0 : 60) && answered;
    localDemo();
    std::printf("\n");
    pending();
    printSlipFiles(before);
    std::printf("\nEverything lies in %s\n", drivesFolder.c_str());
    return answered ? 0 : 1;
}

void printRows(const char *title, const std::vector<OutcomeRow> &rows)
{
    std::printf("%s\n", title);
    for (const OutcomeRow &row : rows) {
        std::string cents = row.firstCents < 10 ? ".0" : ".";
        cents += std::to_string(row.firstCents);
        if (row.lastCents != row.firstCents)
            cents += " to ." + std::to_string(row.lastCents);
        std::printf("  %-11s %-17s %s\n", cents.c_str(), std::string(row.name).c_str(),
                    std::string(row.meaning).c_str());
    }
    std::printf("  others      approved\n");
}

int printOutcomes()
{
    printRows("By command line", outcomeRows());
    printRows("By local request", serverRows());
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const std::string command = argc > 1 ? argv[1] : "";
    const Options options = parseOptions(argc, argv);
    if (!onlyKnown(options))
        return 2;
    if (command == "outcomes")
        return printOutcomes();
    PointOfSale pointOfSale(options);
    if (command == "sandbox")
        return pointOfSale.sandbox();
    if (command == "tender")
        return pointOfSale.tender();
    if (command == "pending")
        return pointOfSale.pending();
    if (command == "evening")
        return pointOfSale.evening();
    if (command == "manager")
        return pointOfSale.manager();
    if (command == "demo")
        return pointOfSale.demo();
    if (command == "window")
        return pointOfSale.window();
    std::fputs(kUsage, stderr);
    return 2;
}
