// The pen: which printer its jobs reach, and what stays from job to job.
#include "printing/printer_choice.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <sstream>

namespace {

using namespace printing;

struct PenTest : testing::Test {
    void choose(const std::string &name)
    {
        app.values.ReceiptPrinterName = name;
        Set_Printer(app, printer);
    }

    support::TestStation station;
    records::App app{station.services};
    Printer printer{station.printers};
};

TEST_F(PenTest, TheLastPrinterThatFitsIsSelected)
{
    support::expectTable("slips/printers.txt", [this](const std::string &input) {
        station.printers.installed.clear();
        std::istringstream names(input.substr(input.find(" of ") + 4));
        for (std::string name; std::getline(names, name, ',');)
            station.printers.installed.push_back(name);
        Printer pen(station.printers);
        app.values.ReceiptPrinterName = input.substr(0, input.find(" of "));
        Set_Printer(app, pen);
        const std::string selected = pen.selectedName();
        const std::string vendor = pen.vendorPrinterPresent() ? "vendor" : "";
        Set_PrinterVendor(pen);
        return std::vector{selected, vendor, pen.selectedName()};
    });
}

TEST_F(PenTest, AJobStaysOnItsPrinterAndTheFontStaysButForAnImpossibleOne)
{
    choose("Office");
    printer.setFamily("Receipt Sans");
    printer.setSize(14);
    printer.setBold(true);
    choose("No such printer");
    printer.line("notice");
    choose("Receipt");
    printer.setFamily("");
    printer.setSize(0);
    printer.setSize(-2);
    printer.line("slip");
    choose("Receipt TM-88");
    printer.cut();
    printer.newPage();
    printer.tabs("20,45");
    printer.line("more");
    printer.closeJob();
    printer.closeJob();
    std::string paper;
    for (const auto &[name, job] : station.printers.collected)
        paper += "on " + name + "\n" + platform::describe(job);
    EXPECT_EQ(paper, support::testFile("golden/slips/two_printers.txt"));
}

} // namespace
