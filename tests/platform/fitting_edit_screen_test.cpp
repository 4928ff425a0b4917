// A box whose text is longer than it: a beginning must not be taken for the whole.
#include "platform/qt/fitting_edit.h"

#include <gtest/gtest.h>

namespace {

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

} // namespace
