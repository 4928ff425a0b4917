// Whole tenders, and all that each leaves behind: how it ended, what the operator was told, the
// answer, the records, the slips, the traces. One golden file a story: above its "----" what
// happens, a line each of moment (ms, "first", or an event), verb and words ("*" stands for an
// approved result); below it what is left.
#include "support/tender_story.h"
#include "support/test_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

namespace {

using namespace records;
using platform::Answer;
using support::TenderStory;

std::string leftBehind(const TenderStory &story)
{
    const support::TestStation &station = story.station;
    const ProcessValues &values = story.app.values;
    std::string text = station.run.failed()   ? "failed\n"
                       : story.stillWaiting   ? "waits\n"
                       : station.run.ending() ? "ended\n"
                                              : "stays\n";
    const tender::TenderFields &fields = story.tender.state();
    text += "screen " + fields.Text1 + "|" + fields.Label9;
    for (const std::size_t item : {4, 5, 6, 9, 10, 12, 13, 14, 15, 0, 1, 2, 3})
        text += "|" + fields.Label3[item];
    text += fields.SSPanel5Visible ? "|offline panel" : "";
    for (const std::string &status : story.view.status)
        text += status.empty() ? "\n" : "status " + status + "\n";
    for (const auto &started : station.system.started)
        text += "started " + started.commandLine + "\n";
    for (const auto &[what, list] : {std::pair("box ", station.dialogs.shown),
                                     {"asked ", story.view.asked},
                                     {"request ", story.requests},
                                     {"left ", story.left()}})
        for (const std::string &line : list)
            text += what + line + (line.ends_with('\n') ? "" : "\n");
    for (const char *name : {"CCPending.dat", "data\\CCFinal0125.dat", "data\\0125CCdeleted.dat"}) {
        const std::string file = values.Remotedir + name;
        text += station.has(file) ? "== " + file + "\n" : "";
        for (const CardRecord &record : story.records(file))
            for (const CardField &field : kCardFields)
                if (record.raw(field)[0] != '\0') // was assigned
                    text += std::string(field.name) + " " + record.text(field) + "\n";
    }
    for (const std::string &file :
         {values.Maindir + "Xsend.ans", values.Maindir + "XAudit.DAT",
          values.Maindir + "CCnoPrint.dat", values.Maindir + "CreditApproval.dat",
          values.Maindir + "CCLastProcess.dat", values.Maindir + "TRACELOG.TXT",
          values.Remotedir + "BadSwipe.dat"}) {
        const std::string content = station.has(file) ? station.get(file) : "";
        text += station.has(file) ? "== " + file + "\n" + content : "";
        EXPECT_TRUE(file.ends_with("BadSwipe.dat") || content.find("411111111111") == content.npos);
    }
    return text + "== slips\n" + story.slips();
}

class Telling {
public:
    std::string tell(const std::string &script)
    {
        story.view.onManager = [this] { happen("manager"); };
        story.view.onBusy = [this] { happen("busy"); };
        story.station.system.onKill = [this](const std::string &) { happen("kill"); };
        for (const std::string &line : platform::splitLines(script)) {
            const std::size_t blank = line.find(' ');
            const std::string moment = line.substr(0, blank);
            const std::string rest = line.substr(blank + 1);
            if (moment == "first")
                act(rest);
            else if (std::isdigit(moment[0]) != 0)
                story.station.time.at(std::stoull(moment), [this, rest] { act(rest); });
            else
                events.emplace(moment, rest);
        }
        story.run(100'000);
        return leftBehind(story) + seen;
    }

private:
    void happen(const std::string &event)
    {
        for (auto [at, end] = events.equal_range(event); at != end; ++at)
            act(at->second);
    }
    void act(const std::string &line)
    {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const auto verb = verbs.find(line.substr(0, blank));
        ASSERT_NE(verb, verbs.end()) << line;
        std::string words = line.substr(std::min(blank + 1, line.size()));
        for (const auto &[what, by] : {std::pair(R"(\\r)", std::string("\r")),
                                       {R"(\\n)", "\n"},
                                       {R"(\\0)", std::string(1, '\0')}})
            words = std::regex_replace(words, std::regex(what), by);
        verb->second(words.starts_with('*') ? support::approvedResult() + words.substr(1) : words);
    }
    void look(const std::string &)
    {
        seen += "seen " + (story.answered() ? story.answer().substr(0, 22) : "no answer") +
                (story.station.has(TenderStory::kMarker) ? ", marker" : "") +
                (story.view.hidden ? ", hidden" : "") +
                (story.tender.state().SSPanel5Visible ? ", offline panel" : "") + ", mode " +
                story.app.values.managerCheckMode + "\n";
    }

    using Words = const std::string &;
    TenderStory story;
    std::multimap<std::string, std::string> events; // of one event in order of entry
    std::string seen;
    tender::Tender &tender = story.tender;
    const std::map<std::string, std::function<void(Words)>> verbs = {
        {"put",
         [&](Words text) {
             const std::size_t bar = text.find('|');
             story.station.put(text.substr(0, bar), text.substr(bar + 1));
         }},
        {"erase", [&](Words path) { story.station.erase(path); }},
        {"configure",
         [&](Words text) { story.configure(std::stoi(text), text.substr(text.find(' ') + 1)); }},
        {"refuse",
         [&](Words text) {
             const std::size_t blank = text.find(' ');
             story.station.disk.failOn(text.substr(0, blank), text.substr(blank + 1),
                                       platform::Outcome::Denied);
         }},
        {"payment", [&](Words result) { story.paymentAnswers(result); }},
        {"late-payment", [&](Words result) { story.paymentAnswers(result, story.replyAfter); }},
        {"second-payment",
         [&](Words result) {
             story.station.system.onStart = [this, result](const support::FakeSystem::Started &) {
                 if (story.station.system.started.size() == 2)
                     story.station.time.after(
                         2500, [this, result] { story.station.put(TenderStory::kResult, result); });
             };
         }},
        {"put-result", [&](Words result) { story.station.put(TenderStory::kResult, result); }},
        {"take-cards-here", [&](Words) { story.takeCardsHere(); }},
        {"reply", [&](Words text) { story.reply = text; }},
        {"long-reply", [&](Words) { story.reply = std::string(100'000, 'Z'); }},
        {"reply-after", [&](Words text) { story.replyAfter = std::stoull(text); }},
        {"silent",
         [&](Words) {
             story.reply = std::nullopt;
             story.paymentKeepsSilent();
         }},
        {"answer",
         [&](Words text) {
             story.station.put(TenderStory::kLocalTran + Left(story.left().at(0), 22) + "ans",
                               text);
         }},
        {"swipe", [&](Words) { story.swipe(); }},
        {"first-track", [&](Words text) { tender.Text2_Change(text); }},
        {"second-track", [&](Words text) { tender.Text5_Change(text); }},
        {"type",
         [&](Words text) {
             story.type({text.substr(0, 16), text.substr(17, 4), text.substr(22)});
         }},
        {"dialog",
         [&](Words text) {
             story.station.dialogs.answerNext(text == "Ok" ? Answer::Ok : Answer::Cancel,
                                              [this] { happen("dialog"); });
         }},
        {"approve", [&](Words name) { story.app.values.managerResult = name; }},
        {"approve-the-second-time",
         [&](Words) {
             const std::string name = story.app.values.ManagerTable[0].name;
             story.app.values.managerResult = story.view.asked.size() == 1 ? "NO" : name;
         }},
        {"pass", [&](Words text) { story.pass(std::stoull(text)); }},
        {"look", [&](Words) { look({}); }},
        {"offline-panel", [&](Words) { story.tender.offlinePanel = true; }},
        {"stop-waiting", [&](Words) { story.app.values.StopWaiting = 65535; }},
        {"check-mode", [&](Words text) { story.app.values.managerCheckMode = text; }},
        {"no-cut", [&](Words) { story.app.values.NoCut2Flag = -1; }},
        {"month-ends",
         [&](Words) {
             story.station.time.setNow({2025, 1, 31, 23, 59, 58, 0});
         }},
        {"prefer", [&](Words name) { story.station.printers.preferred = name; }},
        {"no-printers", [&](Words) { story.station.printers.installed.clear(); }},
        {"role", [&](Words name) { story.station.system.executable = name; }},
        {"end", [&](Words) { story.station.run.end(); }},
        {"Cancel", [&](Words) { tender.SSCommand1_Click(); }},
        {"Enter-Manually", [&](Words) { tender.SSCommand3_Click(); }},
        {"CONFIG",
         [&](Words times) {
             for (int n = std::stoi(times); n > 0; --n)
                 tender.SSCommand5_Click();
         }},
        {"gratuity", [&](Words) { tender.SSCommand7_Click(); }},
        {"YES", [&](Words) { tender.SSCommand8_Click(); }},
        {"NO", [&](Words) { tender.SSCommand9_Click(); }},
        {"warning", [&](Words) { tender.SSPanel4_Click(); }},
        {"Start-Xcharge", [&](Words) { tender.Command3_Click(); }},
        {"no-receipt", [&](Words) { tender.SSCheck1_Click(true); }},
        {"picture", [&](Words) { tender.deleteBatchMarker(); }},
    };
};

TEST(Story, LeavesBehindWhatItsGoldenFileSays)
{
    std::size_t told = 0;
    for (const auto &entry :
         std::filesystem::directory_iterator(TESTS_DIR "/golden/tender/stories")) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        const std::string golden = support::testFile("golden/tender/stories/" + name);
        const std::string script = golden.substr(0, golden.find("----\n"));
        EXPECT_EQ(script + "----\n" + Telling().tell(script), golden);
        ++told;
    }
    EXPECT_GE(told, 60U);
}

TEST(Story, OfAnApprovalStoresBeforeItPrintsAndPrintsBeforeItAnswers)
{
    TenderStory story;
    std::string seen;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        if (fields.Text3 == "Approved Printing Receipt")
            seen = std::to_string(story.pending().size()) + " record, " +
                   std::to_string(story.station.printers.collected.size()) + " slips, " +
                   (story.answered() ? "answered" : "no answer");
    };
    story.run();
    EXPECT_EQ(seen, "1 record, 0 slips, no answer");
}

} // namespace
