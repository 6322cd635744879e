// How the register fills its list and enables its actions.
#include "TfrmZlecPrzychodzace.h"

#include "EngineRows.h"
#include "Format.h"
#include "OrderListReader.h"
#include "ReportFailures.h"
#include "RowTexts.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TframeListView.h"

#include <QAction>
#include <QLabel>

namespace {

// Keeps the list in one update bracket however the filling ends.
class ListUpdate
{
public:
    explicit ListUpdate(TListView &list) : m_list(list) { m_list.beginUpdate(); }
    ~ListUpdate() { m_list.endUpdate(); }
    ListUpdate(const ListUpdate &) = delete;
    ListUpdate &operator=(const ListUpdate &) = delete;

private:
    TListView &m_list;
};

} // namespace

void TfrmZlecPrzychodzace::LoadLVData()
{
    TListView &list = *frameListView1->lvMain;
    m_total = 0.0;
    reportFailures(QStringLiteral("Nie można odczytać listy zleceń"), [&] {
        const ListUpdate update(list);
        list.clear();
        Connection *database = session().Database;
        if (!database)
            return;
        Statement st(*database);
        OrderListQuery::prepare(st, filter());
        // The list of a large company runs to many thousands of rows: they
        // come straight from the engine, their texts built in one buffer.
        EngineRows orders(st);
        const OrderListReader reader(orders);
        TListViewModel &rows = list.items();
        RowTexts texts;
        while (orders.next()) {
            const OrderListRow row = reader.read(texts);
            m_total += row.revenue;
            rows.addRow(texts, row.key, row.closed ? ClosedOrderImage : -1);
        }
    });
    lblKwota->setText(Format::number(m_total, u"#,##0.00"));
}

void TfrmZlecPrzychodzace::UpdateControls()
{
    const bool selected = frameListView1->lvMain->selectedIndex() >= 0;
    for (QAction *action : {acPopraw, acDelete, acPowiel, acTowary, acMiejsceZaladunku,
                            acMiejscaRozladunku})
        action->setEnabled(selected);
    acKarta->setEnabled(selected && m_kartaZeZlecen);
}
