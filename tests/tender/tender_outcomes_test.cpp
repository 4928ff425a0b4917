// What a tender leaves behind in each outcome: the record, the slips, the answer, the traces.
#include "support/tender_story.h"

#include "records/card_helpers.h"
#include "records/trace.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using support::TenderStory;

std::string padded(std::string text, std::size_t width)
{
    text.resize(width, ' ');
    return text;
}

std::string quoted(const std::string &text, std::size_t width)
{
    return '"' + padded(text, width) + "\"\r\n";
}

/// The block as the point of sale reads it, line by line.
std::string block(const std::string &word, const std::string &code, const std::string &response,
                  const std::string &name = "ROSALIND/TEST")
{
    return '"' + word + "\"\r\n" + quoted("48.50", 10) + quoted(code, 10) + quoted("1043", 20) +
           quoted("XXXXXXXXXXXX1234", 30) + quoted("7", 10) + quoted("12", 10) + quoted("", 10) +
           quoted(name, 30) + quoted(response, 20);
}

bool contains(const std::string &text, const std::string &part)
{
    return text.find(part) != std::string::npos;
}

std::string partialResult()
{
    return support::approvedResult() + "APPROVEDAMOUNT=30.00\r\nADDITIONALFUNDSREQUIRED=18.50\r\n";
}

TEST(ApprovedTender, LiesInThePendingFileBeforeTheSlipsAndTheSlipsBeforeTheAnswer)
{
    TenderStory story;
    std::string seen;
    story.view.onRefresh = [&](const tender::TenderFields &fields) {
        if (fields.Text3 != "Approved Printing Receipt")
            return;
        seen = std::to_string(story.pending().size()) + " record, " +
               std::to_string(story.station.printers.collected.size()) + " slips, " +
               (story.answered() ? "answered" : "no answer");
    };
    story.run();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_EQ(seen, "1 record, 0 slips, no answer");
    EXPECT_EQ(story.answer(), block("Approved", "012345", "SUCCESS"));
    ASSERT_EQ(story.pending().size(), 1U);
    EXPECT_TRUE(story.month().empty());
    EXPECT_TRUE(contains(story.slips(), "[MERCHANT COPY]"));
    EXPECT_TRUE(contains(story.slips(), "[CUSTOMER COPY]"));
    EXPECT_LT(story.slips().find("[MERCHANT COPY]"), story.slips().find("[CUSTOMER COPY]"));
    EXPECT_FALSE(story.printer.jobOpen());
}

TEST(ApprovedTender, KeepsEveryFieldOfTheRecord)
{
    TenderStory story;
    story.run();
    ASSERT_EQ(story.pending().size(), 1U);
    const CardRecord record = story.pending()[0];
    const std::pair<CardField, std::string> expected[] = {
        {CCNumb, StrEncode("7401234567890")},
        {CCExpDate, "0928"},
        {CCName, "ROSALIND/TEST"},
        {CCXcTranID, "00002154"},
        {CCSaleAmt, "48.50"},
        {CCServer, "7"},
        {CCTable, "12"},
        {CCTabAmt, "48.50"},
        {CCApprovedAmt, "48.50"},
        {CResponse, "SUCCESS"},
        {CApprovalCode, "012345"},
        {CCstatus, "Approved"},
        {CCTip, "0"},
        {CCReceipt, "1043"},
        {CCDate, "01/15/25"},
        {CCTime, "01:05 PM"},
        {CCVerify, "000"},
        {CCSwiped, "True"},
        {CCStation, "FRONT-BAR"},
        {CCAdjStatus, "Not Adjusted"},
        {CCGiftFlag, ""},
        {CCEncoded, "1"},
        {HiddenNumb, "XXXXXXXXXXXX1234"},
        {CCtype, "VISA"},
        {CCaditionalFUNDS, "0"},
        {GCbalance, "0"},
        {CCReserved2, ""},
    };
    for (const auto &[field, text] : expected)
        EXPECT_EQ(record.raw(field), padded(text, field.length)) << field.name;
    // Never assigned in a fresh process: NULs, which old files have there too.
    for (const CardField &field : {CCDescription, CCAdjAmt, CCReserved1, CCTroutID})
        EXPECT_EQ(record.raw(field), std::string(field.length, '\0')) << field.name;
    EXPECT_EQ(story.station.get(TenderStory::kPending).substr(490), std::string(10, '\0'));
}

TEST(ApprovedTender, TellsItsStoryInTheTraces)
{
    TenderStory story;
    story.run();
    const std::string golden =
        std::string(59, '=') + "\r\nProcess Started\r\nOn Wednesday 01/15/2025 at 01:05 PM\r\n" +
        std::string(58, '=') +
        "\r\nStation Name FRONT-BAR\r\nEXE name ********* TndrCC\r\nEmployee Name \r\n"
        "Employee Number # 7\r\n" +
        std::string(34, '_') + "\r\n" + std::string(15, ' ') +
        "\r\nSoftware Version - 5.68.0\r\nUSING 10/2009 VERSION  \r\n"
        "Request File - C:\\Lumbrio\\Xsend.req\r\nTable Number - 12\r\nReceipt Number - 1043\r\n"
        "Server (Employee) Number - 7\r\nSale Amount - 48.50\r\n" +
        std::string(15, ' ') + "\r\n" + std::string(58, '*') +
        "\r\n***       Waiting For card Swipe      ***\r\n" + std::string(58, '*') + "\r\n" +
        std::string(15, ' ') + "\r\n" + std::string(54, '*') + "\r\n" + std::string(54, '*') +
        "\r\n***********  X CHARGE REQUEST INFO  ******************\r\n";
    EXPECT_EQ(story.processTrace().substr(0, golden.size()), golden);
    for (const char *line :
         {"Calling Set Data\r\n               \r\n  Setting a 20 second timer to wait for "
          "response\r\n",
          "  Got the answer file\r\n Total seconds it took for Rosalind Test swipe and Xcharge "
          "response\r\n  SECONDS = 3\r\n  Calling Xcharge Reader\r\n",
          " CCmerchant.VRD is not in F:\\Lumbrio\\\r\n  Printing Merchant 3\r\n"})
        EXPECT_TRUE(contains(story.processTrace(), line)) << line << "\n" << story.processTrace();
    const std::string number = padded(StrEncode("7401234567890"), 30);
    EXPECT_EQ(story.traceLog(),
              "\r\n******  Make Respone File For Lumbrio ******\r\n\r\n"
              "  File Name - C:\\Lumbrio\\Xsend.ans\r\n  TndrRESULT - Approved\r\n"
              "  CCdata.CCTabAmt  - 48.50     \r\n  CCdata.CApprovalCode - 012345    \r\n"
              "  CCdata.CCaditionalFUNDS - 0         \r\n  CCdata.GCbalance - 0         \r\n"
              "  CCdata.CCNumb - " +
                  number +
                  "\r\n  CCdata.CCtype - VISA      \r\n  CCdata.HiddenNumb - XXXXXXXXXXXX1234" +
                  std::string(14, ' ') +
                  "\r\n  CCdata.CCServer - 7         \r\n  CCdata.CCTable - 12        \r\n"
                  "  CCdata.CCTroutID -           \r\n  CCdata.CCName - ROSALIND/TEST" +
                  std::string(17, ' ') +
                  "\r\n  CCdata.CCstatus - Approved  \r\n  CCdata.CResponse - SUCCESS" +
                  std::string(13, ' ') +
                  "\r\n  Val(TndrNOpreAUTH) - 0-  0 =False -1=True\r\n\r\n"
                  "******  END Respone File For Lumbrio ******\r\n\r\n");
}

TEST(ApprovedTender, ChargedAtOnceIsSettledInTheMonthFile)
{
    TenderStory story;
    story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
    story.run();
    ASSERT_EQ(story.month().size(), 1U);
    EXPECT_EQ(story.month()[0].text(CCAdjStatus), "Completed");
    EXPECT_TRUE(story.pending().empty());
    EXPECT_TRUE(
        contains(story.station.system.started[0].commandLine, "/TRANSACTIONTYPE:Purchase "));
}

TEST(ApprovedTender, OfAGiftCardPrintsItsBalanceAndAWrongFlagFolderChangesNothing)
{
    TenderStory story;
    story.station.put("C:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
    story.paymentAnswers(support::approvedResult() +
                         "BALANCE=12.00\r\nADDITIONALFUNDSREQUIRED=0.00\r\n");
    story.run();
    ASSERT_EQ(story.pending().size(), 1U) << "a flag file of the station alone means nothing";
    EXPECT_EQ(story.pending()[0].text(GCbalance), "12.00");
    EXPECT_EQ(story.pending()[0].raw(CCGiftFlag), "GS   ");
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
    EXPECT_TRUE(contains(story.slips(), "$12.00"));
}

TEST(PartialApproval, IsStoredAdjustedAndTellsThePointOfSaleThatTheTabIsNotPaid)
{
    for (const bool purchase : {false, true}) {
        TenderStory story;
        if (purchase)
            story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        story.paymentAnswers(partialResult());
        story.station.put(TenderStory::kAudit, "\"48.5\"\r\n");
        story.run();
        EXPECT_EQ(story.answer(), block("DECLINE but PARTAIL APPROVAL", "012345", "SUCCESS") +
                                      "\"PARTAIL APPROVAL\"\r\n"
                                      "\" APPROVAL AMOUNT - $30.00\"\r\n"
                                      "\" BALANCE STILL OWING - $18.50\"\r\n");
        const std::vector<CardRecord> stored = purchase ? story.month() : story.pending();
        ASSERT_EQ(stored.size(), 1U);
        EXPECT_EQ(stored[0].text(CCAdjStatus), purchase ? "Completed" : "Adjusted - Pending");
        EXPECT_EQ(stored[0].text(CCAdjAmt), "30.00");
        EXPECT_EQ(stored[0].text(CCTabAmt), "48.50") << "the tab stays whole";
        EXPECT_EQ(stored[0].text(CCstatus), "Approved");
        EXPECT_EQ(stored[0].text(CCNumb), StrEncode("7401234567890"));
        EXPECT_EQ((purchase ? story.pending() : story.month()).size(), 0U);
        EXPECT_TRUE(contains(story.slips(), "PARTIAL PAYMENT MERCHANT COPY"));
        EXPECT_TRUE(contains(story.slips(), "Split Tender, Put in the parial amount and the "));
        EXPECT_FALSE(contains(story.slips(), "[MERCHANT COPY]"));
        EXPECT_TRUE(story.station.run.ending());
        EXPECT_FALSE(story.station.has(TenderStory::kAudit));
    }
}

TEST(DeclinedTender, GoesWhereItsModeSaysAndAnswersTheWordTwice)
{
    for (const bool purchase : {false, true}) {
        TenderStory story;
        if (purchase)
            story.station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
        story.paymentAnswers("RESULT=DECLINED\r\nXCACCOUNTID=7401234567890\r\n"
                             "ACCOUNT=XXXXXXXXXXXX1234\r\nNAME=ROSALIND/TEST\r\n"
                             "ADDITIONALFUNDSREQUIRED=18.50\r\n");
        story.run();
        EXPECT_EQ(story.answer(), "\"Declined\"\r\n" + block("Declined", "", "DECLINED"));
        const std::vector<CardRecord> stored = purchase ? story.deleted() : story.pending();
        ASSERT_EQ(stored.size(), 1U);
        EXPECT_EQ(stored[0].text(CCstatus), "Declined");
        EXPECT_EQ(stored[0].text(CCNumb), StrEncode("7401234567890")) << "never plain on disk";
        EXPECT_EQ(stored[0].text(CCEncoded), "1");
        EXPECT_EQ((purchase ? story.pending() : story.deleted()).size(), 0U);
        EXPECT_TRUE(story.month().empty());
        EXPECT_EQ(story.slips(), "");
        EXPECT_TRUE(story.station.run.ending());
        EXPECT_TRUE(contains(story.traceLog(), "  TndrRESULT - Declined\r\n"));
    }
}

TEST(DeclinedTender, IsWhatEveryResultThatSaysNothingBecomes)
{
    std::string binary(2000, '\0');
    for (std::size_t i = 0; i < binary.size(); ++i)
        binary[i] = static_cast<char>(i * 7);
    for (const std::string &result :
         {std::string(), binary, std::string("<RESULT_SUCCESS>T</RESULT_SUCCESS>\r\n"),
          std::string("result=SUCCESS\r\n"), std::string("RESULT=success\r\n"),
          std::string(10U << 20U, 'x')}) {
        TenderStory story;
        story.paymentAnswers(result);
        story.run();
        EXPECT_EQ(story.answer().substr(0, 24), "\"Declined\"\r\n\"Declined\"\r\n");
        ASSERT_EQ(story.pending().size(), 1U);
        EXPECT_EQ(story.pending()[0].text(CCstatus), "Declined");
        EXPECT_EQ(story.slips(), "");
    }
}

TEST(TimedOutTender, StaysForTheOperatorAndKeepsItsRecordThroughTheCancel)
{
    TenderStory story;
    story.paymentAnswers("RESULT=TIMEOUT\r\n");
    story.run(20'000);
    EXPECT_FALSE(story.station.run.ending());
    EXPECT_EQ(story.answer().substr(0, 24), "\"Declined\"\r\n\"Declined\"\r\n");
    EXPECT_EQ(story.tender.state().Text3, "") << "cleared when the count went through 10";
    EXPECT_EQ(story.tender.state().Label7.size(), 2U) << "the count goes on";
    EXPECT_TRUE(story.tender.state().SSCommand1.enabled);
    EXPECT_FALSE(story.tender.state().SSCommand2.enabled);
    story.tender.SSCommand1_Click();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_EQ(story.answer().substr(0, 23), "\"Declined\"\r\n\"48.50     ") << "10 lines now";
    EXPECT_EQ(story.pending().size(), 1U);
}

TEST(TenderForADeletedPrepayment, PrintsNothingAndLeavesTheApprovalForThePointOfSale)
{
    TenderStory story;
    story.request("\"DelPrePay 12\",\"1043\",\"7\",\"48.50\"\r\n");
    story.run();
    EXPECT_EQ(story.slips(), "");
    EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
    EXPECT_TRUE(story.station.has("C:\\Lumbrio\\CreditApproval.dat"));
    EXPECT_EQ(story.pending().size(), 1U);
}

TEST(SlipWithGratuity, PrintsTheTipOfTheConfiguredPercent)
{
    TenderStory story;
    story.station.time.at(1000, [&] { story.tender.SSCommand7_Click(); });
    story.run();
    EXPECT_EQ(story.tender.state().Label3[9], "$57.23");
    EXPECT_EQ(story.tender.state().Label3[10], "%18");
    EXPECT_TRUE(contains(story.slips(), "Gratuity      $8.73"));
    EXPECT_TRUE(contains(story.slips(), "$57.23"));
    EXPECT_EQ(story.pending()[0].text(CCTabAmt), "48.50") << "the tip is not charged";
}

TEST(NoCustomerReceipt, IsRememberedByTheBoxAndSuppressesTheCopy)
{
    TenderStory story;
    story.station.time.at(1000, [&] { story.tender.SSCheck1_Click(true); });
    story.run();
    EXPECT_TRUE(story.station.has("C:\\Lumbrio\\CCnoPrint.dat"));
    EXPECT_FALSE(contains(story.slips(), "[CUSTOMER COPY]"));
    TenderStory next(story, 0);
    next.run();
    EXPECT_TRUE(next.tender.state().SSCheck1);
    next.tender.SSCheck1_Click(false);
    EXPECT_TRUE(story.station.has("C:\\Lumbrio\\CCnoPrint.dat")) << "the file layer is shut";
}

TEST(SlipLeftOpen, IsPrintedBeforeTheProgramEnds)
{
    TenderStory story;
    story.app.values.NoCut2Flag = -1;
    story.run();
    EXPECT_TRUE(contains(story.slips(), "[CUSTOMER COPY]")) << story.slips();
}

TEST(SlipOfAnotherPrinter, GoesToTheReceiptPrinterOfTheConfiguration)
{
    TenderStory story;
    story.station.printers.preferred = "Office Laser";
    story.run();
    EXPECT_FALSE(contains(story.slips(), "[[Office Laser]]")) << story.slips();
}

} // namespace
