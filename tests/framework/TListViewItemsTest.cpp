#include "TListView.h"

#include <gtest/gtest.h>

TEST(TListViewItems, DeletingARowMovesTheLaterRowsUp)
{
    TListView list;
    list.addColumn(QStringLiteral("Numer"));
    for (int key : {10, 20, 30})
        list.addItem(QString::number(key), {}, key);
    list.setSelectedIndex(2);

    list.deleteItem(1);

    ASSERT_EQ(list.itemCount(), 2);
    EXPECT_EQ(list.key(1), 30);
    EXPECT_EQ(list.findByKey(20), -1);
    EXPECT_EQ(list.selectedIndex(), 1);   // the selection stays on its row
    list.deleteItem(5);                   // nothing there: nothing happens
    EXPECT_EQ(list.itemCount(), 2);
}

TEST(TListViewItems, ColumnsAreAlignedAsTheOwnerSays)
{
    TListView list;
    list.addColumn(QStringLiteral("Nazwa"));
    list.addColumn(QStringLiteral("Kwota"));
    list.setColumnAlignment(1, Qt::AlignRight);
    list.addItem(QStringLiteral("a"), {QStringLiteral("1,00")}, 1);
    const QAbstractItemModel &model = list.items();
    const auto alignment = [&](int column) {
        return Qt::Alignment(model.data(model.index(0, column), Qt::TextAlignmentRole).toInt());
    };
    EXPECT_TRUE(alignment(0) & Qt::AlignLeft);
    EXPECT_TRUE(alignment(1) & Qt::AlignRight);
    EXPECT_TRUE(alignment(1) & Qt::AlignVCenter);
}
