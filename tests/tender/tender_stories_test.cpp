// Whole tenders, and all that each leaves behind: how it ended, what the operator was told, the
// answer, the records, the slips, the traces.
#include "telling.h"
#include "tender/wait_rules.h"

namespace {

using namespace records;
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
    text += "screen " + fields.cardOrResult + "|" + fields.auditAmount;
    for (const std::string &shown :
         {fields.server, fields.table, fields.receipt, fields.totalWithGratuity,
          fields.gratuityPercent, fields.serverName, fields.commandLineMode, fields.partialSupport,
          fields.saleKind, fields.cardNumber, fields.expiry, fields.firstName, fields.lastName})
        text += "|" + shown;
    text += fields.offlinePanelVisible ? "|offline panel" : "";
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
         {std::string("C:\\Xsend.ans"), values.Maindir + "Xsend.ans", values.Maindir + "XAudit.DAT",
          values.Maindir + "CCnoPrint.dat", values.Maindir + "CreditApproval.dat",
          values.Maindir + "CCLastProcess.dat", values.Maindir + "TRACELOG.TXT",
          values.Remotedir + "BadSwipe.dat"}) {
        const std::string content = station.getIfThere(file);
        text += station.has(file) ? "== " + file + "\n" + content : "";
        EXPECT_TRUE(file.ends_with("BadSwipe.dat") || content.find("411111111111") == content.npos);
    }
    return text + "== slips\n" + story.slips();
}

class TenderTelling : public support::Telling {
public:
    TenderTelling()
    {
        verbs.insert({
            {"swipe", [&](W) { story.swipe(); }},
            {"first-track", [&](W w) { tender.takeFirstTrack(w.all); }},
            {"second-track", [&](W w) { tender.takeSecondTrack(w.all); }},
            {"type",
             [&](W w) {
                 story.type({w.all.substr(0, 16), w.all.substr(17, 4), w.all.substr(22)});
             }},
            {"look", [&](W) { look(); }},
            {"watch", [&](W) { watch(); }},
            {"offline-panel", [&](W) { story.tender.offlinePanel = true; }},
            {"stop-waiting", [&](W) { story.app.values.StopWaiting = 65535; }},
            {"check-mode", [&](W w) { story.app.values.managerCheckMode = w.all; }},
            {"no-cut", [&](W) { story.app.values.NoCut2Flag = -1; }},
            {"month-ends", [&](W) { story.station.time.setNow(kLastSeconds); }},
            {"prefer", [&](W w) { story.station.printers.preferred = w.all; }},
            {"no-printers", [&](W) { story.station.printers.installed.clear(); }},
            {"role", [&](W w) { story.station.system.executable = w.all; }},
            {"Cancel", [&](W) { tender.cancel(); }},
            {"Enter-Manually", [&](W) { tender.enterManually(); }},
            {"CONFIG", [&](W) { tender.openSetup(); }},
            {"gratuity", [&](W) { tender.switchGratuitySlip(); }},
            {"YES", [&](W) { tender.askForOfflineApproval(); }},
            {"NO", [&](W) { tender.keepWaiting(); }},
            {"warning", [&](W) { tender.offerRemoval(); }},
            {"Start-Xcharge", [&](W) { tender.startPaymentServer(); }},
            {"no-receipt", [&](W) { tender.setNoReceipt(true); }},
            {"picture", [&](W) { tender.deleteBatchMarker(); }},
        });
        story.view.onManager = [this] { happen("manager"); };
        story.view.onBusy = [this] { happen("busy"); };
        story.station.system.onKill = [this](const std::string &) { happen("kill"); };
        story.view.onRefresh = [this](const tender::TenderFields &fields) {
            if (fields.status == "Approved Printing Receipt")
                happen("printing");
        };
    }

    std::string tell(const std::string &script) override
    {
        listen(script);
        story.run(100'000);
        return leftBehind(story) + seen;
    }

private:
    static constexpr platform::DateTime kLastSeconds{2025, 1, 31, 23, 59, 58, 0};

    void look()
    {
        seen += "seen " + (story.answered() ? story.answer().substr(0, 22) : "no answer") + ", " +
                std::to_string(story.pending().size()) + " records, " +
                std::to_string(story.station.printers.collected.size()) + " slips" +
                (story.station.has(TenderStory::kMarker) ? ", marker" : "") +
                (story.view.hidden ? ", hidden" : "") +
                (tender.state().offlinePanelVisible ? ", offline panel" : "") + ", mode " +
                story.app.values.managerCheckMode + "\n";
    }

    /// Tells of each change of what an operator who waits sees, and when it came.
    void watch()
    {
        story.station.time.maxStep = 10;
        story.view.onRefresh = [this](const tender::TenderFields &fields) {
            const std::string now = std::string(fields.cancel.enabled ? " Cancel" : "") +
                                    (fields.waitPanelVisible ? " panel" : "") +
                                    (fields.warningVisible ? " warning" : "") +
                                    (fields.warningRed ? " red" : "") +
                                    (fields.ribbonsVisible ? " ribbons" : "") +
                                    (fields.waitCountVisible ? " counting" : "") + ", " +
                                    std::to_string(story.station.system.started.size()) +
                                    " starts, " + fields.status + "\n";
            if (std::exchange(watched, now) != now)
                seen += std::to_string(story.station.time.milliseconds()) + now;
        };
    }

    std::string watched;
    tender::Tender &tender = story.tender;
};

TEST(Story, LeavesBehindWhatItsGoldenFileSays)
{
    support::expectStories<TenderTelling>("tender/stories", 75);
}

TEST(Count, GoesOnWhenTheSystemsClockWraps)
{
    EXPECT_EQ(tender::countSince(4'294'967'000U, 664), 1) << "296 ms before";
}

} // namespace
