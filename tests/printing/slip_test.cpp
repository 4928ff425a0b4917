// The slips word for word, and what decides which of them are printed, where, cut and closed.
#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/card_helpers.h"
#include "story/stories.h"
#include "support/golden_table.h"

namespace {

using namespace printing;
using namespace records;
using platform::splitLines;

/// A station with a configured receipt printer and an approved payment in hand.
class Payment : support::HasStation, public story::Stage {
public:
    Payment() : Stage(HasStation::station)
    {
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.EmployeeShortName = "Maria ";
        app.values.PrintTipLine = true;
        context.requestText = "12";
        context.seconds = " 4 ";
        context.transRecord = 17;
        addPaymentWords();
        addSlipWords();
        addPenWords();
    }
    /// In hand, as the stories have it too.
    void take()
    {
        const std::string name = "golden/slips/slips.story";
        for (const story::ScriptLine &line :
             story::readStories(name, support::testFile(name)).given)
            act(line.text);
    }
    /// Lines of the language, with "; " between them.
    void doAll(std::string lines)
    {
        while (!lines.empty())
            act(story::takeUntil(lines, "; "));
    }

    /// Pictures and cuts of what that prints, each job in brackets.
    std::string outline(const std::string &script)
    {
        jobs().clear();
        doAll(script);
        std::string text;
        for (const auto &collected : jobs()) {
            text += "[";
            for (const std::string &line : splitLines(platform::describe(collected.job)))
                text += line.starts_with("picture ") ? line.substr(7) : line == "cut" ? " cut" : "";
            text += " ]";
        }
        return text;
    }
    std::string creditApproval() const
    {
        return station.getIfThere("C:\\Lumbrio\\CreditApproval.dat");
    }
    std::vector<std::string> &installed() { return station.printers.installed; }

    App app{station.services};
    Printer printer{station.printers};

private:
    void addPaymentWords()
    {
        word("record", [this](std::string rest) {
            const std::string name = story::takeUntil(rest, " ");
            for (const CardField &field : kCardFields)
                if (name == field.name)
                    app.values.CCdata.set(field, rest);
        });
        word("scrambled", [this](Words text) { app.values.CCdata.set(CCNumb, StrEncode(text)); });
        word("request", [this](Words text) { context.requestText = text; });
        word("no customer copy", [this](Words) { context.noCustomerCopy = true; });
        word("no cut", [this](Words) { app.values.NoCut2Flag = -1; });
        word("no tip line", [this](Words) { app.values.PrintTipLine = false; });
        word("command line", [this](Words) { app.values.X1009 = true; });
        word("reprint", [this](Words) { context.reprint = true; });
        word("gift", [this](Words) { context.giftMarker = true; });
        word("tip before", [this](Words tipAndTotal) {
            context.tipPreApproved = true;
            context.preApprovedTip = Val(tipAndTotal);
            context.totalWithTip = Val(tipAndTotal.substr(tipAndTotal.find(' ')));
        });
    }
    void addSlipWords()
    {
        slip("Print_Merch", "", [this] { Print_Merch(app, printer, context); });
        slip("Print_Cust", "Print_Merch", [this] { Print_Cust(app, printer, context); });
        slip("PrintPartial_Merch", "Print_Merch",
             [this] { PrintPartial_Merch(app, printer, context); });
        slip("PrintPartial_Cust", "PrintPartial_Merch",
             [this] { PrintPartial_Cust(app, printer, context); });
        slip("Att_Server", "", [this] { Att_Server(app, printer); });
        slip("Reprint_Merch", "Print_Merch", [this] { Reprint_Merch(app, printer, context); });
        slip("Reprint_Cust", "Print_Cust", [this] { Reprint_Cust(app, printer, context); });
        slip("Print_Cust2", "Reprint_Cust", [this] { Print_Cust2(app, printer, context); });
        slip("balance page", "", [this] { printGiftBalancePage(app, printer); });
    }
    void slip(const char *routine, const char *sibling, const std::function<void()> &print)
    {
        word(routine, [this, routine, sibling, print](Words) {
            print();
            tellChanges(routine, newPaper(seen + 1), sibling);
            if (seen < jobs().size()) // a void has a second job
                tellChanges(routine + std::string(", merchant's"), newPaper(jobs().size()),
                            "Reprint_Merch");
        });
    }
    /// What has been printed since the last time, up to that job: each line with the font that it
    /// changes to.
    story::Lines newPaper(std::size_t until)
    {
        story::Lines lines;
        for (; seen < std::min(until, jobs().size()); ++seen) {
            lines.push_back("on " + jobs()[seen].printer);
            std::string font;
            for (const std::string &each : splitLines(platform::describe(jobs()[seen].job))) {
                if (each.starts_with("font "))
                    font = "  <" + each.substr(5) + ">";
                else
                    lines.push_back(each + std::exchange(font, ""));
            }
        }
        return gathered(lines);
    }
    /// Equal lines in a row as one.
    static story::Lines gathered(const story::Lines &lines)
    {
        story::Lines told;
        for (auto at = lines.begin(); at != lines.end();) {
            const auto end = std::find_if(at, lines.end(), [&](Words one) { return one != *at; });
            told.push_back((end - at > 1 ? std::to_string(end - at) + " x " : "") + *at);
            at = end;
        }
        return told;
    }
    void addPenWords()
    {
        word("choose", [this](Words name) {
            app.values.ReceiptPrinterName = name;
            Set_Printer(app, printer);
        });
        word("family", [this](Words name) { printer.setFamily(name); });
        word("bold", [this](Words) { printer.setBold(true); });
        word("italic", [this](Words) { printer.setItalic(true); });
        word("line", [this](Words text) { printer.line(text); });
        word("close", [this](Words) { printer.closeJob(); });
    }

    void configure(int field, Words text) override
    {
        app.values.config.set(configField(field), text);
    }
    std::vector<story::Section> leftBehind() override
    {
        if (printer.jobOpen())
            complain("a job is open");
        const story::Lines paper = newPaper(jobs().size());
        return paper.empty() ? std::vector<story::Section>()
                             : std::vector<story::Section>{{"paper", paper}};
    }
    std::vector<support::FakePrinters::Collected> &jobs() { return station.printers.collected; }

    using HasStation::station;
    SlipContext context;
    std::size_t seen = 0; // jobs
};

TEST(Stories, OfTheSlipsPrintWhatTheirFileShows)
{
    story::expectStories<Payment>("slips");
}

/// Lines of a row have "; " between them; each column is what those of its heading print.
void expectOutlines(const std::string &table, const std::vector<std::string> &scripts)
{
    support::expectTable(table, [&](const std::string &lines) {
        Payment payment;
        payment.take();
        payment.doAll(lines);
        std::vector<std::string> outlines;
        for (const std::string &script : scripts)
            outlines.push_back(payment.outline(script));
        outlines.push_back(payment.creditApproval());
        return outlines;
    });
}

// The reference that the customer's copy leaves behind, when it is not printed, is scrambled.
TEST(Slips, AreCutClosedAndLeftOutAsTheGoldenTablesSay)
{
    expectOutlines("slips/cuts.txt", {"Print_Merch; Print_Cust", "close",
                                      "PrintPartial_Merch; PrintPartial_Cust; Att_Server",
                                      "Reprint_Merch; Reprint_Cust; Print_Cust2"});
    expectOutlines("slips/copies.txt",
                   {"Print_Merch; Print_Cust", "PrintPartial_Merch; PrintPartial_Cust"});
}

TEST(Slips, GoToTheLastPrinterThatFits)
{
    support::expectTable("slips/printers.txt", [](std::string names) {
        Payment payment;
        payment.take();
        const std::string configured = story::takeUntil(names, " of ");
        payment.installed().clear();
        while (!names.empty())
            payment.installed().push_back(story::takeUntil(names, ","));
        payment.app.values.ReceiptPrinterName = configured;
        Set_Printer(payment.app, payment.printer);
        const std::string selected = payment.printer.selectedName();
        const std::string vendor = payment.printer.vendorPrinterPresent() ? "vendor" : "";
        Set_PrinterVendor(payment.printer);
        return std::vector{selected, vendor, payment.printer.selectedName()};
    });
}

} // namespace
