// The slips word for word, and what decides which of them are printed, cut and closed.
#include "slip_fixture.h"

#include "records/card_helpers.h"

#include <functional>
#include <utility>
#include <vector>

namespace {

using namespace printing;
using records::Money;

TEST_F(SlipTest, EverySlipIsTheOneOfTheGoldenFile)
{
    using Slip = std::function<void()>;
    const std::vector<std::pair<std::string, Slip>> slips = {
        {"merchant.txt", [&] { Print_Merch(app, printer, context); }},
        {"customer.txt", [&] { Print_Cust(app, printer, context); }},
        {"partial_merchant.txt", [&] { PrintPartial_Merch(app, printer, context); }},
        {"partial_customer.txt", [&] { PrintPartial_Cust(app, printer, context); }},
        {"attention.txt", [&] { Att_Server(app, printer); }},
        {"reprint_merchant.txt", [&] { Reprint_Merch(app, printer, context); }},
        {"reprint_customer.txt", [&] { Reprint_Cust(app, printer, context); }},
        {"void.txt", [&] { Print_Cust2(app, printer, context); }},
    };
    context.reprint = true;
    for (const auto &[name, slip] : slips) {
        station.printers.collected.clear();
        printer.setFamily("Left by another job");
        printer.setBold(true);
        printer.setItalic(true);
        slip();
        expectGolden(name);
        EXPECT_FALSE(printer.jobOpen()) << name;
    }
}

TEST_F(SlipTest, AGiftCardsBalanceIsOnItsSlips)
{
    set(records::GCbalance, "25.5");
    context.giftMarker = true;
    Print_Merch(app, printer, context);
    Print_Cust(app, printer, context);
    Reprint_Cust(app, printer, context);
    printGiftBalancePage(app, printer);
    expectGolden("gift_balance.txt");
}

TEST_F(SlipTest, OnlyARealBalanceIsPrinted)
{
    set(records::GCbalance, "-3");
    Print_Merch(app, printer, context);
    Print_Cust(app, printer, context);
    Reprint_Cust(app, printer, context);
    EXPECT_FALSE(printed("($3.00)"));
    context.giftMarker = true;
    Reprint_Cust(app, printer, context);
    EXPECT_TRUE(printed("($3.00)")) << "a reprint shows any balance but zero";
}

// The slip that the case prints has the line and, with `without`, not the other one.
TEST_F(SlipTest, LinesFollowModeAndRecord)
{
    const std::string tip = "Gratuity      ___________________________";
    struct Case {
        std::string name;
        std::function<void()> change;
        std::string has;
        std::string hasNot;
    };
    const std::vector<Case> cases = {
        {"command-line mode shows the number as the processor gave it",
         [&] { app.values.X1009 = true; }, "Card: XXXX XXXX XXXX 8765  TransRecord 17",
         "Card: #### #### #### 8765  TransRecord 17"},
        {"an offline approval has an identifier in place of the code",
         [&] { set(records::CCTroutID, "OFFLINE "); }, "TROUT - OFFLINE  Terminal BAR1",
         "AUTH - A12345  Terminal BAR1"},
        {"no tip line", [&] { app.values.PrintTipLine = false; }, "Amount      $1,248.50", tip},
        {"a tip chosen before",
         [&] {
             context.tipPreApproved = true;
             context.preApprovedTip = Money::fromCents(22473);
             context.totalWithTip = Money::fromCents(147323);
         },
         "Gratuity      $224.73", tip},
        {"its total", [] {}, "Total          $1,473.23", ""},
        {"a reprint leaves the tip open", [&] { Reprint_Merch(app, printer, context); }, tip, ""},
        {"a void names the number that was shown", [&] { Print_Cust2(app, printer, context); },
         "Card: XXXX XXXX XXXX 8765", ""},
        {"a void without one masks the card's own",
         [&] {
             app.values.X1009 = false;
             set(records::HiddenNumb, "");
             Print_Cust2(app, printer, context);
         },
         "Card: #### #### #### 1111", ""},
        {"a void takes the first amount that is not zero",
         [&] {
             set(records::CCTabAmt, "0.00");
             set(records::CCApprovedAmt, "");
             set(records::CCSaleAmt, "$7.25");
             Print_Cust2(app, printer, context);
         },
         "Amount      $7.25", "Amount      $1,248.50"},
    };
    for (const Case &oneCase : cases) {
        station.printers.collected.clear();
        app.values.PrintTipLine = true;
        oneCase.change();
        if (station.printers.collected.empty())
            Print_Merch(app, printer, context);
        EXPECT_TRUE(printed(oneCase.has)) << oneCase.name << "\n" << paper();
        EXPECT_FALSE(!oneCase.hasNot.empty() && printed(oneCase.hasNot)) << oneCase.name;
    }
}

// The customer's name is the field as it stands; a field that was never assigned is NULs.
TEST_F(SlipTest, AnEmptyRecordPrintsWithoutRubbish)
{
    app.values.CCdata = {};
    app.values.config.set(records::kSlipFontSize, "");
    Print_Merch(app, printer, context);
    Print_Cust2(app, printer, context);
    EXPECT_TRUE(printed(std::string(8 + 30, ' ')));
    EXPECT_TRUE(printed("Amount      $0.00"));
    EXPECT_EQ(paper().find("\\x"), std::string::npos) << paper();
    for (const auto &collected : station.printers.collected) {
        for (const platform::PrintOperation &operation : collected.job.operations) {
            if (operation.kind == platform::PrintOperation::Kind::Font) {
                EXPECT_EQ(operation.font.size, 12) << "no size is drawn from an empty field";
            }
        }
    }
}

TEST_F(SlipTest, RequestAndSwitchesDecideWhichCopiesPrint)
{
    const std::string approval = "\"#### #### #### >?@A\"\r\n\"AUTH - A12345  Terminal BAR1\"\r\n";
    struct Case {
        std::string requestText;
        bool checked;
        bool noPrintFile;
        bool merchant;
        bool customer;
    };
    const Case cases[] = {
        {"12", false, false, true, true},          {"DelPrePay12", false, false, false, false},
        {"DelPrePaid", false, false, false, true}, // eight letters fit, nine do not
        {" DelPrePay", false, false, false, true}, // only the merchant's test trims
        {"delprepay", false, false, true, true},   {"12", true, false, true, false},
        {"12", false, true, true, false},
    };
    set(records::CCNumb, records::StrEncode("4111111111111111"));
    for (const Case &oneCase : cases) {
        SCOPED_TRACE(oneCase.requestText);
        context.requestText = oneCase.requestText;
        context.noCustomerCopy = oneCase.checked;
        if (oneCase.noPrintFile)
            station.put("c:\\Lumbrio\\CCnoPrint.dat", "");
        for (const bool partial : {false, true}) {
            station.erase("c:\\Lumbrio\\CreditApproval.dat");
            station.printers.collected.clear();
            if (partial) {
                PrintPartial_Merch(app, printer, context);
                PrintPartial_Cust(app, printer, context);
            } else {
                Print_Merch(app, printer, context);
                Print_Cust(app, printer, context);
            }
            std::string expected;
            if (oneCase.merchant)
                expected += partial ? "[Picture4 Picture5 Picture4]" : "[Picture2 Picture2]";
            if (oneCase.customer)
                expected += partial ? "[Picture3 Picture5 Picture3]" : "[Picture1 Picture1]";
            EXPECT_EQ(outline(), expected);
            EXPECT_EQ(station.has("c:\\Lumbrio\\CreditApproval.dat"), !oneCase.customer);
            if (!oneCase.customer) {
                EXPECT_EQ(station.get("c:\\Lumbrio\\CreditApproval.dat"), approval);
            }
        }
    }
}

TEST_F(SlipTest, CutsAndOpenJobsFollowTheThreeSwitches)
{
    struct Case {
        std::string autocut;
        bool cutFile;
        int noCut2;
        std::string closed; // by the slips themselves
        std::string behind; // what a closing at the end adds
    };
    const std::string merchant = "[Picture2 Picture2]", customer = "[Picture1 Picture1]";
    const std::string merchantCut = "[Picture2 Picture2 cut]";
    const std::string customerCut = "[Picture1 Picture1 cut]";
    const Case cases[] = {
        {"0", false, 0, merchant + customer, ""},
        {"", false, 0, merchant + customer, ""},
        {"-1", false, 0, merchantCut + customerCut, ""},
        {"0", true, 0, merchantCut + customerCut, ""},
        {"-1", true, 0, merchantCut + "[cut]" + customerCut + "[cut]", ""},
        {"0", false, -1, merchant, customer},
        {"-1", false, -1, merchantCut, customer},
        {"-1", true, -1, merchantCut + "[cut]" + customerCut, ""},
    };
    for (const Case &oneCase : cases) {
        SCOPED_TRACE(oneCase.autocut + (oneCase.cutFile ? " file" : "") +
                     (oneCase.noCut2 != 0 ? " NoCut2" : ""));
        station.printers.collected.clear();
        station.erase("c:\\Lumbrio\\Data\\CCardCut.dat");
        if (oneCase.cutFile)
            station.put("c:\\Lumbrio\\Data\\CCardCut.dat", "");
        set(records::kReceiptAutocut, oneCase.autocut);
        app.values.NoCut2Flag = oneCase.noCut2;
        Print_Merch(app, printer, context);
        Print_Cust(app, printer, context);
        EXPECT_EQ(outline(), oneCase.closed);
        printer.closeJob();
        EXPECT_EQ(outline(), oneCase.closed + oneCase.behind);
    }
}

TEST_F(SlipTest, ReprintsAndVoidsCutByTheConfigurationAlone)
{
    station.put("c:\\Lumbrio\\Data\\CCardCut.dat", "");
    app.values.NoCut2Flag = -1;
    Reprint_Merch(app, printer, context);
    set(records::kReceiptAutocut, "-1");
    Reprint_Cust(app, printer, context);
    Print_Cust2(app, printer, context);
    EXPECT_EQ(outline(), "[Picture2 Picture2][Picture1 Picture1 cut]"
                         "[Picture1 Picture1 cut][Picture2 Picture2 cut]");
}

TEST_F(SlipTest, APartialApprovalThatCutsIsOneJob)
{
    set(records::kReceiptAutocut, "-1");
    station.put("c:\\Lumbrio\\Data\\CCardCut.dat", ""); // counts for normal slips only
    PrintPartial_Merch(app, printer, context);
    PrintPartial_Cust(app, printer, context);
    EXPECT_EQ(outline(), "");
    Att_Server(app, printer);
    EXPECT_EQ(outline(), "[Picture4 Picture5 Picture4 cut Picture3 Picture5 Picture3 cut]");
    EXPECT_TRUE(printed("$48.50  "));
}

TEST_F(SlipTest, APartialSlipNeverShowsABalanceOfNothing)
{
    set(records::CCaditionalFUNDS, "0.00");
    PrintPartial_Merch(app, printer, context);
    EXPECT_TRUE(printed("  There is still a Balance Due of $5.00"));
    EXPECT_EQ(app.values.CCdata.text(records::CCaditionalFUNDS), "5");
}

TEST_F(SlipTest, TheSlipFontIsReadyBeforeTheFirstSlip)
{
    warmUp(app, printer);
    EXPECT_EQ(station.printers.warmed, (platform::PrintFont{"Receipt Sans", 9, false, false}));
}

TEST_F(SlipTest, ALostPrinterLosesTheSlipAndNothingElse)
{
    station.printers.installed.clear();
    Print_Merch(app, printer, context);
    EXPECT_FALSE(printer.jobOpen());
    station.erase("c:\\Lumbrio");
    context.noCustomerCopy = true;
    Print_Cust(app, printer, context);
    EXPECT_FALSE(station.run.ending()) << "a file that cannot be written is passed over";
}

} // namespace
