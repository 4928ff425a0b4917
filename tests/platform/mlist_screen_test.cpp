// The list control: its rows without a window, and what fingers and keys do on it.
#include "platform/qt/mlist.h"

#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"

#include <QHeaderView>
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

TEST(MListModel, CutsCellsOutOfRowsAndTellsColoursWithoutRebuilding)
{
    MListModel list(columns());
    list.setRows({{"004|40.00     | Not Adjusted  |more", "17", 0xffffffff}});
    list.append({std::string("1043||Caf\xE9\0 ", 12), "4", 0xff80ff80});
    list.append({"7", "", 0xffff0000});
    const std::vector<std::vector<std::string>> expected = {
        {"004", "40.00", "Not Adjusted"}, {"1043", "", "Caf\xC3\xA9"}, {"7", "", ""}};
    ASSERT_EQ(list.rowCount(), 3);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(cell(list, row, column),
                      expected[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    EXPECT_EQ(cell(list, 0, 0, Qt::UserRole), "17");
    EXPECT_EQ(list.find("4"), 1);
    EXPECT_EQ(list.find("5"), -1);
    const auto aligned = [&](int column) {
        return list.data(list.index(0, column), Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
    };
    EXPECT_TRUE(aligned(1) && !aligned(0) && !aligned(2));
    const auto colour = [&](int row, Qt::ItemDataRole role) {
        return list.data(list.index(row, 0), role).value<QColor>();
    };
    EXPECT_LT(colour(0, Qt::ForegroundRole).lightness(), 64) << "dark on white";
    EXPECT_LT(colour(1, Qt::ForegroundRole).lightness(), 64) << "dark on green";
    EXPECT_EQ(colour(2, Qt::ForegroundRole), QColor(Qt::white)) << "white on red";
    int resets = 0;
    int changes = 0;
    QObject::connect(&list, &MListModel::modelReset, [&] { ++resets; });
    QObject::connect(&list, &MListModel::dataChanged, [&] { ++changes; });
    list.recolour([](std::size_t row) { return row == 0 ? 0xffff0000 : 0xffffffff; });
    EXPECT_EQ(colour(0, Qt::BackgroundRole), QColor(Qt::red));
    EXPECT_TRUE(resets == 0 && changes == 1);
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

    const auto rowAfter = [&](Qt::Key key) {
        support::press(key);
        support::press(Qt::Key_Return);
        const Rows opened = window.take();
        return opened.size() == 1 ? opened.front() : -1;
    };
    EXPECT_EQ(rowAfter(Qt::Key_End), 999);
    EXPECT_EQ(rowAfter(Qt::Key_Home), 0);
    EXPECT_EQ(rowAfter(Qt::Key_Down), 1);
    EXPECT_GT(rowAfter(Qt::Key_PageDown), 10);
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

TEST(MListView, HasRowsForFingersAndColumnsThatShowTheirTexts)
{
    Window window;
    EXPECT_GE(window.list.rowHeight(0), 34);
    for (const int width : {400, 1024, 1280}) {
        support::resizeTo(window, QSize(width, 768));
        int sum = 0;
        for (int column = 0; column < 3; ++column) {
            EXPECT_GE(window.list.columnWidth(column), window.list.sizeHintForColumn(column));
            EXPECT_GE(window.list.columnWidth(column),
                      window.list.horizontalHeader()->sectionSizeHint(column));
            sum += window.list.columnWidth(column);
        }
        EXPECT_EQ(sum, window.list.viewport()->width());
    }
    EXPECT_EQ(support::badlyNamedControls(window.list), "");
}

} // namespace
