#include "TListView.h"

#include "TImageList.h"
#include "TListItemDelegate.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

// The letters that reach highest above and lowest below the line: some
// fonts draw the accents of capitals above their ascent.
const QString TallLetters = QStringLiteral("ĄĆĘŁŃÓŚŹŻąęgjpy");

// The height a line of text needs when it is centred in its row.
int textHeight(const QFont &font, const QPaintDevice *device)
{
    const QFontMetrics metrics(font, device);
    const QRect ink = metrics.tightBoundingRect(TallLetters);
    const int above = std::max(0, -ink.top() - metrics.ascent());
    const int below = std::max(0, ink.bottom() + 1 - metrics.descent());
    return metrics.height() + 2 * std::max(above, below);
}

} // namespace

TListView::TListView(QWidget *parent) : QTreeView(parent), m_model(new TListViewModel(this))
{
    setModel(m_model);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    // Uniform heights keep long lists fast; the delegate makes the height
    // the same whatever the first row holds.
    setUniformRowHeights(true);
    setItemDelegate(new TListItemDelegate(*this));
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    m_model->setBaseFont(font());

    // The selection stays visible when the list loses the focus.
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);
}

int TListView::addColumn(const QString &caption, int width)
{
    const int column = m_model->addColumn(caption);
    setColumnWidth(column, width);
    return column;
}

int TListView::columnWidth(int column) const
{
    if (header()->isSectionHidden(column))
        return 0;
    const int room = column == 0 ? m_imageRoom : 0;
    return std::max(1, header()->sectionSize(column) - room);
}

void TListView::setColumnWidth(int column, int width)
{
    // The header will not make a section narrower than its minimum, so a
    // width of 0 hides the column instead.
    if (width <= 0) {
        header()->hideSection(column);
        return;
    }
    header()->showSection(column);
    header()->resizeSection(column, column == 0 ? width + m_imageRoom : width);
}

void TListView::clearColumnImages()
{
    for (int column = 0; column < columnCount(); ++column)
        m_model->setColumnImage(column, -1);
}

int TListView::visibleColumnCount() const
{
    int visible = 0;
    for (int column = 0; column < columnCount(); ++column) {
        if (columnWidth(column) != 0)
            ++visible;
    }
    return visible;
}

int TListView::addItem(const QString &caption, const QStringList &subItems, int key, int image)
{
    QStringList texts;
    texts.reserve(subItems.size() + 1);
    texts << caption << subItems;
    return m_model->addRow(texts, key, image);
}

int TListView::selectedIndex() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void TListView::setSelectedIndex(int row)
{
    if (row < 0 || row >= itemCount()) {
        selectionModel()->clearSelection();
        return;
    }
    selectionModel()->setCurrentIndex(m_model->index(row, 0),
                                      QItemSelectionModel::ClearAndSelect
                                          | QItemSelectionModel::Rows);
}

bool TListView::selectByKey(int key)
{
    const int row = findByKey(key);
    if (row < 0)
        return false;
    setSelectedIndex(row);
    scrollToRow(row);
    return true;
}

void TListView::scrollToRow(int row)
{
    if (row >= 0 && row < itemCount())
        scrollTo(m_model->index(row, 0), QAbstractItemView::EnsureVisible);
}

void TListView::clear()
{
    if (m_model->updating())
        m_clearedInUpdate = true;
    m_model->clearRows();
}

void TListView::beginUpdate()
{
    if (!m_model->updating()) {
        m_selectedBeforeUpdate = selectedIndex();
        m_clearedInUpdate = false;
    }
    m_model->beginUpdate();
}

void TListView::endUpdate()
{
    m_model->endUpdate();
    if (m_model->updating())
        return;
    if (!m_clearedInUpdate && m_selectedBeforeUpdate >= 0 && m_selectedBeforeUpdate < itemCount())
        setSelectedIndex(m_selectedBeforeUpdate);
}

void TListView::setSmallImages(TImageList *images)
{
    m_images = images;
    m_model->setImages(images);
    if (images)
        setIconSize(images->size());
    m_rowHeight = 0;
    updateImageRoom();
}

void TListView::setRowImageRoom(bool on)
{
    m_keepImageRoom = on;
    updateImageRoom();
}

int TListView::rowHeight() const
{
    if (m_rowHeight == 0) {
        QFont bold = font();
        bold.setBold(true);
        const int text = std::max(textHeight(font(), this), textHeight(bold, this));
        const int image = m_images ? iconSize().height() : 0;
        // A pixel above and below, as the style gives a row with an image.
        m_rowHeight = std::max(text, image) + 2;
    }
    return m_rowHeight;
}

void TListView::updateImageRoom()
{
    const int captionWidth = columnCount() > 0 ? columnWidth(0) : 0;
    m_imageRoom = 0;
    if (m_keepImageRoom && m_images) {
        // What the style takes from a cell for its decoration.
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        option.rect = QRect(0, 0, 1000, rowHeight());
        option.text = QStringLiteral("0");
        option.features = QStyleOptionViewItem::HasDisplay;
        const auto textLeft = [&] {
            return style()->subElementRect(QStyle::SE_ItemViewItemText, &option, this).left();
        };
        const int plain = textLeft();
        option.features |= QStyleOptionViewItem::HasDecoration;
        option.decorationSize = iconSize();
        m_imageRoom = std::max(0, textLeft() - plain);
    }
    if (captionWidth > 0)
        setColumnWidth(0, captionWidth);
}

void TListView::sortRows(int column, SortKind kind)
{
    if (column < 0 || column >= columnCount())
        return;
    m_model->reorder(sortedRows(*m_model, column, kind));
}

void TListView::repaintRows()
{
    m_model->repaintAll();
    viewport()->update();
}

void TListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        Q_EMIT dblClick();
}

void TListView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        m_model->setBaseFont(font());
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_rowHeight = 0;
        updateImageRoom();
    }
    QTreeView::changeEvent(event);
}

void TListView::setGridLines(bool on)
{
    m_gridLines = on;
    viewport()->update();
}

void TListView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                        const QModelIndex &index) const
{
    QTreeView::drawRow(painter, option, index);
    if (!m_gridLines)
        return;
    const QRect row = option.rect;
    painter->save();
    painter->setPen(QColor(0xD4, 0xD4, 0xD4));
    painter->drawLine(row.bottomLeft(), row.bottomRight());
    for (int column = 0; column < header()->count(); ++column) {
        if (header()->isSectionHidden(column))
            continue;
        const int right = columnViewportPosition(column) + header()->sectionSize(column) - 1;
        painter->drawLine(right, row.top(), right, row.bottom());
    }
    painter->restore();
}
