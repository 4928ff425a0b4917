// MListModel and MList: the list control of every list. Rows are texts of columns with "|" between
// them, each with an item data and a back colour; order and colours are decided by rules outside.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct MListColumn {
    QString heading;
    QString widest; // the widest text that the column is made for
    enum class Look { Text, Amount, Total } look = Look::Text; // amounts stand at the right
};

struct MListRow {
    std::string text; // Latin-1, as the shared files have it
    std::string itemData;
    QRgb back = 0xffffffff;
};

/// The rows without a window. Fit for 100,000 of them: a cell is cut out of its row when it is
/// asked for, and nothing else is kept.
class MListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit MListModel(std::vector<MListColumn> theColumns = {}, QObject *parent = nullptr);

    void setColumns(std::vector<MListColumn> theColumns);
    const std::vector<MListColumn> &columns() const { return all; }

    /// Another list, or the same in another order.
    void setRows(std::vector<MListRow> theRows);
    void append(MListRow row);
    /// Asks for each row's colour anew; the rows stay.
    void recolour(const std::function<QRgb(std::size_t row)> &colourOf);
    const std::vector<MListRow> &rows() const { return list; }
    /// The first row with this item data; -1 for none.
    long find(std::string_view itemData) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    /// Cells without the blanks around them, what to write with on the row's colour, and the item
    /// data as Qt::UserRole.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<MListColumn> all;
    std::vector<MListRow> list;
};

/// The window's part. A click or Enter opens a row, letters and digits go to the next row whose
/// first column begins so. The columns share the width there is.
class MList : public QTableView {
    Q_OBJECT

public:
    explicit MList(QWidget *parent = nullptr);

    void setColumns(std::vector<MListColumn> columns);
    /// The chosen entry stays chosen wherever it is now, unless it is gone.
    void setRows(std::vector<MListRow> rows);
    void recolour(const std::function<QRgb(std::size_t row)> &colourOf);
    /// Chooses a row and brings it into sight; a row that is not there chooses none.
    void goToRow(long row);
    const MListModel &rows() const { return list; }

    void keyboardSearch(const QString &typed) override;
    using QTableView::sizeHintForColumn; // what the cells in sight need

Q_SIGNALS:
    void rowOpened(long row);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void shareWidth();

    MListModel list;
};

} // namespace platform
