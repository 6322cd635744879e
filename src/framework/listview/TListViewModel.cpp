#include "TListViewModel.h"

#include "RowTexts.h"
#include "TImageList.h"

#include <QBrush>

#include <algorithm>

TListViewModel::TListViewModel(QObject *parent) : QAbstractTableModel(parent)
{
    m_boldFont.setBold(true);
}

int TListViewModel::addColumn(const QString &caption)
{
    const int column = columns();
    beginInsertColumns(QModelIndex(), column, column);
    m_columns.push_back({caption});
    endInsertColumns();
    return column;
}

const QString &TListViewModel::columnCaption(int column) const
{
    return m_columns.at(column).caption;
}

int TListViewModel::columnTag(int column) const
{
    return m_columns.at(column).tag;
}

void TListViewModel::setColumnTag(int column, int tag)
{
    m_columns.at(column).tag = tag;
}

int TListViewModel::columnImage(int column) const
{
    return m_columns.at(column).image;
}

void TListViewModel::setColumnImage(int column, int image)
{
    if (m_columns.at(column).image == image)
        return;
    m_columns[column].image = image;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

Qt::Alignment TListViewModel::columnAlignment(int column) const
{
    return m_columns.at(column).alignment;
}

void TListViewModel::setColumnAlignment(int column, Qt::Alignment alignment)
{
    m_columns.at(column).alignment = alignment | Qt::AlignVCenter;
    if (!updating() && !m_rows.empty())
        Q_EMIT dataChanged(index(0, column), index(rows() - 1, column));
}

void TListViewModel::clearColumns()
{
    beginResetModel();
    m_columns.clear();
    endResetModel();
}

int TListViewModel::addRow(const QStringList &texts, int key, int image)
{
    return appendRow(PackedTexts(texts.isEmpty() ? QStringList{QString()} : texts), key, image);
}

int TListViewModel::addRow(const RowTexts &texts, int key, int image)
{
    return texts.cells() == 0 ? addRow(QStringList(), key, image)
                              : appendRow(PackedTexts(texts), key, image);
}

int TListViewModel::appendRow(PackedTexts texts, int key, int image)
{
    const int row = rows();
    Row added{std::move(texts), key, image};
    if (updating()) {
        m_rows.push_back(std::move(added));
        return row;
    }
    beginInsertRows(QModelIndex(), row, row);
    m_rows.push_back(std::move(added));
    endInsertRows();
    return row;
}

QStringView TListViewModel::textView(int row, int column) const
{
    return m_rows.at(row).texts.cell(column);
}

QStringList TListViewModel::texts(int row) const
{
    return m_rows.at(row).texts.toList();
}

void TListViewModel::setText(int row, int column, const QString &text)
{
    QStringList texts = m_rows.at(row).texts.toList();
    while (texts.size() <= column)
        texts.append(QString());
    texts[column] = text;
    m_rows[row].texts = PackedTexts(texts);
    rowChanged(row, column);
}

int TListViewModel::key(int row) const
{
    return m_rows.at(row).key;
}

void TListViewModel::setKey(int row, int key)
{
    m_rows.at(row).key = key;
}

int TListViewModel::image(int row) const
{
    return m_rows.at(row).image;
}

void TListViewModel::setImage(int row, int image)
{
    m_rows.at(row).image = image;
    rowChanged(row, 0);
}

void TListViewModel::setCheckBoxes(bool on)
{
    m_checkBoxes = on;
    repaintAll();
}

bool TListViewModel::isChecked(int row) const
{
    return m_rows.at(row).checked;
}

void TListViewModel::setChecked(int row, bool checked)
{
    m_rows.at(row).checked = checked;
    rowChanged(row, 0);
}

void TListViewModel::changeChecks(CheckChange change)
{
    for (Row &row : m_rows) {
        switch (change) {
        case CheckChange::CheckAll:
            row.checked = true;
            break;
        case CheckChange::UncheckAll:
            row.checked = false;
            break;
        case CheckChange::Invert:
            row.checked = !row.checked;
            break;
        }
    }
    if (!updating() && !m_rows.empty() && !m_columns.empty())
        Q_EMIT dataChanged(index(0, 0), index(rows() - 1, 0), {Qt::CheckStateRole});
}

int TListViewModel::checkedCount() const
{
    return int(std::count_if(m_rows.begin(), m_rows.end(), [](const Row &r) { return r.checked; }));
}

std::vector<int> TListViewModel::checkedKeys() const
{
    std::vector<int> keys;
    for (const Row &row : m_rows) {
        if (row.checked)
            keys.push_back(row.key);
    }
    return keys;
}

int TListViewModel::findKey(int key) const
{
    for (int row = 0; row < rows(); ++row) {
        if (m_rows[row].key == key)
            return row;
    }
    return -1;
}

void TListViewModel::removeRow(int row)
{
    if (row < 0 || row >= rows())
        return;
    if (updating()) {
        m_rows.erase(m_rows.begin() + row);
        return;
    }
    beginRemoveRows(QModelIndex(), row, row);
    m_rows.erase(m_rows.begin() + row);
    endRemoveRows();
}

void TListViewModel::clearRows()
{
    if (updating()) {
        m_rows.clear();
        return;
    }
    beginResetModel();
    m_rows.clear();
    endResetModel();
}

void TListViewModel::beginUpdate()
{
    if (m_updateDepth++ == 0)
        beginResetModel();
}

void TListViewModel::endUpdate()
{
    if (m_updateDepth > 0 && --m_updateDepth == 0)
        endResetModel();
}

void TListViewModel::reorder(const std::vector<int> &order)
{
    Q_ASSERT(order.size() == m_rows.size());
    if (!updating())
        Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);

    std::vector<Row> sorted;
    sorted.reserve(m_rows.size());
    std::vector<int> newPosition(m_rows.size());
    for (size_t i = 0; i < order.size(); ++i) {
        sorted.push_back(std::move(m_rows[order[i]]));
        newPosition[order[i]] = static_cast<int>(i);
    }
    m_rows = std::move(sorted);

    if (updating())
        return;
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(this->index(newPosition[index.row()], index.column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void TListViewModel::setBoldColumnSource(std::function<int()> source)
{
    m_boldColumn = std::move(source);
}

void TListViewModel::setBaseFont(const QFont &font)
{
    m_boldFont = font;
    m_boldFont.setBold(true);
}

void TListViewModel::repaintAll()
{
    if (!updating() && !m_rows.empty() && !m_columns.empty())
        Q_EMIT dataChanged(index(0, 0), index(rows() - 1, columns() - 1));
}

int TListViewModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows();
}

int TListViewModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columns();
}

QVariant TListViewModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rows())
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::DecorationRole:
        if (index.column() == 0 && m_images && m_rows[index.row()].image >= 0)
            return m_images->icon(m_rows[index.row()].image);
        return {};
    case Qt::CheckStateRole:
        if (m_checkBoxes && index.column() == 0)
            return m_rows[index.row()].checked ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::TextAlignmentRole:
        return m_columns[index.column()].alignment.toInt();
    case Qt::FontRole:
        if (m_boldColumn && m_boldColumn() == index.column())
            return m_boldFont;
        return {};
    case Qt::ForegroundRole:
        if (m_boldColumn)
            return QBrush(Qt::black);
        return {};
    default:
        return {};
    }
}

QVariant TListViewModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columns())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[section].caption;
    if (role == Qt::DecorationRole && m_images && m_columns[section].image >= 0)
        return m_images->icon(m_columns[section].image);
    return {};
}

Qt::ItemFlags TListViewModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (m_checkBoxes && index.isValid() && index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

bool TListViewModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !m_checkBoxes || !index.isValid() || index.column() != 0
        || index.row() >= rows())
        return false;
    m_rows[index.row()].checked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

void TListViewModel::rowChanged(int row, int column)
{
    if (!updating() && column < columns())
        Q_EMIT dataChanged(index(row, column), index(row, column));
}
