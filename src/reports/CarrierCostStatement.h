#pragma once

#include "PeriodOrders.h"
#include "StatementLayout.h"

class Connection;

// Cost per carrier: the orders loaded in the period, grouped by carrier,
// the cost recorded in the order against the carrier's invoice for it.
// The difference is the invoice less the cost; an order without the
// carrier's invoice is marked and adds nothing to the difference.
namespace CarrierCostStatement {

enum Column {
    Number, Date, Client, Route, Cost, Invoice, Amount, Difference, Remark, ColumnCount
};

inline const QString NoInvoice = QStringLiteral("brak faktury");

StatementLayout layout(const ReportPeriod &period);
// carrier: the carrier's key, 0 for every carrier. Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int carrier);
StatementData build(const std::vector<PeriodOrder> &orders);

} // namespace CarrierCostStatement
