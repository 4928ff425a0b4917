// A tender as the server at the terminal lives it: the real window on Qt's offscreen platform, in
// virtual time, driven by keyboard, by finger and by what a screen reader calls things.
#include "tender/Xcharge1.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "support/tender_story.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

using support::TenderStory;

constexpr const char *kNoPrintFlag = "C:\\Lumbrio\\CCnoPrint.dat";

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

    tender::Xcharge1 screen{app, printer};
    bool timeIsUp = false;
    int toCome = 0; // moments written down and not reached
};

TEST(TenderScreen, CancelIsReachedByFingerEscapeAndCrossAndByNoneBeforeItIsAllowed)
{
    struct Way {
        const char *name;
        std::function<void(ScreenStory &)> cancel;
    };
    const Way ways[] = {
        {"finger", [](ScreenStory &) { support::click(QStringLiteral("Cancel")); }},
        {"Escape", [](ScreenStory &) { support::press(Qt::Key_Escape); }},
        {"cross", [](ScreenStory &story) { story.screen.close(); }},
    };
    for (const Way &way : ways) {
        SCOPED_TRACE(way.name);
        ScreenStory story;
        story.paymentKeepsSilent();
        story.at(6000, [&] {
            way.cancel(story);
            EXPECT_TRUE(story.screen.isVisible());
            EXPECT_FALSE(story.station.run.ending()) << "Cancel is not enabled yet";
        });
        story.at(12'000, [&] { way.cancel(story); });
        story.tell();
        EXPECT_FALSE(story.timeIsUp);
        ASSERT_TRUE(story.answered());
        EXPECT_TRUE(story.answer().starts_with("\"Declined\""));
        EXPECT_TRUE(story.pending().empty());
    }
}

TEST(TenderScreen, EnterDuringTheWaitChangesNothing)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    for (const std::uint64_t moment : {3000U, 12'000U})
        story.at(moment, [] { support::press(Qt::Key_Return); });
    story.tell(15'000);
    EXPECT_TRUE(story.timeIsUp) << "the tender goes on waiting";
    EXPECT_EQ(story.control<QAbstractButton>("SSCommand7").text(), QStringLiteral("NO"));
    EXPECT_FALSE(story.station.has(kNoPrintFlag));
}

TEST(TenderScreen, TheWaitTellsMoreTheLongerItLasts)
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
    });
    story.at(10'000, [&] {
        EXPECT_TRUE(story.seen("SSPanel2"));
        EXPECT_FALSE(story.seen("SSPanel4"));
    });
    story.at(50'000, [&] {
        EXPECT_EQ(story.state(), "No answer yet, attention");
        EXPECT_TRUE(story.seen("SSPanel4"));
        EXPECT_TRUE(story.seen("SSRibbon1") && story.seen("SSRibbon2"));
        EXPECT_EQ(story.label("SSPanel4_text"), "INTERNET or Phone Line may be DOWN");
        EXPECT_EQ(story.control<QLabel>("SSPanel4_text").palette().windowText().color(),
                  QColor(0xb3, 0x26, 0x1e));
        EXPECT_FALSE(story.seen("SSPanel5")) << "the offline panel stays off";
    });
    story.tell(55'000);
}

TEST(TenderScreen, ItEndsOnTheStateThatTheAnswerTells)
{
    struct Outcome {
        std::string result;
        const char *state;
        const char *answer; // its first line
    };
    const std::string approved = support::approvedResult();
    const Outcome outcomes[] = {
        {approved, "Approved, approved", "\"Approved\""},
        {approved + "ADDITIONALFUNDSREQUIRED=18.50\r\n", "Partial approval, attention",
         "\"DECLINE but PARTAIL APPROVAL\""},
        {"RESULT=DECLINED\r\n", "Declined, declined", "\"Declined\""},
    };
    for (const Outcome &outcome : outcomes) {
        SCOPED_TRACE(outcome.state);
        ScreenStory story;
        story.paymentAnswers(outcome.result);
        story.tell();
        EXPECT_FALSE(story.timeIsUp);
        EXPECT_EQ(story.state(), outcome.state);
        ASSERT_TRUE(story.answered());
        EXPECT_TRUE(story.answer().starts_with(outcome.answer)) << story.answer();
    }
}

TEST(TenderScreen, AWindowThatIsNeverPaintedTakesItsTenderAllTheSame)
{
    ScreenStory story;
    story.screen.setUpdatesEnabled(false); // as when it lies behind other windows
    story.tell();
    EXPECT_FALSE(story.timeIsUp);
    EXPECT_EQ(story.pending().size(), 1U);
}

TEST(TenderScreen, AnOpenDeclineWaitsForTheOperatorWhoseEnterIsCancel)
{
    ScreenStory story;
    story.paymentAnswers("RESULT=TIMEOUT\r\n");
    story.at(8000, [&] {
        EXPECT_EQ(story.state(), "Declined, declined");
        EXPECT_EQ(story.box("Text3"), "Please Click Cancel");
        EXPECT_EQ(story.box("Text1"), "Declined");
        EXPECT_FALSE(story.control<QWidget>("SSCommand2").isEnabled());
        support::press(Qt::Key_Return);
    });
    story.tell();
    EXPECT_FALSE(story.timeIsUp);
    EXPECT_EQ(story.pending().size(), 1U) << "the record of the decline stays";
}

TEST(TenderScreen, OptionsFollowTheirFilesAndClicksChangeThem)
{
    ScreenStory story;
    story.paymentAnswers(support::approvedResult(), 8000);
    story.station.put(kNoPrintFlag, "as the manager left it");
    story.at(3000, [&] {
        EXPECT_TRUE(story.control<QAbstractButton>("SSCheck1").isChecked());
        EXPECT_EQ(story.station.get(kNoPrintFlag), "as the manager left it")
            << "being shown writes nothing";
        EXPECT_TRUE(support::click(QStringLiteral("Do not print a RECEIPT for Customer")));
        EXPECT_FALSE(story.station.has(kNoPrintFlag));
        EXPECT_TRUE(support::click(QStringLiteral("Print Credit Card Slip with Gratuity")));
        EXPECT_EQ(story.control<QAbstractButton>("SSCommand7").text(), QStringLiteral("YES"));
    });
    story.tell();
    EXPECT_NE(story.slips().find("57.23"), std::string::npos) << "48.50 and 18 %";
    EXPECT_EQ(story.station.printers.collected.size(), 2U) << "merchant's and guest's";
}

TEST(TenderScreen, CommandsWithoutAProcedureStayDisabledInBothModes)
{
    for (const bool commandLine : {true, false}) {
        ScreenStory story;
        story.paymentKeepsSilent();
        if (!commandLine)
            story.station.erase("C:\\Lumbrio\\X1009Version.dat");
        story.at(3000, [&] {
            for (const char *name :
                 {"SSCommand3", "SSCommand4", "SSCommand5", "SSCommand6", "Command3", "SSCommand2"})
                EXPECT_FALSE(story.control<QWidget>(name).isEnabled()) << name;
            EXPECT_EQ(story.seen("swipeRow"), !commandLine);
        });
        story.tell(5000);
    }
}

TEST(TenderScreen, BusyFileServerEndsTheTenderWithoutAnAnswer)
{
    struct Way {
        const char *name;
        std::function<void()> leave;
        bool markerStays;
    };
    const Way ways[] = {
        {"OK", [] { support::click(QStringLiteral("OK")); }, true},
        {"Enter", [] { support::press(Qt::Key_Return); }, true},
        {"Escape", [] { support::press(Qt::Key_Escape); }, true},
        {"the picture, then OK",
         [] {
             EXPECT_TRUE(support::click(QStringLiteral("Picture of the busy file server")));
             EXPECT_NE(support::controlNamed(QStringLiteral("OK")), nullptr) << "the screen stays";
             support::click(QStringLiteral("OK"));
         },
         false},
    };
    for (const Way &way : ways) {
        SCOPED_TRACE(way.name);
        ScreenStory story;
        story.station.put(TenderStory::kMarker, "");
        story.at(2000, [&] {
            EXPECT_FALSE(story.screen.isVisible());
            way.leave();
        });
        story.tell();
        EXPECT_FALSE(story.timeIsUp);
        EXPECT_EQ(story.station.has(TenderStory::kMarker), way.markerStays);
        EXPECT_FALSE(story.answered());
        EXPECT_TRUE(story.station.system.started.empty());
    }
}

/// What would be cut off or have no name, at each moment of the longest tender.
TEST(TenderScreen, NothingIsCutOffAndEverythingIsNamedAtBothSizes)
{
    for (const bool commandLine : {true, false}) {
        SCOPED_TRACE(commandLine ? "command line" : "local");
        ScreenStory story;
        story.paymentKeepsSilent();
        story.request("\"DelPrePay table on the terrace\",\"1043\",\"7\",\"123456.50\"\r\n");
        story.station.put(TenderStory::kAudit, "123456.50");
        if (!commandLine)
            story.station.erase("C:\\Lumbrio\\X1009Version.dat");
        const auto look = [&] {
            for (const QSize size : support::kScreenSizes) {
                SCOPED_TRACE(size.width());
                EXPECT_EQ(support::clippedControls(story.screen, size), "");
                EXPECT_EQ(support::badlyNamedControls(story.screen), "");
            }
        };
        for (const std::uint64_t moment : {50U, 3000U, 10'000U, 52'000U})
            story.at(moment, look);
        story.tell(53'000);
    }
}

TEST(TenderScreen, TheOfflinePanelHasRoomForItsWordsInTheLongestWait)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    story.at(52'000, [&] {
        for (const char *card : {"stateCard", "detailsCard", "slipsCard"})
            story.control<QWidget>(card).hide();
        story.control<QWidget>("SSPanel5").show();
        for (const QSize size : support::kScreenSizes)
            EXPECT_EQ(support::clippedControls(story.screen, size), "");
        EXPECT_EQ(support::badlyNamedControls(story.screen), "");
    });
    story.tell(53'000);
}

TEST(TenderScreen, TheKeyboardReachesEveryEnabledCommand)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    story.at(12'000, [&] {
        QStringList unreached = {QStringLiteral("SSCommand1"), QStringLiteral("SSCommand7"),
                                 QStringLiteral("SSCheck1")};
        for (int stops = 0; stops < 8; ++stops) {
            support::press(Qt::Key_Tab);
            unreached.removeAll(QApplication::focusWidget()->objectName());
        }
        EXPECT_EQ(unreached.join(u' ').toStdString(), "");
    });
    story.tell(13'000);
}

TEST(TenderScreen, EverydayTextsAreShownWhole)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    story.at(3000, [&] {
        for (const QSize size : support::kScreenSizes) {
            support::resizeTo(story.screen, size);
            EXPECT_EQ(support::elidedLabels(story.screen), "");
        }
    });
    story.tell(4000);
}

class Paints : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

TEST(TenderScreen, AWaitOfManyTurnsPaintsOnceForEachCount)
{
    ScreenStory story;
    story.paymentKeepsSilent();
    story.station.time.maxStep = 5;
    Paints paints;
    story.screen.installEventFilter(&paints);
    int before = 0;
    story.at(2000, [&] { before = paints.count; });
    story.at(7000, [&] {
        EXPECT_LE(paints.count - before, 6) << "in five seconds";
        EXPECT_GE(paints.count - before, 4) << "each count is seen";
    });
    story.tell(7500);
}

} // namespace
