#pragma once

#include "PackedTexts.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QStringList>

#include <functional>
#include <vector>

class RowTexts;
class TImageList;

// The rows of a report-style list, kept compactly: per row the caption and
// sub-item texts, the record's key and an image index. Positions are the
// order shown; sorting permutes the rows themselves. Nothing here touches a
// widget, so a list of 100,000 rows fills, sorts and searches quickly.
class TListViewModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TListViewModel(QObject *parent = nullptr);

    // Columns: caption, a free integer tag (the list frame keeps a column's
    // saved width there) and the image shown in the header (-1 for none).
    int addColumn(const QString &caption);
    int columns() const { return static_cast<int>(m_columns.size()); }
    const QString &columnCaption(int column) const;
    int columnTag(int column) const;
    void setColumnTag(int column, int tag);
    int columnImage(int column) const;
    void setColumnImage(int column, int image);
    // How the column's cells are aligned; left unless set.
    Qt::Alignment columnAlignment(int column) const;
    void setColumnAlignment(int column, Qt::Alignment alignment);
    void clearColumns();

    // Rows: texts[0] is the caption, the rest the sub-items.
    int addRow(const QStringList &texts, int key = 0, int image = -1);
    int addRow(const RowTexts &texts, int key = 0, int image = -1);
    int rows() const { return static_cast<int>(m_rows.size()); }
    // Column 0 is the caption, column c the sub-item c - 1; a sub-item the
    // row does not have reads as an empty text.
    QString text(int row, int column) const { return textView(row, column).toString(); }
    // The same without a copy, valid until the row changes.
    QStringView textView(int row, int column) const;
    QStringList texts(int row) const;
    // How many texts the row has (the caption and its sub-items).
    int cells(int row) const { return m_rows.at(row).texts.count(); }
    void setText(int row, int column, const QString &text);
    int key(int row) const;
    void setKey(int row, int key);
    int image(int row) const;
    void setImage(int row, int image);
    // Rows with a check box before the caption, which the user ticks with
    // the mouse or the space bar. Sorting carries the ticks with the rows.
    bool checkBoxes() const { return m_checkBoxes; }
    void setCheckBoxes(bool on);
    bool isChecked(int row) const;
    void setChecked(int row, bool checked);
    enum class CheckChange { CheckAll, UncheckAll, Invert };
    // Every row at once, with one repaint.
    void changeChecks(CheckChange change);
    int checkedCount() const;
    // The keys of the checked rows, in list order.
    std::vector<int> checkedKeys() const;

    // The first position holding the key, -1 when none does.
    int findKey(int key) const;
    void removeRow(int row);
    void clearRows();

    // Between these, changes send no per-row notifications; the views are
    // reset once at the end. Calls nest.
    void beginUpdate();
    void endUpdate();
    bool updating() const { return m_updateDepth > 0; }

    // Puts the row at position order[i] at position i. Persistent indexes
    // (the selection) follow their rows.
    void reorder(const std::vector<int> &order);

    void setImages(const TImageList *images) { m_images = images; }
    // Cells of the column this returns are drawn bold, and all text black.
    void setBoldColumnSource(std::function<int()> source);
    void setBaseFont(const QFont &font);
    // Tells the views that every cell may look different now.
    void repaintAll();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    struct Column
    {
        QString caption;
        int tag = 0;
        int image = -1;
        Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    };
    struct Row
    {
        PackedTexts texts;
        int key = 0;
        int image = -1;
        bool checked = false;
    };

    int appendRow(PackedTexts texts, int key, int image);
    void rowChanged(int row, int column);

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
    int m_updateDepth = 0;
    bool m_checkBoxes = false;
    const TImageList *m_images = nullptr;
    std::function<int()> m_boldColumn;
    QFont m_boldFont;
};
