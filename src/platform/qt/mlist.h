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
    bool yields = false; // the first to become narrower where there is not enough room
};

/// Rows in their order. All texts lie in one piece of memory: a list of 100,000 rows is copied and
/// thrown away without a step for each.
class MListRows {
public:
    void reserve(std::size_t rows, std::size_t bytes);
    /// `text` is Latin-1, as the shared files have it.
    void add(std::string_view text, std::string_view itemData, QRgb back);

    std::size_t size() const { return all.size(); }
    std::string_view text(std::size_t row) const;
    std::string_view itemData(std::size_t row) const;
    /// A hash of the texts that does not depend on their order.
    std::size_t fingerprint() const;
    QRgb back(std::size_t row) const { return all[row].back; }
    void colour(std::size_t row, QRgb back) { all[row].back = back; }

private:
    struct Row {
        std::size_t begin; // of the text in `bytes`; the item data follows it
        std::size_t itemData;
        QRgb back;
    };
    std::size_t endOf(std::size_t row) const
    {
        return row + 1 < all.size() ? all[row + 1].begin : bytes.size();
    }

    std::string bytes;
    std::vector<Row> all;
};

/// The rows without a window. A cell is cut out of its row when it is asked for, and nothing else
/// is kept.
class MListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit MListModel(std::vector<MListColumn> theColumns = {}, QObject *parent = nullptr);

    void setColumns(std::vector<MListColumn> theColumns);
    const std::vector<MListColumn> &columns() const { return all; }

    /// Another list, or the same in another order.
    void setRows(MListRows theRows);
    void append(std::string_view text, std::string_view itemData, QRgb back);
    /// Asks for each row's colour anew; the rows stay.
    void recolour(const std::function<QRgb(std::size_t row)> &colourOf);
    const MListRows &rows() const { return list; }
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
    MListRows list;
};

/// The window's part. It reports taps and keys, and its owner decides what they do. The
/// columns share the width there is: amounts are never cut, a text that is shows whole in the
/// chosen row.
class MList : public QTableView {
    Q_OBJECT

public:
    explicit MList(QWidget *parent = nullptr);

    void setColumns(std::vector<MListColumn> columns);
    /// The chosen entry stays chosen wherever it is now, unless it is gone.
    void setRows(MListRows rows);
    void recolour(const std::function<QRgb(std::size_t row)> &colourOf);
    /// Chooses a row and brings it into sight; a row that is not there chooses none.
    void goToRow(long row);
    const MListModel &rows() const { return list; }

    void keyboardSearch(const QString &typed) override;
    using QTableView::sizeHintForColumn; // what the cells in sight need

Q_SIGNALS:
    void rowTapped(long row);
    /// Enter was pressed; the repeats of a held key are ignored. -1: no row is chosen.
    void entered(long chosen);
    void typed(const QString &text); // what can be seen, blanks too
    void backspaced();
    void moved(); // to another row, by a key or a finger

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void openRowOfTool();
    long chosenRow() const;
    /// True when they need another width than before.
    bool measureAmounts();
    std::vector<int> wantedWidths() const;
    void shareWidth();

    MListModel list;
    std::size_t measured = 0;      // MListRows::fingerprint() of the rows that were measured
    std::vector<int> amountWidths; // what the amounts of a column need; 0 for a column of text
};

} // namespace platform
