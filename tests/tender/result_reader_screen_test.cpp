// The screen of the result reader: what it reads goes into the working record, what it only tries
// does not.
#include "tender/XCreader1.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "support/tender_story.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

struct ReaderStory : support::TenderStory {
    ReaderStory()
    {
        screen.resize(1024, 768);
        screen.show();
        QCoreApplication::processEvents();
    }

    QStringList lines()
    {
        QStringList all;
        for (int row = 0; row < list.count(); ++row)
            all << list.item(row)->text();
        return all;
    }

    tender::XCreader1 screen{app};
    QListWidget &list = *screen.findChild<QListWidget *>(QStringLiteral("List1"));
};

TEST(ResultReaderScreen, ReadsTheNamedFileIntoTheWorkingRecord)
{
    ReaderStory story;
    story.station.put("c:\\Lumbrio\\other.txt", "RESULT=SUCCESS\r\n\r\nCLERK=77\r\n");
    auto &name = *story.screen.findChild<QLineEdit *>(QStringLiteral("Text1"));
    EXPECT_EQ(name.text(), QStringLiteral("c:\\Lumbrio\\xResultFile.Txt"));
    name.setText(QStringLiteral("c:\\Lumbrio\\other.txt"));
    EXPECT_TRUE(support::click(QStringLiteral("Read the file")));
    EXPECT_TRUE(story.lines().contains(QStringLiteral("CLERK=77")));
    EXPECT_EQ(story.app.values.CCdata.text(records::CCServer), "77");
}

TEST(ResultReaderScreen, TryingATaggedTextLeavesTheWorkingRecordAlone)
{
    ReaderStory story;
    story.app.values.CCdata.set(records::CApprovalCode, "012345");
    story.screen.findChild<QPlainTextEdit *>(QStringLiteral("Text3"))
        ->setPlainText(QStringLiteral("<RESULT_APPROVALCODE>777777</RESULT_APPROVALCODE>"));
    EXPECT_TRUE(support::click(QStringLiteral("Read XML file")));
    EXPECT_FALSE(story.lines().filter(QStringLiteral("777777")).isEmpty());
    EXPECT_EQ(story.app.values.CCdata.text(records::CApprovalCode), "012345");
    EXPECT_TRUE(support::click(QStringLiteral("unload me")));
    EXPECT_FALSE(story.screen.isVisible());
}

TEST(ResultReaderScreen, NothingIsCutOffAndEverythingIsNamedAtBothSizes)
{
    ReaderStory story;
    for (const QSize size : support::kScreenSizes)
        EXPECT_EQ(support::clippedControls(story.screen, size), "");
    EXPECT_EQ(support::badlyNamedControls(story.screen), "");
}

} // namespace
