// The manager's first screen: what can be chosen, by finger and by keyboard. And the tool "Hyper
// Encription" by its captions.
#include "manager/Encript.h"
#include "manager/TndrMgr.h"

#include "support/qt/qt_station.h"

#include <QLineEdit>

namespace {

TEST(ManagerScreen, OpensTheListByEnterAndQuitsByTheCross)
{
    support::QtStation station;
    station.put("C:\\Lumbrio\\LumbrioINI.dat", "");
    records::App app{station.services};
    int opened = 0;
    manager::TndrMgr screen{app, {[&] { ++opened; }}};
    screen.show();
    station.advance(200);
    support::press(Qt::Key_Return);
    station.advance(500);
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(station.run.ending());
    screen.close();
    EXPECT_TRUE(station.run.ending());
}

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
