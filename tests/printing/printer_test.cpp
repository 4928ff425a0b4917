// The pen: which printer its jobs reach, and what stays from job to job.
#include "printing/printer_choice.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace printing;

struct CountingPrinters : support::FakePrinters {
    std::vector<std::string> names() override
    {
        ++asked;
        return FakePrinters::names();
    }
    std::string defaultName() override
    {
        ++asked;
        return FakePrinters::defaultName();
    }
    int asked = 0;
};

struct PenTest : testing::Test {
    void choose(const std::string &name)
    {
        app.values.ReceiptPrinterName = name;
        Set_Printer(app, printer);
    }

    support::TestStation station;
    records::App app{station.services};
    CountingPrinters printers;
    Printer printer{printers};
};

TEST_F(PenTest, TheLastPrinterThatFitsIsSelected)
{
    struct Case {
        std::string configured;
        std::vector<std::string> installed;
        std::string selected;
        bool vendor;
        std::string selectedForVendor;
    };
    const std::vector<std::string> plain = {"Receipt TM-88", "Receipt TM-90", "Office Laser"};
    const std::vector<std::string> mixed = {"VENDOR One", "Receipt TM-88", "VENDOR Two", "Vendor"};
    const Case cases[] = {
        {" Receipt ", plain, "Receipt TM-90", false, "Receipt TM-90"},
        {"Receipt TM-88", plain, "Receipt TM-88", false, "Receipt TM-88"},
        {"", plain, "Office Laser", false, "Office Laser"},
        {"receipt", plain, "Receipt TM-88", false, "Receipt TM-88"}, // none fits: the default
        {"Receipt TM-88 long", plain, "Receipt TM-88", false, "Receipt TM-88"},
        {"Receipt", mixed, "Receipt TM-88", true, "VENDOR Two"},
        {"Receipt", {"VENDO", " VENDOR"}, "VENDO", false, "VENDO"},
        {"Receipt", {}, "", false, ""},
    };
    for (const Case &oneCase : cases) {
        SCOPED_TRACE(oneCase.configured);
        printers.installed = oneCase.installed;
        Printer pen(printers);
        app.values.ReceiptPrinterName = oneCase.configured;
        Set_Printer(app, pen);
        EXPECT_EQ(pen.vendorPrinterPresent(), oneCase.vendor);
        EXPECT_EQ(pen.selectedName(), oneCase.selected);
        Set_PrinterVendor(pen);
        EXPECT_EQ(pen.selectedName(), oneCase.selectedForVendor);
        EXPECT_EQ(pen.vendorPrinterPresent(), oneCase.vendor);
    }
}

TEST_F(PenTest, ChoosingCostsNothingUntilTheResultIsNeeded)
{
    choose("");
    choose("No such printer");
    EXPECT_EQ(printers.asked, 0);
    printer.warmUp({});
    EXPECT_EQ(printers.asked, 1);
    EXPECT_EQ(printer.selectedName(), "Office Laser") << "the earlier choice must not be lost";
    printer.line("text");
    printer.closeJob();
    EXPECT_EQ(printers.asked, 1);
}

TEST_F(PenTest, AVendorPrinterThatWentAwayIsForgotten)
{
    printers.installed.push_back("VENDOR");
    choose("Receipt");
    EXPECT_TRUE(printer.vendorPrinterPresent());
    printers.installed.pop_back();
    EXPECT_TRUE(printer.vendorPrinterPresent()) << "known until the printer is chosen anew";
    choose("Receipt");
    EXPECT_FALSE(printer.vendorPrinterPresent());
}

TEST_F(PenTest, AJobStaysOnThePrinterItWasBegunOn)
{
    choose("Office");
    printer.line("notice");
    choose("Receipt");
    printer.line("slip");
    choose("Receipt TM-88");
    printer.line("more");
    printer.closeJob();
    printer.closeJob();
    ASSERT_EQ(printers.collected.size(), 2U);
    EXPECT_EQ(printers.collected[0].printer, "Office Laser");
    EXPECT_EQ(platform::plainText(printers.collected[0].job), "notice\r\n");
    EXPECT_EQ(printers.collected[1].printer, "Receipt TM-88");
    EXPECT_EQ(platform::plainText(printers.collected[1].job), "slip\r\nmore\r\n");
}

TEST_F(PenTest, TheFontStaysButAnImpossibleOneIsIgnored)
{
    printer.setFamily("Receipt Sans");
    printer.setSize(14);
    printer.setBold(true);
    printer.line("first");
    printer.closeJob();
    printer.setFamily("");
    printer.setSize(0);
    printer.setSize(-2);
    printer.line("second");
    printer.cut();
    printer.newPage();
    printer.tabs("20,45");
    printer.line("third");
    printer.closeJob();
    ASSERT_EQ(printers.collected.size(), 2U);
    EXPECT_EQ(platform::describe(printers.collected[1].job),
              "job \"Lumbrio card slip\"\nfont \"Receipt Sans\" 14 bold\nline \"second\"\ncut\n"
              "new page\ntabs 20,45\n"
              "font \"Receipt Sans\" 10 bold\nline \"third\"\n");
}

} // namespace
