#pragma once

#include "PeriodOrders.h"
#include "StatementLayout.h"

class Connection;

// Revenue and profit per client: the orders loaded in the period, grouped
// by client, the clients with the largest profit first; the monthly chart
// closes it.
namespace ClientProfitStatement {

enum Column { Number, Date, Route, Revenue, Cost, Profit, Margin, ColumnCount };

// client: the client's key, 0 for every client.
StatementLayout layout(const ReportPeriod &period);
// Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int client);
// The same from orders already read.
StatementData build(const std::vector<PeriodOrder> &orders, const ReportPeriod &period);

} // namespace ClientProfitStatement
