// Whole tenders in real time, with the programs as shipped: the point of sale's stand-in leaves the
// request, TndrCC runs, the payment stand-ins answer, and what lies on the drives afterwards is
// looked at. Where a card is swiped or a tender cancelled, it is TndrCC with a hand at its
// keyboard (tests/programs/played_main.cpp).
#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <algorithm>
#include <filesystem>
#include <set>

using namespace simulator;
using namespace support;
using records::CardRecord;

namespace fs = std::filesystem;

namespace {

constexpr int kPatience = 60000; // ms; a tender takes 0.7 s, twenty on a busy machine more

/// One station with its own drives folder.
struct Restaurant {
    Restaurant() { EXPECT_TRUE(makeSandbox(station.files, root, PROGRAMS_DIR "/sim_xcharge")); }
    ~Restaurant()
    {
        if (server)
            server->kill();
    }

    void takeCardsHere(bool served = true)
    {
        EXPECT_TRUE(setMode(station.files, place.Maindir, Mode::Local));
        settings.push_back(std::string("SWIPE=") + SampleCard().track + ";" + SampleCard().number +
                           "=32121010000000000?");
        if (served)
            server.reset(new ChildProcess(startServer(place, root)));
    }

    /// As the point of sale does it: the program runs when this returns. `settings` are those of
    /// the played program, without their common beginning; its clock runs ten times as fast.
    ChildProcess start(const std::string &amount)
    {
        EXPECT_TRUE(leaveRequest(place, {"12", "1043", "7", amount, amount}));
        if (settings.empty())
            return startTender(PROGRAMS_DIR "/TndrCC", root, false, true);
        std::vector<std::string> changes = {"LUMBRIO_DRIVES=" + root, "QT_QPA_PLATFORM=offscreen",
                                            "LUMBRIO_PLAY_CLOCK=10"};
        for (const std::string &setting : settings)
            changes.push_back("LUMBRIO_PLAY_" + setting);
        return {PROGRAMS_DIR "/played/TndrCC", {}, changes, false};
    }

    /// Every record of every card file, with its reference: that of the result, or a plain one.
    std::string records()
    {
        std::string text;
        const std::string result = station.getIfThere("C:\\Lumbrio\\ResponseBACKUP.txt");
        for (const std::string &folder : {place.Remotedir, place.Remotedir + "data\\"})
            for (const std::string &name : station.files.list(folder)) {
                const std::size_t kind = name.find("CC"); // the month may stand before it
                if (kind == std::string::npos)
                    continue;
                for (const CardRecord &record : readCardFile(station.files, folder + name)) {
                    const std::string reference = records::StrDecode(record.text(records::CCNumb));
                    text += name.substr(kind, 7);
                    for (const auto &field : {records::CCstatus, records::CCAdjStatus,
                                              records::CCTabAmt, records::CCReceipt})
                        text += ", " + record.text(field);
                    text += ", " + (reference.empty()                       ? "none"
                                    : result.find(reference) != result.npos ? "of the result"
                                                                            : reference);
                    EXPECT_EQ(record.text(records::CCEncoded), "1");
                }
            }
        return text;
    }

    /// How many files below a folder are named and hold so.
    auto files(const std::string &below, const std::string &ending, const std::string &text) const
    {
        const fs::recursive_directory_iterator all(root + below);
        return std::count_if(begin(all), end(all), [&](const fs::directory_entry &entry) {
            return entry.is_regular_file() && entry.path().string().ends_with(ending) &&
                   contentOf(entry.path().string()).find(text) != std::string::npos;
        });
    }

    TestStation station;
    const std::string root = station.drives.root();
    Place place = placeOf(station.files);
    std::vector<std::string> settings;
    std::unique_ptr<ChildProcess> server;
};

} // namespace

// A guest's card would lie on a share for everybody to read; a decline would cost the house money,
// an approval twice the guest. A wait begins after the settle time of a swipe, and Cancel is
// enabled 14.4 s later; without a server, or while the back office batches, nothing may be charged.
TEST(EndToEnd, EveryTenderLeavesTheRightFiles)
{
    expectTable("simulator/tenders.txt", [](const std::string &input) {
        Restaurant restaurant;
        TestStation &station = restaurant.station;
        const auto has = [&](const char *word) { return input.find(word) != input.npos; };
        const std::string marker = restaurant.place.Remotedir + "ServerISBatching.dat";
        if (has(" at once"))
            station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        if (has(" batching"))
            station.put(marker, "\"\"\r\n");
        if (has(" here"))
            restaurant.takeCardsHere(has(" served"));
        if (has(" ESCAPE"))
            restaurant.settings.push_back(input.substr(input.find("ESCAPE")));
        ChildProcess tender = restaurant.start(input.substr(0, input.find(' ')));
        EXPECT_TRUE(tender.waitForEnd(kPatience)) << "TndrCC still waits";
        tender.kill();
        EXPECT_EQ(tender.exitCode(), 0);
        const std::vector<std::string> answer = readAnswer(restaurant.place);
        EXPECT_EQ(station.has("C:\\Lumbrio\\XAudit.DAT"), answer.empty()) << input;
        const std::string payments =
            station.getIfThere("c:\\Program Files\\X-charge\\sim_xcharge.log");
        const auto slips = restaurant.files("/spool/receipt", ".pdf", "");
        EXPECT_EQ(restaurant.files("/spool/receipt", ".txt", ""), slips);
        return std::vector{answer.empty() ? "none" : answer.front() + " / " + answer.back(),
                           std::to_string(answer.size()) + " lines",
                           restaurant.records(),
                           std::to_string(slips) + " slips",
                           std::to_string(platform::splitLines(payments).size()) + " payments",
                           std::string(station.has(marker) ? "marker" : ""),
                           std::to_string(restaurant.files("", "", SampleCard().number) +
                                          restaurant.files("", "", "SAMPLE/WILLOW")) +
                               " in clear"};
    });
}

TEST(UnreadableInstallation, IsReportedAndNoCardIsChargedWithTheUsualLogin)
{
    Restaurant restaurant;
    fs::remove(restaurant.root + "/installation.ini");
    fs::create_directory(restaurant.root + "/installation.ini");
    restaurant.station.put("C:\\Lumbrio\\Xsend.ans", "\"Approved\"\r\n"); // of the guest before
    ChildProcess tender = restaurant.start("48.50");
    EXPECT_FALSE(tender.waitForEnd(4000)) << "its message waits for somebody";
    EXPECT_FALSE(restaurant.station.files.exists("C:\\Lumbrio\\Xsend.ans"));
    tender.kill();
    EXPECT_EQ(restaurant.records(), "");
    EXPECT_FALSE(restaurant.station.files.exists("C:\\Lumbrio\\ResponseBACKUP.txt"));
}

// Every station of a busy restaurant must report what is stored on the share, once.
TEST(TwentyTenders, AtOnceLoseAndDoubleNoRecord)
{
    std::vector<Restaurant> stations(20);
    std::vector<std::unique_ptr<ChildProcess>> tenders;
    std::multiset<std::string> told, stored;
    const fs::path share = stations[0].root + "/f";
    for (std::size_t i = 0; i < stations.size(); ++i) {
        if (i > 0) {
            fs::remove_all(stations[i].root + "/f");
            fs::create_directory_symlink(share, stations[i].root + "/f");
        }
        if (i % 2 == 1)
            stations[i].takeCardsHere();
        const std::string amount = std::to_string(i + 1) + (i % 4 < 2 ? ".50" : ".01");
        tenders.emplace_back(new ChildProcess(stations[i].start(amount)));
    }
    for (std::size_t i = 0; i < stations.size(); ++i) {
        EXPECT_TRUE(tenders[i]->waitForEnd(kPatience));
        const std::vector<std::string> answer = readAnswer(stations[i].place);
        ASSERT_GE(answer.size(), 10U) << i;
        EXPECT_EQ(answer[0], i % 4 < 2 ? "Approved" : "Declined") << i;
        told.insert(answer[0] + records::Trim(answer[answer.size() - 9]));
    }
    for (const CardRecord &record :
         readCardFile(stations[0].station.files, "F:\\Lumbrio\\CCPending.dat"))
        stored.insert(record.text(records::CCstatus) + record.text(records::CCTabAmt));
    EXPECT_EQ(stored, told);
    EXPECT_EQ(stored.size(), stations.size());
    EXPECT_EQ(stations[0].files("/f", "", SampleCard().number), 0);
}
