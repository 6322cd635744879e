// Searching and sorting the rows of the frame's list.
#include "TframeListView.h"

#include "MessageService.h"
#include "TListView.h"
#include "TRadioGroup.h"

#include <QLineEdit>
#include <QPushButton>

SortKind TframeListView::sortKindOf(int column) const
{
    return sortKindOf(lvMain->columnCaption(column), column);
}

SortKind TframeListView::sortKindOf(const QString &caption, int column) const
{
    if (m_numericColumns.contains(caption))
        return column == 0 ? SortKind::Currency : SortKind::Number;
    if (m_dateColumns.contains(caption))
        return SortKind::Date;
    return SortKind::Text;
}

void TframeListView::markSortColumn(int column)
{
    lvMain->clearColumnImages();
    lvMain->setColumnImage(column, 0);
}

void TframeListView::sortByColumnClick(int column)
{
    lvMain->setTag(column);
    setSearchColumn(column);
    repaintList();
    markSortColumn(column);
    sortList();
}

void TframeListView::sortList()
{
    sortListView(*lvMain);
}

void TframeListView::sortListView(TListView &list)
{
    const int column = list.tag();
    if (column < 0 || column >= list.columnCount())
        return;
    try {
        list.sortRows(column, sortKindOf(list.columnCaption(column), column));
    } catch (const SortConversionError &error) {
        Messages::error(error.message());
    }
}

bool TframeListView::rowMatches(int row, int column, const QString &wanted, int option) const
{
    const QStringView text = lvMain->textView(row, column);
    const Qt::CaseSensitivity sensitivity =
        acCaseSensitive->isChecked() ? Qt::CaseInsensitive : Qt::CaseSensitive;
    switch (option) {
    case Equals:
        return text.compare(wanted, sensitivity) == 0;
    case StartsWith:
        return text.startsWith(wanted, sensitivity);
    default:
        return text.contains(wanted, sensitivity);
    }
}

void TframeListView::btnSearchClick()
{
    if (searchColumn() == -1 && lvMain->columnCount() > 0) {
        lvMain->setTag(0);
        setSearchColumn(0);
        repaintList();
        markSortColumn(0);
        sortList();
    }
    btnSearch->setText(QStringLiteral("&Dalej"));

    const int column = searchColumn();
    const int rows = lvMain->itemCount();
    const int selected = lvMain->selectedIndex();
    int start = 0;
    if (selected >= 0)
        start = acSearchOnKey->isChecked() ? selected : selected + 1;
    if (start == rows)
        start = 0;
    if (column < 0 || start >= rows)
        return;
    // Outside the first column a search always looks for contained text,
    // and the option shown says so.
    if (column != 0)
        rgSearchOptions->setItemIndex(Contains);
    const int option = rgSearchOptions->itemIndex();
    const QString wanted = edSearch->text();
    for (int row = start; row < rows; ++row) {
        if (!rowMatches(row, column, wanted, option))
            continue;
        if (lvMain->selectedIndex() >= 0) {
            lvMain->setSelectedIndex(row);
            lvMain->scrollToRow(row);
        }
        return;
    }
}

void TframeListView::selectFirstRow(bool scroll)
{
    if (lvMain->itemCount() == 0)
        return;
    lvMain->setSelectedIndex(0);
    if (scroll)
        lvMain->scrollToRow(0);
}

void TframeListView::searchKeyUp(int key)
{
    if (lvMain->selectedIndex() < 0)
        selectFirstRow(false);
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (acSearchOnKey->isChecked()) {
        if (!edSearch->text().isEmpty())
            btnSearchClick();
        else
            selectFirstRow(false);
    } else if (enter) {
        btnSearchClick();
        return;
    } else {
        selectFirstRow(true);
    }
    btnSearch->setText(QStringLiteral("&Szukaj"));
}
