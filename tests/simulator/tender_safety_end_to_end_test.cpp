// What must never happen to money and cards, tried with real processes: the tender with a hand at
// its keyboard (tests/programs/TndrCC_played_main.cpp), killed, cancelled, stalled, and twenty at
// once.
#include "simulator/restaurant.h"
#include "support/golden_table.h"

#include <fstream>
#include <memory>
#include <set>

using namespace simulator;
using namespace support;
using records::CardRecord;

namespace fs = std::filesystem;

namespace {

const std::string kNumber = SampleCard().number;
const std::string kTrack = SampleCard().track + (";" + kNumber + "=32121010000000000?");
const std::string kSwipe = "SWIPE=" + kTrack;

std::string contentOf(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Files below a drives folder in which a card stands in clear.
std::string cardsInClear(const std::string &root)
{
    std::string found;
    for (const auto &entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file())
            continue;
        const std::string content = contentOf(entry.path());
        for (const std::string &secret : {kNumber, std::string("SAMPLE/WILLOW")})
            if (content.find(secret) != std::string::npos)
                found += entry.path().filename().string() + " ";
    }
    return found;
}

} // namespace

// A guest's card would lie on a share for everybody to read; a decline would cost the house money,
// an approval twice the guest. A wait begins behind the settle time of a swipe, and its Cancel is
// allowed 14.4 s later; without a server, or while the back office batches, nothing may be charged.
TEST(PlayedTender, LeavesWhatTheGoldenTableSaysAndNoCardInClear)
{
    expectTable("simulator/played_tenders.txt", [](const std::string &input) {
        Restaurant restaurant;
        const auto has = [&](const char *word) { return input.find(word) != input.npos; };
        const std::string marker = restaurant.place.Remotedir + "ServerISBatching.dat";
        if (has(" batching"))
            restaurant.station.put(marker, "\"\"\r\n");
        if (has(" here"))
            restaurant.takeCardsHere();
        std::unique_ptr<ChildProcess> server;
        if (has(" served"))
            server.reset(new ChildProcess(restaurant.serve()));
        std::vector<std::string> settings;
        if (has(" here"))
            settings.push_back(kSwipe);
        if (has(" ESCAPE"))
            settings.push_back(input.substr(input.find(" ESCAPE") + 1));
        ChildProcess tender = restaurant.play(input.substr(0, input.find(' ')), settings);
        EXPECT_TRUE(tender.waitForEnd(kPatience)) << input;
        tender.kill();
        if (server)
            server->kill();
        const std::vector<std::string> answer = restaurant.answer();
        std::string records;
        for (const CardRecord &record : restaurant.pending())
            records += record.text(records::CCstatus) + ", " +
                       records::StrDecode(record.text(records::CCNumb)) + ", " +
                       record.text(records::CCName);
        return std::vector{answer.empty() ? "none" : answer[0],
                           std::to_string(answer.size()) + " lines",
                           records,
                           restaurant.slips(),
                           std::to_string(restaurant.payments()) + " payments",
                           std::string(restaurant.station.has(marker) ? "marker" : ""),
                           cardsInClear(restaurant.root())};
    });
}

// A stalled payment application is started once more; a third start could charge a third time.
TEST(CommandLineEndToEnd, AStalledPaymentApplicationIsStartedExactlyTwice)
{
    Restaurant restaurant;
    ChildProcess tender = restaurant.play("48.07", {});
    EXPECT_TRUE(eventually([&] { return restaurant.payments() == 2; }));
    EXPECT_FALSE(tender.waitForEnd(1500)); // 15 s of the program's own
    tender.kill();
    EXPECT_EQ(restaurant.payments(), 2U);
}

// Killed at every third operation on a file (all of them are stopped in virtual time): nobody
// else's record is touched, no record is half there, no request is half-written, and the point of
// sale hears of no approval that is not on the disk.
TEST(KilledTender, LeavesAWholeRecordOrNone)
{
    const std::string earlier = std::string(500, 'a') + std::string(500, 'b');
    for (const bool local : {false, true}) {
        std::set<std::string> ends;
        long total = 1;
        for (long n = 0; n <= total; n += n == 0 ? 1 : 3) {
            Restaurant restaurant;
            const std::string pendingFile = restaurant.place.Remotedir + "CCPending.dat";
            restaurant.station.put(pendingFile, earlier);
            std::unique_ptr<ChildProcess> server;
            const std::string countFile = restaurant.root() + "/operations";
            std::vector<std::string> settings = {n == 0 ? "COUNT=" + countFile
                                                        : "KILL=" + std::to_string(n)};
            if (local) {
                restaurant.takeCardsHere();
                server.reset(new ChildProcess(restaurant.serve()));
                settings.push_back(kSwipe);
            }
            ChildProcess tender = restaurant.play("48.50", settings);
            ASSERT_TRUE(tender.waitForEnd(kPatience)) << n;
            if (server)
                server->kill();
            if (n == 0)
                total = std::stol(contentOf(countFile));
            const std::string pending = restaurant.station.get(pendingFile);
            EXPECT_EQ(pending.substr(0, 1000), earlier) << n;
            ASSERT_TRUE(pending.size() == 1000 || pending.size() == 1500) << n << pending.size();
            if (pending.size() == 1500) {
                const CardRecord record = restaurant.pending()[2];
                EXPECT_EQ(record.text(records::CCReceipt) + record.text(records::CCEncoded),
                          "10431");
            }
            const std::vector<std::string> answer = restaurant.answer();
            EXPECT_TRUE(answer.empty() || (answer.size() == 10 && pending.size() == 1500)) << n;
            const std::string folder = "c:\\Program Files\\X-charge\\LocalTran\\";
            for (const std::string &name : restaurant.station.files.list(folder))
                EXPECT_TRUE(!name.ends_with(".req") ||
                            restaurant.station.get(folder + name).ends_with("\r\n"))
                    << n;
            ends.insert(std::to_string(pending.size()) + (answer.empty() ? "" : " answered"));
        }
        EXPECT_GT(total, 60);
        EXPECT_EQ(ends, (std::set<std::string>{"1000", "1500", "1500 answered"}));
    }
}

// A full house: every station tells its point of sale what lies on the share, once.
TEST(TwentyTenders, AtOnceLoseAndDoubleNothing)
{
    constexpr int kStations = 20;
    std::vector<std::unique_ptr<Restaurant>> stations;
    for (int i = 0; i < kStations; ++i) {
        stations.push_back(std::make_unique<Restaurant>());
        if (i > 0) { // one share and one payment server for all
            for (const char *shared : {"/f", "/c/Program Files"}) {
                fs::remove_all(stations[i]->root() + shared);
                fs::create_directory_symlink(stations[0]->root() + shared,
                                             stations[i]->root() + shared);
            }
        }
        if (i % 2 == 1)
            stations[i]->takeCardsHere();
    }
    ChildProcess server = stations[0]->serve();
    std::vector<std::unique_ptr<ChildProcess>> tenders;
    for (int i = 0; i < kStations; ++i) {
        std::vector<std::string> settings = {"STATION=POS-" + std::to_string(i)};
        if (i % 2 == 1)
            settings.push_back(kSwipe);
        const std::string amount = std::to_string(i + 1) + (i % 4 < 2 ? ".50" : ".01");
        tenders.emplace_back(new ChildProcess(stations[i]->play(amount, settings)));
    }
    for (auto &tender : tenders) {
        EXPECT_TRUE(tender->waitForEnd(3 * kPatience));
        tender->kill();
    }
    server.kill();
    std::map<std::string, std::string> stored;
    for (const CardRecord &record : stations[0]->pending())
        EXPECT_TRUE(stored
                        .emplace(record.text(records::CCStation),
                                 record.text(records::CCstatus) + record.text(records::CCTabAmt))
                        .second)
            << "twice: " << record.text(records::CCStation);
    EXPECT_EQ(stored.size(), static_cast<std::size_t>(kStations));
    for (int i = 0; i < kStations; ++i) {
        const std::vector<std::string> answer = stations[i]->answer();
        ASSERT_GE(answer.size(), 10U) << i;
        const std::string amount = records::Trim(answer[answer.size() == 11 ? 2 : 1]);
        EXPECT_EQ(stored["POS-" + std::to_string(i)], answer[0] + amount);
        EXPECT_EQ(answer[0], i % 4 < 2 ? "Approved" : "Declined") << i;
    }
    EXPECT_EQ(cardsInClear(stations[0]->root()), "");
}
