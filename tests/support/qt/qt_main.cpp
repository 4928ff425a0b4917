// The main of the screen tests: an application object on Qt's offscreen platform, whatever display
// there is, with the look of the programs.
#include "platform/qt/screen.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("TestProgram"));
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyTheme(application);
    return RUN_ALL_TESTS();
}
