#pragma once

#include <QDate>

#include <map>
#include <optional>
#include <vector>

// Revenue, cost and profit of one month, for the bar chart under the
// turnover statements.
struct MonthFigures
{
    QDate month;   // its first day
    double revenue = 0.0;
    double cost = 0.0;
    double profit() const { return revenue - cost; }
};

// Adds orders up by the month of their day; every month of the period is
// there, an empty one with zeros, so that the chart shows the gaps.
class MonthlyFigures
{
public:
    MonthlyFigures(const QDate &from, const QDate &to);

    void add(const QDate &day, double revenue, double cost);
    std::vector<MonthFigures> months() const;

private:
    std::map<QDate, MonthFigures> m_months;
};
