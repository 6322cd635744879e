#include "TImageList.h"
#include "TListView.h"
#include "TahomaFont.h"

#include <QApplication>
#include <QCursor>
#include <QImage>

#include <gtest/gtest.h>

namespace {

// A list as the list frame shows it: the forms' font, 20-pixel images,
// "Numer" 60 pixels wide.
struct ShownList
{
    TImageList images{QSize(20, 20)};
    TListView list;

    ShownList()
    {
        images.add(TImageList::sortMark(images.size()));
        list.setFont(tahomaFont());
        list.setSmallImages(&images);
        list.addColumn(QStringLiteral("Numer"), 60);
        list.addColumn(QStringLiteral("Przewoźnik"), 160);
        list.resize(400, 300);
        // Rows are compared as drawn: neither the current row's tint nor
        // the mouse may mark one of them.
        list.setFocusPolicy(Qt::NoFocus);
        QCursor::setPos(1000, 1000);
        list.show();
    }

    QRect cellRect(int row, int column) const
    {
        return list.visualRect(list.items().index(row, column));
    }

    QImage cell(int row, int column)
    {
        QApplication::processEvents();
        return list.viewport()->grab(cellRect(row, column)).toImage();
    }
};

} // namespace

TEST(TListViewRows, EveryRowIsAsHighAsTheFontAndTheImageWhateverTheFirstRowHolds)
{
    std::vector<int> heights;
    for (const bool imageFirst : {false, true}) {
        ShownList shown;
        const int first = imageFirst ? 0 : -1;
        const int second = imageFirst ? -1 : 0;
        shown.list.addItem(QStringLiteral("1"), {QStringLiteral("ŚLĄSK")}, 1, first);
        shown.list.addItem(QStringLiteral("2"), {QStringLiteral("SLĄSK")}, 2, second);
        const int height = shown.cellRect(0, 1).height();
        EXPECT_EQ(shown.cellRect(1, 1).height(), height);
        EXPECT_GE(height, shown.images.size().height());
        heights.push_back(height);

        // Were the accent cut off, both names would look alike; in bold too.
        for (const int boldColumn : {-1, 1}) {
            shown.list.items().setBoldColumnSource([boldColumn] { return boldColumn; });
            shown.list.repaintRows();
            EXPECT_NE(shown.cell(0, 1), shown.cell(1, 1))
                << "image first: " << imageFirst << ", bold column: " << boldColumn;
        }
    }
    EXPECT_EQ(heights[0], heights[1]);
}

TEST(TListViewRows, ARowImageHasItsOwnRoomAndLeavesTheColumnWidthToTheCaption)
{
    ShownList shown;
    shown.list.setRowImageRoom(true);
    EXPECT_EQ(shown.list.columnWidth(0), 60);
    const int room = shown.list.rowImageRoom();
    ASSERT_GT(room, 0);
    shown.list.addItem(QStringLiteral("12345678"), {}, 1, 0);
    shown.list.addItem(QStringLiteral("12345678"), {}, 2, -1);

    const QRect caption(room, 0, 60, shown.cellRect(0, 0).height());
    const QImage withImage = shown.cell(0, 0).copy(caption);
    const QImage withoutImage = shown.cell(1, 0).copy(caption);
    EXPECT_EQ(withImage, withoutImage);
    // Nothing of the number was cut: a column wide enough for anything
    // draws it the same.
    shown.list.setColumnWidth(0, 300);
    EXPECT_EQ(shown.cell(0, 0).copy(caption), withImage);
    EXPECT_EQ(shown.list.columnWidth(0), 300);
}
