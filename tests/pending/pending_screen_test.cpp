// The manager's list as its window shows it: rows, colours, totals, and what fingers and keys do.
#include "pending/XchargePend.h"

#include "pending/pending_story.h"
#include "platform/qt/mlist.h"
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"

#include <QLabel>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace {

using namespace pending;
using support::click;
using support::controlNamed;
using support::press;

struct ScreenStory : Story {
    explicit ScreenStory(const std::vector<std::string> &pending)
    {
        std::string slots;
        for (const std::string &record : pending)
            slots += slotOf(record);
        station.put(kPending, slots);
        station.time.everyTurn = [] { QCoreApplication::processEvents(); };
        screen.resize(1024, 768);
        screen.show();
        screen.fillList();
        station.advance(300);
    }

    std::string text(const char *name)
    {
        return screen.findChild<QLabel *>(QString::fromLatin1(name))->text().toStdString();
    }
    bool seen(const char *name)
    {
        return screen.findChild<QWidget *>(QString::fromLatin1(name))->isVisible();
    }
    static bool enabled(const char16_t *name)
    {
        const QWidget *command = controlNamed(QString::fromUtf16(name));
        return command != nullptr && command->isEnabled();
    }
    std::string chosenOption()
    {
        for (const auto *option : screen.findChildren<QRadioButton *>())
            if (option->isChecked())
                return option->text().toStdString();
        return "";
    }
    /// Column 0 of every row, with the first letter of its colour.
    std::string rows()
    {
        const auto &model = list().rows();
        std::string all;
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto back = model.data(model.index(row, 0), Qt::BackgroundRole).value<QColor>();
            all += model.data(model.index(row, 0)).toString().toStdString() +
                   (back == QColor(Qt::red)            ? "r "
                    : back == QColor(0x80, 0xff, 0x80) ? "g "
                    : back == QColor(Qt::white)        ? "w "
                                                       : "- ");
        }
        return all;
    }
    platform::MList &list() { return *screen.findChild<platform::MList *>(); }

    std::string opened;
    XchargePend screen{app, printer, [this](const std::string &file, long slot) {
                           opened += file + " " + std::to_string(slot) + "; ";
                       }};
};

const std::vector<std::string> kEvening = {
    "CCReceipt=1043;CCTabAmt=48.50",
    "empty",
    "CCReceipt=17;CCAdjStatus=Adjusted - Pending;CCstatus=Declined;CCTabAmt=30.00",
    "CCReceipt=8;CCAdjStatus=Completed;CCTip=5;CCDate=01/14/25",
    "CCReceipt=9;CCAdjStatus=Adjusted - Pending;CCTip=3.50",
};

TEST(PendingScreen, ShowsTheEveningAndOpensTheRecordOfARow)
{
    ScreenStory story(kEvening);
    EXPECT_EQ(story.rows(), "1043w 017r 008g 009- ");
    EXPECT_EQ(story.text("Label5_0") + story.text("Label5_1") + story.text("Label5_2"),
              "$118.50$8.50$127.00");
    EXPECT_EQ(story.text("Label16") + " " + story.text("Label17") + " " + story.text("Label18") +
                  " " + story.text("Label19"),
              "01/14/25 01/15/25 4 Swipes 5");
    EXPECT_EQ(story.text("Label20"), "Internet connection detected!!");
    EXPECT_EQ(story.text("Label7"), "Some to adjust");
    EXPECT_FALSE(story.enabled(u"Process") || story.enabled(u"Archive") ||
                 story.seen("SSCommand5"));
    EXPECT_TRUE(story.enabled(u"Done") && story.enabled(u"Print"));

    EXPECT_TRUE(story.list().hasFocus());
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_TRUE(click(QStringLiteral("Sort by Receipt Number")));
    EXPECT_EQ(story.rows(), "008g 009- 017r 1043w ");
    EXPECT_EQ(story.chosenOption(), "Receipt Number");
    EXPECT_EQ(story.list().currentIndex().row(), 2) << "the entry stays chosen";
    story.list().setFocus();
    press(Qt::Key_Home);
    press(Qt::Key_Enter);
    EXPECT_EQ(story.opened, "F:\\Lumbrio\\CCPending.dat 3; F:\\Lumbrio\\CCPending.dat 4; ");

    // A command that is greyed while it works must not hand its Enter on to the next one.
    QWidget *refresh = controlNamed(QStringLiteral("Refresh"));
    refresh->setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(story.list().hasFocus());
    EXPECT_EQ(story.rows(), "1043w 017r 008g 009- ");
    EXPECT_EQ(story.chosenOption(), "") << "a load loses the order";
}

TEST(PendingScreen, SaysWhatKeepsTheBatchBackAndLetsItStartWhenNothingDoes)
{
    ScreenStory story({kEvening[2], kEvening[4], kEvening[4]});
    EXPECT_TRUE(story.seen("SSPanel1_0") && !story.enabled(u"Process"));
    EXPECT_EQ(story.text("SSPanel1_0_text"),
              "You have 1 Declined entries. You must delete the declined entries before you can "
              "process the approved items");
    const int top = story.list().y();
    EXPECT_TRUE(click(QStringLiteral("DELETE RED'S")));
    EXPECT_EQ(story.text("SSPanel1_0_text"), "all declines have been deleted");
    EXPECT_TRUE(story.enabled(u"Process"));
    EXPECT_TRUE(click(QStringLiteral("Refresh")));
    QWidget *noTips = controlNamed(QStringLiteral("Force ALL NO TIP"));
    for (const bool over : {true, false}) {
        QEvent event(over ? QEvent::Enter : QEvent::Leave);
        QApplication::sendEvent(noTips, &event);
        EXPECT_EQ(story.seen("SSPanel1_0"), over);
        EXPECT_EQ(story.list().y(), top) << "rows must not jump";
    }
    EXPECT_EQ(story.text("SSPanel1_0_text"),
              "All entries with no tip will be forced no tip and marked adjusted");
}

TEST(PendingScreen, IsLeftByTheCrossAsByDoneAndNotByEscape)
{
    ScreenStory story({kEvening[3], kEvening[4]});
    controlNamed(QStringLiteral("Print"))->setFocus();
    press(Qt::Key_Escape);
    EXPECT_TRUE(story.list().hasFocus() && !story.station.run.ending());
    ASSERT_TRUE(story.station.has("F:\\Lumbrio\\ServerISBatching.dat"));
    story.screen.close();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_FALSE(story.station.has("F:\\Lumbrio\\ServerISBatching.dat"));
    for (const auto &[path, receipt] : {std::pair(Story::kMonth, "8"), {Story::kPending, "9"}}) {
        ASSERT_EQ(story.records(path).size(), 1U) << path;
        EXPECT_EQ(story.records(path)[0].text(records::CCReceipt), receipt);
    }
}

TEST(PendingScreen, FitsBothSizesWithItsWidestTexts)
{
    for (const std::size_t records : {9U, 130U}) {
        ScreenStory story(std::vector<std::string>(
            records, "CCTabAmt=9999.99;CCTip=999.99;CCReceipt=10432;CCServer=120;"
                     "CCAdjStatus=Adjusted - Pending;CCTime=11:45 PM"));
        story.station.system.connected = false;
        EXPECT_TRUE(click(QStringLiteral("Refresh")));
        EXPECT_EQ(story.text("Label20"), "No internet connection detected...");
        EXPECT_EQ(story.text("Label5_2"), records == 9 ? "$98,999.82" : "$1,429,997.40");
        QEvent event(QEvent::Enter); // the notice
        QApplication::sendEvent(controlNamed(QStringLiteral("Force ALL NO TIP")), &event);
        for (const QSize size : support::kScreenSizes) {
            EXPECT_EQ(support::clippedControls(story.screen, size), "") << size.width();
            EXPECT_EQ(support::elidedLabels(story.screen), "") << size.width();
            for (int column = 0; column < 12; ++column)
                EXPECT_GE(story.list().columnWidth(column), story.list().sizeHintForColumn(column))
                    << column << " at " << size.width();
        }
        EXPECT_EQ(support::badlyNamedControls(story.screen), "");
    }
}

} // namespace
