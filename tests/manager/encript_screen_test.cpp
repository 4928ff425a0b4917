// The tool "Hyper Encription" by its captions: there and back again, high bytes included.
#include "manager/Encript.h"

#include "support/qt/qt_station.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

TEST(EncriptScreen, ScramblesAndUnscramblesTheTextInItsBox)
{
    support::QtStation station;
    manager::Encript screen(station.services);
    screen.show();
    auto *box = qobject_cast<QLineEdit *>(support::controlNamed(QStringLiteral("Text")));
    ASSERT_NE(box, nullptr);

    box->setText(QStringLiteral("M\u00fcller \u00ff"));
    support::press(Qt::Key_Return); // "Encript" is the default command
    EXPECT_EQ(box->text().at(7), QChar(0x07)) << "codes wrap at 256";
    EXPECT_TRUE(support::click(QStringLiteral("DeCript")));
    EXPECT_EQ(box->text(), QStringLiteral("M\u00fcller \u00ff"));

    support::press(Qt::Key_Escape);
    EXPECT_TRUE(station.run.ending());
}

} // namespace
