// The manager's first screen: what can be chosen, by finger and by keyboard.
#include "manager/TndrMgr.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"

#include <gtest/gtest.h>

namespace {

struct ScreenStory {
    ScreenStory()
    {
        station.put("C:\\Lumbrio\\LumbrioINI.dat", "");
        screen.resize(1024, 768);
        screen.show();
        station.advance(200);
    }

    support::QtStation station;
    records::App app{station.services};
    int opened = 0;
    manager::TndrMgr screen{app, {[this] { ++opened; }}};
};

TEST(ManagerScreen, OpensTheListByEnterAndQuitsByTheCross)
{
    ScreenStory story;
    for (const char *later : {"NEXT, during business hours", "Tech Only", "Supplies", "Backup",
                              "View Log", "Tndr Log", "Config"})
        EXPECT_FALSE(support::controlNamed(QString::fromLatin1(later))->isEnabled()) << later;
    for (const QSize size : support::kScreenSizes) {
        EXPECT_EQ(support::clippedControls(story.screen, size), "") << size.width();
        EXPECT_EQ(support::elidedLabels(story.screen), "") << size.width();
    }
    EXPECT_EQ(support::badlyNamedControls(story.screen), "");
    support::press(Qt::Key_Return);
    story.station.advance(500);
    EXPECT_EQ(story.opened, 1);
    EXPECT_FALSE(story.station.run.ending());
    story.screen.close();
    EXPECT_TRUE(story.station.run.ending());
}

} // namespace
