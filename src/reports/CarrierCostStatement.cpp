#include "CarrierCostStatement.h"

#include "Format.h"
#include "GroupedLines.h"

StatementLayout CarrierCostStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Kwota stawki na przewoźnika - koszt") + period.text(),
            QStringLiteral("Przewoźnik"),
            {{"Numer", 20},
             {"Data załad.", 21},
             {"Zleceniodawca", 38},
             {"Trasa", 58},
             {"Koszt", 27, StatementColumn::Money},
             {"Faktura przewoźnika", 34},
             {"Kwota faktury", 27, StatementColumn::Money},
             {"Różnica", 27, StatementColumn::Money},
             {"Uwagi", 25}},
            true,
            false};
}

StatementData CarrierCostStatement::read(Connection &connection, const ReportPeriod &period,
                                         int carrier)
{
    PeriodOrders orders{period, carrier ? PeriodOrders::Carrier : PeriodOrders::Anyone, carrier};
    return build(orders.read(connection));
}

StatementData CarrierCostStatement::build(const std::vector<PeriodOrder> &orders)
{
    GroupedLines groups;
    for (const PeriodOrder &o : orders) {
        if (o.carrier <= 0)
            continue;
        const bool invoiced = o.carrierAmount > 0.0;
        groups.add(o.carrier, o.carrierName, 0.0,
                   {o.numberText(), Format::date(o.date), o.clientName, o.route, o.cost,
                    o.carrierInvoice, invoiced ? QVariant(o.carrierAmount) : QVariant(),
                    invoiced ? QVariant(o.carrierAmount - o.cost) : QVariant(),
                    invoiced ? QString() : NoInvoice});
    }
    return {groups.byTitle(), {}};
}
