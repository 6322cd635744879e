#include "TfrmCenniki.h"

#include "Format.h"
#include "PriceCells.h"
#include "PriceListCombo.h"
#include "PriceRanges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TfrmAddEditCenniki.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScopeGuard>
#include <QTableWidget>

#include <algorithm>
#include <unordered_map>

namespace {

constexpr int KeyRole = Qt::UserRole;

QTableWidgetItem *rangeHeader(const PriceRange &range)
{
    auto *item = new QTableWidgetItem(QString::number(range.from) + u'-'
                                      + QString::number(range.to));
    item->setData(KeyRole, range.key);
    return item;
}

// The kilometre axis beside the grid: the word written bottom to top.
QPixmap kilometreAxis()
{
    QPixmap picture(22, 140);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(QColor(0, 0, 128));
    painter.translate(16, 135);
    painter.rotate(-90);
    QFont font(QStringLiteral("Tahoma"));
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(0, 0, QStringLiteral(" KILOMETRY "));
    return picture;
}

} // namespace

TfrmCenniki::TfrmCenniki(QWidget *owner)
    : TPriceListWindow(owner, QStringLiteral("frmCenniki"))
{
    lblKilogramy = new QLabel(QStringLiteral(" KILOGRAMY "), pnlClient);
    lblKilogramy->setObjectName(QStringLiteral("lblKilogramy"));
    lblKilogramy->setAlignment(Qt::AlignCenter);
    lblKilogramy->setStyleSheet(QStringLiteral("color: #000080; font-weight: bold;"));
    imgKilometry = new QLabel(pnlClient);
    imgKilometry->setObjectName(QStringLiteral("imgKilometry"));
    imgKilometry->setPixmap(kilometreAxis());
    imgKilometry->setAlignment(Qt::AlignCenter);

    sgCennik = new QTableWidget(pnlClient);
    sgCennik->setObjectName(QStringLiteral("sgCennik"));
    sgCennik->setEditTriggers(QAbstractItemView::NoEditTriggers);
    sgCennik->setSelectionMode(QAbstractItemView::SingleSelection);
    sgCennik->horizontalHeader()->setDefaultSectionSize(70);
    sgCennik->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    sgCennik->verticalHeader()->setMinimumSectionSize(16);
    sgCennik->verticalHeader()->setDefaultSectionSize(16);
    sgCennik->verticalHeader()->setSectionResizeMode(QHeaderView::Interactive);

    auto *grid = new QGridLayout;
    grid->addWidget(lblKilogramy, 0, 1);
    grid->addWidget(imgKilometry, 1, 0);
    grid->addWidget(sgCennik, 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addLayout(chooserRow());
    layout->addLayout(grid, 1);

    connect(sgCennik, &QTableWidget::cellDoubleClicked, this, &TfrmCenniki::sgCennikDblClick);
    sgCennik->installEventFilter(this);
    resize(640, 460);
}

bool TfrmCenniki::eventFilter(QObject *watched, QEvent *event)
{
    // A dispatcher at the keyboard edits the cell under the cursor with
    // Enter, which would otherwise press the window's default button.
    if (watched == sgCennik && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            sgCennikDblClick();
            return true;
        }
    }
    return TPriceListWindow::eventFilter(watched, event);
}

void TfrmCenniki::FormCreate()
{
    TPriceListWindow::FormCreate();
    fillPriceListCombo(cbCennik, session().Database);
    buildGrid();
    FillCells();
    connect(cbCennik, &QComboBox::currentIndexChanged, this, &TfrmCenniki::FillCells);
}

void TfrmCenniki::buildGrid()
{
    Connection *database = session().Database;
    std::vector<PriceRange> rows;
    std::vector<PriceRange> columns;
    if (database) {
        reportFailures(QStringLiteral("Nie można odczytać przedziałów cennika"), [&] {
            rows = PriceRanges::list(*database, RangeAxis::Kilometres,
                                     PriceRanges::gridListing(RangeAxis::Kilometres));
            columns = PriceRanges::list(*database, RangeAxis::Kilograms,
                                        PriceRanges::gridListing(RangeAxis::Kilograms));
        });
    }
    sgCennik->setRowCount(int(rows.size()));
    sgCennik->setColumnCount(int(columns.size()));
    for (std::size_t r = 0; r < rows.size(); ++r)
        sgCennik->setVerticalHeaderItem(int(r), rangeHeader(rows[r]));
    for (std::size_t c = 0; c < columns.size(); ++c)
        sgCennik->setHorizontalHeaderItem(int(c), rangeHeader(columns[c]));
    // 70 wide unless a range's text needs more.
    QHeaderView *header = sgCennik->horizontalHeader();
    for (int c = 0; c < sgCennik->columnCount(); ++c)
        header->resizeSection(c, std::max(70, header->sectionSizeHint(c)));
}

int TfrmCenniki::RowCount() const
{
    return sgCennik->rowCount() + 1;
}

int TfrmCenniki::ColCount() const
{
    return sgCennik->columnCount() + 1;
}

QString TfrmCenniki::Cells(int column, int row) const
{
    if (column == 0 && row == 0)
        return QString();
    const QTableWidgetItem *item = column == 0 ? sgCennik->verticalHeaderItem(row - 1)
        : row == 0                             ? sgCennik->horizontalHeaderItem(column - 1)
                                               : sgCennik->item(row - 1, column - 1);
    return item ? item->text() : QString();
}

int TfrmCenniki::rangeKey(int column, int row) const
{
    const QTableWidgetItem *item = column == 0 ? sgCennik->verticalHeaderItem(row - 1)
                                               : sgCennik->horizontalHeaderItem(column - 1);
    return item ? item->data(KeyRole).toInt() : 0;
}

void TfrmCenniki::FillCells()
{
    // Emptying the cells resets the grid's model, and with it the cell the
    // dispatcher stands on; it is put back once the cells are filled.
    const int currentRow = sgCennik->currentRow();
    const int currentColumn = sgCennik->currentColumn();
    sgCennik->clearContents();
    const auto restoreCurrent = qScopeGuard([&] {
        if (currentRow >= 0 && currentColumn >= 0)
            sgCennik->setCurrentCell(currentRow, currentColumn);
    });
    Connection *database = session().Database;
    if (!database)
        return;
    std::unordered_map<int, int> rowOfKey;
    std::unordered_map<int, int> columnOfKey;
    for (int r = 1; r < RowCount(); ++r)
        rowOfKey.emplace(rangeKey(0, r), r - 1);
    for (int c = 1; c < ColCount(); ++c)
        columnOfKey.emplace(rangeKey(c, 0), c - 1);
    reportFailures(QStringLiteral("Nie można odczytać cennika"), [&] {
        for (const PriceCell &cell : PriceCells::ofGroup(*database, selectedPriceList(cbCennik))) {
            const auto row = rowOfKey.find(cell.kilometreRange);
            const auto column = columnOfKey.find(cell.kilogramRange);
            // Cells of ranges deleted meanwhile have no place in the grid.
            if (row == rowOfKey.end() || column == columnOfKey.end())
                continue;
            auto *item = new QTableWidgetItem(Format::number(cell.amount, u"#,##0.00"));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            sgCennik->setItem(row->second, column->second, item);
        }
    });
}

void TfrmCenniki::sgCennikDblClick()
{
    const int c = sgCennik->currentColumn() + 1;
    const int r = sgCennik->currentRow() + 1;
    Connection *database = session().Database;
    if (!database || c < 1 || c > ColCount() || r < 1 || r > RowCount())
        return;
    // The chosen cell stays in the caption as a trace.
    setWindowTitle(QString::number(c) + u',' + QString::number(r));
    const int group = selectedPriceList(cbCennik);
    const int columnKey = rangeKey(c, 0);
    const int rowKey = rangeKey(0, r);
    double amount = 0.0;
    if (!reportFailures(QStringLiteral("Nie można odczytać stawki"),
                     [&] { amount = PriceCells::amountAt(*database, group, rowKey, columnKey); }))
        return;
    auto dialog
        = TfrmRODefault::create<TfrmAddEditCenniki>(this, Cells(c, 0), Cells(0, r), amount);
    if (dialog->showModal() != mrOk)
        return;
    reportFailures(QStringLiteral("Nie można zapisać stawki"), [&] {
        PriceCells::store(*database, group, rowKey, columnKey, dialog->amount());
    });
    FillCells();
}
