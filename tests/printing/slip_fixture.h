// A station with a configured receipt printer and an approved payment in hand.
#pragma once

#include "printing/slip.h"
#include "records/app.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

class SlipTest : public testing::Test {
protected:
    SlipTest()
    {
        station.folder("c:\\Lumbrio\\Data");
        app.values.Maindir = "C:\\Lumbrio\\";
        app.values.EmployeeShortName = "Maria ";
        app.values.PrintTipLine = true;
        set(records::kBusinessName, "The Copper Kettle");
        set(records::kAddressLine1, "14 Harbour Street");
        set(records::kAddressLine2, "Portsmouth NH 03801");
        set(records::kSlipFontFamily, "Receipt Sans");
        set(records::kSlipFontSize, "9");
        set(records::kReceiptAutocut, "0");
        set(records::CCNumb, "4111111111111111");
        set(records::HiddenNumb, "XXXX XXXX XXXX 8765");
        set(records::CCName, "JOHN Q PUBLIC");
        set(records::CCDate, "01/15/25");
        set(records::CCTime, "01:05 PM");
        set(records::CCReceipt, "1043");
        set(records::CCServer, "7");
        set(records::CCTable, "12");
        set(records::CCSaleAmt, "1248.50");
        set(records::CCTabAmt, "1248.50");
        set(records::CCApprovedAmt, "1200.00");
        set(records::CCaditionalFUNDS, "48.50");
        set(records::CApprovalCode, "A12345");
        set(records::CCStation, "BAR1");
        context.requestText = "12";
        context.seconds = " 4 ";
        context.transRecord = 17;
    }

    void set(const records::CardField &field, const std::string &text)
    {
        app.values.CCdata.set(field, text);
    }
    void set(const records::ConfigField &field, const std::string &text)
    {
        app.values.config.set(field, text);
    }

    /// What reached the printers so far, operation by operation.
    std::string paper() const
    {
        std::string text;
        for (const auto &[name, job] : station.printers.collected)
            text += "on " + name + "\n" + platform::describe(job);
        return text;
    }

    /// Pictures and cuts alone, each job in brackets: "[Picture2 Picture2 cut]".
    std::string outline() const
    {
        std::string text;
        for (const auto &collected : station.printers.collected) {
            std::string inside;
            for (const platform::PrintOperation &operation : collected.job.operations) {
                if (operation.kind == platform::PrintOperation::Kind::Picture)
                    inside += " " + operation.text;
                if (operation.kind == platform::PrintOperation::Kind::Cut)
                    inside += " cut";
            }
            text += "[" + (inside.empty() ? inside : inside.substr(1)) + "]";
        }
        return text;
    }

    bool printed(const std::string &line) const
    {
        return paper().find("line \"" + line + "\"\n") != std::string::npos;
    }

    /// Paper as in tests/golden/slips/, to the byte.
    void expectGolden(const std::string &name) const
    {
        std::ifstream file(std::string(TESTS_DIR "/golden/slips/") + name, std::ios::binary);
        std::ostringstream golden;
        golden << file.rdbuf();
        EXPECT_EQ(paper(), golden.str()) << name;
    }

    support::TestStation station;
    records::App app{station.services};
    printing::Printer printer{station.printers};
    printing::SlipContext context;
};
