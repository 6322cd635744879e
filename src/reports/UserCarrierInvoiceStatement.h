#pragma once

#include "ReportPeriod.h"
#include "StatementLayout.h"

class Connection;

// Carriers' invoices per dispatcher: the carriers' invoices issued in the
// period for the orders of each user (the order's IDUSER): amount, what is
// paid (all of it once the invoice is marked paid, NRRAMPY 1), what
// remains, and how many days the remainder is overdue on the given day.
namespace UserCarrierInvoiceStatement {

enum Column {
    Order, Carrier, Number, Issued, Due, Amount, Paid, Remaining, DaysOverdue, ColumnCount
};

StatementLayout layout(const ReportPeriod &period);
// user: the user's key, 0 for every user. Throws DbError.
StatementData read(Connection &connection, const ReportPeriod &period, int user,
                   const QDate &today);

// Whole days past the due day with something still to pay; 0 when nothing
// remains or the due day has not passed.
int daysOverdue(const QDate &due, double remaining, const QDate &today);

} // namespace UserCarrierInvoiceStatement
