// The start of a tender: roles, directories, flags, the request, and everything that stops it
// before a card is asked for.
#include "support/tender_story.h"

#include "records/delimited.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Answer;
using platform::Buttons;
using support::TenderStory;

std::string blankAnswer(const std::string &word)
{
    std::string text = quotedLine(word);
    for (const std::size_t width : {10U, 10U, 20U, 30U, 10U, 10U, 10U, 30U, 20U})
        text += quotedLine(std::string(width, ' '));
    return text;
}

TEST(Start, ServerBusyShowsItsScreenAndLeavesNoAnswer)
{
    TenderStory story;
    story.station.put(TenderStory::kMarker, "");
    story.station.put("C:\\Lumbrio\\Xsend.ans", "old");
    story.view.onBusy = [&] {
        story.tender.deleteBatchMarker(); // the picture
        EXPECT_FALSE(story.station.has(TenderStory::kMarker));
        story.station.run.end(); // its button
    };
    story.run();
    EXPECT_EQ(story.view.busyShown, 1);
    EXPECT_TRUE(story.view.hidden);
    EXPECT_EQ(story.answer(), "old");
    EXPECT_TRUE(story.pending().empty());
    const std::string trace = story.processTrace();
    EXPECT_EQ(std::count(trace.begin(), trace.end(), '\n'), 3) << trace;
}

TEST(Start, MissingRequestIsAnsweredBeforeAnybodyPressesAButton)
{
    TenderStory story;
    story.station.erase("C:\\Lumbrio\\Xsend.req");
    story.station.put(TenderStory::kAudit, "48.50");
    story.station.dialogs.expect(
        "Data File Not Found",
        "The Lumbrio Transaction File for this transaction was Not Found. Pless OK to continue and "
        " Go back to the Tender screen and try again.",
        Buttons::Ok, Answer::Ok, [&] { EXPECT_EQ(story.answer(), blankAnswer("File Not Found")); });
    story.run();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_FALSE(story.station.has(TenderStory::kAudit));
}

TEST(Start, AnAmountOfNothingEndsWithoutAnAnswerOrAnyOtherFile)
{
    for (const char *request : {"12,1043,7,0.00\r\n", "12,1043,7,.\r\n", "12,1043,7,abc\r\n",
                                "12,1043\r\n", "", "\"12\",\"1043\",\"7\",\"$48.50\"\r\n"}) {
        TenderStory story;
        story.request(request);
        story.station.put(TenderStory::kAudit, "48.50");
        story.station.dialogs.expect("ZERO AMOUNT",
                                     "The system was not able to obtain the amount of this TAB. "
                                     "Please Press Cancel and try again.",
                                     Buttons::Ok, Answer::Ok);
        story.run();
        EXPECT_TRUE(story.station.run.ending()) << request;
        EXPECT_EQ(story.tender.state().Text4, "0.00");
        EXPECT_FALSE(story.answered()) << request;
        EXPECT_FALSE(story.station.has(TenderStory::kMonth)) << request;
        EXPECT_TRUE(story.station.has(TenderStory::kAudit)) << request;
        EXPECT_TRUE(story.station.system.started.empty()) << request;
    }
}

TEST(Start, WithoutThePaymentApplicationSaysSoAndLeavesNoAnswer)
{
    TenderStory story;
    story.station.erase(support::TestStation::kXcharge);
    story.station.dialogs.expect(
        "Data File Not Found",
        "The Xcharge Program was not found on this computer. Xcharge must first be installed on "
        "this computer before you can process a credit card. Pless contact Tech Support at "
        "555-010-0199.",
        Buttons::Ok, Answer::Ok);
    story.run();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_FALSE(story.answered());
    EXPECT_EQ(story.station.get(TenderStory::kMonth), "") << "created empty before anything else";
}

TEST(Audit, IsPassedOverWhenTheValuesAgreeAndAsksWhenTheyDoNot)
{
    const std::string question =
        "The amount you are attempting to process does not match the amount the system has "
        "calculated.The system has a purchase amount of $48.50  if this amount is in fact Correct "
        "then press OK otherwise press CANCEL - This station may need a Re-Boot";
    for (const char *audit : {"48.5", "\"48.50\"\r\n", "\"$48.50\""}) {
        TenderStory story;
        story.station.put(TenderStory::kAudit, audit);
        story.run();
        EXPECT_EQ(story.tender.state().Label9, "$48.50") << audit;
        EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"") << audit;
        EXPECT_FALSE(story.station.has(TenderStory::kAudit)) << audit;
    }
    {
        TenderStory story;
        story.station.put(TenderStory::kAudit, "50.00");
        story.station.dialogs.expect("AUDIT FAILED", question, Buttons::OkCancel, Answer::Ok);
        story.run();
        EXPECT_EQ(story.answer().substr(0, 10), "\"Approved\"");
        EXPECT_EQ(story.pending()[0].text(CCTabAmt), "48.50") << "the screen's amount is charged";
    }
    TenderStory story;
    story.station.put(TenderStory::kAudit, "50.00");
    story.station.dialogs.expect("AUDIT FAILED", question, Buttons::OkCancel, Answer::Cancel);
    story.run();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_EQ(story.answer(), quotedLine("") + blankAnswer(""));
    EXPECT_EQ(story.tender.state().Text1, "Wrong Amount");
    ASSERT_EQ(story.pending().size(), 1U) << "the refusal leaves an empty slot";
    EXPECT_TRUE(story.pending()[0].isEmpty(CCstatus));
    EXPECT_EQ(story.pending()[0].raw(CCEncoded), std::string(2, '\0'));
    EXPECT_TRUE(story.station.system.started.empty());
    EXPECT_FALSE(story.station.has(TenderStory::kAudit));
}

TEST(CommandLine, TravelsWithTheValuesOfTheRequest)
{
    struct Case {
        const char *request;
        const char *part;
    };
    for (const Case &c : {Case{"12,1043,7,48.50", "/TRANSACTIONTYPE:PreAuth /LOCKTRANTYPE "
                                                  "/AMOUNT:48.50 /LOCKAMOUNT /RECEIPT:1043 "
                                                  "/LOCKRECEIPT /CLERK:7 /LOCKCLERK /RESULTFILE:"},
                          Case{"12,1043,,48.50", " /CLERK:9999 /LOCKCLERK"},
                          Case{"12,,7,\" 12.5 \"", "/AMOUNT:12.5 /LOCKAMOUNT /RECEIPT: /LOCKREC"},
                          Case{"\"a,b\",\"1,2\",7,1", "/RECEIPT:1,2 /LOCKRECEIPT"}}) {
        TenderStory story;
        story.request(c.request);
        story.run();
        ASSERT_EQ(story.station.system.started.size(), 1U) << c.request;
        const std::string line = story.station.system.started[0].commandLine;
        EXPECT_NE(line.find(c.part), std::string::npos) << line;
        EXPECT_NE(line.find(" /AUTOCLOSE /PartialApprovalSupport:T /USERID:pos /PASSWORD:trelva "),
                  std::string::npos);
        EXPECT_EQ(story.station.system.started[0].style, platform::WindowStyle::Normal);
    }
    TenderStory alone;
    std::string options = alone.station.get("C:\\Lumbrio\\CCard.dat");
    options.replace(options.find("\"0\""), 3, "\"-1\""); // no partial approvals
    alone.station.put("C:\\Lumbrio\\CCard.dat", options);
    alone.run();
    EXPECT_EQ(alone.station.system.started[0].commandLine.find("/PartialApproval"),
              std::string::npos);
    TenderStory story;
    story.request("12,1043,,48.50");
    story.run();
    EXPECT_EQ(story.pending()[0].text(CCServer), "9999");
    EXPECT_EQ(story.tender.state().Label3[12], "") << "nobody is looked up without a number";
}

TEST(Directories, OfTheConfigurationDecideWhereFlagsAndRecordsLie)
{
    TenderStory story;
    story.configure(6, "D:\\Station\\");
    story.station.erase("C:\\Lumbrio\\X1009Version.dat");
    story.station.put("D:\\Station\\X1009Version.dat", "");
    story.station.put("D:\\Station\\Xsend.req", "5,77,7,12.5\r\n");
    story.run();
    EXPECT_EQ(story.station.get("D:\\Station\\Xsend.ans").substr(0, 10), "\"Approved\"");
    EXPECT_EQ(story.pending()[0].text(CCReceipt), "77");

    TenderStory blank;
    blank.configure(6, "");
    blank.configure(49, "");
    blank.run();
    EXPECT_EQ(blank.answer().substr(0, 10), "\"Approved\"");
    EXPECT_EQ(blank.records("C:\\Lumbrio\\CCPending.dat").size(), 1U);
}

TEST(Directories, MissingDataFolderEndsTheProgramWithTheSystemsMessage)
{
    TenderStory story;
    story.station.erase("F:\\Lumbrio\\data");
    story.station.dialogs.expect("",
                                 "Creating failed: not there\nF:\\Lumbrio\\\\data\\CCFinal0125.dat",
                                 Buttons::Ok, Answer::Ok);
    story.run();
    EXPECT_TRUE(story.station.run.failed());
    EXPECT_FALSE(story.answered());
    EXPECT_TRUE(story.station.system.started.empty());
}

TEST(Roles, AHelperFillsItsFieldsAndNeverAnswersAsksOrEnds)
{
    for (const char *name : {"TndrIndServer", "tndrIndServer", "TndrMGR"}) {
        TenderStory story;
        story.station.system.executable = name;
        story.request("12,1043,7,0\r\n");
        story.station.put(TenderStory::kMarker, "");
        story.run(5000);
        EXPECT_EQ(story.view.busyShown, 0) << name;
        EXPECT_FALSE(story.station.run.ending()) << name;
        EXPECT_EQ(story.tender.state().Label3[5], "12") << name;
        EXPECT_EQ(story.tender.state().Label3[12], "Rosalind Test") << name;
        EXPECT_FALSE(story.answered()) << name;
        EXPECT_EQ(story.processTrace().find("Request File - ") == std::string::npos,
                  std::string(name) != "TndrMGR");
    }
    TenderStory story;
    story.station.system.executable = "TndrMGR";
    story.station.erase("C:\\Lumbrio\\Xsend.req");
    story.run(5000);
    EXPECT_FALSE(story.station.run.ending());
    EXPECT_FALSE(story.answered());
}

TEST(LocalMode, WaitsForTheSwipeAndCancelAnswersBlanks)
{
    TenderStory story;
    story.station.erase("C:\\Lumbrio\\X1009Version.dat");
    story.run(5000);
    EXPECT_EQ(story.tender.state().Text3, "Waiting for You to Swipe the Card");
    EXPECT_EQ(story.tender.state().Label3[13], "False");
    EXPECT_TRUE(story.tender.state().SSCommand1.enabled);
    EXPECT_FALSE(story.tender.state().SSCommand2.enabled);
    EXPECT_TRUE(story.station.system.started.empty());
    story.station.put(TenderStory::kMarker, "");
    story.tender.SSCommand1_Click();
    EXPECT_EQ(story.answer(), blankAnswer("Declined"));
    EXPECT_FALSE(story.station.has(TenderStory::kMarker));
}

} // namespace
