// The slips word for word, and what decides which of them are printed, cut and closed.
#include "printing/slip.h"
#include "records/card_helpers.h"
#include "support/golden_table.h"
#include "support/test_station.h"

namespace {

using namespace printing;
using namespace records;

/// A station with a configured receipt printer and an approved payment in hand.
struct Payment {
    Payment()
    {
        station.folder("c:\\Lumbrio\\Data");
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.EmployeeShortName = "Maria ";
        app.values.PrintTipLine = true;
        const std::pair<ConfigField, const char *> configuration[] = {
            {kBusinessName, "The Copper Kettle"},
            {kAddressLine1, "14 Harbour Street"},
            {kAddressLine2, "Portsmouth NH 03801"},
            {kSlipFontFamily, "Receipt Sans"},
            {kSlipFontSize, "9"}};
        for (const auto &[field, text] : configuration)
            app.values.config.set(field, text);
        const std::pair<CardField, const char *> record[] = {{CCNumb, "4111111111111111"},
                                                             {HiddenNumb, "XXXX XXXX XXXX 8765"},
                                                             {CCName, "JOHN Q PUBLIC"},
                                                             {CCDate, "01/15/25"},
                                                             {CCTime, "01:05 PM"},
                                                             {CCReceipt, "1043"},
                                                             {CCServer, "7"},
                                                             {CCTable, "12"},
                                                             {CCSaleAmt, "1248.50"},
                                                             {CCTabAmt, "1248.50"},
                                                             {CCApprovedAmt, "1200.00"},
                                                             {CCaditionalFUNDS, "48.50"},
                                                             {CApprovalCode, "A12345"},
                                                             {CCStation, "BAR1"}};
        for (const auto &[field, text] : record)
            set(field, text);
        context.requestText = "12";
        context.seconds = " 4 ";
        context.transRecord = 17;
        printer.setFamily("Left by another job");
        printer.setBold(true);
        printer.setItalic(true);
    }

    void set(const CardField &field, const char *text) { app.values.CCdata.set(field, text); }

    template <class... Slips> void print(Slips... slips) { (slips(app, printer, context), ...); }

    /// Pictures and cuts of what has been printed since the last time, each job in brackets.
    std::string outline()
    {
        std::string text;
        for (const auto &collected : std::exchange(station.printers.collected, {})) {
            std::string inside;
            for (const platform::PrintOperation &operation : collected.job.operations) {
                if (operation.kind == platform::PrintOperation::Kind::Picture)
                    inside += " " + operation.text;
                if (operation.kind == platform::PrintOperation::Kind::Cut)
                    inside += " cut";
            }
            text += "[" + inside + " ]";
        }
        return text;
    }

    support::TestStation station;
    App app{station.services};
    Printer printer{station.printers};
    SlipContext context;
};

TEST(Slips, AreThoseOfTheirGoldenFiles)
{
    const std::pair<const char *, void (*)(Payment &)> slips[] = {
        {"merchant", [](Payment &p) { p.print(Print_Merch); }},
        {"customer", [](Payment &p) { p.print(Print_Cust); }},
        {"partial_merchant", [](Payment &p) { p.print(PrintPartial_Merch); }},
        {"partial_customer", [](Payment &p) { p.print(PrintPartial_Cust); }},
        {"attention", [](Payment &p) { Att_Server(p.app, p.printer); }},
        {"void", [](Payment &p) { p.print(Print_Cust2); }},
        {"reprints",
         [](Payment &p) {
             p.context.reprint = true;
             p.context.tipPreApproved = true; // a reprint leaves the tip open
             p.print(Reprint_Merch, Reprint_Cust);
         }},
        {"gift_balance",
         [](Payment &p) {
             p.set(GCbalance, "25.5");
             p.context.giftMarker = true;
             p.print(Print_Merch, Print_Cust, Reprint_Cust);
             printGiftBalancePage(p.app, p.printer);
         }},
        {"negative_balance_is_on_marked_reprints_alone",
         [](Payment &p) {
             p.set(GCbalance, "-3");
             p.print(Print_Merch, Print_Cust, Reprint_Cust);
             p.context.giftMarker = true;
             p.print(Reprint_Cust);
         }},
        {"offline_approval_in_command_line_mode",
         [](Payment &p) {
             p.app.values.X1009 = true; // the number as the processor gave it
             p.set(CCTroutID, "OFFLINE ");
             p.print(Print_Merch, Print_Cust);
         }},
        {"tip_chosen_before",
         [](Payment &p) {
             p.context.tipPreApproved = true;
             p.context.preApprovedTip = Money::fromCents(22473);
             p.context.totalWithTip = Money::fromCents(147323);
             p.print(Print_Merch, Print_Cust);
         }},
        {"no_tip_line",
         [](Payment &p) {
             p.app.values.PrintTipLine = false;
             p.print(Print_Merch, Print_Cust);
         }},
        {"void_of_a_plain_number_and_a_sale_amount",
         [](Payment &p) {
             p.set(HiddenNumb, "");
             p.set(CCTabAmt, "0.00");
             p.set(CCApprovedAmt, "");
             p.set(CCSaleAmt, "$7.25");
             p.print(Print_Cust2);
         }},
        {"partial_without_a_balance",
         [](Payment &p) {
             p.set(CCaditionalFUNDS, "0.00");
             p.print(PrintPartial_Merch);
             EXPECT_EQ(p.app.values.CCdata.text(CCaditionalFUNDS), "5");
         }},
        {"empty_record_and_no_font_size",
         [](Payment &p) {
             p.app.values.CCdata = {}; // its name is printed as it stands: NULs
             p.app.values.config.set(kSlipFontSize, "");
             p.print(Print_Merch, Print_Cust2);
         }},
    };
    for (const auto &[name, slip] : slips) {
        Payment payment;
        slip(payment);
        EXPECT_FALSE(payment.printer.jobOpen()) << name;
        std::string paper;
        for (const auto &[printer, job] : payment.station.printers.collected)
            paper += "on " + printer + "\n" + platform::describe(job);
        EXPECT_EQ(paper, support::testFile("golden/slips/" + std::string(name) + ".txt")) << name;
    }
}

TEST(Slips, AreCutAndClosedByTheSwitchesOfTheGoldenTable)
{
    support::expectTable("slips/cuts.txt", [](const std::string &switches) {
        Payment payment;
        payment.app.values.config.set(kReceiptAutocut, switches.starts_with("-1") ? "-1" : "0");
        payment.app.values.NoCut2Flag = switches.find("NoCut2") == switches.npos ? 0 : -1;
        if (switches.find("CCardCut.dat") != switches.npos)
            payment.station.put("c:\\Lumbrio\\Data\\CCardCut.dat", "");
        std::vector<std::string> outlines;
        payment.print(Print_Merch, Print_Cust);
        outlines.push_back(payment.outline());
        payment.printer.closeJob();
        outlines.push_back(payment.outline());
        payment.print(PrintPartial_Merch, PrintPartial_Cust);
        Att_Server(payment.app, payment.printer);
        outlines.push_back(payment.outline());
        payment.print(Reprint_Merch, Reprint_Cust, Print_Cust2);
        outlines.push_back(payment.outline());
        return outlines;
    });
}

// The copies of a deleted prepayment and those that nobody wants; the reference that the customer's
// leaves behind is scrambled.
TEST(Slips, ArePrintedForTheRequestsAndSwitchesOfTheGoldenTable)
{
    support::expectTable("slips/copies.txt", [](const std::string &input) {
        Payment payment;
        payment.set(CCNumb, StrEncode("4111111111111111").c_str());
        payment.context.requestText = input.substr(0, input.find(" + "));
        payment.context.noCustomerCopy = input.find("box") != input.npos;
        if (input.find("CCnoPrint.dat") != input.npos)
            payment.station.put("c:\\Lumbrio\\CCnoPrint.dat", "");
        payment.print(Print_Merch, Print_Cust);
        const std::string normal = payment.outline();
        payment.print(PrintPartial_Merch, PrintPartial_Cust);
        const std::string approval = "c:\\Lumbrio\\CreditApproval.dat";
        return std::vector{normal, payment.outline(),
                           payment.station.has(approval) ? payment.station.get(approval) : ""};
    });
}

} // namespace
