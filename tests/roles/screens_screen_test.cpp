// Every screen there is: nothing cut off, on a plain terminal and on a
// large display. CTest runs it a second time at 150 %, where letters have other widths.
#include "support/qt/screen_checks.h"
#include "support/qt/screens.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace {

using namespace support;

TEST(EveryScreen, ShowsItsTextsWhole)
{
    if (const char *factor = std::getenv("QT_SCALE_FACTOR")) {
        ASSERT_EQ(qApp->devicePixelRatio(), std::stod(factor)) << "the display is not scaled";
    }
    for (const ScreenRow &row : allScreens()) {
        SCOPED_TRACE(row.form);
        Evening evening;
        std::string boxes;
        evening.station.dialogs.noteIn(boxes);
        const auto screen = row.make(evening);
        bool looked = false;
        evening.station.time.after(3000, [&] {
            EXPECT_EQ(screenFaults(*screen), "");
            screen->resize(screen->size().boundedTo(kScreenSizes[0]));
            QCoreApplication::processEvents(); // the layouts follow
            EXPECT_EQ(elidedLabels(*screen), "");
            looked = true;
            evening.station.run.end();
        });
        if (!screen->isVisible())
            screen->show();
        evening.pass(3500);
        EXPECT_TRUE(looked) << boxes;
    }
}

TEST(EveryScreen, HasARowInTheTable)
{
    std::set<std::string> forms;
    for (const auto &file : std::filesystem::recursive_directory_iterator(PROJECT_DIR "/src"))
        if (file.path().extension() == ".ui")
            forms.insert(file.path().stem().string());
    std::set<std::string> rows;
    for (const ScreenRow &row : allScreens())
        rows.insert(row.form);
    EXPECT_EQ(rows, forms);
}

} // namespace
