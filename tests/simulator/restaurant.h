// Restaurant: one station with its own drives folder, on which the real programs take tenders in
// real time.
#pragma once

#include "platform/slot_file.h"
#include "records/card_helpers.h"
#include "simulator/pending_table.h"
#include "simulator/pos.h"
#include "simulator/sandbox.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>

namespace support {

using simulator::ChildProcess;

inline constexpr int kPatience = 20000; // ms; a tender takes 0.7 s, on a busy machine more

inline bool eventually(const std::function<bool()> &condition)
{
    const auto start = std::chrono::steady_clock::now();
    while (!condition()) {
        if (std::chrono::steady_clock::now() - start > std::chrono::milliseconds(kPatience))
            return false;
        simulator::pause(5);
    }
    return true;
}

using Records = std::vector<records::CardRecord>;

/// One station with its own drives folder.
class Restaurant {
public:
    Restaurant()
    {
        EXPECT_TRUE(simulator::makeSandbox(station.files, root(), PROGRAMS_DIR "/sim_xcharge"));
    }

    const std::string &root() const { return station.drives.root(); }

    /// As the point of sale does it: the program runs when this returns.
    ChildProcess start(const std::string &amount)
    {
        const simulator::TenderRequest request{"12", "1043", "7", amount, amount};
        EXPECT_TRUE(simulator::leaveRequest(place, request));
        return simulator::startTender(PROGRAMS_DIR "/TndrCC", root(), false, true);
    }

    std::vector<std::string> take(const std::string &amount)
    {
        ChildProcess tender = start(amount);
        EXPECT_TRUE(tender.waitForEnd(kPatience)) << "TndrCC still waits";
        tender.kill();
        EXPECT_EQ(tender.exitCode(), 0);
        return answer();
    }

    /// The tender with a hand at its keyboard; `settings` as tests/programs/TndrCC_played_main.cpp
    /// tells them, without their common beginning. Its clock runs ten times as fast.
    ChildProcess play(const std::string &amount, const std::vector<std::string> &settings)
    {
        const simulator::TenderRequest request{"12", "1043", "7", amount, amount};
        EXPECT_TRUE(simulator::leaveRequest(place, request));
        std::vector<std::string> changes = {"LUMBRIO_DRIVES=" + root(), "QT_QPA_PLATFORM=offscreen",
                                            "LUMBRIO_PLAY_CLOCK=10"};
        for (const std::string &setting : settings)
            changes.push_back("LUMBRIO_PLAY_" + setting);
        return {PROGRAMS_DIR "/played/TndrCC", {}, changes, false};
    }
    ChildProcess serve()
    {
        return {root() + "/c/Program Files/X-charge/Xchrgsrv.exe",
                {"/", "T"},
                {"LUMBRIO_DRIVES=" + root()},
                false};
    }
    void takeCardsHere()
    {
        EXPECT_TRUE(simulator::setMode(station.files, place.Maindir, simulator::Mode::Local));
    }

    std::vector<std::string> answer() { return simulator::readAnswer(place); }
    Records pending()
    {
        return simulator::readCardFile(station.files, place.Remotedir + "CCPending.dat");
    }

    /// Every record of every card file: where it lies, what it says, and whether its scrambled
    /// reference is the one of the result.
    std::string allRecords()
    {
        std::string text;
        const std::string result = station.get("C:\\Lumbrio\\ResponseBACKUP.txt");
        for (const std::string &folder : {place.Remotedir, place.Remotedir + "data\\"})
            for (const std::string &name : station.files.list(folder)) {
                const std::size_t kind = name.find("CC"); // the month may stand before it
                if (kind == std::string::npos)
                    continue;
                for (const auto &record : simulator::readCardFile(station.files, folder + name)) {
                    const std::string reference = records::StrDecode(record.text(records::CCNumb));
                    text += name.substr(kind, 7);
                    for (const auto &field : {records::CCstatus, records::CCAdjStatus,
                                              records::CCTabAmt, records::CCReceipt})
                        text += ", " + record.text(field);
                    text += result.find(reference) == std::string::npos ? ", strange" : "";
                    text += reference.empty() ? ", none" : ", scrambled";
                    EXPECT_EQ(record.text(records::CCEncoded), "1");
                }
            }
        return text;
    }

    /// How many slips were printed, each as PDF and as text.
    std::string slips() const
    {
        int pages = 0;
        int texts = 0;
        for (const auto &entry : std::filesystem::directory_iterator(root() + "/spool/receipt")) {
            pages += entry.path().extension() == ".pdf" ? 1 : 0;
            texts += entry.path().extension() == ".txt" ? 1 : 0;
        }
        EXPECT_EQ(pages, texts);
        return std::to_string(texts) + " slips";
    }

    /// How often the payment application was started.
    std::size_t payments() const
    {
        const std::string log = "c:\\Program Files\\X-charge\\sim_xcharge.log";
        return station.has(log) ? platform::splitLines(station.get(log)).size() : 0;
    }

    support::TestStation station;
    simulator::Place place = simulator::placeOf(station.files);
};

} // namespace support
