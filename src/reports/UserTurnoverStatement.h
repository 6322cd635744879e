#pragma once

#include "PeriodOrders.h"
#include "StatementLayout.h"

class Connection;

// Turnover per dispatcher by rate: for each user (the order's IDUSER, shown
// by login), month by month of the period, the orders loaded, their
// revenue, cost, profit and margin; the monthly chart closes it.
namespace UserTurnoverStatement {

enum Column { Month, Orders, Revenue, Cost, Profit, Margin, ColumnCount };

StatementLayout layout(const ReportPeriod &period);
// user: the user's key, 0 for every user. Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int user);
StatementData build(const std::vector<PeriodOrder> &orders, const ReportPeriod &period);

} // namespace UserTurnoverStatement
