// The parts that screens share, where no screen of its own shows what they promise.
#include "platform/qt/fitting_edit.h"
#include "platform/qt/keypad.h"
#include "platform/qt/mlist.h"
#include "platform/qt/money_label.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

/// Whether something is drawn in the leftmost columns, where a cut amount would be.
bool reachesLeftEdge(platform::MoneyLabel &label)
{
    const QImage image = label.grab().toImage();
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < 2; ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return true;
    return false;
}

TEST(MoneyLabel, ShowsAWholeAmountInSmallerLettersWhereItsPlaceIsNarrow)
{
    platform::MoneyLabel label;
    label.setProperty("part", QStringLiteral("amount"));
    label.setText(QStringLiteral("-$1,234,567.89"));
    label.show();
    const int wanted = label.sizeHint().width();
    const int least = label.minimumSizeHint().width();
    EXPECT_LT(least, wanted / 2);
    for (const int width : {wanted, wanted - 1, (wanted + least) / 2, least + 4}) {
        label.resize(width, label.height());
        QApplication::processEvents();
        EXPECT_FALSE(reachesLeftEdge(label)) << width << " of " << wanted;
    }
}

// A beginning must not be taken for the whole.
TEST(FittingEdit, MakesItsLettersSmallerAndMarksWhatItStillCannotShow)
{
    platform::FittingEdit box;
    box.setFixedWidth(90);
    box.show();
    const QImage empty = box.grab().toImage();
    const QFont usual = box.font();
    const QSize wanted = box.sizeHint();
    box.put(QStringLiteral("1234567890"));
    EXPECT_LT(box.fontMetrics().horizontalAdvance(box.text()), box.width());
    EXPECT_EQ(box.sizeHint(), wanted) << "its neighbours must not move";
    box.put(QStringLiteral("12"));
    EXPECT_EQ(box.font().pointSizeF(), usual.pointSizeF());
    box.put(QString(60, u' ') + u'1');
    EXPECT_NE(box.grab().toImage(), empty) << "it looks as if there was nothing";
}

TEST(MListModel, CutsCellsOutOfRowsAndIsRecolouredWithoutRebuilding)
{
    platform::MListModel list(
        {{QStringLiteral("Receipt"), QStringLiteral("0000"), {}},
         {QStringLiteral("Tab"), QStringLiteral("0000.00"), platform::MListColumn::Look::Amount}});
    list.append("004|40.00     | Not Adjusted  |more", "17", 0xffffffff);
    list.append(std::string_view("1043|Caf\xE9\0 ", 11), "4", 0xff80ff80);
    list.append("7", "", 0xffff0000);
    std::string shown;
    for (int row = 0; row < list.rowCount(); ++row)
        for (int column = 0; column < 2; ++column)
            shown += list.data(list.index(row, column)).toString().toStdString() + "|";
    EXPECT_EQ(shown, "004|40.00|1043|Caf\xC3\xA9|7||");
    EXPECT_EQ(list.find("4"), 1);
    EXPECT_EQ(list.find("5"), -1);
    const QVariant alignment = list.data(list.index(0, 1), Qt::TextAlignmentRole);
    EXPECT_TRUE(alignment.toInt() & Qt::AlignRight) << "amounts stand below each other";
    QObject::connect(&list, &platform::MListModel::modelReset, [] { ADD_FAILURE(); });
    list.recolour([](std::size_t row) { return row == 0 ? 0xffff0000 : 0xffffffff; });
    EXPECT_EQ(list.data(list.index(0, 0), Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
}

TEST(Keypad, TypesAnAmountOverWhatIsSelectedAndACodeAtItsEnd)
{
    for (const bool amounts : {true, false}) {
        QLineEdit box(QStringLiteral("12"));
        platform::Keypad keypad;
        keypad.setAmounts(amounts);
        keypad.typeInto(box);
        box.selectAll();
        keypad.findChild<QPushButton *>(QStringLiteral("digit_5"))->click();
        EXPECT_EQ(box.text().toStdString(), amounts ? "5" : "125");
        box.setCursorPosition(0);
        keypad.findChild<QPushButton *>(QStringLiteral("backspaceKey"))->click();
        EXPECT_EQ(box.text().toStdString(), amounts ? "5" : "12");
        box.clear();
        keypad.findChild<QPushButton *>(QStringLiteral("backspaceKey"))->click();
        EXPECT_EQ(box.text().toStdString(), "");
    }
}

} // namespace
