// A tender as the server at the terminal lives it: the real window on Qt's offscreen platform, in
// virtual time, driven by keyboard, by finger and by what a screen reader calls things.
#include "tender/Xcharge1.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "support/tender_story.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

using support::TenderStory;

struct ScreenStory : TenderStory {
    ScreenStory()
    {
        station.time.everyTurn = [] { QCoreApplication::processEvents(); };
        screen.resize(1024, 768);
    }

    /// Shows the screen and turns until the program ended, or so much time has passed.
    void tell(std::uint64_t limit = 30'000)
    {
        screen.show();
        station.time.after(limit, [this] {
            timeIsUp = !station.run.ending();
            station.run.end();
        });
        while (!station.run.ending())
            station.run.yield();
        EXPECT_EQ(toCome, 0) << "the tender ended before a moment that the test looks at";
    }

    void at(std::uint64_t moment, std::function<void()> act)
    {
        ++toCome;
        station.time.at(moment, [this, act = std::move(act)] {
            --toCome;
            act();
        });
    }

    template <class Control> Control &control(const char *name)
    {
        return *screen.findChild<Control *>(QString::fromLatin1(name));
    }
    std::string label(const char *name) { return control<QLabel>(name).text().toStdString(); }
    std::string box(const char *name) { return control<QLineEdit>(name).text().toStdString(); }
    bool seen(const char *name) { return control<QWidget>(name).isVisible(); }
    /// The state in one glance: word and colour of the edge.
    std::string state()
    {
        return label("stateWord") + ", " +
               control<QFrame>("stateEdge").property("edge").toString().toStdString();
    }
    void expectNothingCutOff()
    {
        for (const QSize size : support::kScreenSizes)
            EXPECT_EQ(support::clippedControls(screen, size), "") << size.width();
        EXPECT_EQ(support::badlyNamedControls(screen), "");
    }

    tender::Xcharge1 screen{app, printer};
    bool timeIsUp = false;
    int toCome = 0; // moments written down and not reached
};

TEST(TenderScreen, CancelIsReachedByFingerEscapeAndCrossAndByNoneBeforeItIsAllowed)
{
    void (*const ways[])(ScreenStory &) = {
        [](ScreenStory &) { support::click(QStringLiteral("Cancel")); },
        [](ScreenStory &) { support::press(Qt::Key_Escape); },
        [](ScreenStory &story) { story.screen.close(); }};
    for (const auto cancel : ways) {
        ScreenStory story;
        story.paymentKeepsSilent();
        story.at(6000, [&] {
            cancel(story);
            EXPECT_TRUE(story.screen.isVisible() && !story.station.run.ending());
        });
        story.at(12'000, [&] { cancel(story); });
        story.tell();
        EXPECT_FALSE(story.timeIsUp);
        EXPECT_TRUE(story.answer().starts_with("\"Declined\""));
        EXPECT_TRUE(story.pending().empty());
    }
}

struct Paints : QObject {
    int count = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST(TenderScreen, TheWaitTellsMoreTheLongerItLastsAndEnterChangesNothing)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    story.at(3000, [&] {
        EXPECT_EQ(story.state(), "Waiting, waiting");
        EXPECT_EQ(story.box("Text3"), "Waiting for Xcharge Interface");
        EXPECT_EQ(story.box("Text4"), "$48.50");
        EXPECT_EQ(story.label("Label3_5"), "12");
        EXPECT_EQ(story.label("Label3_12"), "Rosalind Test");
        EXPECT_EQ(story.label("Label13_3"), "Version 5.68.0");
        EXPECT_EQ(story.label("station"), "Station FRONT-BAR");
        EXPECT_FALSE(story.seen("SSPanel2"));
        EXPECT_FALSE(story.seen("swipeRow")) << "the payment window takes the card";
        EXPECT_EQ(support::elidedLabels(story.screen), "");
        support::press(Qt::Key_Return);
    });
    Paints paints;
    story.screen.installEventFilter(&paints);
    story.at(3500, [&] { paints.count = 0; });
    story.at(7500, [&] {
        EXPECT_LE(paints.count, 5) << "in four counts";
        EXPECT_GE(paints.count, 3);
    });
    story.at(12'000, [&] {
        EXPECT_TRUE(story.seen("SSPanel2") && !story.seen("SSPanel4"));
        support::press(Qt::Key_Return);
        QStringList unreached = {QStringLiteral("SSCommand1"), QStringLiteral("SSCommand7"),
                                 QStringLiteral("SSCheck1")};
        for (int stops = 0; stops < 8; ++stops) {
            support::press(Qt::Key_Tab);
            unreached.removeAll(QApplication::focusWidget()->objectName());
        }
        EXPECT_EQ(unreached.join(u' ').toStdString(), "") << "by the keyboard";
    });
    story.at(50'000, [&] {
        EXPECT_EQ(story.state(), "No answer yet, attention");
        EXPECT_TRUE(story.seen("SSPanel4") && story.seen("SSRibbon1") && story.seen("SSRibbon2"));
        const auto &warning = story.control<QPushButton>("SSPanel4");
        EXPECT_EQ(warning.text().toStdString(), "INTERNET or Phone Line may be DOWN");
        EXPECT_EQ(warning.palette().buttonText().color(), QColor(0xb3, 0x26, 0x1e));
        EXPECT_FALSE(story.seen("SSPanel5")) << "the offline panel stays off";
    });
    story.tell(55'000);
    EXPECT_TRUE(story.timeIsUp) << "the tender goes on waiting";
    EXPECT_EQ(story.control<QAbstractButton>("SSCommand7").text(), QStringLiteral("NO"));
    EXPECT_FALSE(story.station.has("C:\\Lumbrio\\CCnoPrint.dat"));
}

/// Also in a window that is never painted, as when it lies behind other windows.
TEST(TenderScreen, ItEndsOnTheStateThatTheAnswerTells)
{
    const std::string approved = support::approvedResult();
    for (const auto &[result, state, answer] :
         {std::tuple(approved, "Approved, approved", "\"Approved\""),
          {approved + "ADDITIONALFUNDSREQUIRED=18.50\r\n", "Partial approval, attention",
           "\"DECLINE but PARTAIL APPROVAL\""},
          {"RESULT=DECLINED\r\n", "Declined, declined", "\"Declined\""},
          {"RESULT=TIMEOUT\r\n", "Declined, declined", "\"Declined\"\r\n\"48.50"}}) {
        ScreenStory story;
        if (result.find("TIMEOUT") != std::string::npos)
            story.at(8000, [] { support::press(Qt::Key_Return); }); // it stays; Enter is Cancel
        story.screen.setUpdatesEnabled(result != approved);
        story.paymentAnswers(result);
        story.tell();
        EXPECT_FALSE(story.timeIsUp);
        EXPECT_EQ(story.state(), state);
        EXPECT_TRUE(story.answer().starts_with(answer)) << story.answer();
    }
}

TEST(TenderScreen, OptionsFollowTheirFilesAndClicksChangeThem)
{
    constexpr const char *kNoPrintFlag = "C:\\Lumbrio\\CCnoPrint.dat";
    ScreenStory story;
    story.paymentAnswers(support::approvedResult(), 8000);
    story.station.put(kNoPrintFlag, "as the manager left it");
    story.at(3000, [&] {
        EXPECT_TRUE(story.control<QAbstractButton>("SSCheck1").isChecked());
        EXPECT_EQ(story.station.get(kNoPrintFlag), "as the manager left it");
        EXPECT_TRUE(support::click(QStringLiteral("Do not print a RECEIPT for Customer")));
        EXPECT_FALSE(story.station.has(kNoPrintFlag));
        EXPECT_TRUE(support::click(QStringLiteral("Print Credit Card Slip with Gratuity")));
        EXPECT_EQ(story.control<QAbstractButton>("SSCommand7").text(), QStringLiteral("YES"));
    });
    story.tell();
    EXPECT_NE(story.slips().find("57.23"), std::string::npos) << "48.50 and 18 %";
    EXPECT_EQ(story.station.printers.collected.size(), 2U) << "merchant's and guest's";
}

TEST(TenderScreen, EachCommandOfACardDoesWhatItsCaptionSays)
{
    ScreenStory story;
    story.station.erase(TenderStory::kModeFlag);
    story.station.put("C:\\Lumbrio\\XCHide.txt", "");
    story.station.put("c:\\Program Files\\X-Charge\\Xchrgsrv.exe", "program");
    story.station.put("F:\\Lumbrio\\ini\\3\\ButtonAM.dat",
                      "\"1111\",\"Margaret Manager\",\"01/01/2030\"\r\n");
    story.station.dialogs.expect("CONFIG", "The card setup is not part of this version yet.",
                                 platform::Buttons::Ok, platform::Answer::Ok);
    story.at(400, [&] {
        const auto &number = story.control<QLineEdit>("Text1");
        support::type(QStringLiteral("%B41"));
        EXPECT_EQ(number.echoMode(), QLineEdit::Password);
        support::click(QStringLiteral("View"));
        EXPECT_EQ(number.echoMode(), QLineEdit::Normal);
        EXPECT_EQ(story.box("Text2") + story.box("Text1"), "%B41%B41");
        support::click(QStringLiteral("Clear"));
        EXPECT_EQ(story.box("Text2") + story.box("Text1"), "");
        support::click(QStringLiteral("Start Xcharge"));
        EXPECT_EQ(story.station.system.started.size(), 1U);
        story.station.time.after(500, [] {
            support::type(QStringLiteral("1111"));
            support::press(Qt::Key_Return);
        });
        support::click(QStringLiteral("CONFIG"));
        support::type(QStringLiteral("%B5"));
        EXPECT_EQ(story.box("Text2"), "%B5") << "the next swipe finds its box";
    });
    story.tell(3000);
}

// A reader types faster than people: nothing of a card may get lost between two boxes, and what it
// sends behind the card must not press a command.
TEST(TenderScreen, ACardArrivesWholeFromTheReaderAndFromTheKeypad)
{
    const std::string track = std::string(TenderStory::kTrack1) + TenderStory::kTrack2;
    for (const bool swiped : {true, false}) {
        ScreenStory story;
        story.reply = std::nullopt;
        story.takeCardsHere();
        story.at(500, [&] {
            if (swiped) {
                support::type(QString::fromStdString(track) + QStringLiteral("+9?"));
                support::press(Qt::Key_Return);
                return;
            }
            story.station.time.after(500, [] {
                for (const char *box : {"4111111111111111", "0928", "7193"}) {
                    support::type(QString::fromLatin1(box));
                    support::press(*box == '7' ? Qt::Key_Return : Qt::Key_Tab);
                }
            });
            support::click(QStringLiteral("Enter Manually"));
        });
        story.at(3500, [&] {
            EXPECT_EQ(story.state(), "Waiting, waiting");
            EXPECT_FALSE(story.control<QWidget>("SSCommand3").isEnabled());
            ASSERT_EQ(story.left().size(), 1U);
            EXPECT_EQ(story.station.get(TenderStory::kLocalTran + story.left()[0]),
                      swiped ? R"("C1","7","1043","4111111111111111",")" + track +
                                   "\",\"48.5\",\"99999\"\r\n"
                             : R"("C1","7","1043","4111111111111111","2809","48.5","99999","7193")"
                               "\r\n");
            EXPECT_EQ(story.processTrace().find("4111111111111111"), std::string::npos);
            EXPECT_EQ(story.processTrace().find("7193"), std::string::npos);
        });
        story.tell(4000);
    }
}

TEST(TenderScreen, BusyFileServerEndsTheTenderWithoutAnAnswer)
{
    void (*const ways[])() = {
        [] { support::press(Qt::Key_Return); }, [] { support::press(Qt::Key_Escape); },
        [] {
            EXPECT_TRUE(support::click(QStringLiteral("Picture of the busy file server")));
            support::click(QStringLiteral("OK")); // the screen stays until then
        }};
    for (const auto leave : ways) {
        ScreenStory story;
        story.station.put(TenderStory::kMarker, "");
        story.at(2000, [&] {
            EXPECT_FALSE(story.screen.isVisible());
            leave();
        });
        story.tell();
        EXPECT_EQ(story.station.has(TenderStory::kMarker), leave != ways[2]);
        EXPECT_FALSE(story.timeIsUp || story.answered());
        EXPECT_TRUE(story.station.system.started.empty());
    }
}

// And the commands of a card are there only where the screen takes one.
TEST(TenderScreen, NothingIsCutOffAndEverythingIsNamedAtBothSizesInTheLongestTender)
{
    for (const bool commandLine : {true, false}) {
        SCOPED_TRACE(commandLine ? "command line" : "local");
        ScreenStory story;
        story.paymentKeepsSilent();
        story.request("\"DelPrePay table on the terrace\",\"1043\",\"7\",\"123456.50\"\r\n");
        story.station.put(TenderStory::kAudit, "123456.50");
        if (!commandLine)
            story.station.erase(TenderStory::kModeFlag);
        for (const std::uint64_t moment : {50U, 3000U, 10'000U, 52'000U})
            story.at(moment, [&] { story.expectNothingCutOff(); });
        story.at(3000, [&] {
            for (const char *name : {"SSCommand3", "SSCommand4", "SSCommand5", "Command3"})
                EXPECT_EQ(story.control<QWidget>(name).isEnabled(), !commandLine) << name;
            for (const char *name : {"SSCommand2", "SSCommand6"})
                EXPECT_FALSE(story.control<QWidget>(name).isEnabled()) << name;
            EXPECT_EQ(story.seen("swipeRow"), !commandLine);
        });
        story.at(52'500, [&] { // the offline panel, which takes the place of the cards
            for (const char *card : {"stateCard", "detailsCard", "slipsCard"})
                story.control<QWidget>(card).hide();
            story.control<QWidget>("SSPanel5").show();
            story.expectNothingCutOff();
        });
        story.tell(53'000);
    }
}

} // namespace
