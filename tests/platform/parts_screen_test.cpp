// The parts that screens share, where no screen of its own shows what they promise.
#include "platform/qt/fitting_edit.h"
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
