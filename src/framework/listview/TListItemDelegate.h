#pragma once

#include <QStyledItemDelegate>

class TListView;

// How a TListView lays out its cells: every row as high as the list says,
// whatever the row holds, and, when the list keeps room for row images,
// that room in the first column of every row, with an image or without.
class TListItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit TListItemDelegate(TListView &list);

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    TListView &m_list;
};
