// The screen of the result reader: what it reads goes into the working record, what it only tries
// does not.
#include "tender/XCreader1.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "support/tender_story.h"

#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

TEST(ResultReaderScreen, ReadsTheFileIntoTheWorkingRecordAndOnlyTriesATaggedText)
{
    support::TenderStory story;
    tender::XCreader1 screen(story.app);
    screen.show();
    story.station.put(support::TenderStory::kResult, "RESULT=SUCCESS\r\n\r\nCLERK=77\r\n");
    EXPECT_TRUE(support::click(QStringLiteral("Read the file")));
    EXPECT_EQ(story.app.values.CCdata.text(records::CCServer), "77");
    screen.findChild<QPlainTextEdit *>(QStringLiteral("Text3"))
        ->setPlainText(QStringLiteral("<RESULT_APPROVALCODE>777777</RESULT_APPROVALCODE>"));
    EXPECT_TRUE(support::click(QStringLiteral("Read XML file")));
    EXPECT_EQ(story.app.values.CCdata.text(records::CApprovalCode), "");
    for (const QSize size : support::kScreenSizes)
        EXPECT_EQ(support::clippedControls(screen, size), "");
    EXPECT_EQ(support::badlyNamedControls(screen), "");
}

} // namespace
