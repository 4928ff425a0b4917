#include "platform/qt/mlist.h"

#include "platform/qt/qt_text.h"

#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace platform {

namespace {

using Look = MListColumn::Look;

constexpr QRgb kDarkText = 0xff1c2733;
constexpr QRgb kLightText = 0xffffffff;
constexpr QRgb kFrame = 0xff1f6feb;
constexpr int kFrameWidth = 3;
constexpr int kPadding = 5;         // left and right of a text in its cell, as of a heading
constexpr int kLeastRow = 34;       // for a finger
constexpr int kRowMargin = 15;      // above and below a text, together
constexpr double kLeastLetters = 6; // pt

/// Without the blanks and NULs around it.
std::string_view withoutBlanks(std::string_view cell)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\0'; };
    while (!cell.empty() && isBlank(cell.front()))
        cell.remove_prefix(1);
    while (!cell.empty() && isBlank(cell.back()))
        cell.remove_suffix(1);
    return cell;
}

/// Without what is around it; one that is not there is empty.
std::string_view columnOf(std::string_view row, int column)
{
    std::size_t begin = 0;
    for (; column > 0 && begin != std::string_view::npos; --column) {
        const std::size_t bar = row.find('|', begin);
        begin = bar == std::string_view::npos ? bar : bar + 1;
    }
    return begin == std::string_view::npos
               ? std::string_view()
               : withoutBlanks(row.substr(begin, row.find('|', begin) - begin));
}

/// How bright a colour is to the eye, 0 to 1.
double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double part = channel / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QRgb textOn(QRgb back)
{
    return contrast(kLightText, back) > contrast(kDarkText, back) ? kLightText : kDarkText;
}

Qt::Alignment alignmentOf(const MListColumn &column)
{
    return Qt::AlignVCenter | (column.look == Look::Text ? Qt::AlignLeft : Qt::AlignRight);
}

QFont strong(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

QFont fontOf(const MListColumn &column, const QFont &plain)
{
    return column.look == Look::Total ? strong(plain) : plain;
}

int cellWidth(const QFont &font, const QString &text)
{
    return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(text))) + 2 * kPadding;
}

/// What the amounts of a column need.
class AmountMeasure {
public:
    AmountMeasure(const MListColumn &column, const QFont &plain)
        : measures(column.look != Look::Text), font(fontOf(column, plain)),
          digit(cellWidth(font, QStringLiteral("0")) - 2 * kPadding)
    {
        if (measures)
            widen(cellWidth(font, column.widest));
    }

    void take(std::string_view cell)
    {
        if (!measures)
            return;
        cell = withoutBlanks(cell);
        if (cell.size() > shortest || !std::all_of(cell.begin(), cell.end(), isNarrow))
            widen(cellWidth(font, toQt(cell)));
    }

    /// 0 for a column of text.
    int width() const { return widest; }

private:
    /// None of them is wider than a digit.
    static bool isNarrow(char c)
    {
        return (c >= '0' && c <= '9') || c == '.' || c == ',' || c == '-';
    }

    void widen(int width)
    {
        widest = std::max(widest, width);
        shortest = static_cast<std::size_t>((widest - 2 * kPadding) / std::max(digit, 1));
    }

    bool measures;
    QFont font;
    int digit;
    int widest = 0;
    std::size_t shortest = 0; // characters that fit in, whatever digits they are
};

/// Takes `missing` from the columns that may lose it, in proportion and at most half of each. Gives
/// what was taken.
template <class MayLose> int giveWay(std::vector<int> &widths, int missing, MayLose mayLose)
{
    int all = 0;
    for (std::size_t n = 0; n < widths.size(); ++n)
        all += mayLose(n) ? widths[n] : 0;
    const int taken = std::min(missing, all / 2);
    int left = taken;
    for (std::size_t n = 0; n < widths.size(); ++n) {
        if (!mayLose(n) || all == 0)
            continue;
        const int part = widths[n] * left / all;
        all -= widths[n];
        left -= part;
        widths[n] -= part;
    }
    return taken;
}

/// Paints rows on their own colours; the chosen one gets a frame, for its colour says something.
class RowPainter : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        const auto back = index.data(Qt::BackgroundRole).value<QColor>();
        painter->fillRect(option.rect, back);
        painter->fillRect(option.rect.adjusted(0, option.rect.height() - 1, 0, 0),
                          back.darker(112));
        painter->setFont(index.data(Qt::FontRole).isValid() ? strong(option.font) : option.font);
        painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
        const bool chosen = option.state.testFlag(QStyle::State_Selected);
        const QString text = fitting(option, index);
        if (chosen && text != index.data().toString())
            paintWhole(*painter, option, index);
        else
            painter->drawText(textPlace(option), index.data(Qt::TextAlignmentRole).toInt(), text);
        if (chosen)
            paintFrame(*painter, option.rect, index);
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QFont font = index.data(Qt::FontRole).isValid() ? strong(option.font) : option.font;
        return {cellWidth(font, index.data().toString()),
                std::max(kLeastRow, QFontMetrics(font).height() + kRowMargin)};
    }

    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override
    {
        if (event->type() != QEvent::ToolTip || fitting(option, index) == index.data().toString())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), index.data().toString(), view);
        return true;
    }

private:
    static QRect textPlace(const QStyleOptionViewItem &option)
    {
        return option.rect.adjusted(kPadding, 0, -kPadding, 0);
    }

    static QString fitting(const QStyleOptionViewItem &option, const QModelIndex &index)
    {
        const QFontMetrics metrics(index.data(Qt::FontRole).isValid() ? strong(option.font)
                                                                      : option.font);
        return metrics.elidedText(index.data().toString(), Qt::ElideRight,
                                  textPlace(option).width());
    }

    /// In lines and letters as small as it takes: on a touch screen nobody sees a tool tip.
    static void paintWhole(QPainter &painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index)
    {
        const QString text = index.data().toString();
        const QRect place = textPlace(option).adjusted(0, kFrameWidth + 1, 0, -kFrameWidth - 1);
        const auto fits = [&](int wrap) {
            return place.size().expandedTo(painter.boundingRect(place, wrap, text).size()) ==
                   place.size();
        };
        QFont font = painter.font();
        int wrap = Qt::TextWordWrap;
        while (!fits(wrap) && font.pointSizeF() > kLeastLetters) {
            font.setPointSizeF(font.pointSizeF() - 0.5);
            painter.setFont(font);
        }
        if (!fits(wrap))
            wrap = Qt::TextWrapAnywhere;
        painter.drawText(place, index.data(Qt::TextAlignmentRole).toInt() | wrap, text);
    }

    static void paintFrame(QPainter &painter, const QRect &cell, const QModelIndex &index)
    {
        const bool first = index.column() == 0;
        const bool last = index.column() == index.model()->columnCount() - 1;
        painter.save();
        painter.setClipRect(cell);
        constexpr int kBeyond = 3 * kFrameWidth; // lines at inner edges fall outside
        const QRect whole = cell.adjusted(first ? 0 : -kBeyond, 0, last ? 0 : kBeyond, 0);
        painter.setPen(QPen(QColor::fromRgb(kLightText), kFrameWidth + 2));
        constexpr int kHalf = kFrameWidth / 2;
        const QRect line = whole.adjusted(kHalf, kHalf, -kHalf - 1, -kHalf - 1);
        painter.drawRect(line); // a light edge inside: blue by itself cannot be seen on red
        painter.setPen(QPen(QColor::fromRgb(kFrame), kFrameWidth));
        painter.drawRect(line);
        painter.restore();
    }
};

} // namespace

void MListRows::reserve(std::size_t rows, std::size_t length)
{
    all.reserve(rows);
    bytes.reserve(length);
}

void MListRows::add(std::string_view text, std::string_view itemData, QRgb back)
{
    all.push_back({bytes.size(), bytes.size() + text.size(), back});
    bytes.append(text).append(itemData);
}

std::string_view MListRows::text(std::size_t row) const
{
    return std::string_view(bytes).substr(all[row].begin, all[row].itemData - all[row].begin);
}

std::string_view MListRows::itemData(std::size_t row) const
{
    return std::string_view(bytes).substr(all[row].itemData, endOf(row) - all[row].itemData);
}

std::size_t MListRows::fingerprint() const
{
    std::size_t sum = size();
    for (std::size_t row = 0; row < size(); ++row)
        sum += std::hash<std::string_view>()(text(row));
    return sum;
}

MListModel::MListModel(std::vector<MListColumn> theColumns, QObject *parent)
    : QAbstractTableModel(parent), all(std::move(theColumns))
{
}

void MListModel::setColumns(std::vector<MListColumn> theColumns)
{
    beginResetModel();
    all = std::move(theColumns);
    endResetModel();
}

void MListModel::setRows(MListRows theRows)
{
    beginResetModel();
    list = std::move(theRows);
    endResetModel();
}

void MListModel::append(std::string_view text, std::string_view itemData, QRgb back)
{
    beginInsertRows({}, rowCount(), rowCount());
    list.add(text, itemData, back);
    endInsertRows();
}

void MListModel::recolour(const std::function<QRgb(std::size_t)> &colourOf)
{
    for (std::size_t row = 0; row < list.size(); ++row)
        list.colour(row, colourOf(row));
    if (list.size() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::BackgroundRole, Qt::ForegroundRole});
}

long MListModel::find(std::string_view itemData) const
{
    std::size_t row = 0;
    while (row < list.size() && list.itemData(row) != itemData)
        ++row;
    return row < list.size() ? static_cast<long>(row) : -1;
}

int MListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(list.size());
}

int MListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(all.size());
}

QVariant MListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const MListColumn &column = all[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole: return toQt(columnOf(list.text(row), index.column()));
    case Qt::TextAlignmentRole: return static_cast<int>(alignmentOf(column));
    case Qt::BackgroundRole: return QColor::fromRgb(list.back(row));
    case Qt::ForegroundRole: return QColor::fromRgb(textOn(list.back(row)));
    case Qt::FontRole: return column.look == Look::Total ? strong(QFont()) : QVariant();
    case Qt::UserRole: return toQt(list.itemData(row));
    default: return {};
    }
}

QVariant MListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const MListColumn &column = all[static_cast<std::size_t>(section)];
    switch (role) {
    case Qt::DisplayRole: return column.heading;
    case Qt::TextAlignmentRole: return static_cast<int>(alignmentOf(column));
    default: return {};
    }
}

MList::MList(QWidget *parent) : QTableView(parent), list({}, this)
{
    setModel(&list);
    setItemDelegate(new RowPainter(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setTabKeyNavigation(false); // Tab goes on to the commands
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setAccessibleName(QStringLiteral("Headings"));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT rowTapped(index.row()); });
    connect(this, &QTableView::pressed, this, &MList::moved);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &MList::openRowOfTool,
            Qt::QueuedConnection);
    shareWidth();
}

void MList::setColumns(std::vector<MListColumn> columns)
{
    list.setColumns(std::move(columns));
    measured = 0;
    shareWidth();
}

void MList::setRows(MListRows rows)
{
    const QModelIndex chosen = currentIndex();
    const std::string entry(
        chosen.isValid() ? list.rows().itemData(static_cast<std::size_t>(chosen.row())) : "");
    const std::size_t before = std::exchange(measured, rows.fingerprint());
    list.setRows(std::move(rows));
    // Sharing the width again repaints everything.
    if (measured != before && measureAmounts())
        shareWidth();
    executeDelayedItemsLayout(); // else it is painted now, and laid out and painted again later
    if (chosen.isValid())
        goToRow(list.find(entry));
}

void MList::recolour(const std::function<QRgb(std::size_t)> &colourOf)
{
    list.recolour(colourOf);
}

void MList::goToRow(long row)
{
    const QModelIndex place = list.index(static_cast<int>(row), 0);
    if (place.isValid())
        selectRow(place.row());
    else
        selectionModel()->clear();
    scrollTo(place);
}

/// An accessibility tool chooses a row without going there. It has no other way to tap it.
void MList::openRowOfTool()
{
    const QModelIndexList chosen = selectionModel()->selectedRows();
    if (chosen.isEmpty() || chosen.front().row() == currentIndex().row())
        return;
    goToRow(chosen.front().row());
    Q_EMIT moved();
    Q_EMIT rowTapped(chosen.front().row());
}

/// Qt makes the first row the current one when the keyboard comes, and nobody sees it.
long MList::chosenRow() const
{
    const int row = currentIndex().row();
    return selectionModel()->isRowSelected(row) ? row : -1;
}

/// Qt would go to a row that begins so, and forget what was typed half a second ago.
void MList::keyboardSearch(const QString &text)
{
    if (!text.isEmpty() && text.front().isPrint())
        Q_EMIT typed(text);
}

QModelIndex MList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    switch (action) {
    case MoveHome: return list.index(0, 0);
    case MoveEnd: return list.index(list.rowCount() - 1, 0);
    default: return QTableView::moveCursor(action, modifiers);
    }
}

void MList::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            Q_EMIT entered(chosenRow());
        break;
    case Qt::Key_Backspace: Q_EMIT backspaced(); break;
    case Qt::Key_Escape: event->ignore(); break; // the screen's
    default:
        if (event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown) // arrows between
            Q_EMIT moved();
        QTableView::keyPressEvent(event);
    }
}

void MList::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    shareWidth();
}

void MList::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        measureAmounts();
        shareWidth();
    }
}

/// A list has many rows: each is walked once, and only a text that could be wider than all before
/// it is measured.
bool MList::measureAmounts()
{
    std::vector<AmountMeasure> measures;
    for (const MListColumn &column : list.columns())
        measures.emplace_back(column, font());
    for (std::size_t row = 0; row < list.rows().size(); ++row) {
        std::string_view rest = list.rows().text(row);
        for (AmountMeasure &measure : measures) {
            const std::size_t bar = std::min(rest.find('|'), rest.size());
            measure.take(rest.substr(0, bar));
            rest.remove_prefix(std::min(bar + 1, rest.size()));
        }
    }
    std::vector<int> widths;
    for (const AmountMeasure &measure : measures)
        widths.push_back(measure.width());
    const bool changed = widths != amountWidths;
    amountWidths = std::move(widths);
    return changed;
}

std::vector<int> MList::wantedWidths() const
{
    const std::vector<MListColumn> &columns = list.columns();
    std::vector<int> wanted;
    for (std::size_t n = 0; n < columns.size(); ++n)
        wanted.push_back(std::max({cellWidth(fontOf(columns[n], font()), columns[n].widest),
                                   horizontalHeader()->sectionSizeHint(static_cast<int>(n)),
                                   n < amountWidths.size() ? amountWidths[n] : 0}));
    return wanted;
}

/// Each column gets what its widest text needs and an equal part of the rest. Where there is not
/// enough, the column that yields gives way, then all texts in proportion.
void MList::shareWidth()
{
    verticalHeader()->setDefaultSectionSize(
        std::max(kLeastRow, QFontMetrics(strong(font())).height() + kRowMargin));
    std::vector<int> widths = wantedWidths();
    int rest = viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
    for (const bool all : {false, true})
        if (rest < 0)
            rest += giveWay(widths, -rest, [&](std::size_t n) {
                return list.columns()[n].look == Look::Text && (all || list.columns()[n].yields);
            });
    for (std::size_t n = 0; n < widths.size(); ++n) {
        const int part = std::max(rest, 0) / static_cast<int>(widths.size() - n);
        setColumnWidth(static_cast<int>(n), widths[n] + part);
        rest -= part;
    }
}

} // namespace platform
