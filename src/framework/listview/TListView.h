#pragma once

#include "RowOrder.h"
#include "TListViewModel.h"

#include <QStringList>
#include <QTreeView>

class TImageList;

// A report-style list over its own compact row model, with the item
// operations owner forms use: columns with captions and widths, rows with
// a caption, sub-items, the record's key and an image; selection by
// position or key. Positions are rows in the order shown.
class TListView : public QTreeView
{
    Q_OBJECT

public:
    explicit TListView(QWidget *parent = nullptr);

    TListViewModel &items() { return *m_model; }
    const TListViewModel &items() const { return *m_model; }

    int addColumn(const QString &caption, int width = 100);
    int columnCount() const { return m_model->columns(); }
    QString columnCaption(int column) const { return m_model->columnCaption(column); }
    // A width of 0 hides the column; a hidden column reads as 0 wide. The
    // room column 0 keeps for row images is not part of its width.
    int columnWidth(int column) const;
    void setColumnWidth(int column, int width);
    int columnTag(int column) const { return m_model->columnTag(column); }
    void setColumnTag(int column, int tag) { m_model->setColumnTag(column, tag); }
    // The header picture of a column from the image list; -1 for none.
    void setColumnImage(int column, int image) { m_model->setColumnImage(column, image); }
    int columnImage(int column) const { return m_model->columnImage(column); }
    void setColumnAlignment(int column, Qt::Alignment alignment)
    {
        m_model->setColumnAlignment(column, alignment);
    }
    void clearColumnImages();
    // Number of columns that are not hidden.
    int visibleColumnCount() const;

    int addItem(const QString &caption, const QStringList &subItems = {}, int key = 0,
                int image = -1);
    int itemCount() const { return m_model->rows(); }
    QString caption(int row) const { return m_model->text(row, 0); }
    QString subItem(int row, int index) const { return m_model->text(row, index + 1); }
    // Column 0 is the caption.
    QString text(int row, int column) const { return m_model->text(row, column); }
    QStringView textView(int row, int column) const { return m_model->textView(row, column); }
    int key(int row) const { return m_model->key(row); }
    int image(int row) const { return m_model->image(row); }
    // -1 when no row is selected.
    int selectedIndex() const;
    // Selects the row and makes it current; -1 clears the selection.
    void setSelectedIndex(int row);
    int findByKey(int key) const { return m_model->findKey(key); }
    // Removes one row; the rows after it move up.
    void deleteItem(int row) { m_model->removeRow(row); }
    // Selects the row with the key and scrolls it into view; false when no
    // row holds it.
    bool selectByKey(int key);
    // Scrolls until the whole row is visible.
    void scrollToRow(int row);
    // Removes the rows; columns, their widths and the sort column stay.
    void clear();
    // Fills between these reset the view once instead of once per row. The
    // selected position survives an update that does not clear the list.
    void beginUpdate();
    void endUpdate();

    // The sort column, -1 for the order the rows were loaded in.
    int tag() const { return m_tag; }
    void setTag(int tag) { m_tag = tag; }

    void setSmallImages(TImageList *images);
    TImageList *smallImages() const { return m_images; }
    // Rows carry images: column 0 keeps an image's room in every row,
    // beside the width the owner gives the column, so a row with an image
    // shows as much of its caption as a row without one.
    void setRowImageRoom(bool on);
    // The room column 0 keeps for an image; 0 when it keeps none.
    int rowImageRoom() const { return m_imageRoom; }
    // The height of every row, whatever the rows hold: the tallest Polish
    // letters of the list's font, plain or bold, or an image of the image
    // list, whichever is higher.
    int rowHeight() const;

    // Sorts ascending by a column; throws SortConversionError (and keeps
    // the order) when a typed column holds a value of another kind.
    void sortRows(int column, SortKind kind);
    // The generic sort of plain lists: case-insensitive text of the column.
    void sortByText(int column) { sortRows(column, SortKind::Text); }

    // Lines between the cells, as a report list with grid lines shows them.
    bool gridLines() const { return m_gridLines; }
    void setGridLines(bool on);

    // Makes the list repaint every row, after what it draws depends on has
    // changed (the bold column, for example).
    void repaintRows();

Q_SIGNALS:
    // The user double-clicked a row (owners open their editor here).
    void dblClick();

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;

private:
    void updateImageRoom();

    TListViewModel *m_model;
    TImageList *m_images = nullptr;
    int m_tag = -1;
    int m_selectedBeforeUpdate = -1;
    bool m_clearedInUpdate = false;
    bool m_gridLines = false;
    bool m_keepImageRoom = false;
    int m_imageRoom = 0;
    mutable int m_rowHeight = 0;   // 0 until measured for the current font
};
