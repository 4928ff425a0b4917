// Whole tenders, and all that each leaves behind: how it ended, what the operator was told, the
// answer, the records, the slips, the traces.
#include "story/stories.h"
#include "support/tender_stage.h"
#include "tender/wait_rules.h"

namespace {

using namespace records;
using story::Lines;
using story::Section;
using tender::TenderFields;

class TenderProcedures : public support::TenderStage {
public:
    TenderProcedures()
    {
        addWords();
        addCommands();
        for (const char *name :
             {"the manager is asked", "the server is busy", "an old program is ended", "it prints"})
            event(name);
        story.view.onManager = [this] { happen("the manager is asked"); };
        story.view.onBusy = [this] { happen("the server is busy"); };
        story.station.system.onKill = [this](Words) { happen("an old program is ended"); };
        story.view.onRefresh = [this](const TenderFields &fields) { refreshed(fields); };
    }

private:
    void addWords()
    {
        word("swipe", [this](Words) { swipe(story.kTrack1, story.kTrack2); });
        word("first track", [this](Words track) { tender.takeFirstTrack(track); });
        word("second track", [this](Words track) { tender.takeSecondTrack(track); });
        word("type card", [this](std::string card) {
            const std::string number = story::takeUntil(card, " ");
            const std::string expiry = story::takeUntil(card, " ");
            story.view.typedCard = {number, expiry, card};
        });
        word("look", [this](Words) { look(); });
        word("the offline panel is switched on", [this](Words) { tender.offlinePanel = true; });
        word("stop waiting", [this](Words) { story.app.values.StopWaiting = 65535; });
        word("a manager's card is read",
             [this](Words) { story.app.values.managerCheckMode = "100"; });
        word("no cut", [this](Words) { story.app.values.NoCut2Flag = -1; });
    }
    void addCommands()
    {
        const TenderFields &f = tender.state();
        const auto offline = [&f] { return f.offlinePanelVisible; };
        const auto pressed = [&of = tender](void (support::StoryTender::*does)()) {
            return [&of, does] { (of.*does)(); };
        };
        using T = support::StoryTender;
        command("Cancel", pressed(&T::cancel), [&f] { return f.cancel.enabled; });
        command("Finish Tender", pressed(&T::finishTender), [&f] { return f.finish.enabled; });
        command("Enter Manually", pressed(&T::enterManually),
                [&f] { return f.enterManually.enabled; });
        command("Gratuity", pressed(&T::switchGratuitySlip));
        command(
            "No receipt", [this] { tender.setNoReceipt(true); },
            [&f] { return f.noReceiptEnabled; });
        command("YES", pressed(&T::askForOfflineApproval), offline);
        command("NO", pressed(&T::keepWaiting), offline);
        command("Picture", pressed(&T::deleteBatchMarker));
    }

    void play() override { story.run(100'000); }
    void swipe(Words first, Words second)
    {
        tender.takeFirstTrack(first);
        tender.takeSecondTrack(second);
    }
    void refreshed(const TenderFields &fields)
    {
        if (fields.status == "Approved Printing Receipt")
            happen("it prints");
    }
    void look()
    {
        tell(
            (story.answered() ? story.answer().substr(0, story.answer().find('\r')) : "no answer") +
            ", " + std::to_string(story.pending().size()) + " records, " +
            std::to_string(story.station.printers.collected.size()) + " slips" +
            (story.station.has(support::TenderStory::kMarker) ? ", marker" : "") +
            (story.view.hidden ? ", hidden" : "") +
            (tender.state().offlinePanelVisible ? ", offline panel" : "") +
            (story.app.values.managerCheckMode.empty() ? "" : ", a manager's card is awaited"));
    }

    std::vector<Section> leftBehind() override
    {
        std::vector<Section> parts = {{"tender", tenderLines()},
                                      {"payment", paymentLines()},
                                      {"records", recordLines()},
                                      {"slips", slipLines()}};
        addFiles(parts);
        std::erase_if(parts, [](const Section &part) { return part.lines.empty(); });
        return parts;
    }
    std::string ended() const
    {
        const platform::Run &run = story.station.run;
        return run.failed()         ? "failed"
               : story.stillWaiting ? "waits"
               : run.ending()       ? "ended"
                                    : "stays";
    }
    Lines tenderLines() const
    {
        const TenderFields &f = story.tender.state();
        Lines lines = {ended(), "files in " + story.app.values.Maindir + " and " +
                                    story.app.values.Remotedir};
        for (const auto &[name, shown] :
             {std::pair("card or result ", f.cardOrResult),
              {"audit ", f.auditAmount},
              {"server ", f.server},
              {"table ", f.table},
              {"receipt ", f.receipt},
              {"with gratuity ", f.totalWithGratuity},
              {"gratuity ", f.gratuityPercent},
              {"name of server ", f.serverName},
              {"command line ", f.commandLineMode},
              {"partial support ", f.partialSupport},
              {"kind ", f.saleKind},
              {"card ", f.cardNumber},
              {"expires ", f.expiry},
              {"first name ", f.firstName},
              {"last name ", f.lastName},
              {"", std::string(f.offlinePanelVisible ? "offline panel" : "")}})
            if (!shown.empty())
                lines.push_back(name + shown);
        for (const auto &[what, list] : {std::pair("status ", story.view.status),
                                         {"box ", boxes()},
                                         {"asked ", story.view.asked}})
            for (const std::string &line : list)
                lines.push_back(what + line);
        return lines;
    }
    Lines paymentLines() const
    {
        Lines lines;
        for (const auto &started : story.station.system.started)
            lines.push_back("starts " + started.commandLine);
        for (const std::string &request : story.requests)
            lines.push_back("takes " + request.substr(0, request.find('\r')));
        for (const std::string &file : story.left())
            lines.push_back("left " + file);
        return lines;
    }
    /// By the file that holds them; a field that was never assigned is not told, those that were
    /// assigned nothing in one line.
    Lines recordLines() const
    {
        Lines lines;
        for (const char *name :
             {"CCPending.dat", "data\\CCFinal0125.dat", "data\\0125CCdeleted.dat"}) {
            const std::string path = story.app.values.Remotedir + name;
            if (story.station.has(path))
                lines.push_back(std::string("in ") + name);
            for (const CardRecord &record : story.records(path)) {
                std::string blank = "blank";
                for (const CardField &field : kCardFields)
                    if (record.text(field).empty())
                        blank += record.raw(field)[0] == '\0' ? "" : std::string(" ") + field.name;
                    else
                        lines.push_back(std::string(field.name) + " " + record.text(field));
                lines.push_back(blank);
            }
        }
        return lines;
    }
    /// Headings and what has figures or a name; each word is the slips' own affair.
    Lines slipLines() const
    {
        Lines lines = platform::splitLines(story.slips());
        std::erase_if(lines, [](Words line) {
            return line.find_first_of("0123456789[:") == line.npos && line != "- - - cut - - -";
        });
        return lines;
    }
    void addFiles(std::vector<Section> &parts)
    {
        const std::string &here = story.app.values.Maindir;
        for (const auto &[folder, name] : {std::pair(std::string("C:\\"), "Xsend.ans"),
                                           {here, "Xsend.ans"},
                                           {here, "XAudit.DAT"},
                                           {here, "CCnoPrint.dat"},
                                           {here, "CreditApproval.dat"},
                                           {story.app.values.Remotedir, "BadSwipe.dat"}}) {
            if (!story.station.has(folder + name))
                continue;
            const std::string content = story.station.get(folder + name);
            const Lines lines = story::linesOf(content);
            const bool isAnswer = std::string(name) == "Xsend.ans";
            parts.push_back(
                {folder == "C:\\" ? folder + name : name, isAnswer ? numbered(lines) : lines});
            if (content.empty())
                parts.back().lines = {"empty"};
            if (std::string(name) != "BadSwipe.dat")
                findCard(name, content);
        }
        addTraces(parts);
    }
    void findCard(Words name, Words content)
    {
        if (content.find("411111111111") != content.npos)
            complain("a card's number stands in " + name);
    }

    /// What echoes the command line, the result or the answer is not told.
    void addTraces(std::vector<Section> &parts)
    {
        Lines process = traceLines("CCLastProcess.dat");
        Lines log = traceLines("TRACELOG.TXT");
        takeOut(process, "***********  X CHARGE REQUEST INFO  ******************",
                "Calling Set Data");
        takeOut(process, "Response File Name c:\\Lumbrio\\xResultFile.Txt",
                "End File Data c:\\Lumbrio\\xResultFile.Txt");
        for (std::string &line : log)
            line = Trim(line);
        std::erase(log, "");
        takeOut(log, "******  Make Respone File For Lumbrio ******",
                "******  END Respone File For Lumbrio ******");
        for (std::string &line : process)
            if (const auto same = std::find(log.begin(), log.end(), Trim(line));
                !isBlank(line) && same != log.end()) {
                log.erase(same);
                line += " [TRACELOG]";
            }
        parts.push_back({"CCLastProcess.dat", process});
        parts.push_back({"TRACELOG.TXT", log});
    }
    Lines traceLines(Words name)
    {
        const std::string content = story.station.getIfThere(story.app.values.Maindir + name);
        findCard(name, content);
        return story::linesOf(content);
    }
    /// The lines between two, which stay.
    static void takeOut(Lines &lines, Words before, Words behind)
    {
        const auto first = std::find(lines.begin(), lines.end(), before);
        const auto last = std::find(first, lines.end(), behind);
        if (last != lines.end())
            lines.erase(first + 1, last);
    }
    static Lines numbered(Lines lines)
    {
        for (std::size_t i = 0; i < lines.size(); ++i)
            lines[i] = std::to_string(i + 1) + " " + lines[i];
        return lines;
    }

    support::StoryTender &tender = story.tender;
};

TEST(Story, LeavesBehindWhatItShows)
{
    story::expectStories<TenderProcedures>("tender");
}

TEST(Wait, OffersCancelAndWarnsAtItsCounts)
{
    TenderFields fields;
    std::string told;
    for (int count = 0; count <= 180; ++count) {
        const TenderFields before = fields;
        if (tender::reactToCount(count, fields) || fields != before)
            told += std::to_string(count) + (fields.warningVisible ? "! " : " ") + fields.status;
    }
    EXPECT_EQ(told,
              "20 21 49! 51! Connection Problems Press Cancel60! Connection Problems Press "
              "Cancel120! Connection Problems Press Cancel180! Connection Problems Press Cancel");
    std::uint16_t stop = 0;
    TenderFields early;
    EXPECT_FALSE(tender::waitTimerTick(7, early, stop) || early.waitPanelVisible);
    EXPECT_TRUE(tender::waitTimerTick(8, early, stop) && early.waitPanelVisible);
}

TEST(Count, GoesOnWhenTheSystemsClockWraps)
{
    EXPECT_EQ(tender::countSince(4'294'967'000U, 664), 1) << "296 ms before";
}

} // namespace
