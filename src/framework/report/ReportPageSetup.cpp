#include "ReportPageSetup.h"

#include <QMarginsF>
#include <QPageSize>

QSizeF ReportPageSetup::pageSizeMm() const
{
    const QSizeF a4 = QPageSize(QPageSize::A4).size(QPageSize::Millimeter);
    return orientation == QPageLayout::Landscape ? a4.transposed() : a4;
}

QRectF ReportPageSetup::contentRectMm() const
{
    const QSizeF page = pageSizeMm();
    return QRectF(leftMm, topMm, page.width() - leftMm - rightMm,
                  page.height() - topMm - bottomMm);
}

QPageLayout ReportPageSetup::pageLayout() const
{
    // Pages are painted in page coordinates, so the device gets no margins
    // of its own.
    return QPageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF(0, 0, 0, 0),
                       QPageLayout::Millimeter);
}
