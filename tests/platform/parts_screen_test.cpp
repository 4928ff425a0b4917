// The parts that screens share, where no screen of its own shows what they promise.
#include "platform/qt/fitting_edit.h"
#include "platform/qt/keypad.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

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
