// The slips word for word, and what decides which of them are printed, where, cut and closed. One
// golden file a story: above its "----" what happens, a verb and its words a line; below it the
// paper of every printer.
#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "records/card_helpers.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <filesystem>
#include <sstream>

namespace {

using namespace printing;
using namespace records;
using platform::splitLines;

/// A station with a configured receipt printer and an approved payment in hand.
class Payment {
public:
    Payment()
    {
        station.folder("c:\\Lumbrio\\Data");
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.EmployeeShortName = "Maria ";
        app.values.PrintTipLine = true;
        context.requestText = "12";
        context.seconds = " 4 ";
        context.transRecord = 17;
        tell(support::testFile("golden/slips/payment.txt"));
    }

    void tell(const std::string &script)
    {
        for (const std::string &line : splitLines(script)) {
            const std::size_t blank = std::min(line.find(' '), line.size());
            const auto verb = verbs.find(line.substr(0, blank));
            ASSERT_NE(verb, verbs.end()) << line;
            verb->second(line.substr(std::min(blank + 1, line.size())));
        }
    }

    std::string paper() const
    {
        std::string text;
        for (const auto &[name, job] : station.printers.collected)
            text += "on " + name + "\n" + platform::describe(job);
        return text;
    }

    /// Pictures and cuts of what that prints, each job in brackets.
    std::string outline(const std::string &script)
    {
        station.printers.collected.clear();
        tell(script);
        std::string text;
        for (const auto &collected : station.printers.collected) {
            text += "[";
            for (const std::string &line : splitLines(platform::describe(collected.job)))
                text += line.starts_with("picture ") ? line.substr(7) : line == "cut" ? " cut" : "";
            text += " ]";
        }
        return text;
    }

    support::TestStation station;
    App app{station.services};
    Printer printer{station.printers};

private:
    void record(const std::string &words)
    {
        for (const CardField &field : kCardFields)
            if (words.starts_with(field.name + std::string(" ")))
                app.values.CCdata.set(field, words.substr(words.find(' ') + 1));
    }

    using Words = const std::string &;
    SlipContext context;
    const std::map<std::string, std::function<void(Words)>> verbs = {
        {"record", [&](Words words) { record(words); }},
        {"empty-record", [&](Words) { app.values.CCdata = {}; }},
        {"scrambled", [&](Words text) { app.values.CCdata.set(CCNumb, StrEncode(text)); }},
        {"configure",
         [&](Words text) {
             const int field = std::stoi(text);
             app.values.config.set(configField(field), text.substr(text.find(' ') + 1));
         }},
        {"put", [&](Words name) { station.put("c:\\Lumbrio\\" + name, ""); }},
        {"request", [&](Words text) { context.requestText = text; }},
        {"no-customer-copy", [&](Words) { context.noCustomerCopy = true; }},
        {"no-cut", [&](Words) { app.values.NoCut2Flag = -1; }},
        {"no-tip-line", [&](Words) { app.values.PrintTipLine = false; }},
        {"command-line", [&](Words) { app.values.X1009 = true; }},
        {"reprint", [&](Words) { context.reprint = true; }},
        {"gift", [&](Words) { context.giftMarker = true; }},
        {"tip-before",
         [&](Words tipAndTotal) {
             context.tipPreApproved = true;
             context.preApprovedTip = Val(tipAndTotal);
             context.totalWithTip = Val(tipAndTotal.substr(tipAndTotal.find(' ')));
         }},
        {"Print_Merch", [&](Words) { Print_Merch(app, printer, context); }},
        {"Print_Cust", [&](Words) { Print_Cust(app, printer, context); }},
        {"PrintPartial_Merch", [&](Words) { PrintPartial_Merch(app, printer, context); }},
        {"PrintPartial_Cust", [&](Words) { PrintPartial_Cust(app, printer, context); }},
        {"Att_Server", [&](Words) { Att_Server(app, printer); }},
        {"Reprint_Merch", [&](Words) { Reprint_Merch(app, printer, context); }},
        {"Reprint_Cust", [&](Words) { Reprint_Cust(app, printer, context); }},
        {"Print_Cust2", [&](Words) { Print_Cust2(app, printer, context); }},
        {"balance-page", [&](Words) { printGiftBalancePage(app, printer); }},
        {"choose",
         [&](Words name) {
             app.values.ReceiptPrinterName = name;
             Set_Printer(app, printer);
         }},
        {"choose-vendor", [&](Words) { Set_PrinterVendor(printer); }},
        {"family", [&](Words name) { printer.setFamily(name); }},
        {"size", [&](Words points) { printer.setSize(std::stoi(points)); }},
        {"bold", [&](Words) { printer.setBold(true); }},
        {"italic", [&](Words) { printer.setItalic(true); }},
        {"line", [&](Words text) { printer.line(text); }},
        {"tabs", [&](Words columns) { printer.tabs(columns); }},
        {"cut", [&](Words) { printer.cut(); }},
        {"new-page", [&](Words) { printer.newPage(); }},
        {"close", [&](Words) { printer.closeJob(); }},
    };
};

TEST(Slips, AreThoseOfTheirGoldenFiles)
{
    std::size_t told = 0;
    for (const auto &entry :
         std::filesystem::directory_iterator(TESTS_DIR "/golden/slips/stories")) {
        const std::string name = entry.path().filename().string();
        SCOPED_TRACE(name);
        const std::string golden = support::testFile("golden/slips/stories/" + name);
        const std::string script = golden.substr(0, golden.find("----\n"));
        Payment payment;
        payment.tell(script);
        EXPECT_FALSE(payment.printer.jobOpen());
        EXPECT_EQ(script + "----\n" + payment.paper(), golden);
        ++told;
    }
    EXPECT_EQ(told, 16U);
}

/// Verbs of a row stand behind semicolons; each column is what those of its heading print.
void expectOutlines(const std::string &table, const std::vector<std::string> &scripts)
{
    const auto lines = [](const std::string &verbs) {
        return support::replaced(verbs, "; ", "\n");
    };
    support::expectTable(table, [&](const std::string &verbs) {
        Payment payment;
        payment.tell(lines(verbs));
        std::vector<std::string> outlines;
        for (const std::string &script : scripts)
            outlines.push_back(payment.outline(lines(script)));
        outlines.push_back(payment.station.getIfThere("c:\\Lumbrio\\CreditApproval.dat"));
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
    support::expectTable("slips/printers.txt", [](const std::string &input) {
        Payment payment;
        const std::size_t of = input.find(" of ");
        std::istringstream names(input.substr(of + 4));
        payment.station.printers.installed.clear();
        for (std::string name; std::getline(names, name, ',');)
            payment.station.printers.installed.push_back(name);
        payment.tell("choose " + input.substr(0, of));
        const std::string selected = payment.printer.selectedName();
        const std::string vendor = payment.printer.vendorPrinterPresent() ? "vendor" : "";
        payment.tell("choose-vendor");
        return std::vector{selected, vendor, payment.printer.selectedName()};
    });
}

} // namespace
