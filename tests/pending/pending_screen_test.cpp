// The manager's list as its window shows it: rows, colours, totals, and what fingers and keys do.
#include "pending/XchargePend.h"

#include "details/XchargeEntryDetals.h"
#include "platform/qt/mlist.h"
#include "platform/qt/print_painter.h"
#include "support/card_text.h"
#include "support/manager_stage.h"
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"

#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>

namespace {

using namespace pending;
using namespace support;

struct ScreenStory : ManagerStage {
    explicit ScreenStory(const std::vector<std::string> &pending, bool lookOnly = false)
    {
        app.values.lookOnly = lookOnly;
        app.values.inUseBy = "In use by BARTENDERS-LEFT since 23:10";
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
    /// Column 0 of every row, red ones with an r, and what they are sorted by.
    std::string rows()
    {
        const auto &model = list.rows();
        std::string all;
        for (int row = 0; row < model.rowCount(); ++row) {
            const auto back = model.data(model.index(row, 0), Qt::BackgroundRole).value<QColor>();
            all += model.data(model.index(row, 0)).toString().toStdString() +
                   (back == QColor(Qt::red) ? "r " : " ");
        }
        for (const auto *option : screen.findChildren<QRadioButton *>())
            all += option->isChecked() ? option->text().toStdString() : "";
        return all;
    }
    /// A tap that begins on one row and ends on another.
    void tap(QEvent::Type what, int from, int to)
    {
        for (const auto &[kind, row] : {std::pair(what, from), {QEvent::MouseButtonRelease, to}})
            touch(*list.viewport(), kind, list.visualRect(list.model()->index(row, 1)).center());
    }
    void hover(QEvent::Type what)
    {
        QEvent event(what);
        QApplication::sendEvent(controlNamed(QStringLiteral("Force ALL NO TIP")), &event);
    }
    std::string takeOpened() { return std::exchange(opened, ""); }

    std::string opened;
    XchargePend screen{app,
                       printer,
                       {[this](const std::string &file, long slot) {
                            opened += file + " " + std::to_string(slot) + "; ";
                        },
                        [] { return true; }}};
    platform::MList &list = *screen.findChild<platform::MList *>();
};

const std::vector<std::string> kEvening = {
    "CCReceipt=1043;CCTabAmt=48.50",
    "empty",
    "CCReceipt=17;CCAdjStatus=Adjusted - Pending;CCstatus=Declined;CCTabAmt=30.00",
    "CCReceipt=8;CCAdjStatus=Completed;CCTip=5;CCDate=01/14/25",
    "CCReceipt=9;CCAdjStatus=Adjusted - Pending;CCTip=3.50",
};

TEST(PendingScreen, OpensTheRecordOfARowByFingerAndKeyboardInAnyOrder)
{
    ScreenStory story(kEvening);
    EXPECT_EQ(story.rows(), "1043 017r 008 009 ");
    std::string labels;
    for (const char *label : {"Label5_0", "Label5_1", "Label5_2", "Label16", "Label17", "Label18",
                              "Label19", "Label20", "Label7"})
        labels += story.text(label) + "|";
    EXPECT_EQ(labels, "$118.50|$8.50|$127.00|01/14/25|01/15/25|4 Swipes|5|"
                      "Internet connection detected!!|1 to adjust|");

    story.tap(QEvent::MouseButtonPress, 1, 1);
    EXPECT_EQ(story.takeOpened(), "F:\\Lumbrio\\CCPending.dat 3; ");
    story.tap(QEvent::MouseButtonDblClick, 1, 1);
    story.tap(QEvent::MouseButtonPress, 0, 2);
    EXPECT_EQ(story.takeOpened(), "") << "a second click, and a finger that left the row";

    EXPECT_TRUE(click(QStringLiteral("Sort by Receipt Number")));
    EXPECT_EQ(story.rows(), "008 009 017r 1043 Receipt Number");
    EXPECT_EQ(story.list.currentIndex().row(), 3) << "the entry stays chosen";
    story.list.setFocus();
    for (const auto &[key, slot] : {std::pair(Qt::Key_Home, "4; "), {Qt::Key_End, "1; "}}) {
        press(key);
        press(Qt::Key_Return);
        EXPECT_EQ(story.takeOpened(), std::string("F:\\Lumbrio\\CCPending.dat ") + slot);
    }
    for (const auto &[number, slot] : {std::pair("9", "5; "), {"17", "3; "}}) {
        type(QString::fromLatin1(number));
        press(Qt::Key_Enter);
        EXPECT_TRUE(story.takeOpened().ends_with(slot)) << "nothing is left of the last number";
    }
    press(Qt::Key_Tab);
    EXPECT_FALSE(story.list.hasFocus());

    // A command that is greyed while it works must not hand its Enter on to the next one.
    controlNamed(QStringLiteral("Refresh"))->setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(story.list.hasFocus());
    EXPECT_EQ(story.rows(), "1043 017r 008 009 ") << "a load loses the order";
}

TEST(PendingScreen, ShowsTheReceiptNumberThatIsTypedAndOpensNoOther)
{
    ScreenStory story(kEvening);
    const auto hint = [&] {
        const auto *line = story.screen.findChild<QLabel *>(QStringLiteral("hint"));
        return line->isVisible() ? line->text().left(23).toStdString() : "";
    };
    controlNamed(QStringLiteral("Print"))->setFocus();
    story.list.setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(story.takeOpened(), "") << "nobody has chosen a row";
    story.hover(QEvent::Enter); // a notice, which the number hides
    type(QStringLiteral("104"));
    story.station.advance(60'000);
    EXPECT_EQ(hint(), "Receipt 104. Enter open");
    press(Qt::Key_Return);
    EXPECT_TRUE(click(QStringLiteral("Refresh")));
    press(Qt::Key_Return);
    EXPECT_EQ(story.takeOpened(), "") << "the row of that index may be another one now";
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&story.list, &held);
    EXPECT_EQ(story.takeOpened(), "") << "a key held down";
    press(Qt::Key_Return);
    EXPECT_TRUE(story.takeOpened().ends_with(" 1; "));
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Escape}) {
        type(QStringLiteral("8"));
        press(key);
        press(Qt::Key_Return);
        EXPECT_TRUE(story.takeOpened().ends_with(" 3; ")) << "the row in the frame";
    }
    type(QStringLiteral("99"));
    press(Qt::Key_Return);
    EXPECT_EQ(hint(), "No entry has receipt 99");
    press(Qt::Key_Escape);
    EXPECT_EQ(hint(), "") << "the notice is back";
    story.tap(QEvent::MouseButtonPress, 1, 1);
    EXPECT_TRUE(story.takeOpened().ends_with(" 3; "));
    type(QStringLiteral("01"));
    press(Qt::Key_Return);
    story.station.put(ManagerStage::kPending, slotOf(kEvening[0]) + slotOf(kEvening[3]));
    EXPECT_TRUE(click(QStringLiteral("Refresh")));
    EXPECT_EQ(story.list.currentIndex().row(), 1) << "where the last one was opened";
    press(Qt::Key_Return);
    EXPECT_EQ(story.takeOpened(), "") << "another entry stands there now";
}

TEST(PendingScreen, GetsTheKeyboardBackFromAnEntryOnItsRows)
{
    ScreenStory story(kEvening);
    details::XchargeEntryDetals entry(story.app, story.printer, story.screen.entryCallbacks());
    controlNamed(QStringLiteral("Refresh"))->setFocus();
    entry.open(ManagerStage::kPending, 1, "PEND");
    story.station.advance(1);
    EXPECT_TRUE(entry.isActiveWindow() && click(QStringLiteral("Save")));
    EXPECT_EQ(story.screen.focusWidget(), &story.list) << "not the command beside a greyed one";
}

TEST(PendingScreen, IsLeftByTheCrossAsByDoneAndNotByEscape)
{
    ScreenStory story(kEvening);
    controlNamed(QStringLiteral("Print"))->setFocus();
    press(Qt::Key_Escape);
    EXPECT_TRUE(story.list.hasFocus() && !story.station.run.ending());
    story.screen.close();
    EXPECT_TRUE(story.station.run.ending());
    EXPECT_EQ(recordsIn(story.station.getIfThere(ManagerStage::kMonth)).size(), 1U);
}

TEST(PendingScreen, BesideAnotherManagerSaysSoWhole)
{
    ScreenStory story(kEvening, true);
    EXPECT_EQ(story.text("Label2") + ": " + story.text("business"),
              "Looking only: In use by BARTENDERS-LEFT since 23:10");
    for (const QSize size : kScreenSizes) {
        EXPECT_EQ(clippedControls(story.screen, size), "") << size.width();
        EXPECT_EQ(elidedLabels(story.screen), "") << size.width();
    }
}

TEST(PendingScreen, FitsBothSizesWithItsWidestTexts)
{
    ScreenStory story(
        std::vector<std::string>(130, "CCTabAmt=9999.99;CCTip=999.99;CCReceipt=10432;CCServer=120;"
                                      "CCAdjStatus=Adjusted - Pending;CCTime=11:45 PM"));
    story.station.system.connected = false;
    story.station.advance(30'000); // till the last answer is old
    EXPECT_TRUE(click(QStringLiteral("Refresh")));
    EXPECT_EQ(story.text("Label5_2"), "$1,429,997.40");
    const int top = story.list.y();
    story.hover(QEvent::Enter); // the longest notice
    EXPECT_EQ(story.list.y(), top) << "rows must not jump";
    for (const QSize size : kScreenSizes) {
        EXPECT_EQ(clippedControls(story.screen, size), "") << size.width();
        EXPECT_EQ(elidedLabels(story.screen), "") << size.width();
        for (int column = 0; column < 12; ++column)
            EXPECT_GE(story.list.columnWidth(column), story.list.sizeHintForColumn(column))
                << column << " at " << size.width();
    }
}

TEST(PendingScreen, CutsNoAmountAndShowsACutStatusWholeInTheChosenRow)
{
    const std::string most = "CCTabAmt=10000.00;CCApprovedAmt=1234567.89;CCTip=1000.00;"
                             "CCAdjStatus=Adjusted - Pending, by ";
    ScreenStory story({most + "A", most + "B"});
    story.screen.resize(kScreenSizes[0]);
    QCoreApplication::processEvents();
    for (const int amount : {2, 3, 4, 5})
        EXPECT_GE(story.list.columnWidth(amount), story.list.sizeHintForColumn(amount)) << amount;
    const auto picture = [&](int row) {
        return story.list.viewport()
            ->grab(story.list.visualRect(story.list.model()->index(row, 6)))
            .toImage();
    };
    story.list.goToRow(-1);
    EXPECT_EQ(picture(0), picture(1)) << "both are cut";
    story.list.goToRow(0);
    const QImage first = picture(0);
    story.list.goToRow(1);
    EXPECT_NE(picture(1), first) << "nobody can tell them apart";
}

/// Fifty rows, their headings and the mark of a page are one page of paper.
TEST(PrintedListOnPaper, NeedsNoMorePagesThanItHasMarks)
{
    ManagerStage story;
    std::string pending;
    for (int i = 0; i < 101; ++i)
        pending += slotOf("CCTip=12.50");
    story.station.put(ManagerStage::kPending, pending);
    story.list.refresh();
    story.printer.select("Office");
    story.list.print();
    const platform::PrintJob job = story.station.printers.collected.back().job;
    platform::Banners banners;
    for (const auto &[width, height] : {std::pair(216, 279), {210, 297}}) {
        const QByteArray pdf = platform::paintPdf(job, banners, width, height);
        EXPECT_EQ(pdf.count("/Type /Page\n"), 3) << width;
    }
}

} // namespace
