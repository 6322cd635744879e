#include "ClientProfitStatement.h"

#include "Format.h"
#include "GroupedLines.h"

StatementLayout ClientProfitStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Kwoty dla kontrahenta - przychód, zysk") + period.text(),
            QStringLiteral("Kontrahent"),
            {{"Numer", 18},
             {"Data załad.", 20},
             {"Trasa", 62},
             {"Przychód", 24, StatementColumn::Money},
             {"Koszt", 24, StatementColumn::Money},
             {"Zysk", 24, StatementColumn::Money},
             {"Marża", 18, StatementColumn::Margin, Profit, Cost}},
            false,
            true};
}

StatementData ClientProfitStatement::read(Connection &connection, const ReportPeriod &period,
                                          int client)
{
    PeriodOrders orders{period, client ? PeriodOrders::Client : PeriodOrders::Anyone, client};
    return build(orders.read(connection), period);
}

StatementData ClientProfitStatement::build(const std::vector<PeriodOrder> &orders,
                                           const ReportPeriod &period)
{
    GroupedLines groups;
    MonthlyFigures months(period.from, period.to);
    for (const PeriodOrder &o : orders) {
        groups.add(o.client, o.clientName, o.profit(),
                   {o.numberText(), Format::date(o.date), o.route, o.revenue, o.cost,
                    o.profit(), QVariant()});
        months.add(o.date.date(), o.revenue, o.cost);
    }
    return {groups.byWeightDescending(), months.months()};
}
