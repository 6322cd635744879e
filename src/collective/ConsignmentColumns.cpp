#include "ConsignmentColumns.h"

#include "Consignments.h"
#include "TframeListView.h"

namespace ConsignmentColumns {

namespace {

// The list's own width for a column that does not set one.
constexpr int DefaultWidth = 50;

} // namespace

void add(TframeListView &frame, bool withCity)
{
    const QStringList numeric{QStringLiteral("Plan palet"),    QStringLiteral("Ilość palet"),
                              QStringLiteral("Różnica palet"), QStringLiteral("Rampa nr"),
                              QStringLiteral("Zwroty"),        QStringLiteral("Ładowność palet")};
    TListView &list = *frame.lvMain;
    for (const Consignments::Column &column : Consignments::columns(withCity)) {
        const QString caption = QString::fromUtf8(column.caption);
        const int index = list.addColumn(caption, column.width < 0 ? DefaultWidth : column.width);
        if (numeric.contains(caption))
            list.setColumnAlignment(index, Qt::AlignRight | Qt::AlignVCenter);
    }
    frame.numericColumns() << numeric;
    list.setGridLines(true);
}

} // namespace ConsignmentColumns
