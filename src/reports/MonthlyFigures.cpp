#include "MonthlyFigures.h"

namespace {

QDate monthOf(const QDate &day)
{
    return QDate(day.year(), day.month(), 1);
}

} // namespace

MonthlyFigures::MonthlyFigures(const QDate &from, const QDate &to)
{
    if (!from.isValid() || !to.isValid())
        return;
    for (QDate month = monthOf(from); month <= to; month = month.addMonths(1))
        m_months[month].month = month;
}

void MonthlyFigures::add(const QDate &day, double revenue, double cost)
{
    if (!day.isValid())
        return;
    MonthFigures &figures = m_months[monthOf(day)];
    figures.month = monthOf(day);
    figures.revenue += revenue;
    figures.cost += cost;
}

std::vector<MonthFigures> MonthlyFigures::months() const
{
    std::vector<MonthFigures> months;
    months.reserve(m_months.size());
    for (const auto &[month, figures] : m_months)
        months.push_back(figures);
    return months;
}
