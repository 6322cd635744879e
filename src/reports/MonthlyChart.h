#pragma once

#include "MonthlyFigures.h"
#include "ReportPage.h"

#include <vector>

// Revenue, cost and profit month by month as bars, drawn with Qt Charts
// into a report page at the resolution of the device painted on.
class MonthlyChart final : public ReportDrawing
{
public:
    explicit MonthlyChart(std::vector<MonthFigures> months);

    void paint(QPainter &painter, const QRectF &target) const override;
    // "Przychód, koszt i zysk w miesiącach: 2026-03 1 200,00 / 800,00 / 400,00; ..."
    QString description() const override;

    const std::vector<MonthFigures> &months() const { return m_months; }

private:
    std::vector<MonthFigures> m_months;
};
