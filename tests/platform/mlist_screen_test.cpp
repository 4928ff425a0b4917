// The list control: its rows without a window, and what fingers and keys do on it.
#include "platform/qt/mlist.h"

#include "support/qt/qt_station.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

using platform::MList;
using platform::MListColumn;
using platform::MListModel;
using platform::MListRow;
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
    list.setRows({{"004|40.00     | Not Adjusted  |more", "17", 0xffffffff}});
    list.append({std::string("1043||Caf\xE9\0 ", 12), "4", 0xff80ff80});
    list.append({"7", "", 0xffff0000});
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

struct Window : QWidget {
    Window()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&list);
        layout->addWidget(&box);
        list.setAccessibleName(QStringLiteral("Entries"));
        list.setColumns(columns());
        std::vector<MListRow> rows;
        for (int row = 0; row < 1000; ++row)
            rows.push_back({std::to_string(1000 + row) + "|12.50|Not Adjusted", std::to_string(row),
                            0xffffffff});
        list.setRows(rows);
        QObject::connect(&list, &MList::rowOpened, [this](long row) { opened.push_back(row); });
        resize(1024, 768);
        show();
        list.setFocus();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type what, int row)
    {
        const QPointF place = list.visualRect(list.model()->index(row, 1)).center();
        QMouseEvent event(what, place, list.viewport()->mapToGlobal(place), Qt::LeftButton,
                          what == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(list.viewport(), &event);
    }
    std::vector<long> take() { return std::exchange(opened, {}); }
    using Rows = std::vector<long>;

    MList list;
    QLineEdit box;
    Rows opened;
};

TEST(MListView, OpensByFingerAndKeyboardAndKeepsItsPlace)
{
    Window window;
    using Rows = Window::Rows;
    window.mouse(QEvent::MouseButtonPress, 2);
    window.mouse(QEvent::MouseButtonRelease, 2);
    EXPECT_EQ(window.take(), Rows{2});
    window.mouse(QEvent::MouseButtonDblClick, 2);
    window.mouse(QEvent::MouseButtonRelease, 2);
    EXPECT_EQ(window.take(), Rows{}) << "the second click of a double one";
    window.mouse(QEvent::MouseButtonPress, 3);
    window.mouse(QEvent::MouseButtonRelease, 6);
    EXPECT_EQ(window.take(), Rows{}) << "the finger left the row";

    support::type(QStringLiteral("1456"));
    support::press(Qt::Key_Enter);
    EXPECT_EQ(window.take(), Rows{456});
    EXPECT_TRUE(window.list.viewport()->rect().intersects(
        window.list.visualRect(window.list.currentIndex())));

    std::vector<MListRow> others = window.list.rows().rows();
    std::reverse(others.begin(), others.end());
    window.list.setRows(others);
    EXPECT_EQ(window.list.currentIndex().row(), 543) << "the same entry";
    EXPECT_EQ(window.list.selectionModel()->selectedRows().size(), 1);
    window.list.goToRow(5000);
    EXPECT_FALSE(window.list.selectionModel()->hasSelection());
    support::press(Qt::Key_Tab);
    EXPECT_TRUE(window.box.hasFocus());
}

} // namespace
