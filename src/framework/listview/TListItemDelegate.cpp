#include "TListItemDelegate.h"

#include "TListView.h"

TListItemDelegate::TListItemDelegate(TListView &list) : QStyledItemDelegate(&list), m_list(list)
{
}

QSize TListItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    QSize hint = QStyledItemDelegate::sizeHint(option, index);
    hint.setHeight(m_list.rowHeight());
    return hint;
}

void TListItemDelegate::initStyleOption(QStyleOptionViewItem *option,
                                        const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // An empty decoration still takes its room, so captions line up.
    if (index.column() == 0 && m_list.rowImageRoom() > 0) {
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->decorationSize = m_list.iconSize();
    }
}
