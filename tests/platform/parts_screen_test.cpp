// The parts that screens share, where no screen of its own shows what they promise.
#include "platform/qt/keypad.h"
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
