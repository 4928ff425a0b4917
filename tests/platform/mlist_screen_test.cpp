// The rows of the list control, without a window.
#include "platform/qt/mlist.h"

#include <gtest/gtest.h>

namespace {

using platform::MListColumn;
using platform::MListModel;
using platform::MListRows;
using Look = MListColumn::Look;

std::vector<MListColumn> columns()
{
    return {{QStringLiteral("Receipt"), QStringLiteral("0000"), Look::Text},
            {QStringLiteral("Tab"), QStringLiteral("0000.00"), Look::Amount},
            {QStringLiteral("Status"), QStringLiteral("Adjusted - Pending"), Look::Text}};
}

std::string cell(const MListModel &list, int row, int column, int role = Qt::DisplayRole)
{
    return list.data(list.index(row, column), role).toString().toStdString();
}

TEST(MListModel, CutsCellsOutOfRowsAndIsRecolouredWithoutRebuilding)
{
    MListModel list(columns());
    MListRows rows;
    rows.add("004|40.00     | Not Adjusted  |more", "17", 0xffffffff);
    list.setRows(rows);
    list.append(std::string_view("1043||Caf\xE9\0 ", 12), "4", 0xff80ff80);
    list.append("7", "", 0xffff0000);
    std::string shown;
    for (int row = 0; row < list.rowCount(); ++row)
        for (int column = 0; column < 3; ++column)
            shown += cell(list, row, column) + (column < 2 ? "|" : "\n");
    EXPECT_EQ(shown, "004|40.00|Not Adjusted\n1043||Caf\xC3\xA9\n7||\n");
    EXPECT_EQ(cell(list, 0, 0, Qt::UserRole), "17");
    EXPECT_EQ(list.find("4"), 1);
    EXPECT_EQ(list.find("5"), -1);
    const auto aligned = [&](int column) {
        return list.data(list.index(0, column), Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
    };
    EXPECT_TRUE(aligned(1) && !aligned(0) && !aligned(2));
    int resets = 0;
    QObject::connect(&list, &MListModel::modelReset, [&] { ++resets; });
    list.recolour([](std::size_t row) { return row == 0 ? 0xffff0000 : 0xffffffff; });
    EXPECT_EQ(list.data(list.index(0, 0), Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_EQ(resets, 0);
}

} // namespace
