#pragma once

#include <QPageLayout>
#include <QRectF>
#include <QSizeF>

// An A4 sheet, upright or lying, with margins in millimetres.
struct ReportPageSetup
{
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    double leftMm = 10.0;
    double topMm = 10.0;
    double rightMm = 10.0;
    double bottomMm = 10.0;

    QSizeF pageSizeMm() const;
    // The area inside the margins, in page coordinates.
    QRectF contentRectMm() const;
    QPageLayout pageLayout() const;
};
